#include "storage/newDatabase.h"
#include "programTest.h"
#include "shell/listEvents.h"
#include "storage/databaseTypeFrm.h"
#include "storage/saveFile.h"

namespace {

namespace fs = std::filesystem;
using platform::Answer;

class NewDatabaseTest : public ProgramTest {
protected:
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
    void addColumns() {
        document.LV.columns.add("Name", "Name").setTypeFromFile("3");
        document.LV.columns.add("Qty", "Qty").setTypeFromFile("4");
    }
    bool designWasShown() const { return std::ranges::count(platform.forms, "designFrm") > 0; }
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
            EXPECT_EQ(mainFrm.panels[app::fileSizePanel] + mainFrm.panels[app::documentPanel], "");
            addColumns();
        };
        platform.forms.clear();
        make(target);
        EXPECT_EQ(platform.forms, (std::vector<std::string>{"databaseTypeFrm", "designFrm"}));
        EXPECT_EQ(dialogs(), "Specify Name For New Database//Database (*.fwk)|*.fwk|All Files (*.*)|*.*");
        EXPECT_EQ(told(), "");

        EXPECT_EQ(Program::cells(document.LV), "------|------|;");
        EXPECT_TRUE(document.LV.at(1).isTotals());
        EXPECT_EQ(document.iLastKey, 0);
        EXPECT_EQ(document.layoutOptions.layoutTopMargin, 1);
        EXPECT_EQ(document.reportData.reportTitle + document.lockPassword, "");
        EXPECT_EQ(document.layout.layoutField.count() + document.layout.tLabel.count(), 0);
        EXPECT_TRUE(document.formulas.empty() && document.optionedCols.empty() && document.SerialsLV.empty());
        EXPECT_EQ(mainFrm.panels[app::stylePanel],
                  style ? "Database Style: Invoice" : "Database Style: Standard");
        EXPECT_EQ(mainFrm.iPrintMode, app::printReport);
        EXPECT_EQ(mainFrm.iFieldFocus, 0);
        EXPECT_EQ(mainFrm.viewOpt, 1);
        EXPECT_FALSE(document.bInvoiceView || document.bModified);
        EXPECT_TRUE(mainFrm.control("Save").Enabled);
        EXPECT_EQ(document.LV3.count(), style ? 0 : 1) << "the sums of the numeric columns";
    }
}

TEST_F(NewDatabaseTest, opensAfterItsFirstSaveAndNotBefore) {
    onDesign = [&] { addColumns(); };
    for (const bool style : {false, true}) {
        invoice = style;
        const std::string target = program.path(style ? "invoice.fwk" : "standard.fwk");
        make(target);
        program.open(target); // there is nothing in it
        EXPECT_EQ(document.currentFile, "");
        platform.answers = {Answer::Yes};
        make(target);
        storage::SaveFile(app, false, false);
        program.open(target);
        EXPECT_EQ(document.currentFile, target);
        EXPECT_EQ(Program::cells(document.LV), "------|------|;");
        EXPECT_EQ(document.bInvoiceStyle, style);
    }
}

TEST_F(NewDatabaseTest, cancelChangesNothingButTheStyleThatWasPicked) {
    const std::string file = openChanged();
    mainFrm.SSTab1 = app::layoutTab;
    invoice = true;
    storage::newDatabase(app, false); // the file dialog is cancelled
    EXPECT_NE(dialogs(), "");
    EXPECT_TRUE(document.bInvoiceStyle);
    EXPECT_EQ(&shell::visibleList(app), &document.LV) << "the records stay on view";
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
    EXPECT_EQ(dialogs() + told(), "") << "no name is asked for";
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(document.LV.count(), 43);
    EXPECT_EQ(mainFrm.SSTab1, app::layoutTab);
    EXPECT_FALSE(fs::exists(program.path("new.fwk")));
}

TEST_F(NewDatabaseTest, offersToSaveWhatIsOpen) {
    const std::pair<Answer, bool> cases[] = {
        {Answer::Yes, true}, {Answer::No, false}, {Answer::Cancel, true}};
    for (const auto& [answer, isSaved] : cases) {
        const std::string file = openChanged();
        platform.answers = {answer};
        make(program.path("new.fwk"));
        EXPECT_EQ(told(), "- Save current file " + file + "?");
        EXPECT_EQ(holdsChange(file), isSaved);
        EXPECT_EQ(document.bModified, !isSaved) << "a refusal leaves the flag for the next question";
        fs::remove(program.path("new.fwk"));
    }
    // Nothing to save, or nowhere.
    program.openCopyOf("books.fwk");
    app::setDocumentModified(app, false);
    make(program.path("new.fwk"));
    document.currentFile.clear();
    app::setDocumentModified(app, true);
    make(program.path("other.fwk"));
    EXPECT_EQ(told(), "");
}

TEST_F(NewDatabaseTest, aRefusedOverwritingLeavesAnEmptyWindowUnderTheOldName) {
    const std::string target = program.copyOf("invoices.fwk"), other = bytesOf(target);
    for (const bool bStartUp : {false, true}) {
        const std::string file = program.openCopyOf("books.fwk");
        platform.answers = {Answer::No};
        make(target, bStartUp);
        EXPECT_EQ(told(), "x Overwrite Existing File?");
        EXPECT_EQ(document.currentFile, file);
        EXPECT_EQ(document.LV.count(), 0);
        EXPECT_EQ(document.LV.columns.count(), 1);
        EXPECT_EQ(mainFrm.Caption, bStartUp ? "Ferrowick" : "Ferrowick - " + file);
        EXPECT_EQ(mainFrm.control("Save").Enabled, !bStartUp);
        EXPECT_EQ(bytesOf(target), other);
        EXPECT_FALSE(designWasShown());
    }
    const std::string file = program.openCopyOf("books.fwk");
    make(""); // an empty name ends it behind the clearing
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(document.LV.count(), 0);
    EXPECT_FALSE(designWasShown());
    EXPECT_EQ(told(), "");
    platform.answers = {Answer::Yes};
    make(target);
    EXPECT_EQ(document.currentFile, target);
    EXPECT_LT(fs::file_size(target), 30U) << "an archive without entries";
}

// When the archive cannot be made, a save that follows must not reach the file that was open.
TEST_F(NewDatabaseTest, aFailureIsSilentAndNeverLeadsASaveIntoTheOldFile) {
    const std::string readOnly = program.copyOf("invoices.fwk");
    fs::permissions(readOnly, fs::perms(0444));
    for (const std::string& target : {program.path("no/such/folder.fwk"), readOnly}) {
        const std::string file = program.openCopyOf("books.fwk"), before = Program::dataFileOf(file);
        platform.answers = {Answer::Yes};
        make(target);
        platform.answers.clear();
        EXPECT_EQ(told(), target == readOnly ? "x Overwrite Existing File?" : "");
        EXPECT_EQ(document.currentFile, target);
        EXPECT_EQ(mainFrm.Caption, "Ferrowick - " + target);
        EXPECT_FALSE(designWasShown());
        storage::SaveFile(app, false, false);
        EXPECT_TRUE(told().starts_with("! There was an error writing to the file."));
        EXPECT_EQ(Program::dataFileOf(file), before);
    }
    EXPECT_GT(Program::dataFileOf(readOnly).size(), 1000U);
    fs::permissions(readOnly, fs::perms(0644));
}

} // namespace
