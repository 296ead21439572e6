#include "storage/saveSteps.h"

#include "core/translate.h"
#include "file/workFiles.h"
#include "storage/openedFile.h"
#include "storage/versions.h"

namespace storage {

using app::App;

namespace {

constexpr const char* dataFile = "data.dat";
constexpr const char* dataComment = "Main Data File";
constexpr const char* overwriteQuestion = core::marked("Overwrite Existing File?");

} // namespace

bool mayWriteTo(App& app, const std::string& target) {
    return !file::fileExists(target) || app::askYesNo(app, core::tr(overwriteQuestion), platform::Icon::None);
}

bool writeNewFile(App& app, const std::string& target, const std::function<void()>& write) {
    struct Release {
        ~Release() { openedFile(app).next.reset(); }
        App& app;
    } const release{app};
    if (!mayWriteTo(app, target) || !guardTarget(app, target)) return false;
    app.changes.announce(app, app::Change::Writing); // the file may be the open one, by whatever name
    write();
    app.changes.announce(app, app::Change::Written);
    return true;
}

void keepDataFile(App& app, const std::string& bytes) {
    if (app.platform.keepsDataFile()) file::writeWorkFile(app.platform.workFolder() / dataFile, bytes);
}

void addData(file::Zip& Zip, const std::string& bytes) {
    Zip.addBuffer(dataFile, bytes, dataComment);
}

void packAlone(App& app, const std::string& target, const std::string& bytes) {
    file::Zip Zip;
    Zip.CreateArchive(target, "", app.document.currentFile);
    addData(Zip, bytes);
    Zip.CloseArchive(keepingVersion(app, target));
    noteUnsynced(app, Zip, target);
}

core::RunTimeError tellFailure(App& app, bool bSaveAs, const std::exception& error) {
    const auto* known = dynamic_cast<const core::RunTimeError*>(&error);
    const int number = known == nullptr ? 0 : known->number;
    if (bSaveAs && number == core::errors::diskNotReady)
        app::warn(
            app,
            core::tr("  Please insert your working source disk or device that you have been saving to up "
                     "until now.  Ferrowick needs this before it can perform the 'save as' operation to the "
                     "other location you specified.  Once you have inserted the disk or device you can try "
                     "'save as' again."));
    else
        app::warn(
            app,
            core::tr(
                "There was an error writing to the file.  If saving to removable media, please make sure "
                "that the disk is inserted properly, or that the device is plugged in."));
    return {number, error.what()};
}

void tellReason(App& app, const std::optional<core::RunTimeError>& error) {
    if (error)
        app::warn(app, core::fill(core::tr("It could not be written for this reason:\n%1"), {error->what()}));
}

} // namespace storage
