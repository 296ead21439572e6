#include "storage/saveFile.h"

#include "app/windowState.h"
#include "core/translate.h"
#include "file/archive/checksum.h"
#include "file/archive/zip.h"
#include "file/dataWriter.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveSteps.h"
#include "storage/versions.h"

#include <optional>

namespace storage {

namespace {

using app::App;

void pack(App& app, const std::string& bytes) {
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    addData(Zip, bytes);
    openedFile(app).written = Zip.CloseArchive(keepingVersion(app, app.document.currentFile));
    noteUnsynced(app, Zip, app.document.currentFile);
}

// The copy carries all the images along. It is finished beside its place and takes it in one step, so
// that a file that is replaced stays until the new one is whole.
void packCopy(App& app, const std::string& target, const std::string& bytes) {
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    addData(Zip, bytes);
    openedFile(app).written = Zip.CloseArchiveAs(target, keepingVersion(app, target));
    noteUnsynced(app, Zip, target);
    app.document.currentFile = target;
}

void packClone(App& app, const std::string& bytes) {
    const std::optional<std::string> target = app.platform.showSave(
        {core::tr("Clone current file to..."), core::tr("Clone1.fwk"), core::tr(platform::databaseFilter)});
    if (target) (void)writeNewFile(app, *target, [&] { packAlone(app, *target, bytes); });
}

void writeAndPack(App& app, const std::optional<std::string>& saveAsTarget, bool bClone) {
    if (saveAsTarget && (!mayWriteTo(app, *saveAsTarget) || !guardTarget(app, *saveAsTarget))) return;
    const std::string bytes = file::encodeDataFile(file::writeDataFile(app.document, bClone));
    keepDataFile(app, bytes);
    // Said before the archive is touched: a failed pack does not show as unsaved. It is wanted so.
    if (!bClone) app::setDocumentModified(app, false);
    if (bClone) {
        packClone(app, bytes);
        return;
    }
    if (saveAsTarget)
        packCopy(app, *saveAsTarget, bytes);
    else
        pack(app, bytes);
    noteRecords(app, file::checksum(bytes));
    app::showCaption(app);
    app::showFileSize(app);
    app.changes.announce(app, app::Change::Stored);
}

} // namespace

std::optional<core::RunTimeError> SaveFile(App& app, bool bSaveAs, bool bClone) {
    std::optional<std::string> target;
    const SaveWay way = bSaveAs ? SaveWay::SaveAs : bClone ? SaveWay::Save : waySave(app);
    if (way == SaveWay::None) return std::nullopt;
    if (way == SaveWay::SaveAs) {
        target = app.platform.showSave(
            {core::tr("Save As..."), core::tr("Untitled.fwk"), core::tr(platform::databaseFilter)});
        if (!target) return std::nullopt;
        if (*target == app.document.currentFile) {
            if (!guardTarget(app, *target) || waySaveOver(app) != SaveWay::Save) return std::nullopt;
            target.reset(); // a plain save
        }
    }
    try {
        writeAndPack(app, target, bClone);
        openedFile(app).next.reset(); // the user may have refused to overwrite it
        return std::nullopt;
    } catch (const std::exception& error) {
        openedFile(app).next.reset();
        // The copy is what there is of the work, since nobody is asked about it any more.
        if (!bClone) unsavedWork(app).hasSaveFailed = true;
        keepUnsavedWork(app);
        // Nothing is swallowed: whatever kept the file from being written is told.
        return tellFailure(app, target.has_value(), error);
    }
}

} // namespace storage
