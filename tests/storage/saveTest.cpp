#include "databases.h"
#include "storage/saveFile.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;
using platform::Answer;
using platform::Icon;
using platform::Zip;

constexpr const char* failed =
    "There was an error writing to the file.  If saving to removable media, please "
    "make sure that the disk is inserted properly, or that the device is plugged in.";
constexpr const char* insertDisk =
    "  Please insert your working source disk or device that you have been saving to up until now.  "
    "Ferrowick "
    "needs this before it can perform the 'save as' operation to the other location you specified.  Once you "
    "have inserted the disk or device you can try 'save as' again.";
constexpr const char* overwrite = "Overwrite Existing File?";

std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// Name, comment and bytes of every entry, in their order.
std::vector<std::string> entriesOf(const std::string& archive, bool withData) {
    std::vector<std::string> entries;
    Zip Zip;
    Zip.OpenArchive(archive);
    for (int i = 0; i < Zip.FileCount(); ++i) {
        const std::string name = Zip.FileNameAt(i);
        const bool isData = name == "data.dat";
        entries.push_back(name + ":" + Zip.commentAt(i) + ":" +
                          (isData && !withData ? "" : *Zip.readEntry(name, 1 << 20)));
    }
    return entries;
}

class SaveTest : public testing::Test {
protected:
    Program program;
    app::App& app = program.app;
    core::Document& document = app.document;
    app::MainFrm& mainFrm = app.mainFrm;
    ScriptedPlatform& platform = program.platform;

    // Books, with a change that is not saved yet.
    std::string openBooks() {
        const std::string file = program.openCopyOf("books.fwk");
        document.LV.at(1).cells[1] = "changed";
        app::setDocumentModified(app, true);
        return file;
    }
    static bool holdsChange(const std::string& archive) {
        return Program::dataFileOf(archive).find("|changed|") != std::string::npos;
    }
    bool workFileHoldsChange() {
        return bytesOf(platform.workFolder() / "data.dat").find("|changed|") != std::string::npos;
    }
    void save() { storage::SaveFile(app, false, false); }
    void saveAs(const std::string& target) {
        platform.files = {target};
        storage::SaveFile(app, true, false);
    }
    void clone(const std::string& target) {
        platform.files = {target};
        storage::SaveFile(app, false, true);
    }
    // A limit on the size of files stands for a full disk.
    template <typename Action>
    static void withLimit(std::size_t bytes, Action&& action) {
        struct rlimit whole {};
        ::getrlimit(RLIMIT_FSIZE, &whole);
        const struct rlimit narrow { bytes, whole.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &narrow);
        action();
        ::setrlimit(RLIMIT_FSIZE, &whole);
    }
    void expectFailure(const std::string& text, const std::string& what) {
        ASSERT_FALSE(platform.messages.empty()) << what;
        EXPECT_EQ(platform.messages.back().text, text) << what;
        EXPECT_EQ(platform.messages.back().icon, Icon::Exclamation) << what;
        EXPECT_EQ(platform.messages.back().caption, "Ferrowick") << what;
        platform.messages.clear();
    }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(platform.folder), fs::directory_iterator()));
    }
};

TEST_F(SaveTest, aSaveReplacesTheDataAlone) {
    const std::string file = program.openCopyOf("books.fwk");
    const auto entries = entriesOf(file, true);
    save();
    EXPECT_EQ(entriesOf(file, true), entries) << "nothing has changed";

    const auto images = entriesOf(file, false);
    EXPECT_EQ(images[0], "data.dat:Main Data File:");
    document.LV.at(1).cells[1] = "changed";
    app::setDocumentModified(app, true);
    fs::permissions(file, fs::perms(0640));
    mainFrm.panels[app::fileSizePanel] = mainFrm.Caption = "?";
    save();
    EXPECT_TRUE(holdsChange(file));
    EXPECT_EQ(entriesOf(file, false), images);
    EXPECT_EQ(bytesOf(platform.workFolder() / "data.dat"), Program::dataFileOf(file));
    EXPECT_FALSE(document.bModified);
    EXPECT_EQ(mainFrm.panels[app::documentPanel], "Document Saved");
    EXPECT_EQ(mainFrm.panels[app::fileSizePanel], "Filesize: 17 KB");
    EXPECT_EQ(mainFrm.Caption, "Ferrowick - " + file);
    EXPECT_TRUE(platform.messages.empty() && platform.dialogs.empty());
}

TEST_F(SaveTest, anUnchangedSaveOfAnInvoiceDatabaseRefreshesItsViewAlone) {
    const std::string file = program.openCopyOf("invoices.fwk");
    std::string expected = Program::dataFileOf(file);
    save();
    const std::string empty = "[InvoiceCols   ]\r\n";
    expected.replace(expected.find(empty), empty.size(), "[InvoiceCols   ]1|2|3|4|5|6|7|\r\n");
    // What the report of the view on show prints is in force.
    EXPECT_EQ(Program::dataFileOf(file), expected);
}

TEST_F(SaveTest, saveAsAsksAndCopiesTheImages) {
    const std::string file = openBooks(), target = program.path("copy.fwk");
    const std::string before = bytesOf(file);
    saveAs(target);
    ASSERT_EQ(platform.dialogs.size(), 1U);
    EXPECT_EQ(platform.dialogs[0].title, "Save As...");
    EXPECT_EQ(platform.dialogs[0].fileName, "Untitled.fwk");
    EXPECT_EQ(platform.dialogs[0].filter, "Database (*.fwk)|*.fwk|All Files (*.*)|*.*");
    EXPECT_TRUE(platform.messages.empty()) << "a new name needs no question";
    EXPECT_EQ(document.currentFile, target);
    EXPECT_EQ(mainFrm.Caption, "Ferrowick - " + target);
    EXPECT_FALSE(document.bModified);
    EXPECT_TRUE(holdsChange(target));
    EXPECT_EQ(entriesOf(target, false), entriesOf(file, false));
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(mainFrm.control("mnuFile1").Caption, file) << "recent files are opened ones";
}

TEST_F(SaveTest, saveAsToTheOpenFileIsAPlainSave) {
    const std::string file = openBooks();
    saveAs(file);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(holdsChange(file));
    EXPECT_EQ(document.currentFile, file);
}

TEST_F(SaveTest, saveAsWritesNothingBeforeTheYes) {
    const std::string target = program.copyOf("invoices.fwk");
    const std::string other = bytesOf(target);
    for (const bool cancelled : {true, false})
        for (const Answer answer : {Answer::No, Answer::Cancel}) {
            const std::string file = openBooks();
            const std::string before = bytesOf(file);
            platform.messages.clear();
            platform.answers = {answer};
            if (cancelled) {
                platform.files.clear();
                storage::SaveFile(app, true, false);
                EXPECT_TRUE(platform.messages.empty());
            } else {
                saveAs(target);
                ASSERT_EQ(platform.messages.size(), 1U);
                EXPECT_EQ(platform.messages[0].text, overwrite);
                EXPECT_EQ(platform.messages[0].caption, "Ferrowick");
            }
            platform.answers.clear();
            EXPECT_FALSE(workFileHoldsChange());
            EXPECT_TRUE(document.bModified);
            EXPECT_EQ(document.currentFile, file);
            EXPECT_EQ(bytesOf(file), before);
            EXPECT_EQ(bytesOf(target), other);
        }
    const std::string file = openBooks();
    platform.answers = {Answer::Yes};
    saveAs(target);
    EXPECT_TRUE(holdsChange(target));
    EXPECT_EQ(entriesOf(target, false), entriesOf(file, false)) << "nothing of the old target is left";
    EXPECT_EQ(document.currentFile, target);
}

TEST_F(SaveTest, aCloneLeavesTheOpenDocumentOpen) {
    const std::string file = openBooks(), target = program.path("clone.fwk");
    const std::string before = bytesOf(file);
    mainFrm.panels[app::fileSizePanel] = mainFrm.Caption = "as it was";
    clone(target);
    ASSERT_EQ(platform.dialogs.size(), 1U);
    EXPECT_EQ(platform.dialogs[0].title, "Clone current file to...");
    EXPECT_EQ(platform.dialogs[0].fileName, "Clone1.fwk");
    EXPECT_EQ(platform.dialogs[0].filter, "Database (*.fwk)|*.fwk|All Files (*.*)|*.*");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(document.currentFile, file);
    EXPECT_TRUE(document.bModified);
    EXPECT_EQ(mainFrm.panels[app::documentPanel], "Document Modified");
    EXPECT_EQ(mainFrm.panels[app::fileSizePanel], "as it was");
    EXPECT_EQ(mainFrm.Caption, "as it was");
    EXPECT_EQ(document.LV.count(), 43);
    EXPECT_EQ(bytesOf(file), before);

    const std::string text = Program::dataFileOf(target);
    EXPECT_EQ(entriesOf(target, true), std::vector<std::string>{"data.dat:Main Data File:" + text});
    std::string design = Program::dataFileOf(file);
    design.erase(design.find("[Begin Data    ]\r\n") + 18);
    design.replace(design.find("No,42|"), 6, "No,0|");
    EXPECT_EQ(text, design);

    program.openCopyOf("invoices.fwk");
    clone(program.path("invoiceClone.fwk"));
    program.open(program.path("invoiceClone.fwk"));
    EXPECT_TRUE(document.bInvoiceStyle);
    EXPECT_EQ(document.LV.count(), 1);
}

TEST_F(SaveTest, aRefusedCloneHasWrittenTheTextAlone) {
    const std::string target = program.copyOf("invoices.fwk");
    const std::string other = bytesOf(target);
    for (const bool cancelled : {true, false}) {
        const std::string file = openBooks();
        const std::string before = bytesOf(file);
        platform.messages.clear();
        platform.answers = {Answer::No};
        platform.files.clear();
        if (!cancelled) platform.files = {target};
        storage::SaveFile(app, false, true);
        platform.answers.clear();
        EXPECT_EQ(platform.messages.size(), cancelled ? 0U : 1U);
        if (!cancelled) {
            EXPECT_EQ(platform.messages[0].text, overwrite);
        }
        EXPECT_TRUE(bytesOf(platform.workFolder() / "data.dat").ends_with("[Begin Data    ]\r\n"));
        EXPECT_TRUE(document.bModified);
        EXPECT_EQ(bytesOf(file), before);
        EXPECT_EQ(bytesOf(target), other);
    }
    platform.answers = {Answer::Yes};
    clone(target);
    EXPECT_EQ(entriesOf(target, false).size(), 1U);
    EXPECT_TRUE(Program::dataFileOf(target).ends_with("[Begin Data    ]\r\n"));
}

// A machine whose work folder answers with an error.
class FailingPlatform : public ScriptedPlatform {
public:
    int error = 0;
    fs::path workFolder() override {
        if (error != 0) core::raise(error);
        return ScriptedPlatform::workFolder();
    }
};

TEST(SaveFailures, onlySaveAsAsksForTheDiskThatIsNotReady) {
    namespace errors = core::errors;
    FailingPlatform platform;
    app::App app{platform};
    app.document.currentFile = (platform.folder / "a.fwk").string();
    const std::string same = app.document.currentFile, other = (platform.folder / "b.fwk").string();
    const struct {
        bool bSaveAs, bClone;
        std::string target;
        int error;
        const char* message;
    } cases[] = {{true, false, other, errors::diskNotReady, insertDisk},
                 {true, false, other, errors::pathAccess, failed},
                 {true, false, same, errors::diskNotReady, failed}, // it has become a plain save
                 {false, false, "", errors::diskNotReady, failed},
                 {false, true, other, errors::diskNotReady, failed},
                 {false, false, "", errors::diskFull, failed}};
    for (const auto& c : cases) {
        platform.error = c.error;
        platform.files = {c.target};
        app.document.bModified = true;
        storage::SaveFile(app, c.bSaveAs, c.bClone);
        EXPECT_EQ(platform.lastMessage(), c.message) << c.bSaveAs << c.bClone << c.error;
        EXPECT_TRUE(app.document.bModified) << "the text was not written";
    }
}

TEST_F(SaveTest, aFailedPackLeavesTheArchiveAndDoesNotShowAsUnsaved) {
    const std::string file = openBooks();
    const std::string before = bytesOf(file);
    const std::size_t files = filesInFolder();
    fs::permissions(file, fs::perms(0444));
    save();
    expectFailure(failed, "read-only file");
    fs::permissions(file, fs::perms(0644));
    EXPECT_FALSE(document.bModified);
    EXPECT_TRUE(workFileHoldsChange());
    EXPECT_EQ(bytesOf(file), before);

    saveAs(program.path("no/such/folder.fwk"));
    expectFailure(failed, "no such folder");
    EXPECT_EQ(document.currentFile, file);
    clone(program.path("no/such/folder.fwk"));
    expectFailure(failed, "no such folder for the clone");

    fs::rename(file, program.path("away.fwk"));
    save();
    expectFailure(failed, "vanished file");
    EXPECT_EQ(document.currentFile, file);
    EXPECT_FALSE(fs::exists(file));
    saveAs(program.path("copy.fwk"));
    expectFailure(failed, "a copy of a vanished file");
    EXPECT_FALSE(fs::exists(program.path("copy.fwk")));
    fs::rename(program.path("away.fwk"), file);

    program.open(program.path("gone.fwk")); // drops the name, and keeps the document
    save();
    expectFailure(failed, "no file to write to");
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(filesInFolder(), files) << "no file is left behind";
}

TEST_F(SaveTest, saveAsOverAFileThatCannotBeReplacedKeepsIt) {
    const std::string target = program.copyOf("invoices.fwk"), file = openBooks();
    const std::string other = bytesOf(target);
    fs::permissions(target, fs::perms(0444));
    platform.answers = {Answer::Yes};
    saveAs(target);
    expectFailure(failed, "read-only target");
    EXPECT_EQ(bytesOf(target), other);
    EXPECT_EQ(document.currentFile, file);
    fs::permissions(target, fs::perms(0644));
}

// The signal that comes with the limit ends a program that does not ignore it. Here the work file is
// the first file that is written at all: this database has no clip art.
TEST_F(SaveTest, aFullDiskIsToldWhenTheWorkFileIsTheFirstToMeetIt) {
    const std::string file = program.copyOf("invoices.fwk");
    const std::string before = bytesOf(file);
    app.document.LV.columns.add("Name", "Name");
    app.document.currentFile = file;
    withLimit(10, [&] { save(); });
    expectFailure(failed, "full disk");
    EXPECT_EQ(bytesOf(file), before);
}

// The first limits already stop the text in the
// work folder, the last one lets it pass and stops the archive.
TEST_F(SaveTest, aFullDiskLeavesTheArchive) {
    const std::string file = openBooks(), target = program.path("copy.fwk");
    const std::string before = bytesOf(file);
    const std::size_t files = filesInFolder();
    const std::size_t text = Program::dataFileOf(file).size();
    ASSERT_GT(before.size(), text + 1000) << "or the limits below are none";
    for (const std::size_t bytes : {std::size_t{0}, text / 2, text + 500}) {
        app::setDocumentModified(app, true);
        withLimit(bytes, [&] {
            save();
            saveAs(target);
        });
        EXPECT_EQ(platform.messages.size(), 2U) << bytes;
        expectFailure(failed, std::to_string(bytes));
        EXPECT_EQ(bytesOf(file), before) << bytes;
        EXPECT_EQ(document.currentFile, file) << bytes;
        EXPECT_EQ(filesInFolder(), files) << bytes;
        EXPECT_EQ(document.bModified, bytes < text) << bytes;
    }
    save();
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(holdsChange(file));
}

TEST_F(SaveTest, textThatNeedsMoreThanTheCodePageComesBack) {
    const std::string file = program.openCopyOf("books.fwk");
    const std::string before = Program::dataFileOf(file);
    document.LV.at(1).cells[1] = "\xD0\x96";
    save();
    EXPECT_TRUE(Program::dataFileOf(file).starts_with("\xEF\xBB\xBF"));
    program.open(file);
    EXPECT_EQ(document.LV.at(1).cells[1], "\xD0\x96");
    EXPECT_EQ(document.LV.at(2).cells[1], "Les Mis\xC3\xA9rables");
    document.LV.at(1).cells[1] = "The Odyssey";
    save();
    EXPECT_EQ(Program::dataFileOf(file), before);
}

} // namespace
