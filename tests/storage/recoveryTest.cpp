#include "databases.h"
#include "entry/entryFrm.h"
#include "entry/fieldEvents.h"
#include "entry/navBar.h"
#include "raised.h"
#include "shell/mainWindow.h"
#include "shell/start/recoveryOffer.h"
#include "storage/cleanDatabase.h"
#include "storage/newDatabase.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "storage/saveSearch.h"
#include "storage/versionsFrm.h"
#include "support/table.h"

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace {

using namespace std::chrono_literals;

// Of one user: all the windows of a test share its folders.
struct UserMachine : ScriptedPlatform {
    fs::path state;
    fs::path stateFolder() override { return state; }
    fs::path versionsFolder() override { return state / "versions"; }
};

struct Window : ProgramOn<UserMachine> {
    explicit Window(const fs::path& home) {
        platform.state = home;
        platform.guards = true;
    }
    void add(const char* name) {
        record({name});
        app::setDocumentModified(app, true);
    }
    // As a program that is killed leaves it.
    void kill() { storage::leaveUnsavedWork(app); }
};

class Recovery : public testing::Test {
protected:
    Recovery() { file = maker.make("books.fwk", "\xEF\xBB\xBF" + DataFile("Name", "Bolt;Nut").text()); }

    std::vector<fs::path> copies() const {
        std::vector<fs::path> found;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(home / "recovery", error))
            found.push_back(entry.path());
        return found;
    }
    // A program dies with a record that is not saved.
    void crash(const char* name) {
        Window window(home);
        window.open(file);
        window.add(name);
        ASSERT_TRUE(storage::keepUnsavedWork(window.app));
        window.kill();
    }

    ProgramOn<ScriptedPlatform> maker;
    fs::path home = maker.platform.folder;
    std::string file;
};

TEST_F(Recovery, WaitsForAPauseButNotForEver) {
    Window window(home);
    window.open(file);
    const auto start = storage::UnsavedWork::Clock::now();
    std::string log;
    storage::unsavedWork(window.app).isChanged = true;
    for (int half = 0; half <= 40; ++half) {
        const auto now = start + half * 500ms;
        if (half < 26) storage::markUnsaved(window.app, now); // typing, without a pause
        const bool wasStale = storage::unsavedWork(window.app).isStale;
        storage::tendUnsavedWork(window.app, now);
        while (storage::unsavedWork(window.app).writer.isRunning()) std::this_thread::sleep_for(1ms);
        if (wasStale && !storage::unsavedWork(window.app).isStale) log += std::to_string(half / 2) + " ";
    }
    EXPECT_EQ(log, "10 14 ");
}

TEST_F(Recovery, TriesAgainWhatCouldNotBeKept) {
    Window window(home);
    window.open(file);
    window.add("Washer");
    const auto start = storage::UnsavedWork::Clock::now() + 1s;
    const storage::UnsavedWork& work = storage::unsavedWork(window.app);
    std::string log;
    int failing = 0;
    for (int second = 0; second < 40; ++second) {
        // Something lies in its place for a while.
        if (second == 3) fs::remove(work.copy.archive), fs::create_directory(work.copy.archive);
        if (second == 4) storage::markUnsaved(window.app, start + 4s);
        EXPECT_FALSE(second == 10 && storage::keepUnsavedWork(window.app));
        if (second == 20) fs::remove(work.copy.archive);
        storage::tendUnsavedWork(window.app, start + second * 1s);
        while (storage::unsavedWork(window.app).writer.isRunning()) std::this_thread::sleep_for(1ms);
        const char now = work.keepFailure != 0 ? '!' : work.isStale || work.isWriting ? '.' : ' ';
        if (!log.ends_with(now)) log += now;
        failing += now == '!' ? 1 : 0;
    }
    EXPECT_EQ(log, ". .! ");
    EXPECT_NEAR(failing, 21, 1) << "from its first try, each ten seconds";
}

TEST_F(Recovery, KeepsTheWorkInTheBackgroundForThisUserAlone) {
    ::umask(0);
    Window window(home);
    window.open(file);
    window.add("Washer");
    storage::tendUnsavedWork(window.app, storage::UnsavedWork::Clock::now() + 2s);
    window.add("Later"); // while it is written
    while (storage::unsavedWork(window.app).writer.isRunning()) std::this_thread::sleep_for(1ms);
    ::umask(022);
    ASSERT_EQ(copies().size(), 2u);
    for (const fs::path& path : copies()) {
        EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
        if (path.extension() != ".fwk") continue;
        EXPECT_NE(window.dataFileOf(path.string()).find("Washer|"), std::string::npos);
        EXPECT_EQ(window.dataFileOf(path.string()).find("Later|"), std::string::npos);
    }
    EXPECT_EQ(fs::status(home / "recovery").permissions(), fs::perms(0700));
    EXPECT_TRUE(storage::findRecoveryCopies(window.app).empty()); // it is of a program that runs
}

// What is left when the program ends, and what it is offered as.
TEST_F(Recovery, IsThereAfterEveryEndButACleanOne) {
    struct End {
        const char* name;
        std::function<void(Window&)> act;
        std::size_t left; // an archive and its lock
    };
    const std::vector<End> ends = {
        {"killed", [](Window& w) { storage::keepUnsavedWork(w.app), w.kill(); }, 2},
        {"told to end", [](Window& w) { shell::keepForTheEnd(w.app); }, 2},
        {"ended at once",
         [this](Window& w) {
             shell::endAtOnce(w.app);
             EXPECT_FALSE(fs::exists(file::WriterLock::pathFor(file)));
         },
         2},
        {"closed, not saved",
         [](Window& w) { w.platform.answers = {platform::Answer::No}, shell::Form_QueryUnload(w.app); }, 0},
        {"closed without a question",
         [](Window& w) { w.app.mainFrm.bSavePrompt = false, shell::Form_QueryUnload(w.app); }, 0},
        {"closed, save failed",
         [this](Window& w) {
             fs::remove(file);
             w.platform.answers = {platform::Answer::Yes};
             shell::Form_QueryUnload(w.app);
         },
         2},
        {"save failed, closed",
         [this](Window& w) {
             fs::remove(file);
             storage::SaveFile(w.app, false, false);
             shell::Form_QueryUnload(w.app);
         },
         2},
        {"another opened", [](Window& w) { w.open(DataFile("Other", "1")), shell::Form_QueryUnload(w.app); },
         2},
    };
    for (const End& end : ends) {
        SCOPED_TRACE(end.name);
        fs::remove_all(home / "recovery");
        file = maker.make("books.fwk", "\xEF\xBB\xBF" + DataFile("Name", "Bolt;Nut").text());
        {
            Window window(home);
            window.open(file);
            window.add("Washer");
            end.act(window);
        }
        EXPECT_EQ(copies().size(), end.left);
        Window next(home);
        next.platform.settings["Disclaimer"] = "True";
        next.platform.choices = {0};
        shell::Form_Load(next.app, "", [] {});
        EXPECT_EQ(next.app.document.currentFile, end.left == 0 ? "" : file);
        EXPECT_EQ(next.app.document.bModified, end.left != 0);
        if (end.left != 0) {
            EXPECT_EQ(next.cells(), "Bolt|;Nut|;Washer|;------|;");
            EXPECT_FALSE(storage::SaveFile(next.app, false, false));
        }
        EXPECT_TRUE(copies().empty());
    }
}

TEST_F(Recovery, IsOfferedAtTheNextOpenOfItsFile) {
    crash("Washer");
    Window window(home);
    window.open(file); // left for later
    EXPECT_EQ(window.cells(), "Bolt|;Nut|;------|;");
    EXPECT_NE(window.told().find("Records: 3\n"), std::string::npos);

    window.platform.choices = {1}; // looked at under another name
    window.platform.files = {window.path("seen.fwk")};
    window.open(file);
    EXPECT_EQ(window.app.document.currentFile, window.path("seen.fwk"));
    EXPECT_EQ(window.cells(), "Bolt|;Nut|;Washer|;------|;");

    window.platform.choices = {2};
    window.open(file);
    EXPECT_EQ(window.cells(), "Bolt|;Nut|;------|;");
    EXPECT_TRUE(copies().empty());
}

// Its folder has gone, or what is there is no database; and the first place that is chosen is none.
TEST_F(Recovery, IsRestoredElsewhereWhenItsPlaceIsNone) {
    for (const bool isGone : {true, false}) {
        fs::create_directory(home / "in");
        file = maker.make("in/books.fwk", DataFile("Name", "Bolt").text());
        crash("Washer");
        isGone ? fs::rename(home / "in", home / "away") : ScriptedPlatform::write(file, "text");
        Window window(home);
        window.platform.choices = {0, 0};
        window.platform.files = {window.path("no/mine.fwk"), window.path("mine.fwk")};
        for (int look = 0; look < 2; ++look) shell::offerRecovery(window.app, "");
        EXPECT_EQ(window.app.document.currentFile + window.cells(),
                  window.path("mine.fwk") + "Bolt|;Washer|;------|;");
        const std::string told = window.told();
        EXPECT_NE(told.find("no/mine.fwk could not be written: "), std::string::npos);
        EXPECT_LT(told.find("\ni The file itself cannot be opened."), told.find("no/mine.fwk"));
        fs::remove_all(home / "recovery");
    }
}

TEST_F(Recovery, ShowsAgainWhatWasTypedOnTheSheet) {
    file = maker.make(
        "books.fwk",
        DataFile("Name Place", "Bolt|1;Nut|2").objects("F|Name|0|0|900|300;F|Place|0|900|900|300").text());
    const std::string typed = "half\r\n a \\sent";
    for (const bool isNew : {false, true}) {
        {
            Window window(home);
            window.open(file);
            window.select({2});
            window.app.document.LV.setSelectedItem(&window.app.document.LV.at(2));
            shell::SSTab1_Click(window.app, app::layoutTab);
            if (isNew) entry::layoutNavBar_ButtonClick(window.app, "New");
            entry::layoutField_Change(window.app, 2, typed);
            ASSERT_TRUE(storage::keepUnsavedWork(window.app));
            window.kill();
        }
        Window window(home);
        window.platform.choices = {0};
        window.open(file);
        const auto& fields = window.app.document.layout.layoutField;
        EXPECT_EQ(fields.find(1)->Text + "/" + fields.find(2)->Text, (isNew ? "/" : "Nut/") + typed);
        EXPECT_EQ(entry::isSheetNew(window.app), isNew);
        storage::removeUnsavedWork(window.app);
    }
}

TEST_F(Recovery, ShowsAgainWhatWasTypedInTheEntryForm) {
    file = maker.make("books.fwk", DataFile("Name Place", "Bolt|1;Nut|2").text());
    {
        Window window(home);
        window.open(file);
        entry::entryFrm form(window.app);
        form.FieldBox_Change(1, "given up");
        form.Toolbar1_ButtonClick("Last");
        EXPECT_FALSE(storage::keepUnsavedWork(window.app));
        form.FieldBox_Change(0, "half\n a \\sent");
        form.Toolbar1_ButtonClick("Save"); // of the records, not of the boxes
        ASSERT_TRUE(storage::keepUnsavedWork(window.app));
        window.kill();
    }
    Window window(home);
    window.platform.choices = {0};
    window.platform.onForm = [&](auto) { entry::entryFrm(window.app).Toolbar1_ButtonClick("Update"); };
    window.open(file);
    EXPECT_EQ(window.cells(), "Bolt|1|;half\n a \\sent|2|;------|------|;");
    EXPECT_FALSE(storage::unsavedWork(window.app).typedInForm);
}

// Whatever writes a file under a name of its own says who has that one open.
TEST_F(Recovery, NothingOverwritesWhatAnotherHolds) {
    const std::string held = maker.make("held.fwk", "Held"), other = maker.copyOf("books-clone.fwk");
    const auto first = file::WriterLock::take(held), second = file::WriterLock::take(other);
    crash("Washer");
    const auto save = [](bool bSaveAs, bool bClone) {
        return [=](Window& w) { storage::SaveFile(w.app, bSaveAs, bClone); };
    };
    const std::pair<const char*, std::function<void(Window&)>> ways[] = {
        {"version", [](Window& w) { storage::versionsFrm(w.app).copyBtn_Click(); }},
        {"save as", save(true, false)},
        {"clone", save(false, true)},
        {"search results", [](Window& w) { storage::saveSearchResults(w.app); }},
        {"look at a copy", [this](Window& w) { w.platform.choices = {1}, w.open(file); }},
        {"open a copy", [&](Window& w) { w.platform.choices = {1}, w.open(other); }},
    };
    for (const auto& [name, act] : ways) {
        Window window(home);
        window.open(file);
        window.add("Screw");
        save(false, false)(window); // which makes a version
        window.platform.files = {held};
        window.platform.answers = {platform::Answer::Yes};
        act(window);
        EXPECT_NE(window.told().find("held.fwk is open elsewhere, by "), std::string::npos) << name;
        EXPECT_EQ(window.dataFileOf(held), "Held") << name;
    }
}

TEST_F(Recovery, ALockEndsWithItsWindowThoughTheWriterRuns) {
    file::FileHandle ofWindow(::open(file.c_str(), O_RDWR)), next(::open(file.c_str(), O_RDWR));
    ASSERT_EQ(::flock(ofWindow.get(), LOCK_EX), 0);
    storage::BackgroundWriter writer;
    (void)writer.start([] { ::pause(); });
    ofWindow.reset();
    for (int i = 0; i < 2000 && ::flock(next.get(), LOCK_EX | LOCK_NB) != 0; ++i)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(::flock(next.get(), LOCK_EX | LOCK_NB), 0);
}

// Somebody removes the lock file, and then takes the lock: the question is waved away, and answered.
TEST_F(Recovery, ASaveLooksWhetherItsLockIsStillThere) {
    Window window(home);
    window.open(file);
    window.platform.choices = {-1, 1};
    std::optional<file::WriterLock> theirs;
    std::string log;
    for (int save = 0; save < 4; ++save) {
        if (save < 2) fs::remove(file::WriterLock::pathFor(file));
        if (save == 1) theirs = file::WriterLock::take(file).lock;
        window.add("Late");
        storage::SaveFile(window.app, false, false);
        log += window.told().find("elsewhere, by ") == std::string::npos ? "saved " : "asked ";
    }
    EXPECT_EQ(log, "saved asked asked saved ");
    EXPECT_TRUE(theirs->isStillHeld());
}

// Two windows and a file that both want.
TEST_F(Recovery, TwoWindowsAskEachOther) {
    Window first(home), second(home);
    first.open(file);
    first.open(maker.path("./books.fwk")); // by another name
    second.app.document.currentFile = "";
    second.open(file); // waved away
    EXPECT_EQ(second.app.document.currentFile, "");
    EXPECT_NE(second.told().find("books.fwk is open elsewhere, by "), std::string::npos);

    second.platform.choices = {0}; // read only
    second.platform.files = {second.path("mine.fwk")};
    second.open(file);
    EXPECT_EQ(raisedBy([&] { storage::cleanDatabase(second.app); }), core::errors::pathAccess);
    EXPECT_EQ(second.cells(), "Bolt|;Nut|;------|;");
    second.add("Mine");
    storage::SaveFile(second.app, false, false); // to another name, whose writer it is
    EXPECT_EQ(second.app.document.currentFile, second.path("mine.fwk"));
    EXPECT_FALSE(second.app.mainFrm.bReadOnly);
    EXPECT_EQ(first.dataFileOf(file).find("Mine"), std::string::npos);
    EXPECT_TRUE(fs::exists(file::WriterLock::pathFor(second.path("mine.fwk"))));

    second.platform.choices = {2}; // anyway, and saved
    second.open(file);
    second.add("Theirs");
    storage::SaveFile(second.app, false, false);
    EXPECT_EQ(storage::changeOfOpened(second.app), file::FileState::Change::None);
    EXPECT_EQ(storage::changeOfOpened(first.app), file::FileState::Change::Changed);

    first.add("Ours");
    first.platform.choices = {-1, 2}; // waved away; then the other's, and ours is kept
    storage::SaveFile(first.app, false, false);
    EXPECT_NE(first.dataFileOf(file).find("Theirs|"), std::string::npos);
    storage::SaveFile(first.app, false, false);
    EXPECT_EQ(first.cells(), "Bolt|;Nut|;Theirs|;------|;");
    EXPECT_EQ(copies().size(), 2u);
    storage::SaveFile(first.app, false, false);
    EXPECT_EQ(storage::changeOfOpened(first.app), file::FileState::Change::None);
    shell::Form_QueryUnload(first.app);
    EXPECT_FALSE(fs::exists(file::WriterLock::pathFor(file)));
}

// Pictures go into the file at once, which is no change by somebody else, nor does it hide one.
TEST_F(Recovery, KnowsItsOwnWritesFromThoseOfOthers) {
    Window window(home);
    window.open(maker.make("books.fwk", DataFile("Name", "Bolt").text(), {"old.jpg", "older.jpg"}));
    storage::cleanDatabase(window.app);
    EXPECT_EQ(storage::changeOfOpened(window.app), file::FileState::Change::None);
    maker.make("books.fwk", DataFile("Name", "Theirs").text(), {"new.jpg"});
    storage::cleanDatabase(window.app);
    EXPECT_EQ(storage::changeOfOpened(window.app), file::FileState::Change::Changed);
    storage::acceptForeignState(window.app); // not now
    EXPECT_EQ(storage::changeOfOpened(window.app), file::FileState::Change::None);
    window.platform.choices = {-1, 1};
    for (const char* saved : {"Theirs", "Bolt"}) {
        storage::SaveFile(window.app, false, false);
        EXPECT_NE(window.dataFileOf(file).find(saved), std::string::npos);
    }
    window.platform.files = {window.path("new.fwk")};
    window.platform.answers = {platform::Answer::No};
    window.platform.onForm = [&](std::string_view) { window.app.mainFrm.bDatabaseTypeChosen = true; };
    storage::newDatabase(window.app, false);
    EXPECT_EQ(storage::changeOfOpened(window.app), file::FileState::Change::None);
    window.open(file);
    window.platform.files = {maker.path("./books.fwk")}; // a clone in the place of the open file
    window.platform.answers = {platform::Answer::Yes};
    storage::SaveFile(window.app, false, true);
    EXPECT_EQ(window.dataFileOf(file).find("Bolt"), std::string::npos);
    EXPECT_EQ(storage::changeOfOpened(window.app), file::FileState::Change::None);
    fs::remove(file);
    EXPECT_EQ(storage::changeOfOpened(window.app), file::FileState::Change::Gone);
    storage::writeOpenedAgain(window.app);
    EXPECT_NE(window.dataFileOf(file).find("Bolt"), std::string::npos);
    EXPECT_EQ(storage::changeOfOpened(window.app), file::FileState::Change::None);
    ScriptedPlatform::write(window.path("text"), "text"); // cannot be opened, and the lock is given back
    window.open(window.path("text"));
    EXPECT_FALSE(fs::exists(file::WriterLock::pathFor(file)));
}

} // namespace
