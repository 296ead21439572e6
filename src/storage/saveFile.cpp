#include "storage/saveFile.h"

#include "app/windowState.h"
#include "core/runTimeError.h"
#include "platform/zip.h"
#include "storage/dataWriter.h"
#include "storage/workFiles.h"

#include <filesystem>
#include <optional>

namespace storage {

namespace {

using app::App;

constexpr const char* dataFile = "data.dat";
constexpr const char* dataComment = "Main Data File";
constexpr const char* overwriteQuestion = "Overwrite Existing File?";

bool mayWriteTo(App& app, const std::string& target) {
    return !fileExists(target) || app::askYesNo(app, overwriteQuestion, platform::Icon::None);
}

void pack(const std::string& archive, const std::string& bytes) {
    platform::Zip Zip;
    Zip.OpenArchive(archive);
    Zip.addBuffer(dataFile, bytes, dataComment);
    Zip.CloseArchive();
}

// The copy carries all the images along. It is finished beside its place and takes it in one step, so
// that a file that is replaced stays until the new one is whole.
void packCopy(App& app, const std::string& target, const std::string& bytes) {
    platform::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    Zip.addBuffer(dataFile, bytes, dataComment);
    Zip.CloseArchiveAs(target);
    app.document.currentFile = target;
}

void packClone(App& app, const std::string& bytes) {
    const std::optional<std::string> target = app.platform.showSave(
        {"Clone current file to...", "Clone1.fwk", std::string(platform::databaseFilter)});
    if (!target || !mayWriteTo(app, *target)) return;
    platform::Zip Zip;
    Zip.CreateArchive(*target, "");
    Zip.addBuffer(dataFile, bytes, dataComment);
    Zip.CloseArchive();
}

void tellFailure(App& app, bool bSaveAs, int number) {
    if (bSaveAs && number == core::errors::diskNotReady)
        app::warn(app,
                  "  Please insert your working source disk or device that you have been saving to up "
                  "until now.  Ferrowick needs this before it can perform the 'save as' operation to the "
                  "other location you specified.  Once you have inserted the disk or device you can try "
                  "'save as' again.");
    else
        app::warn(app,
                  "There was an error writing to the file.  If saving to removable media, please make sure "
                  "that the disk is inserted properly, or that the device is plugged in.");
}

void writeAndPack(App& app, const std::optional<std::string>& saveAsTarget, bool bClone) {
    if (saveAsTarget && !mayWriteTo(app, *saveAsTarget)) return;
    const std::string bytes = encodeDataFile(writeDataFile(app.document, bClone));
    if (app.platform.keepsDataFile()) writeWorkFile(app.platform.workFolder() / dataFile, bytes);
    // Said before the archive is touched: a failed pack does not show as unsaved. It is wanted so.
    if (!bClone) app::setDocumentModified(app, false);
    if (bClone) {
        packClone(app, bytes);
        return;
    }
    if (saveAsTarget)
        packCopy(app, *saveAsTarget, bytes);
    else
        pack(app.document.currentFile, bytes);
    app::showCaption(app);
    app::showFileSize(app);
}

} // namespace

void SaveFile(App& app, bool bSaveAs, bool bClone) {
    std::optional<std::string> target;
    if (bSaveAs) {
        target = app.platform.showSave({"Save As...", "Untitled.fwk", std::string(platform::databaseFilter)});
        if (!target) return;
        if (*target == app.document.currentFile) target.reset(); // a plain save
    }
    try {
        writeAndPack(app, target, bClone);
    } catch (const core::RunTimeError& error) {
        tellFailure(app, target.has_value(), error.number);
    } catch (const std::exception&) {
        tellFailure(app, target.has_value(), 0);
    }
}

} // namespace storage
