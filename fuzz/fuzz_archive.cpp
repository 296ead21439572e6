// Feeds any bytes as a database file to the open. Whatever they are, it must end with a document or with a
// run-time error. What has been opened can be saved and opens again; or, when another entry of the archive
// is damaged, the save is refused and leaves the file as it was.

#include "app/app.h"
#include "core/runTimeError.h"
#include "platform/headlessPlatform.h"
#include "storage/openFile.h"
#include "storage/saveFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <unistd.h>

namespace {

// The file that the inputs take turns in; a process has its own, since libFuzzer can run several.
const std::string& filePath() {
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("ferrowick-fuzz-" + std::to_string(getpid()) + ".fwk"))
            .string();
    return path;
}

// On disk as long as it is open: libFuzzer ends the process without any clearing up.
struct InputFile {
    explicit InputFile(const std::string& bytes) { std::ofstream(filePath(), std::ios::binary) << bytes; }
    ~InputFile() { unlink(filePath().c_str()); }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
};

std::string fileBytes() {
    std::ifstream file(filePath(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

[[noreturn]] void giveUp(const char* what) {
    std::cerr << what << '\n';
    unlink(filePath().c_str());
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const InputFile file(bytes);
    std::ostringstream messages;
    platform::HeadlessPlatform machine(messages);
    app::App app(machine);
    try {
        storage::readArchive(app, filePath());
    } catch (const core::RunTimeError&) {
        return 0; // no database
    }
    const int records = app.document.LV.count();
    app.document.currentFile = filePath();
    storage::SaveFile(app, false, false);
    if (machine.exclamations() > 0) {
        if (fileBytes() != bytes) giveUp("a failed save has changed the file");
        return 0;
    }
    storage::readArchive(app, filePath()); // an error that it raises is a fault
    // The rows of a table without columns are empty lines, which do not come back.
    if (app.document.LV.columns.count() > 1 && app.document.LV.count() != records)
        giveUp("a saved database does not come back as it was");
    return 0;
}
