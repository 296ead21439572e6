#include "storage/versions.h"
#include "databases.h"
#include "layout/images.h"
#include "shell/mainWindow.h"
#include "storage/saveFile.h"
#include "storage/versionsFrm.h"

#include <fstream>
#include <gmock/gmock.h>

namespace {

class KeepingMachine : public ScriptedPlatform {
public:
    std::filesystem::path versionsFolder() override { return folder / "versions"; }
};

struct KeepingProgram : ProgramOn<KeepingMachine> {
    using ProgramOn::ProgramOn;

    void save() { EXPECT_FALSE(storage::SaveFile(app, false, false)); }
    void addAndSave(const char* name, const char* quantity) {
        record({name, quantity});
        save();
    }
    // "records/size" of each version, the newest first.
    std::string listed() {
        std::string all;
        for (const auto& entry : storage::versionsFrm(app).List1) all += entry.Records + " ";
        return all;
    }
    std::string file(const char* name) {
        return open(make(name, "\xEF\xBB\xBF" + data.text(), {"a.jpg", "b.jpg"}));
    }

    const DataFile data{"Name Qty:4", "Bolt|12;Nut|7"};
};

TEST(Versions, EverySaveKeepsWhatItReplaces) {
    KeepingProgram program;
    const std::string books = program.file("books.fwk");
    program.addAndSave("Screw", "3");
    program.save(); // writes nothing, so nothing is replaced
    program.addAndSave("Washer", "4");
    EXPECT_EQ(program.listed(), "3 2 ");

    // What others have written counts as well, and is counted when the list is made.
    program.make("books.fwk", "\xEF\xBB\xBF" + DataFile("Name Qty:4", "Theirs|1").text());
    program.addAndSave("Ours", "5");
    EXPECT_EQ(program.listed(), "1 3 2 ");

    // Save As, a clone and a new database over another file keep that one.
    const std::string other = program.make("other.fwk", "\xEF\xBB\xBF" + program.data.text());
    const std::string third = program.make("third.fwk", "\xEF\xBB\xBF" + program.data.text());
    program.platform.answers = {platform::Answer::Yes, platform::Answer::Yes};
    program.platform.files = {third, other};
    EXPECT_FALSE(storage::SaveFile(program.app, false, true));
    EXPECT_FALSE(storage::SaveFile(program.app, true, false));
    EXPECT_EQ(program.app.document.currentFile, other);
    EXPECT_EQ(program.listed(), "2 ");
    program.open(third);
    EXPECT_EQ(program.listed(), "2 ");
    // So does a clean, with the pictures that it removes.
    program.file("images.fwk");
    program.run("mnuCleanDatabase");
    EXPECT_EQ(program.listed(), "2 ");

    storage::versionsFrm form(program.app);
    form.Check1_Click(false);
    program.addAndSave("Last", "6");
    EXPECT_EQ(program.listed(), "2 ");
    EXPECT_EQ(program.platform.settings["KeepVersions"], "False");
}

TEST(Versions, APictureThatTakesThePlaceOfAnotherKeepsThatOne) {
    KeepingProgram program;
    const DataFile data = DataFile("Name Photo:7", "Bolt|a.jpg").objects("P|Photo|0|0|1815|1575|");
    program.open(program.make("photos.fwk", data.text(), {"a.jpg"}));
    shell::SSTab1_Click(program.app, app::layoutTab);
    for (const auto& [name, listed] : {std::pair{"b.jpg", ""}, {"a.jpg", "1 "}}) {
        program.platform.files = {program.platform.pictureFile(name, {1500, 1500})};
        layout::imgHolder_DblClick(program.app, 1);
        EXPECT_EQ(program.told() + program.listed(), listed);
    }
}

TEST(Versions, AFailureIsShownOnceAndTheSaveIsDone) {
    KeepingProgram program;
    program.file("books.fwk");
    std::ofstream(program.path("versions")) << "in the way";
    program.addAndSave("Screw", "3");
    EXPECT_TRUE(program.panel(app::documentPanel).starts_with("No version kept: ")) << program.panel(5);
    EXPECT_NE(program.dataFileOf(program.path("books.fwk")).find("Screw|3|"), std::string::npos);
    EXPECT_NE(storage::takeNoted(program.app), "");
    program.addAndSave("Washer", "4");
    EXPECT_EQ(program.panel(app::documentPanel), "Document Saved");
    EXPECT_EQ(program.told() + storage::takeNoted(program.app), "");
}

TEST(VersionsFrm, ShowsRestoresAndCopies) {
    KeepingProgram program;
    const std::string books = program.file("books.fwk"), old = program.cells();
    program.addAndSave("Screw", "3");
    const std::string present = program.cells();
    program.run("mnuCleanDatabase"); // the pictures go
    EXPECT_EQ(program.listed(), "3 2 ");

    storage::versionsFrm form(program.app);
    form.List1_Click(1);
    EXPECT_FALSE(form.shown);
    form.showBtn_Click();
    ASSERT_TRUE(form.shown);
    EXPECT_EQ(program.cells(form.shown->LV), old);
    EXPECT_EQ(program.cells(), present);
    form.List1_Click(0);
    EXPECT_FALSE(form.shown); // of another version than the one that is chosen

    // A copy: not over the open database, and with a question over another one.
    form.List1_Click(1);
    program.platform.files = {books, program.path("copy.fwk"), program.path("copy.fwk")};
    form.copyBtn_Click();
    EXPECT_EQ(program.told(), "i The copy cannot take the place of the database that is open.");
    form.copyBtn_Click();
    form.copyBtn_Click();
    EXPECT_EQ(program.told(), "- Overwrite Existing File?");
    EXPECT_EQ(program.dataFileOf(program.path("copy.fwk")), "\xEF\xBB\xBF" + program.data.text());

    // What is unsaved is not given up without a question.
    program.record({"Unsaved", "9"});
    app::setDocumentModified(program.app, true);
    form.restoreBtn_Click();
    EXPECT_TRUE(program.told().starts_with("? What has not been saved"));
    EXPECT_FALSE(form.unloaded);
    program.platform.answers = {platform::Answer::Yes};
    form.restoreBtn_Click();
    EXPECT_TRUE(form.unloaded);
    EXPECT_EQ(program.cells(), old);
    file::Zip Zip;
    Zip.OpenArchive(books);
    EXPECT_TRUE(Zip.contains("a.jpg") && Zip.contains("b.jpg"));
    EXPECT_NE(program.dataFileOf(books).find("Screw|3|"), std::string::npos)
        << "restored work is not saved yet";
    program.save();
    EXPECT_EQ(program.listed(), "3 3 3 2 ")
        << "with the pictures, without, with them again, and the first one";
}

TEST(VersionsFrm, TellsWhatCannotBeReadOrWritten) {
    KeepingProgram program;
    program.open(program.make("books.fwk", program.data.text(),
                              {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"}));
    program.addAndSave("Screw", "3");
    program.make("books.fwk", DataFile("Name Qty:4", "Theirs|1").text());
    program.addAndSave("Washer", "4");
    std::vector<fs::path> kept;
    for (const auto& each : fs::recursive_directory_iterator(program.path("versions")))
        if (each.is_regular_file()) kept.push_back(each.path());
    const std::string cells = program.cells();
    storage::versionsFrm form(program.app);
    form.List1_Click(1);
    for (const fs::path& each : kept)
        if (each.extension() != ".fwk") fs::remove(each);
    program.platform.files = {program.path("no/copy.fwk"), program.path("copy.fwk")};
    for (int copy = 0; copy < 2; ++copy) form.copyBtn_Click();
    for (const fs::path& each : kept)
        if (each.extension() == ".fwk") writeBytes(each, std::string(fs::file_size(each), 'x'));
    EXPECT_EQ(program.listed(), "? 2 ") << "those of others are counted, and cannot be";
    form.showBtn_Click();
    form.restoreBtn_Click();
    program.app.mainFrm.bReadOnly = true;
    form.restoreBtn_Click();
    EXPECT_THAT(
        program.told(),
        testing::MatchesRegex("! The copy could not be written: .*\ni These pictures .*:\na\nb\nc\nd\ne\nf\n"
                              "g\nh\ni\nj\nand 2 more\n! The version cannot be read: .*\n! The version "
                              "could not be restored: .*\ni The database is open to read only.*"));
    EXPECT_EQ(program.cells(), cells);
    form.Text1 = "70";
    form.CloseButton_Click();
    EXPECT_TRUE(form.unloaded && program.platform.settings["VersionsMegabytes"] == "70");
}

TEST(VersionsFrm, Megabytes) {
    KeepingProgram program;
    program.file("books.fwk");
    storage::versionsFrm form(program.app);
    std::string held = form.Text1;
    for (const char* typed : {"50", "", "0", "x", " 1 ", "-3", "1000001"}) {
        form.Text1 = typed;
        form.Text1_LostFocus();
        held += " " + form.Text1;
    }
    EXPECT_EQ(held, "200 50 50 50 50 1 1 1");
    EXPECT_EQ(program.platform.settings["VersionsMegabytes"], "1");
    program.platform.settings["VersionsMegabytes"] = "much"; // by hand
    EXPECT_EQ(storage::versionsFrm(program.app).Text1, "200");
}

} // namespace
