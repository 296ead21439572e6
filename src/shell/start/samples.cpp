#include "shell/start/samples.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/atomicFile.h"
#include "file/fileHandle.h"
#include "platform/programFiles.h"
#include "shell/menuCommands.h"

#include <array>
#include <cerrno>

#include <unistd.h>

namespace shell {

namespace fs = std::filesystem;

namespace {

struct Offer {
    const char* file;
    const char* name;
    const char* shows;
    const char* picture;
};

constexpr std::array<Offer, 5> offers = {{
    {"library.fwk", core::marked("Library"), core::marked("Books with their covers"), "sampleLibrary"},
    {"addresses.fwk", core::marked("Address book"), core::marked("Address labels, many to a page"),
     "sampleAddresses"},
    {"garden.fwk", core::marked("Garden"), core::marked("Plants with photos and costs"), "sampleGarden"},
    {"inventory.fwk", core::marked("Inventory"), core::marked("Calculated values and totals"),
     "sampleInventory"},
    {"invoices.fwk", core::marked("Invoices"), core::marked("Item rows, tax and sums"), "sampleInvoices"},
}};

// The new file belongs to the user, whatever the permissions of the installed one.
void copyFile(const fs::path& from, const fs::path& to) {
    const file::FileHandle source = file::openRegularFile(from);
    file::AtomicFile target(to);
    std::array<char, 1 << 16> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): read() fills it
    for (;;) {
        const ssize_t size = ::read(source.get(), buffer.data(), buffer.size());
        if (size < 0 && errno == EINTR) continue;
        if (size < 0) file::raiseSystemError(errno, from.string());
        if (size == 0) break;
        for (ssize_t done = 0; done < size;) {
            const ssize_t written =
                ::write(target.fd(), buffer.data() + done, static_cast<std::size_t>(size - done));
            if (written < 0 && errno != EINTR) file::raiseSystemError(errno, to.string());
            if (written > 0) done += written;
        }
    }
    target.commit();
}

} // namespace

std::vector<Sample> samplesIn(const fs::path& folder) {
    std::vector<Sample> samples;
    std::error_code error;
    for (const Offer& offer : offers)
        if (fs::is_regular_file(folder / offer.file, error))
            samples.push_back(
                {folder / offer.file, core::tr(offer.name), core::tr(offer.shows), offer.picture});
    return samples;
}

std::vector<Sample> installedSamples() {
    const std::optional<fs::path> folder = platform::programFile("samples");
    return folder ? samplesIn(*folder) : std::vector<Sample>();
}

void openSample(app::App& app, const Sample& sample, const fs::path& documents) {
    const fs::path folder = documents / app::title;
    const fs::path copy = folder / sample.file.filename();
    try {
        // Whatever stands there under that name is the user's.
        if (!fs::exists(fs::symlink_status(copy))) {
            fs::create_directories(folder);
            copyFile(sample.file, copy);
        }
    } catch (const core::RunTimeError& error) {
        app::warn(app, core::fill(core::tr("The sample could not be copied to %1: %2"),
                                  {folder.string(), error.what()}));
        return;
    } catch (const fs::filesystem_error& error) {
        app::warn(app, core::fill(core::tr("The sample could not be copied to %1: %2"),
                                  {folder.string(), error.code().message()}));
        return;
    }
    openNamedFile(app, copy.string());
}

} // namespace shell
