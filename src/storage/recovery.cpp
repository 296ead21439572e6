#include "storage/recovery.h"

#include "core/runTimeError.h"
#include "file/archive/zip.h"
#include "file/dataWriter.h"

#include <filesystem>

namespace storage {

namespace {

std::filesystem::path freePath(const std::filesystem::path& folder, const std::string& stem) {
    for (int number = 1;; ++number) {
        std::filesystem::path path = folder / (stem + " (recovered " + std::to_string(number) + ").fwk");
        if (!std::filesystem::exists(path)) return path;
    }
}

// The archive with the images, or a new one when it has gone or is damaged: the records matter more.
void openImages(file::Zip& Zip, const std::string& archive, const std::string& target) {
    try {
        Zip.OpenArchive(archive);
    } catch (const core::RunTimeError&) {
        Zip.CreateArchive(target, "");
    }
}

} // namespace

std::optional<std::string> keepRecoveryCopy(app::App& app) noexcept {
    try {
        const std::string& currentFile = app.document.currentFile;
        if (currentFile.empty() && app.document.LV.columns.count() < 2) return std::nullopt;
        const std::filesystem::path folder = app.platform.workFolder() / "Recovered";
        std::filesystem::create_directories(folder);
        const std::string stem = std::filesystem::path(currentFile).stem().string();
        const std::string target = freePath(folder, stem.empty() ? "Untitled" : stem).string();
        const std::string bytes = file::encodeDataFile(file::writeDataFile(app.document, false));
        file::Zip Zip;
        openImages(Zip, currentFile, target);
        Zip.addBuffer("data.dat", bytes, "Main Data File");
        Zip.CloseArchiveAs(target);
        return target;
    } catch (const std::exception&) {
        // The program is ending for another reason, which is told with the words that no copy is kept.
        return std::nullopt;
    }
}

} // namespace storage
