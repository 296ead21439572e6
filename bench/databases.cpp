#include "databases.h"

#include "file/archive/zip.h"
#include "makeBigDatabase.h"
#include "storage/openFile.h"

#include <array>
#include <filesystem>
#include <stdexcept>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp

namespace bench {

namespace {

namespace fs = std::filesystem;

class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern = (fs::temp_directory_path() / "ferrowick-bench-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for temporary files");
        path = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    fs::path path;
};

std::string makePackages(const fs::path& folder) {
    const fs::path copy = folder / "packages.fwk";
    fs::copy_file(fs::path(TEST_DATA_DIR) / "packages-32000.fwk", copy);
    fs::permissions(copy, fs::perms::owner_write, fs::perm_options::add);
    return copy.string();
}

std::string makeLargest(const fs::path& folder) {
    std::string path = (folder / "largest.fwk").string();
    makeBigDatabase(path);
    return path;
}

std::string readDataFileOf(const std::string& path) {
    file::Zip Zip;
    Zip.OpenArchive(path);
    return Zip.readEntry("data.dat", file::Zip::maxFileBytes).value();
}

} // namespace

const char* databaseName(int database) {
    return database == packages ? "32000x10" : "32767x50";
}

const std::string& databasePath(int database) {
    static const ScratchFolder scratch;
    if (database == packages) {
        static const std::string path = makePackages(scratch.path);
        return path;
    }
    static const std::string path = makeLargest(scratch.path);
    return path;
}

const std::string& dataFileOf(int database) {
    static std::array<std::string, 2> texts;
    std::string& text = texts.at(static_cast<std::size_t>(database));
    if (text.empty()) text = readDataFileOf(databasePath(database));
    return text;
}

OpenDatabase::OpenDatabase(int database) {
    app.document.currentFile = databasePath(database);
    storage::readArchive(app, app.document.currentFile);
}

} // namespace bench
