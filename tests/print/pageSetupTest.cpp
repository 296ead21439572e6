#include "file/dataWriter.h"
#include "layout/layoutPage.h"
#include "print/layoutPageSetupFrm.h"
#include "print/paperChoice.h"
#include "print/reportPageSetup.h"
#include "print/reportPrinting.h"
#include "printRecorder.h"
#include "raised.h"
#include "shell/mainWindow.h"
#include "table.h"

namespace {

struct PageSetup : testing::Test, PrintProgram {
    // A section of the document as it would be saved, without its name.
    std::string section(const std::string& name) {
        const std::string text = file::writeDataFile(app.document, false);
        const std::size_t start = text.find(name) + 16;
        return text.substr(start, text.find('\r', start) - start);
    }
};

TEST_F(PageSetup, ReportSettingsGoIntoTheFormAndBack) {
    open(DataFile().section("Printed Cols", "Price|").section("Report Data", "1|0.5|0.25|2|1|2|Old|True|"));
    run("mnuPageSetup");
    app.document.LV.columns.setPosition(4, 2); // Price in front
    print::reportPageSetup form(app);
    form.Command1_Click();
    EXPECT_TRUE(form.unloaded && app.document.bModified);
    EXPECT_EQ(section("[Report Data") + section("[Printed Cols"), "1|0.5|0.25|2|1|2|Old|True|Price|");
    EXPECT_FALSE(form.allChk());
    form.allChk_Click(true);
    EXPECT_TRUE(form.allChk());
    form.allChk_Click(false);
    form.LV3.at(0).Checked = form.LV3.at(1).Checked = true;
    EXPECT_FALSE(form.LV3.at(2).Checked || form.allChk());
    form.unloaded = form.boldYesOpt = form.letterOpt = false;
    form.PortraitOpt = true;
    form.titleTxt = "  New ";
    form.leftTxt = "1.5in";
    form.rightTxt = "wide"; // reads as 0
    form.TopTxt = "0.25";
    print::previewPage(app).iReportStartRow = 9;
    form.ApplyBtn_Click();
    EXPECT_EQ(section("[Report Data") + section("[Printed Cols") + section("[PrnInvoiceCols"),
              "1.5|0|0.25|2|5|1|New|False|Price|Name|");
    EXPECT_EQ(wordsOf(preview()), "New Price Name $1.50 Bolt $.25 Nut ------ ------");
    EXPECT_NE(drawnOn(preview()).find("; Price@3350,360"), std::string::npos) << drawnOn(preview());
    EXPECT_FALSE(form.unloaded);
    // A paper that is neither of the two is shown among the others, and stays until another one is chosen.
    platform.paperNames = {{"Letter", 1}, {"A3", 8}, {"A4 of the printer", 9}, {"Roll", 256, {1440, 2880}}};
    for (const auto& c :
         table("9 -> A4*,A5,A6,A3 -> 9; 0 -> A4,A5,A6,A3 -> 5; 10 -> A4,A5,A6,A3,A4 small* -> 10; "
               "300 -> A4,A5,A6,A3,Code 300 (prints on Letter)* -> 300",
               3)) {
        app.document.reportData.reportPaperSize = static_cast<std::int16_t>(std::stoi(c[0]));
        print::reportPageSetup other(app);
        std::string names;
        for (const platform::PaperName& paper : other.otherPapers.papers)
            names += "," + paper.name + (other.otherPapers.code() == paper.code ? "*" : "");
        other.ApplyBtn_Click();
        EXPECT_EQ(names.substr(1), c[1]);
        EXPECT_EQ(std::to_string(app.document.reportData.reportPaperSize), c[2]) << c[0];
    }
    form.Command2_Click(); // takes nothing back
    EXPECT_TRUE(form.unloaded && app.document.reportData.reportTitle == "New");

    openCopyOf("invoices.fwk"); // each view keeps its columns
    for (const std::size_t view : {0U, 1U}) {
        app.document.bInvoiceView = view == 1;
        print::reportPageSetup invoices(app);
        EXPECT_EQ(std::ssize(invoices.LV3), app.document.iLV.columns.count() - 1);
        invoices.allChk_Click(false);
        invoices.LV3.at(view).Checked = true;
        invoices.ApplyBtn_Click();
        for (const char* name : {view == 1 ? "[PrnItemCols" : "[PrnInvoiceCols", "[Printed Cols"})
            EXPECT_EQ(section(name), invoices.LV3[view].Text + "|");
        const std::string words = wordsOf(preview());
        shell::SSTab1_Click(app, app::previewTab);
        EXPECT_EQ(wordsOf(preview()), words) << "the invoices";
    }
    app.document.searchLV.Visible = true;
    EXPECT_EQ(&print::reportList(app), app.mainFrm.theListView);
    EXPECT_NE(section("[PrnItemCols"), section("[PrnInvoiceCols"));
}

TEST_F(PageSetup, LayoutSettingsGoIntoTheFormAndBack) {
    openRecords(2, "F|Name|1440|1440|2000|1000");
    shell::SSTab1_Click(app, app::layoutTab);
    run("PageSetup");
    const std::string before = section("[Layout Options");
    print::layoutPageSetupFrm form(app);
    form.OKButton_Click();
    EXPECT_EQ(section("[Layout Options"), before) << "taken over without a change";
    EXPECT_TRUE(form.unloaded && !form.customFrm.Visible);
    form.paperList_ItemClick(2);
    form.heightTxt = "5";
    for (const char* wrong : {"0", "-1", "x", "7"}) {
        EXPECT_TRUE(form.customFrm.Visible);
        form.lengthTxt = wrong;
        form.customOkBtn_Click();
        EXPECT_EQ(told(), *wrong == '7' ? "" : "i Invalid values specified. Values must be greater than 0.");
    }
    EXPECT_FALSE(form.customFrm.Visible);
    form.CancelButton_Click();
    EXPECT_EQ(section("[Layout Options"), "7|5|1|1|1|1|1|1|0.15|") << "the lengths accepted stay";
    form.unloaded = app.document.bModified = form.PortraitOpt = false;
    form.leftTxt = "2";
    form.rightTxt = "0.75";
    form.bottomTxt = "none";
    form.spacingTxt = "narrow";
    form.OKButton_Click();
    EXPECT_TRUE(told().starts_with("i Printer Not Installed"));
    EXPECT_FALSE(form.unloaded || app.document.bModified);
    form.spacingTxt = "0.5";
    form.OKButton_Click();
    EXPECT_EQ(section("[Layout Options") + told() + wordsOf(preview()), "7|5|2|1|0|0.75|256|2|0.5|r1");
    EXPECT_TRUE(form.unloaded && app.document.bModified);
    EXPECT_EQ(layout::layoutPage(app).layoutPic2.Width, 7 * 1440) << "the sheet follows";
    EXPECT_EQ(print::previewPage(app).rptPreview1.Width, 7 * 1440) << "and the preview";

    run("Multiple_Layout_Preview_All"); // the form is that of the layouts that are on show
    run("PageSetup");
    EXPECT_EQ(platform.forms, (std::vector<std::string>{"layoutPageSetupFrm", "layoutPageSetupFrm"}));
    app.document.layoutOptions.layoutPaperSize = 300; // the printer has no such paper
    print::layoutPageSetupFrm many(app);
    EXPECT_FALSE(many.paperList.SelectedItem.has_value() || many.paperNotice.empty());
    many.OKButton_Click();
    EXPECT_EQ(print::paperNotice(platform, core::customPaper), "") << "its lengths are the database's";
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 9) << "the first of the list";
    EXPECT_EQ(wordsOf(preview()), "r1 r2");
    // A size that only the printer knows is kept as a custom one, and found again; the common papers follow.
    platform.paperNames = {{"A5", 11}, {"Custom", 256}, {"Roll", 256, {14400, 12960}}};
    print::layoutPageSetupFrm roll(app);
    EXPECT_EQ(std::ssize(roll.paperList.ListItems), 7);
    roll.paperList_ItemClick(2);
    EXPECT_FALSE(roll.customFrm.Visible);
    roll.OKButton_Click();
    EXPECT_EQ(section("[Layout Options").substr(0, 5) + wordsOf(preview()), "10|9|r1 r2");
    EXPECT_EQ(print::layoutPageSetupFrm(app).paperList.SelectedItem, 2U);
    platform.paperNames = {{"A4", 9}, {"A4", 70}};
    EXPECT_NE(raisedBy([&] { print::layoutPageSetupFrm twice(app); }), 0);
}

} // namespace
