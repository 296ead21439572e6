#include "shell/program.h"
#include "programTest.h"
#include "storage/saveFile.h"

#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;
using platform::Answer;

constexpr const char* failed =
    "! There was an error writing to the file.  If saving to removable media, please "
    "make sure that the disk is inserted properly, or that the device is plugged in.";
constexpr const char* insertDisk =
    "!   Please insert your working source disk or device that you have "
    "been saving to up until now.  Ferrowick needs this before it can perform the 'save as' operation to the "
    "other location you specified.  Once you have inserted the disk or device you can try 'save as' again.";
constexpr const char* overwrite = "- Overwrite Existing File?";
constexpr const char* filter = "Database (*.fwk)|*.fwk|All Files (*.*)|*.*";

class SaveTest : public ProgramTest {
protected:
    std::string workFile() { return bytesOf(platform.workFolder() / "data.dat"); }
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
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(platform.folder), fs::directory_iterator()));
    }
};

TEST_F(SaveTest, aSaveReplacesTheDataAlone) {
    const std::string file = program.openCopyOf("books.fwk");
    const auto entries = entriesOf(file, true), images = entriesOf(file, false);
    save();
    EXPECT_EQ(entriesOf(file, true), entries) << "nothing has changed";
    EXPECT_EQ(images[0], "data.dat:Main Data File:");
    document.LV.at(1).cells[1] = "changed";
    app::setDocumentModified(app, true);
    fs::permissions(file, fs::perms(0640));
    mainFrm.panels[app::fileSizePanel] = mainFrm.Caption = "?";
    save();
    EXPECT_TRUE(holdsChange(file));
    EXPECT_EQ(entriesOf(file, false), images);
    EXPECT_EQ(workFile(), Program::dataFileOf(file));
    EXPECT_FALSE(document.bModified);
    EXPECT_EQ(mainFrm.panels[app::documentPanel], "Document Saved");
    EXPECT_EQ(mainFrm.panels[app::fileSizePanel], "Filesize: 17 KB");
    EXPECT_EQ(mainFrm.Caption, "Ferrowick - " + file);
    EXPECT_EQ(told() + dialogs(), "");
}

TEST_F(SaveTest, anUnchangedSaveOfAnInvoiceDatabaseRefreshesItsViewAlone) {
    const std::string file = program.openCopyOf("invoices.fwk"), empty = "[InvoiceCols   ]\r\n";
    std::string expected = Program::dataFileOf(file);
    save();
    expected.replace(expected.find(empty), empty.size(), "[InvoiceCols   ]1|2|3|4|5|6|7|\r\n");
    EXPECT_EQ(Program::dataFileOf(file), expected);
}

TEST_F(SaveTest, saveAsAsksAndCopiesTheImages) {
    const std::string file = openChanged(), target = program.path("copy.fwk");
    const std::string before = bytesOf(file);
    saveAs(target);
    EXPECT_EQ(dialogs(), std::string("Save As.../Untitled.fwk/") + filter);
    EXPECT_EQ(told(), "") << "a new name needs no question";
    EXPECT_EQ(document.currentFile, target);
    EXPECT_EQ(mainFrm.Caption, "Ferrowick - " + target);
    EXPECT_FALSE(document.bModified);
    EXPECT_TRUE(holdsChange(target));
    EXPECT_EQ(entriesOf(target, false), entriesOf(file, false));
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(mainFrm.control("mnuFile1").Caption, file) << "recent files are opened ones";

    openChanged();
    saveAs(file); // is a plain save
    EXPECT_EQ(told(), "");
    EXPECT_TRUE(holdsChange(file));
    EXPECT_EQ(document.currentFile, file);
}

TEST_F(SaveTest, saveAsWritesNothingBeforeTheYes) {
    const std::string target = program.copyOf("invoices.fwk"), other = bytesOf(target);
    for (const bool cancelled : {true, false})
        for (const Answer answer : {Answer::No, Answer::Cancel}) {
            const std::string file = openChanged(), before = bytesOf(file);
            platform.answers = {answer};
            if (!cancelled) platform.files = {target};
            storage::SaveFile(app, true, false);
            platform.answers.clear();
            EXPECT_EQ(told(), cancelled ? "" : overwrite);
            EXPECT_EQ(workFile().find("|changed|"), std::string::npos);
            EXPECT_TRUE(document.bModified);
            EXPECT_EQ(document.currentFile, file);
            EXPECT_EQ(bytesOf(file), before);
            EXPECT_EQ(bytesOf(target), other);
        }
    const std::string file = openChanged();
    platform.answers = {Answer::Yes};
    saveAs(target);
    EXPECT_TRUE(holdsChange(target));
    EXPECT_EQ(entriesOf(target, false), entriesOf(file, false)) << "nothing of the old target is left";
    EXPECT_EQ(document.currentFile, target);
}

TEST_F(SaveTest, aCloneLeavesTheOpenDocumentOpen) {
    const std::string file = openChanged(), target = program.path("clone.fwk"), before = bytesOf(file);
    mainFrm.panels[app::fileSizePanel] = mainFrm.Caption = "as it was";
    clone(target);
    EXPECT_EQ(dialogs(), std::string("Clone current file to.../Clone1.fwk/") + filter);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(document.currentFile, file);
    EXPECT_TRUE(document.bModified);
    EXPECT_EQ(mainFrm.panels[app::documentPanel], "Document Modified");
    EXPECT_EQ(mainFrm.panels[app::fileSizePanel], "as it was");
    EXPECT_EQ(mainFrm.Caption, "as it was");
    EXPECT_EQ(document.LV.count(), 43);
    EXPECT_EQ(bytesOf(file), before);

    std::string design = Program::dataFileOf(file);
    design.erase(design.find("[Begin Data    ]\r\n") + 18);
    design.replace(design.find("No,42|"), 6, "No,0|");
    EXPECT_EQ(entriesOf(target, true), std::vector<std::string>{"data.dat:Main Data File:" + design});

    program.openCopyOf("invoices.fwk");
    clone(program.path("invoiceClone.fwk"));
    program.open(program.path("invoiceClone.fwk"));
    EXPECT_TRUE(document.bInvoiceStyle);
    EXPECT_EQ(document.LV.count(), 1);
}

TEST_F(SaveTest, aRefusedCloneHasWrittenTheTextAlone) {
    const std::string target = program.copyOf("invoices.fwk"), other = bytesOf(target);
    for (const bool cancelled : {true, false}) {
        const std::string file = openChanged(), before = bytesOf(file);
        platform.answers = {Answer::No};
        platform.files.clear();
        if (!cancelled) platform.files = {target};
        storage::SaveFile(app, false, true);
        platform.answers.clear();
        EXPECT_EQ(told(), cancelled ? "" : overwrite);
        EXPECT_TRUE(workFile().ends_with("[Begin Data    ]\r\n"));
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
    shell::Program app{platform};
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
        EXPECT_EQ(toldBy(platform), c.message) << c.bSaveAs << c.bClone << c.error;
        EXPECT_TRUE(app.document.bModified) << "the text was not written";
    }
}

TEST_F(SaveTest, aFailedPackLeavesTheArchiveAndDoesNotShowAsUnsaved) {
    const std::string invoices = program.copyOf("invoices.fwk"), other = bytesOf(invoices);
    const std::string file = openChanged(), before = bytesOf(file);
    const std::size_t files = filesInFolder();
    fs::permissions(file, fs::perms(0444));
    save();
    EXPECT_EQ(told(), failed) << "read-only file";
    fs::permissions(file, fs::perms(0644));
    EXPECT_FALSE(document.bModified);
    EXPECT_NE(workFile().find("|changed|"), std::string::npos);
    EXPECT_EQ(bytesOf(file), before);

    fs::permissions(invoices, fs::perms(0444));
    platform.answers = {Answer::Yes};
    saveAs(invoices);
    EXPECT_EQ(told(), std::string(overwrite) + "\n" + failed) << "read-only target";
    EXPECT_EQ(bytesOf(invoices), other);
    saveAs(program.path("no/such/folder.fwk"));
    EXPECT_EQ(told(), failed) << "no such folder";
    EXPECT_EQ(document.currentFile, file);
    clone(program.path("no/such/folder.fwk"));
    EXPECT_EQ(told(), failed) << "no such folder for the clone";

    fs::rename(file, program.path("away.fwk"));
    save();
    EXPECT_EQ(told(), failed) << "vanished file";
    EXPECT_EQ(document.currentFile, file);
    EXPECT_FALSE(fs::exists(file));
    saveAs(program.path("copy.fwk"));
    EXPECT_EQ(told(), failed) << "a copy of a vanished file";
    fs::rename(program.path("away.fwk"), file);

    program.open(program.path("gone.fwk")); // drops the name, and keeps the document
    (void)told();
    save();
    EXPECT_EQ(told(), failed) << "no file to write to";
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(filesInFolder(), files) << "no file is left behind";
}

// The signal that comes with the limit ends a program that does not ignore it. Here the work file is
// the first file that is written at all: this database has no clip art.
TEST_F(SaveTest, aFullDiskIsToldWhenTheWorkFileIsTheFirstToMeetIt) {
    const std::string file = program.copyOf("invoices.fwk"), before = bytesOf(file);
    document.LV.columns.add("Name", "Name");
    document.currentFile = file;
    withLimit(10, [&] { save(); });
    EXPECT_EQ(told(), failed);
    EXPECT_EQ(bytesOf(file), before);
}

// The first limits already stop the text in the
// work folder, the last one lets it pass and stops the archive.
TEST_F(SaveTest, aFullDiskLeavesTheArchive) {
    const std::string file = openChanged(), target = program.path("copy.fwk"), before = bytesOf(file);
    const std::size_t files = filesInFolder(), text = Program::dataFileOf(file).size();
    ASSERT_GT(before.size(), text + 1000) << "or the limits below are none";
    for (const std::size_t bytes : {std::size_t{0}, text / 2, text + 500}) {
        app::setDocumentModified(app, true);
        withLimit(bytes, [&] {
            save();
            saveAs(target);
        });
        EXPECT_EQ(told(), std::string(failed) + "\n" + failed) << bytes;
        EXPECT_EQ(bytesOf(file), before) << bytes;
        EXPECT_EQ(document.currentFile, file) << bytes;
        EXPECT_EQ(filesInFolder(), files) << bytes;
        EXPECT_EQ(document.bModified, bytes < text) << bytes;
    }
    save();
    EXPECT_EQ(told(), "");
    EXPECT_TRUE(holdsChange(file));
}

TEST_F(SaveTest, textThatNeedsMoreThanTheCodePageComesBack) {
    const std::string file = program.openCopyOf("books.fwk"), before = Program::dataFileOf(file);
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
