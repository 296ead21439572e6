#include "storage/newDatabase.h"
#include "databases.h"
#include "storage/databaseTypeFrm.h"
#include "storage/saveFile.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;
using platform::Answer;
using platform::Icon;

class NewDatabaseTest : public testing::Test {
protected:
    Program program;
    app::App& app = program.app;
    core::Document& document = app.document;
    app::MainFrm& mainFrm = app.mainFrm;
    ScriptedPlatform& platform = program.platform;
    bool invoice = false;           // the style that the user picks
    std::function<void()> onDesign; // what he does in the database properties

    NewDatabaseTest() {
        platform.onForm = [this](std::string_view form) {
            if (form == "designFrm" && onDesign) onDesign();
            if (form != "databaseTypeFrm") return;
            storage::databaseTypeFrm frm(app);
            EXPECT_TRUE(frm.Option1 && !frm.Option2);
            frm.Option1 = !invoice;
            frm.Option2 = invoice;
            frm.OKButton_Click();
            EXPECT_TRUE(frm.unloaded);
        };
    }
    void make(const std::string& target, bool bStartUp = false) {
        platform.files = {target};
        storage::newDatabase(app, bStartUp);
    }
    bool designWasShown() const { return std::ranges::count(platform.forms, "designFrm") > 0; }
    std::vector<std::string> questions() const {
        std::vector<std::string> texts;
        for (const auto& message : platform.messages) texts.push_back(message.text);
        return texts;
    }
};

TEST_F(NewDatabaseTest, isClearedDefinedAndSetUp) {
    for (const bool style : {false, true}) {
        invoice = style;
        program.openCopyOf(style ? "books.fwk" : "invoices.fwk");
        document.layoutOptions.layoutTopMargin = 3;
        document.reportData.reportTitle = "old";
        document.lockPassword = "secret";
        document.bInvoiceView = true;
        mainFrm.SSTab1 = app::layoutTab;
        mainFrm.iPrintMode = app::printLayout;
        mainFrm.iFieldFocus = 4;
        const std::string target = program.path(style ? "invoice.fwk" : "standard.fwk");
        onDesign = [&] {
            EXPECT_EQ(document.currentFile, target);
            EXPECT_EQ(mainFrm.Caption, "Ferrowick - " + target);
            EXPECT_TRUE(fs::exists(target)) << "the archive is there before the columns are";
            EXPECT_EQ(document.LV.columns.count(), 1);
            EXPECT_TRUE(document.LV.empty());
            EXPECT_EQ(document.iLV.Visible, style);
            EXPECT_EQ(mainFrm.SSTab1, app::reportTab);
            EXPECT_EQ(mainFrm.panels[app::fileSizePanel], "");
            EXPECT_EQ(mainFrm.panels[app::documentPanel], "");
            document.LV.columns.add("Name", "Name").setTypeFromFile("3");
            document.LV.columns.add("Qty", "Qty").setTypeFromFile("4");
        };
        platform.forms.clear();
        platform.dialogs.clear();
        make(target);
        EXPECT_EQ(platform.forms, (std::vector<std::string>{"databaseTypeFrm", "designFrm"}));
        ASSERT_EQ(platform.dialogs.size(), 1U);
        EXPECT_EQ(platform.dialogs[0].title, "Specify Name For New Database");
        EXPECT_EQ(platform.dialogs[0].fileName, "");
        EXPECT_EQ(platform.dialogs[0].filter, "Database (*.fwk)|*.fwk|All Files (*.*)|*.*");
        EXPECT_TRUE(platform.messages.empty());

        EXPECT_EQ(Program::cells(document.LV), "------|------|;");
        EXPECT_TRUE(document.LV.at(1).isTotals());
        EXPECT_EQ(document.iLastKey, 0);
        EXPECT_EQ(document.layoutOptions.layoutTopMargin, 1);
        EXPECT_EQ(document.reportData.reportTitle, "");
        EXPECT_EQ(document.layout.layoutField.count() + document.layout.tLabel.count(), 0);
        EXPECT_EQ(document.lockPassword, "");
        EXPECT_TRUE(document.formulas.empty() && document.optionedCols.empty() && document.SerialsLV.empty());
        EXPECT_EQ(mainFrm.panels[app::stylePanel],
                  style ? "Database Style: Invoice" : "Database Style: Standard");
        EXPECT_EQ(mainFrm.iPrintMode, app::printReport);
        EXPECT_EQ(mainFrm.iFieldFocus, 0);
        EXPECT_FALSE(document.bInvoiceView);
        EXPECT_EQ(mainFrm.viewOpt, 1);
        EXPECT_FALSE(document.bModified);
        EXPECT_TRUE(mainFrm.control("Save").Enabled);
        EXPECT_EQ(document.LV3.count(), style ? 0 : 1) << "the sums of the numeric columns";
    }
}

TEST_F(NewDatabaseTest, opensAfterItsFirstSaveAndNotBefore) {
    onDesign = [&] {
        document.LV.columns.add("Name", "Name").setTypeFromFile("3");
        document.LV.columns.add("Qty", "Qty").setTypeFromFile("4");
    };
    for (const bool style : {false, true}) {
        invoice = style;
        const std::string target = program.path(style ? "invoice.fwk" : "standard.fwk");
        make(target);
        program.open(target); // there is nothing in it
        EXPECT_EQ(document.currentFile, "");
        platform.answers = {Answer::Yes};
        make(target);
        platform.messages.clear();
        storage::SaveFile(app, false, false);
        program.open(target);
        EXPECT_EQ(document.currentFile, target);
        EXPECT_EQ(Program::cells(document.LV), "------|------|;");
        EXPECT_EQ(document.bInvoiceStyle, style);
    }
}

TEST_F(NewDatabaseTest, cancelChangesNothingButTheStyleThatWasPicked) {
    const std::string file = program.openCopyOf("books.fwk");
    app::setDocumentModified(app, true);
    mainFrm.SSTab1 = app::layoutTab;
    invoice = true;
    storage::newDatabase(app, false); // the file dialog is cancelled
    EXPECT_EQ(platform.dialogs.size(), 1U);
    EXPECT_TRUE(document.bInvoiceStyle);
    document.bInvoiceStyle = false;
    platform.onForm = [&](std::string_view) {
        storage::databaseTypeFrm frm(app);
        frm.Option2 = true;
        frm.CancelButton_Click();
        EXPECT_TRUE(frm.unloaded);
    };
    mainFrm.bDatabaseTypeChosen = true;
    make(program.path("new.fwk"));
    EXPECT_FALSE(document.bInvoiceStyle);
    EXPECT_EQ(platform.dialogs.size(), 1U) << "no name is asked for";
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(document.LV.count(), 43);
    EXPECT_EQ(mainFrm.SSTab1, app::layoutTab);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_FALSE(fs::exists(program.path("new.fwk")));
}

TEST_F(NewDatabaseTest, offersToSaveWhatIsOpen) {
    const struct {
        Answer answer;
        bool saved;
    } cases[] = {{Answer::Yes, true}, {Answer::No, false}, {Answer::Cancel, true}};
    for (const auto& c : cases) {
        const std::string file = program.openCopyOf("books.fwk");
        document.LV.at(1).cells[1] = "changed";
        app::setDocumentModified(app, true);
        platform.messages.clear();
        platform.answers = {c.answer};
        make(program.path("new.fwk"));
        ASSERT_EQ(platform.messages.size(), 1U);
        EXPECT_EQ(platform.messages[0].text, "Save current file " + file + "?");
        EXPECT_EQ(platform.messages[0].caption, "Ferrowick");
        EXPECT_EQ(Program::dataFileOf(file).find("|changed|") != std::string::npos, c.saved);
        EXPECT_EQ(document.bModified, !c.saved) << "a refusal leaves the flag for the next question";
        fs::remove(program.path("new.fwk"));
    }
    // Nothing to save, or nowhere.
    program.openCopyOf("books.fwk");
    platform.messages.clear();
    app::setDocumentModified(app, false);
    make(program.path("new.fwk"));
    document.currentFile.clear();
    app::setDocumentModified(app, true);
    make(program.path("other.fwk"));
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(NewDatabaseTest, aRefusedOverwritingLeavesAnEmptyWindowUnderTheOldName) {
    const std::string target = program.copyOf("invoices.fwk");
    const auto size = fs::file_size(target);
    for (const bool bStartUp : {false, true}) {
        const std::string file = program.openCopyOf("books.fwk");
        platform.messages.clear();
        platform.answers = {Answer::No};
        make(target, bStartUp);
        ASSERT_EQ(platform.messages.size(), 1U);
        EXPECT_EQ(platform.messages[0].text, "Overwrite Existing File?");
        EXPECT_EQ(platform.messages[0].icon, Icon::Critical);
        EXPECT_EQ(platform.messages[0].caption, "Ferrowick");
        EXPECT_EQ(document.currentFile, file);
        EXPECT_EQ(document.LV.count(), 0);
        EXPECT_EQ(document.LV.columns.count(), 1);
        EXPECT_EQ(mainFrm.Caption, bStartUp ? "Ferrowick" : "Ferrowick - " + file);
        EXPECT_EQ(mainFrm.control("Save").Enabled, !bStartUp);
        EXPECT_EQ(fs::file_size(target), size);
        EXPECT_FALSE(designWasShown());
    }
    platform.answers = {Answer::Yes};
    make(target);
    EXPECT_EQ(document.currentFile, target);
    EXPECT_LT(fs::file_size(target), 30U) << "an archive without entries";
}

TEST_F(NewDatabaseTest, anEmptyNameEndsItBehindTheClearing) {
    const std::string file = program.openCopyOf("books.fwk");
    make("");
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(document.LV.count(), 0);
    EXPECT_FALSE(designWasShown());
    EXPECT_TRUE(platform.messages.empty());
}

// When the archive cannot be made, a save that follows must not reach the file that was open.
TEST_F(NewDatabaseTest, aFailureIsSilentAndNeverLeadsASaveIntoTheOldFile) {
    const std::string readOnly = program.copyOf("invoices.fwk");
    fs::permissions(readOnly, fs::perms(0444));
    for (const std::string& target : {program.path("no/such/folder.fwk"), readOnly}) {
        const std::string file = program.openCopyOf("books.fwk");
        const std::string before = Program::dataFileOf(file);
        platform.messages.clear();
        platform.answers = {Answer::Yes};
        make(target);
        platform.answers.clear();
        EXPECT_EQ(questions(), target == readOnly ? std::vector<std::string>{"Overwrite Existing File?"}
                                                  : std::vector<std::string>());
        EXPECT_EQ(document.currentFile, target);
        EXPECT_EQ(mainFrm.Caption, "Ferrowick - " + target);
        EXPECT_FALSE(designWasShown());
        storage::SaveFile(app, false, false);
        EXPECT_TRUE(platform.lastMessage().starts_with("There was an error writing to the file."));
        EXPECT_EQ(Program::dataFileOf(file), before);
    }
    EXPECT_GT(Program::dataFileOf(readOnly).size(), 1000U);
    fs::permissions(readOnly, fs::perms(0644));
}

} // namespace
