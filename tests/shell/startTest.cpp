#include "shell/program.h"
#include "programTest.h"
#include "shell/commands.h"
#include "shell/mainWindow.h"

#include <algorithm>

namespace {

using platform::Answer;
using platform::Icon;

// Also remembers the order of what it is asked.
class LoggingPlatform : public ScriptedPlatform {
public:
    std::vector<std::string> log;

    Answer msgBox(const std::string& text, Icon icon, const std::string& caption,
                  platform::Buttons buttons) override {
        log.push_back("message: " + text);
        return ScriptedPlatform::msgBox(text, icon, caption, buttons);
    }
    void showForm(std::string_view name) override {
        log.push_back("form: " + std::string(name));
        ScriptedPlatform::showForm(name);
    }
    std::string getSetting(const std::string& key, const std::string& byDefault) override {
        log.push_back("read: " + key);
        return ScriptedPlatform::getSetting(key, byDefault);
    }
    void saveSetting(const std::string& key, const std::string& value) override {
        log.push_back("write: " + key);
        ScriptedPlatform::saveSetting(key, value);
    }
    void flushSettings() override { log.emplace_back("flush"); }

    // Where the first entry that starts so stands, from 0; -1 when there is none.
    long placeOf(std::string_view start) const {
        const auto found =
            std::ranges::find_if(log, [&](const std::string& entry) { return entry.starts_with(start); });
        return found == log.end() ? -1 : found - log.begin();
    }
};

struct Settings {
    const char* key;
    bool byDefault;
    bool app::MainFrm::*variable;
    const char* control;
};

constexpr Settings booleans[] = {
    {"ConfirmDelete", true, &app::MainFrm::bConfirmDelete, "mnuConfirmDelete"},
    {"SnapToGrid", true, &app::MainFrm::bSnapToGrid, "layoutToolbar.Snap"},
    {"AutoLoad", false, &app::MainFrm::bAutoLoad, "mnuAutoLoad"},
    {"LayoutDBLClick", false, &app::MainFrm::bLayoutDblClick, "mnuLayoutDoubleClick"},
    {"HighlightCalc", false, &app::MainFrm::bHighlightCalc, "mnuCalcHighlight"},
    {"SavePrompt", true, &app::MainFrm::bSavePrompt, "mnuSavePrompt"}};

class StartTest : public testing::Test {
protected:
    Program files;
    LoggingPlatform platform;
    shell::Program app{platform};
    app::MainFrm& mainFrm = app.mainFrm;

    StartTest() { platform.settings["Disclaimer"] = "True"; }
    void load(app::App& starting, const std::string& command = "") {
        shell::Form_Load(starting, command, [&] { platform.log.emplace_back("show"); });
    }
    void load(const std::string& command = "") { load(app, command); }
    std::string copyOf(const char* name) const { return files.copyOf(name); }
    static std::string quoted(const std::string& path) { return '"' + path + '"'; }
};

TEST_F(StartTest, theWindowStartsEmptyAndSaysSo) {
    load();
    const std::vector<std::string> panels(mainFrm.panels.begin(), mainFrm.panels.end());
    EXPECT_EQ(panels, (std::vector<std::string>{"", "", "", "Calculation Status:", "Filesize:",
                                                "No Open Document", "Database Style:"}));
    EXPECT_EQ(mainFrm.Caption, "Ferrowick");
    EXPECT_EQ(mainFrm.theListView, &app.document.LV);
    EXPECT_FALSE(mainFrm.SSTab1Enabled);
    EXPECT_FALSE(app.document.bModified);
}

TEST_F(StartTest, theOrderOfTheStart) {
    platform.settings = {{"AutoLoad", "True"}, {"defaultFile", "/no/such/file.fwk"}};
    load();
    EXPECT_TRUE(mainFrm.bDisclaimerSeen);
    const long lastSetting = platform.placeOf("read: SavePrompt"),
               disclaimer = platform.placeOf("form: disclaimFrm");
    const long shown = platform.placeOf("show"), file = platform.placeOf("read: defaultFile");
    const long message = platform.placeOf("message: Previously opened file could not be found.");
    EXPECT_TRUE(0 <= lastSetting && lastSetting < disclaimer) << "settings before the disclaimer";
    EXPECT_LT(disclaimer, shown) << "which is read before the window is there";
    EXPECT_LT(shown, file) << "and the file comes when the window shows";
    EXPECT_LT(file, message);
    EXPECT_EQ(platform.forms.size(), 1U);

    shell::Form_QueryUnload(app);
    app::App again{platform};
    load(again);
    EXPECT_EQ(platform.forms.size(), 1U) << "the disclaimer is shown once";
}

TEST_F(StartTest, settings) {
    load();
    for (const Settings& setting : booleans) {
        EXPECT_EQ(mainFrm.*setting.variable, setting.byDefault) << setting.key;
        EXPECT_EQ(mainFrm.control(setting.control).Value, setting.byDefault) << setting.key;
    }
    for (const bool value : {true, false, true}) {
        for (const Settings& setting : booleans) platform.settings[setting.key] = value ? "True" : "False";
        platform.settings["defaultFile"] = "";
        app::App next{platform};
        load(next);
        for (const Settings& setting : booleans) {
            EXPECT_EQ(next.mainFrm.*setting.variable, value) << setting.key;
            EXPECT_EQ(next.mainFrm.control(setting.control).Value, value) << setting.key;
            next.mainFrm.*setting.variable = !value;
        }
        next.mainFrm.control("mnuFile2").Caption = "/a b/c.fwk";
        next.document.currentFile = "/open.fwk";
        shell::Form_QueryUnload(next);
        for (const Settings& setting : booleans)
            EXPECT_EQ(platform.settings[setting.key], value ? "False" : "True") << setting.key;
        EXPECT_EQ(platform.settings["Disclaimer"], "True");
        EXPECT_EQ(platform.settings["defaultFile"], "/open.fwk");
        EXPECT_EQ(platform.settings["File1"], "");
        EXPECT_EQ(platform.settings["File2"], "/a b/c.fwk");
    }
    app::App last{platform};
    load(last);
    EXPECT_EQ(last.mainFrm.control("mnuFile2").Caption, "/a b/c.fwk");
    // Somebody else can have written anything.
    const std::pair<const char*, bool> texts[] = {
        {"true", true}, {"FALSE", false}, {"", true}, {"maybe", true}, {" False", true}};
    for (const auto& [text, expected] : texts) {
        platform.settings["SavePrompt"] = text;
        app::App starting{platform};
        load(starting);
        EXPECT_EQ(starting.mainFrm.bSavePrompt, expected) << text;
    }
}

TEST_F(StartTest, theFileOfTheStart) {
    const std::string books = copyOf("books.fwk"), invoices = copyOf("invoices.fwk");
    const struct {
        const char* autoLoad;
        std::string remembered, command, opened;
        bool message;
    } cases[] = {{"False", "", "", "", false},
                 {"False", books, "", "", false},
                 {"True", books, "", books, false},
                 {"True", books, quoted(invoices), invoices, false}, // the command line wins
                 {"False", books, quoted(invoices), invoices, false},
                 {"True", "", "", "", false}, // nothing was ever opened
                 {"True", "/gone.fwk", "", "", true},
                 {"False", "/gone.fwk", "", "", false},
                 {"False", books, quoted("/gone.fwk"), "", true},
                 {"False", "", "x" + books + "y", books, false}, // whatever stands first and last
                 {"False", "", books, "", true},
                 {"True", books, "\"\"", "", false},
                 {"True", books, "\"", "", false}};
    for (const auto& c : cases) {
        platform.settings["AutoLoad"] = c.autoLoad;
        platform.settings["defaultFile"] = c.remembered;
        platform.messages.clear();
        app::App starting{platform};
        load(starting, c.command);
        const std::string what = std::string(c.autoLoad) + "; " + c.remembered + "; " + c.command;
        EXPECT_EQ(starting.document.currentFile, c.opened) << what;
        EXPECT_EQ(starting.mainFrm.control("Save").Enabled, !c.opened.empty()) << what;
        EXPECT_EQ(starting.mainFrm.SSTab1Enabled, !c.opened.empty()) << what;
        EXPECT_EQ(platform.lastMessage(), c.message ? "Previously opened file could not be found." : "")
            << what;
        shell::Form_QueryUnload(starting);
        EXPECT_EQ(platform.settings["defaultFile"], c.opened) << what;
    }
}

TEST_F(StartTest, pathsOfDesktopsAndShells) {
    const std::pair<const char*, const char*> cases[] = {{"", ""},
                                                         {"/a b.fwk", "\"/a b.fwk\""},
                                                         {"\"/a.fwk\"", "\"/a.fwk\""},
                                                         {"a", "\"a\""},
                                                         {"\"", "\"\"\""},
                                                         {"\"\"", "\"\""},
                                                         {"\"a", "\"\"a\""}};
    for (const auto& [path, command] : cases) EXPECT_EQ(shell::commandLineFor(path), command) << path;
}

TEST_F(StartTest, theEndKeepsTheSettingsAndOffersToSave) {
    const struct {
        bool bModified, bSavePrompt;
        Answer answer;
        bool asked, saved;
    } cases[] = {{true, true, Answer::Yes, true, true},    {true, true, Answer::No, true, false},
                 {true, true, Answer::Cancel, true, true}, {true, false, Answer::Yes, false, false},
                 {false, true, Answer::Yes, false, false}, {false, false, Answer::Yes, false, false}};
    for (const auto& c : cases) {
        const std::string file = copyOf("books.fwk");
        app::App running{platform};
        load(running, quoted(file));
        running.document.LV.at(1).cells[1] = "changed";
        running.mainFrm.bSavePrompt = c.bSavePrompt;
        app::setDocumentModified(running, c.bModified);
        platform.log.clear();
        platform.answers = {c.answer};
        shell::Form_QueryUnload(running);
        platform.answers.clear();
        EXPECT_TRUE(running.mainFrm.unloaded);
        EXPECT_EQ(toldBy(platform), c.asked ? "? Save current document?" : "");
        EXPECT_EQ(platform.placeOf("flush") < platform.placeOf("message"), c.asked) << "settings come first";
        EXPECT_EQ(platform.log.front(), "write: defaultFile");
        EXPECT_EQ(Program::dataFileOf(file).find("|changed|") != std::string::npos, c.saved)
            << c.bModified << c.bSavePrompt;
        EXPECT_TRUE(std::filesystem::exists(platform.workFolder() / "data.dat")) << "work files stay";
    }
}

TEST_F(StartTest, recentFilesOpenWithoutAQuestion) {
    load();
    const std::string books = copyOf("books.fwk"), invoices = copyOf("invoices.fwk");
    platform.files = {books, invoices};
    shell::runCommand(app, "mnuOpen");
    shell::runCommand(app, "Open");
    app::setDocumentModified(app, true);
    shell::runCommand(app, "mnuFile2");
    EXPECT_EQ(app.document.currentFile, books);
    EXPECT_EQ(mainFrm.control("mnuFile1").Caption, invoices) << "the order stays";
    shell::runCommand(app, "mnuFile3");
    EXPECT_EQ(app.document.currentFile, books) << "an empty entry does nothing";
    std::filesystem::remove(invoices);
    shell::runCommand(app, "mnuFile1");
    EXPECT_EQ(app.document.currentFile, "");
    EXPECT_EQ(toldBy(platform), "i Previously opened file could not be found.");
    EXPECT_EQ(app.document.LV.count(), 43);
    EXPECT_EQ(mainFrm.control("mnuFile1").Caption, invoices);
}

} // namespace
