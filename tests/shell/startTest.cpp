#include "app/looks.h"
#include "calc/recalculation.h"
#include "databases.h"
#include "shell/mainWindow.h"
#include "shell/recentlyUsed.h"
#include "shell/start/samples.h"
#include "storage/saveFile.h"
#include "table.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

using platform::Answer;

// Remembers the order of what it is asked too, equal things as one: "read form read ".
struct LoggingPlatform : ScriptedPlatform {
    std::string log;

    void note(std::string_view what) { log += log.ends_with(what) ? "" : what; }
    void showForm(std::string_view name) override { note(std::string(name) + " "); }
    std::string getSetting(const std::string& key, const std::string& byDefault) override {
        note("read ");
        return ScriptedPlatform::getSetting(key, byDefault);
    }
    void saveSetting(const std::string& key, const std::string& value) override {
        note("write ");
        ScriptedPlatform::saveSetting(key, value);
    }
    void flushSettings() override { note(messages.empty() ? "flush " : "late "); }
};

struct Start : testing::Test, ProgramOn<LoggingPlatform> {
    std::string books = copyOf("books.fwk"), invoices = copyOf("invoices.fwk");

    void load(app::App& starting, const std::string& command = "") {
        shell::Form_Load(starting, command, [&] { platform.note("show "); });
    }
};

TEST_F(Start, SettingsAndTheDisclaimerComeAheadOfTheWindow) {
    load(app);
    EXPECT_EQ(std::exchange(platform.log, ""), "read disclaimFrm show read ");
    std::string panels, settings;
    for (const std::string& panel : app.mainFrm.panels) panels += panel + "|";
    EXPECT_EQ(panels + app.mainFrm.Caption,
              "|||Calculation Status:|Filesize:|No Open Document|Database Style:|Ferrowick");
    EXPECT_FALSE(app.mainFrm.SSTab1Enabled);
    shell::Form_QueryUnload(app);
    for (const auto& [key, value] : platform.settings) settings += key + "=" + value + " ";
    EXPECT_EQ(
        settings,
        "AutoLoad=False ConfirmDelete=True Disclaimer=True File1= File2= File3= FreezeColumn=False "
        "HighlightCalc=False LayoutDBLClick=False LayoutZoom=100 ListZoom=100 LocaleForm=False OpenPdf=False "
        "PreviewFit= "
        "PreviewZoom=100 SavePrompt=True SnapToGrid=True Theme=Desktop ToolbarTexts=None defaultFile= ");
    for (const std::string toggle : {"True", "False"}) {
        for (auto& [key, value] : platform.settings)
            value = key.ends_with("Zoom") ? "250"
                    : key == "PreviewFit" ? "Width"
                    : key == "Theme"      ? "Dark"
                    : value == "None"     ? "Under"
                    : value == "Under"    ? "Beside"
                    : value.size() < 4    ? key.substr(0, 5)
                    : key == "Disclaimer" ? "True"
                                          : toggle;
        platform.settings["defaultFile"].clear();
        const auto before = platform.settings;
        platform.log.clear();
        load(app);
        EXPECT_EQ(platform.log, "read show read ") << "the disclaimer is shown once";
        const auto isPressed = [](const auto& control) { return control.second.Value; };
        EXPECT_EQ(std::ranges::count_if(app.mainFrm.controls, isPressed), toggle == "True" ? 11 : 2);
        shell::Form_QueryUnload(app);
        EXPECT_EQ(platform.settings, before);
    }
    // Somebody else can have written anything.
    for (const auto& c : table("x -> 100; 49 -> 100; 1e9 -> 100; -80 -> 100; 130 -> 130")) {
        platform.settings["ListZoom"] = c[0];
        load(app);
        EXPECT_EQ(app::looks(app).listZoom, std::stoi(c[1]));
    }
    for (const auto& c : table("true -> 1; FALSE -> 0;  -> 1; maybe -> 1")) {
        platform.settings["SavePrompt"] = c[0];
        load(app);
        EXPECT_EQ(std::to_string(app.mainFrm.bSavePrompt), c[1]) << c[0];
    }
}

TEST_F(Start, TheFileOfTheStart) {
    // Auto-load, what is remembered, the command line, and what is opened; "!" stands for the message. The
    // command line wins, and its first and last character go, whatever they are.
    for (const auto& c :
         table("False -> ~books.fwk; True -> ~books.fwk ->  -> ~books.fwk; True; True -> ~gone ->  -> !; "
               "True -> ~books.fwk -> \"~invoices.fwk\" -> ~invoices.fwk; "
               "False -> ~books.fwk -> \"~gone\" -> !; False ->  -> x~books.fwky -> ~books.fwk; "
               "True -> ~books.fwk -> \"\"; True -> ~books.fwk -> \"",
               4)) {
        const auto full = [&](const std::string& text) { return core::replaceAll(text, "~", path("")); };
        platform.settings = {{"AutoLoad", c[0]}, {"defaultFile", full(c[1])}};
        app::App starting{platform};
        load(starting, full(c[2]));
        const std::string opened = c[3] == "!" ? "" : full(c[3]);
        EXPECT_EQ(starting.document.currentFile, opened) << c[0] << c[1] << c[2];
        EXPECT_EQ(starting.mainFrm.SSTab1Enabled, !opened.empty());
        EXPECT_EQ(told(), c[3] == "!" ? "i Previously opened file could not be found." : "") << c[1] << c[2];
        shell::Form_QueryUnload(starting);
        EXPECT_EQ(platform.settings["defaultFile"], opened);
    }
    // What opens without a name: the last open one, or else the first of the list.
    for (const auto& c : table("/a -> /b -> /a;  -> /b -> /b;  ->  -> ", 3)) {
        platform.settings = {{"defaultFile", c[0]}, {"File1", c[1]}};
        EXPECT_EQ(shell::lastFile(app), c[2]);
    }
    for (const auto& c : table(" -> ; /a b.fwk -> \"/a b.fwk\"; \"/a.fwk\" -> \"/a.fwk\"; \" -> \"\"\"; "
                               "\"\" -> \"\"; \"a -> \"\"a\"; a\" -> \"a\"\""))
        EXPECT_EQ(shell::commandLineFor(c[0]), c[1]) << c[0];
}

TEST_F(Start, TheEndKeepsTheSettingsAndOffersToSave) {
    // Whether it is to ask, what is changed, and the answer, by which it cannot be cancelled.
    for (const auto& c : table("ask -> changed -> Yes -> saves; ask -> changed -> Cancel -> saves; "
                               "ask -> changed -> No; ask ->  -> Yes;  -> changed -> Yes",
                               4)) {
        open(copyOf("books.fwk"));
        app.document.LV.at(1).cells[1] = "changed";
        app.mainFrm.bSavePrompt = !c[0].empty();
        app::setDocumentModified(app, !c[1].empty());
        platform.log.clear();
        platform.answers = {c[2] == "No" ? Answer::No : c[2] == "Yes" ? Answer::Yes : Answer::Cancel};
        shell::Form_QueryUnload(app);
        const bool asks = app.mainFrm.bSavePrompt && !c[1].empty();
        EXPECT_EQ(platform.log + told(), asks ? "write flush ? Save current document?" : "write flush ");
        EXPECT_EQ(dataFileOf(books).find("|changed|") != std::string::npos, !c[3].empty());
        EXPECT_TRUE(app.mainFrm.unloaded && fs::exists(platform.workFolder() / "data.dat"));
    }
}

TEST_F(Start, RecentFilesOpenWithoutAQuestion) {
    const std::string older = copyOf("books-older.fwk");
    platform.files = {books, invoices, older};
    for (const char* key : {"mnuOpen", "Open", "mnuOpen"}) run(key);
    app::setDocumentModified(app, true);
    for (const auto& [key, file] :
         {std::pair("mnuFile3", books), {"mnuFile2", invoices}, {"mnuFile1", older}}) {
        run(key); // the order stays
        EXPECT_EQ(app.document.currentFile + told(), file);
    }
    app.mainFrm.control("mnuFile2").Caption = "";
    run("mnuFile2");
    EXPECT_EQ(app.document.currentFile + told(), older) << "an empty entry does nothing";
}

// Installed files are read-only for the user. The copy is his to change, and opened as he left it.
TEST_F(Start, SamplesAreCalculatedAndCopiedOnce) {
    const fs::path samples = SAMPLES_DIR, copies = path("Ferrowick"), installed = path("library.fwk");
    EXPECT_EQ(shell::samplesIn(samples).size() + shell::installedSamples().size(), 10U);
    for (const shell::Sample& sample : shell::samplesIn(samples)) {
        shell::openSample(app, sample, platform.folder);
        EXPECT_EQ(app.document.currentFile, copies / sample.file.filename());
        calc::RecalculateAll(app, app.document.LV);
        storage::SaveFile(app, false, false);
        EXPECT_EQ(dataFileOf(app.document.currentFile) + told(), dataFileOf(sample.file.string()));
    }
    fs::copy_file(samples / "garden.fwk", installed);
    fs::permissions(installed, fs::perms::owner_read);
    const shell::Sample garden = shell::samplesIn(platform.folder).at(0); // those that are there
    for (const bool isFirst : {false, true}) {
        shell::openSample(app, garden, platform.folder);
        EXPECT_EQ(app.document.LV.columns.find("Plant") != nullptr, isFirst) << garden.name;
        EXPECT_EQ(app.mainFrm.control("mnuFile1").Caption, copies / "library.fwk");
        EXPECT_NE(fs::status(copies / "library.fwk").permissions() & fs::perms::owner_write, fs::perms::none);
        fs::remove(copies / "library.fwk");
    }
    // A file where the folder should be, no file at all, and a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit room{}, all{};
    ::getrlimit(RLIMIT_FSIZE, &all);
    room = {2000, all.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &room);
    for (const auto& [file, folder] :
         {std::pair(installed, path("books.fwk")), {copies, path("b")}, {installed, path("c")}}) {
        shell::openSample(app, {file, "", "", ""}, folder);
        EXPECT_TRUE(told().starts_with("! The sample could not be copied to " + folder + "/Ferrowick: "));
        EXPECT_FALSE(fs::exists(folder + "/Ferrowick/library.fwk"));
    }
    ::setrlimit(RLIMIT_FSIZE, &all);
    EXPECT_NE(app.document.LV.columns.find("Plant"), nullptr) << "stays open";
}

} // namespace
