#include "shell/settings.h"

#include "core/text.h"
#include "shell/appearance.h"
#include "shell/looks.h"
#include "shell/recentlyUsed.h"
#include "shell/start/recentFiles.h"

namespace shell {

namespace {

struct Toggle {
    const char* key;
    bool byDefault;
    bool app::MainFrm::*variable;
    const char* control; // whose checked or pressed state shows it; empty for none
};

constexpr Toggle toggles[] = {
    {"ConfirmDelete", true, &app::MainFrm::bConfirmDelete, "mnuConfirmDelete"},
    {"SnapToGrid", true, &app::MainFrm::bSnapToGrid, "layoutToolbar.Snap"},
    {"AutoLoad", false, &app::MainFrm::bAutoLoad, "mnuAutoLoad"},
    {"Disclaimer", false, &app::MainFrm::bDisclaimerSeen, ""},
    {"LayoutDBLClick", false, &app::MainFrm::bLayoutDblClick, "mnuLayoutDoubleClick"},
    {"HighlightCalc", false, &app::MainFrm::bHighlightCalc, "mnuCalcHighlight"},
    {"SavePrompt", true, &app::MainFrm::bSavePrompt, "mnuSavePrompt"},
};

constexpr const char* recentFiles[] = {"1", "2", "3"};

bool read(const std::string& text, bool byDefault) {
    if (core::equalsNoCase(text, "True")) return true;
    if (core::equalsNoCase(text, "False")) return false;
    return byDefault; // a settings file that somebody else has written in
}

} // namespace

void readSettings(app::App& app) {
    for (const Toggle& toggle : toggles) {
        const std::string text = app.platform.getSetting(toggle.key, toggle.byDefault ? "True" : "False");
        app.mainFrm.*toggle.variable = read(text, toggle.byDefault);
        if (*toggle.control != '\0') app.mainFrm.control(toggle.control).Value = app.mainFrm.*toggle.variable;
    }
    for (const char* number : recentFiles)
        app.mainFrm.control(std::string("mnuFile") + number).Caption =
            app.platform.getSetting(std::string("File") + number, "");
    readLooks(app);
    readAppearance(app);
    readRecentFiles(app);
}

std::string lastFile(const app::App& app) {
    const std::string open = app.platform.getSetting("defaultFile", "");
    return open.empty() ? app.platform.getSetting("File1", "") : open;
}

void writeSettings(app::App& app) {
    app.platform.saveSetting("defaultFile", app.document.currentFile);
    for (const Toggle& toggle : toggles)
        app.platform.saveSetting(toggle.key, app.mainFrm.*toggle.variable ? "True" : "False");
    for (const char* number : recentFiles)
        app.platform.saveSetting(std::string("File") + number,
                                 app.mainFrm.control(std::string("mnuFile") + number).Caption);
    writeLooks(app);
    writeAppearance(app);
    writeRecentFiles(app);
    app.platform.flushSettings();
}

} // namespace shell
