#include "storage/versionsFrm.h"

#include "app/hourglass.h"
#include "app/windowState.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "file/dataReader.h"
#include "storage/openFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveSteps.h"
#include "storage/versions.h"

#include <algorithm>
#include <ctime>
#include <filesystem>

namespace storage {

namespace {

std::string timeText(std::int64_t seconds, const char* format) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm local{};
    ::localtime_r(&time, &local);
    char text[32] = {};
    std::strftime(text, sizeof text, format, &local);
    return text;
}

int recordsOf(const core::Document& document) {
    return std::max(document.LV.count() - 1, 0); // without the Totals row
}

} // namespace

versionsFrm::versionsFrm(app::App& app) : app_(app) {
    const VersionSettings settings = versionSettings(app);
    Check1 = settings.keep;
    Text1 = std::to_string(settings.megabytes);
    const app::Hourglass hourglass(app);
    if (const auto store = versionStore(app)) versions_ = store->versionsOf(app.document.currentFile);
    for (const file::Version& version : versions_) {
        Entry entry{timeText(version.saved, "%Y-%m-%d %H:%M:%S"), app::fileSizeText(version.bytes), "?"};
        if (version.records) {
            entry.Records = std::to_string(*version.records);
        } else {
            try {
                entry.Records = std::to_string(recordsOf(*read(version)));
            } catch (const core::RunTimeError&) {
                // Damaged; it says so when it is chosen.
            }
        }
        List1.push_back(std::move(entry));
    }
    Label1 = versions_.empty() ? core::tr("No version of this database has been kept yet.")
                               : core::tr("Earlier states of this database:");
    if (!versions_.empty()) selected = 0;
    enableButtons();
}

void versionsFrm::enableButtons() {
    const bool any = selected >= 0 && static_cast<std::size_t>(selected) < versions_.size();
    showBtnEnabled = restoreBtnEnabled = copyBtnEnabled = any;
}

std::shared_ptr<core::Document> versionsFrm::read(const file::Version& version) {
    auto document = std::make_shared<core::Document>();
    file::readDataFile(file::VersionStore::textOf(version), *document);
    return document;
}

void versionsFrm::List1_Click(int entry) {
    if (entry != selected) shown.reset();
    selected = entry;
    enableButtons();
}

void versionsFrm::showBtn_Click() {
    if (!showBtnEnabled) return;
    const app::Hourglass hourglass(app_);
    try {
        shown = read(versions_[static_cast<std::size_t>(selected)]);
    } catch (const core::RunTimeError& error) {
        app::warn(app_, core::fill(core::tr("The version cannot be read: %1"), {error.what()}));
    }
}

void versionsFrm::restoreBtn_Click() {
    if (!restoreBtnEnabled) return;
    if (app_.mainFrm.bReadOnly) {
        app::inform(app_,
                    core::tr("The database is open to read only.  Save a copy of the version instead."));
        return;
    }
    if ((app_.document.bModified || hasUnsavedWork(app_)) &&
        app_.platform.msgBox(
            core::tr("What has not been saved yet will be lost.  Restore the version all the same?"),
            platform::Icon::Question, app::title, platform::Buttons::YesNoDefaultNo) != platform::Answer::Yes)
        return;
    try {
        restore(versions_[static_cast<std::size_t>(selected)]);
    } catch (const core::RunTimeError& error) {
        app::warn(app_, core::fill(core::tr("The version could not be restored: %1"), {error.what()}));
    }
}

// The pictures first: what has them may then be saved at any time.
void versionsFrm::restore(const file::Version& version) {
    const app::Hourglass hourglass(app_);
    const std::string file = app_.document.currentFile, lock = app_.document.lockPassword;
    std::string text = file::VersionStore::textOf(version);
    core::Document whole; // raises for a damaged text, before anything is changed
    file::readDataFile(text, whole);
    app_.changes.announce(app_, app::Change::Writing);
    const std::vector<std::string> missing =
        versionStore(app_)->putPicturesBack(version, file, [keep = keepingVersion(app_, file)] {
            if (keep) keep({});
        });
    app_.changes.announce(app_, app::Change::Written);
    replaceDocument(app_, std::move(text));
    // To restore a state of before the lock opens no design.
    if (!lock.empty()) app_.document.lockPassword = lock;
    unloaded = true;
    tellMissing(missing);
}

void versionsFrm::copyBtn_Click() {
    if (!copyBtnEnabled) return;
    const file::Version& version = versions_[static_cast<std::size_t>(selected)];
    const std::string& file = app_.document.currentFile;
    const std::string proposed =
        core::fill(core::tr("%1 of %2.fwk"), {std::filesystem::path(file).stem().string(),
                                              timeText(version.saved, "%Y-%m-%d %H.%M.%S")});
    const auto target =
        app_.platform.showSave({core::tr("Save a Copy..."), proposed, core::tr(platform::databaseFilter)});
    if (!target) return;
    std::error_code error;
    if (*target == file || std::filesystem::equivalent(*target, file, error)) {
        app::inform(app_, core::tr("The copy cannot take the place of the database that is open."));
        return;
    }
    std::vector<std::string> missing;
    try {
        const bool isWritten = writeNewFile(app_, *target, [&] {
            const app::Hourglass hourglass(app_);
            missing =
                versionStore(app_)->write(version, file, *target, [keep = keepingVersion(app_, *target)] {
                    if (keep) keep({});
                });
        });
        if (isWritten) tellMissing(missing);
    } catch (const core::RunTimeError& failure) {
        app::warn(app_, core::fill(core::tr("The copy could not be written: %1"), {failure.what()}));
    }
}

void versionsFrm::tellMissing(const std::vector<std::string>& pictures) {
    if (pictures.empty()) return;
    constexpr std::size_t mostNames = 10;
    std::string names;
    for (std::size_t i = 0; i < std::min(pictures.size(), mostNames); ++i) names += "\n" + pictures[i];
    if (pictures.size() > mostNames)
        names.append("\n").append(
            core::tr("and %n more", "and %n more", static_cast<int>(pictures.size() - mostNames)));
    app::inform(app_, core::tr("These pictures of the version are no longer there:") + names);
}

void versionsFrm::Check1_Click(bool checked) {
    Check1 = checked;
    VersionSettings settings = versionSettings(app_);
    settings.keep = checked;
    storeVersionSettings(app_, settings);
}

void versionsFrm::Text1_LostFocus() {
    VersionSettings settings = versionSettings(app_);
    const std::string typed(core::trim(Text1));
    const double megabytes = core::isNumeric(typed) ? core::val(typed) : -1;
    if (megabytes >= 1 && megabytes <= VersionSettings::mostMegabytes &&
        static_cast<int>(megabytes) != settings.megabytes) {
        settings.megabytes = static_cast<int>(megabytes);
        storeVersionSettings(app_, settings);
    }
    Text1 = std::to_string(settings.megabytes);
}

void versionsFrm::CloseButton_Click() {
    Text1_LostFocus();
    unloaded = true;
}

} // namespace storage
