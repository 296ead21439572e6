#include "shell/program.h"
#include "programTest.h"
#include "shell/mainWindow.h"

namespace {

class WindowStateTest : public ProgramTest {
protected:
    bool isEnabled(const char* key) { return mainFrm.control(key).Enabled; }
    std::string tabButtons() {
        std::string all;
        for (const char* key : {"Totals", "Properties", "Delete"}) all += isEnabled(key) ? "1" : "0";
        return all;
    }
};

TEST_F(WindowStateTest, enableControls) {
    const struct {
        bool bInvoiceStyle, bInvoiceView;
        bool deleteOff, deleteOn; // with bEnable False and True; the others do not hang on it
        bool layouts, multiple, duplicate, frame;
    } cases[] = {{false, false, false, true, true, true, true, false},
                 {false, true, false, true, true, true, true, false}, // left over from the invoices before
                 {true, false, true, true, true, false, false, true},
                 {true, true, false, false, false, false, false, true}};
    for (const auto& c : cases)
        for (const bool bEnable : {true, false, true}) {
            document.bInvoiceStyle = c.bInvoiceStyle;
            document.bInvoiceView = c.bInvoiceView;
            mainFrm.Caption = "Ferrowick - a.fwk";
            app::enableControls(app, bEnable);
            for (const char* key :
                 {"Save", "Print", "PageSetup", "Search", "Totals", "Formulas", "Properties", "Design",
                  "mnuClone", "mnuEmail", "mnuCleanDatabase", "mnuSave", "mnuSaveAs", "mnuEdit", "mnuPrint",
                  "mnuPageSetup", "mnuTools", "mnuOptions"})
                EXPECT_EQ(isEnabled(key), bEnable) << key;
            EXPECT_EQ(mainFrm.SSTab1Enabled, bEnable);
            for (const char* key : {"New", "Open", "Help", "mnuFile", "mnuHelp", "mnuNew", "mnuOpen",
                                    "mnuExit", "All_As_Report", "Selected_As_Report"})
                EXPECT_TRUE(isEnabled(key)) << key;
            const std::string what = std::to_string(c.bInvoiceStyle) + std::to_string(c.bInvoiceView);
            EXPECT_EQ(isEnabled("Delete"), bEnable ? c.deleteOn : c.deleteOff) << what;
            EXPECT_EQ(isEnabled("All_As_Layouts"), c.layouts) << what;
            EXPECT_EQ(isEnabled("Selected_As_Layouts"), c.layouts) << what;
            for (const char* key : {"Print_All_As_Multiple_Layouts", "Print_Selected_Multiple_Layouts",
                                    "Multiple_Layout_Preview_All", "Multiple_Layout_Preview_Selected"})
                EXPECT_EQ(isEnabled(key), c.multiple) << what << key;
            EXPECT_EQ(isEnabled("mnuDuplicate"), c.duplicate) << what;
            EXPECT_EQ(mainFrm.invoiceFrameVisible, c.frame) << what;
            EXPECT_EQ(mainFrm.Caption, bEnable ? "Ferrowick - a.fwk" : "Ferrowick") << what;
        }
}

TEST_F(WindowStateTest, fileSizesAreCutNotRounded) {
    const std::pair<unsigned long long, const char*> cases[] = {
        {0, "0 bytes."},       {7, "7 bytes."},        {999, "999 bytes."},    {1'000, "1 KB"},
        {9'999, "9 KB"},       {10'000, "10 KB"},      {99'999, "99 KB"},      {100'000, "100 KB"},
        {999'999, "999 KB"},   {1'000'000, "1 MB"},    {9'999'999, "9 MB"},    {10'000'000, "10 MB"},
        {99'999'999, "99 MB"}, {100'000'000, "10 MB"}, {123'456'789, "12 MB"}, {4'294'967'296, "42 MB"}};
    for (const auto& [bytes, text] : cases) EXPECT_EQ(app::fileSizeText(bytes), text) << bytes;
    document.currentFile = program.path("a.fwk");
    mainFrm.panels[app::fileSizePanel] = "as it was";
    app::showFileSize(app);
    EXPECT_EQ(mainFrm.panels[app::fileSizePanel], "as it was") << "no such file";
    program.copyOf("invoices.fwk");
    document.currentFile = program.path("invoices.fwk");
    app::showFileSize(app);
    EXPECT_EQ(mainFrm.panels[app::fileSizePanel], "Filesize: 960 bytes.");
}

TEST_F(WindowStateTest, tabsOfAStandardDatabase) {
    program.openCopyOf("books.fwk");
    const struct {
        int tab, iPrintMode;
        bool multiSelect;
        const char* buttons;
    } clicks[] = {{app::layoutTab, app::printLayout, false, "000"},
                  {app::previewTab, app::printLayout, false, "000"}, // shows what the tab before it prints
                  {app::reportTab, app::printReport, true, "111"}};
    for (const auto& click : clicks) {
        shell::SSTab1_Click(app, click.tab);
        EXPECT_EQ(mainFrm.SSTab1, click.tab);
        EXPECT_EQ(mainFrm.iPrintMode, click.iPrintMode) << click.tab;
        EXPECT_EQ(document.LV.MultiSelect, click.multiSelect) << click.tab;
        EXPECT_EQ(tabButtons(), click.buttons) << click.tab;
    }
    EXPECT_FALSE(mainFrm.invoiceFrameVisible);
    mainFrm.theListView = &document.searchLV; // results are on view
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_FALSE(document.searchLV.MultiSelect);
    EXPECT_TRUE(document.LV.MultiSelect);
}

TEST_F(WindowStateTest, theLayoutOfAnInvoiceIsThatOfTheSelectedRow) {
    program.openCopyOf("invoices.fwk");
    EXPECT_TRUE(mainFrm.invoiceFrameVisible);
    core::RecordsList& shown = document.iLV;
    shown.setSelectedItem(&shown.at(3));
    const std::string key = shown.at(3).Text.str();
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_EQ(mainFrm.SSTab1, app::layoutTab);
    EXPECT_FALSE(mainFrm.invoiceFrameVisible);
    EXPECT_EQ(document.LV.selectedItem(), &document.LV.byKey(key));
    shell::SSTab1_Click(app, app::reportTab);
    EXPECT_TRUE(mainFrm.invoiceFrameVisible);

    // Results with nothing in them have no layout to show.
    core::RecordsList& results = document.searchLV;
    results.columns.add("Index", "Index", 0);
    results.Visible = true;
    core::addTotalsRow(results);
    mainFrm.theListView = &results;
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_EQ(mainFrm.SSTab1, app::reportTab);
    EXPECT_EQ(mainFrm.iPrintMode, app::printReport);
    EXPECT_EQ(tabButtons(), "110") << "what is found is not deleted";
    EXPECT_TRUE(mainFrm.invoiceFrameVisible);
    results.setSelectedItem(&results.add("r1", "i1"));
    core::moveTotals(results);
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_EQ(mainFrm.SSTab1, app::layoutTab);
    EXPECT_EQ(document.LV.selectedItem(), &document.LV.byKey("i1"));
}

// A machine without a printer.
class NoPrinter : public ScriptedPlatform {
public:
    std::string printerDeviceName() override { core::raise(core::errors::deviceIO); }
};

TEST(PrinterCheck, withoutAPrinterTheTabStays) {
    NoPrinter platform;
    shell::Program app{platform};
    for (const int tab : {app::layoutTab, app::previewTab}) {
        shell::SSTab1_Click(app, tab);
        EXPECT_EQ(app.mainFrm.SSTab1, app::reportTab);
        EXPECT_EQ(toldBy(platform),
                  "i Printer Not Installed: You need to first install a printer on this system.");
    }
    shell::SSTab1_Click(app, app::reportTab);
    EXPECT_EQ(toldBy(platform), "");
}

} // namespace
