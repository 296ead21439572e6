#include "shell/program.h"

#include "app/windowState.h"
#include "entry/navBar.h"
#include "entry/retrieveData.h"
#include "entry/shownRecord.h"
#include "invoice/views.h"
#include "labels/labelPrinting.h"
#include "layout/images.h"
#include "layout/selection.h"
#include "layout/sheet.h"
#include "search/codes/codeRules.h"
#include "search/colourRules.h"
#include "search/columnNames.h"
#include "search/filter/filterMode.h"
#include "search/suggestions.h"
#include "shell/mainWindow.h"
#include "shell/recentlyUsed.h"
#include "shell/start/recentFiles.h"
#include "shell/start/recoveryOffer.h"
#include "shell/undo.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/versions.h"
#include "summary/reportFigures.h"
#include "summary/summaryPanel.h"

namespace shell {

namespace {

void followUnsaved(app::App& app) {
    storage::UnsavedWork& work = storage::unsavedWork(app);
    if (work.typedInForm) {
        // It says by itself what that is.
    } else if (app.mainFrm.SSTab1 == app::layoutTab) {
        work.isTyped = true;
        work.typedKey = entry::sheet(app).shownKey;
    } else {
        work.isReplaced = true;
    }
    storage::markUnsaved(app);
}

} // namespace

void noteRecentlyUsed(app::App& app) {
    const std::string& file = app.document.currentFile;
    if (const auto& note = recentlyUsed(app).note; note && !file.empty()) note(file);
}

// Who follows which change, in the order in which they are told.
Program::Program(platform::Platform& platformToUse) : App(platformToUse) {
    using app::Change;
    rooms.of<layout::ReplacedPictures>().keeping = storage::keepingVersion;
    summary::countForReports(*this);
    labels::printOnStocks(*this);
    changes.follow({Change::Modified}, app::showModified);
    changes.follow({Change::Modified}, storage::followModified);
    changes.follow({Change::Unsaved}, followUnsaved);
    changes.follow({Change::Columns, Change::Values}, [](App& app) { storage::markUnsaved(app); });
    // What was typed on the sheet is gone with it.
    changes.follow({Change::CurrentRecord}, [](App& app) { storage::unsavedWork(app).isTyped = false; });
    changes.follow({Change::Stored}, storage::followStoredWork);
    changes.follow({Change::Opened}, storage::followOpened);
    changes.follow({Change::Stored}, storage::followStored);
    changes.follow({Change::Writing}, storage::followWriting);
    changes.follow({Change::Written}, storage::followWritten);
    changes.follow({Change::Opened, Change::Stored}, noteRecentlyUsed);
    changes.follow({Change::Columns}, [](App& app) {
        // What is designed shows the names of its columns, and a new record has no results yet.
        if (!layout::isDesignMode(app) && !entry::isSheetNew(app)) entry::refreshShownRecord(app);
    });
    changes.follow({Change::Objects}, layout::forgetLostObject);
    changes.follow({Change::PageEmptied}, entry::unbindSheet);
    changes.follow({Change::Values, Change::CurrentRecord}, entry::refreshShownRecord);
    changes.follow({Change::Columns, Change::Values}, [](App& app) { invoice::rebuildView(app.document); });
    changes.follow({Change::Modified, Change::Columns, Change::Values, Change::CurrentRecord, Change::Unsaved,
                    Change::Begun, Change::Opened},
                   search::followRecordsForFilter);
    changes.follow({Change::Modified, Change::Columns, Change::Values, Change::CurrentRecord, Change::Begun,
                    Change::Opened},
                   search::forgetSuggestions);
    changes.follow({Change::Opened}, search::readColours);
    changes.follow({Change::Opened, Change::Begun}, search::readColumnNames);
    changes.follow({Change::Columns}, search::followColumnNames);
    changes.follow({Change::Stored}, search::followStoredColumnNames);
    changes.follow({Change::Stored}, search::followStoredColours);
    changes.follow({Change::Opened}, search::readCodeRules);
    changes.follow({Change::Stored}, search::followStoredCodeRules);
    changes.follow({Change::Opened, Change::Stored}, rememberRecentFile);
    changes.follow({Change::Page}, entry::showPage);
    changes.follow({Change::Opened}, [](App& app) {
        if (!app.document.currentFile.empty()) offerRecovery(app, app.document.currentFile);
    });
    changes.follow({Change::Modified, Change::Columns, Change::Values, Change::CurrentRecord, Change::Unsaved,
                    Change::Begun, Change::Opened},
                   summary::followChanges);
    followForUndo(changes);
    changes.follow({Change::Modified}, search::followRecordsForCodes); // last: it changes records itself
    changes.follow({Change::Preview}, [](App& app) { SSTab1_Click(app, app::previewTab); });
}

} // namespace shell
