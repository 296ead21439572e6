#include "core/runTimeError.h"
#include "file/dataWriter.h"
#include "print/layoutPageSetupFrm.h"
#include "print/reportPageSetup.h"
#include "printRecorder.h"
#include "shell/mainWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class PageSetup : public testing::Test, protected PrintProgram {
protected:
    // A section of the document as it would be saved.
    std::string section(const std::string& name) {
        const std::string text = file::writeDataFile(app.document, false);
        const std::size_t start = text.find(name) + 16;
        return text.substr(start, text.find('\r', start) - start);
    }
};

TEST_F(PageSetup, TheButtonShowsTheFormOfThePrintMode) {
    openRecords(1);
    run("mnuPageSetup");
    shell::SSTab1_Click(app, app::layoutTab);
    run("PageSetup");
    app.mainFrm.iPrintMode = app::printMultipleLayouts;
    run("PageSetup");
    EXPECT_THAT(platform.forms, ElementsAre("reportPageSetup", "layoutPageSetupFrm", "layoutPageSetupFrm"));
}

TEST_F(PageSetup, ReportSettingsGoIntoTheFormAndBack) {
    open(DataFile().section("Printed Cols", "Price|").section("Report Data", "1|0.5|0.25|2|1|2|Old|True|"));
    app.document.LV.columns.setPosition(4, 2); // Price in front
    const std::string before = section("[Report Data");
    print::reportPageSetup form(app);
    form.Command1_Click();
    EXPECT_TRUE(form.unloaded && app.document.bModified);
    EXPECT_EQ(section("[Report Data"), before) << "taken over without a change";
    EXPECT_EQ(section("[Printed Cols"), "Price|");
    ASSERT_EQ(form.LV3.size(), 3U);
    EXPECT_EQ(form.LV3[0].Text, "Price");

    EXPECT_FALSE(form.allChk());
    form.allChk_Click(true);
    EXPECT_TRUE(form.allChk());
    form.allChk_Click(false);
    EXPECT_FALSE(form.LV3[2].Checked);
    form.LV3[0].Checked = form.LV3[1].Checked = true;
    form.unloaded = false;
    form.LV3[1].Checked = true;
    form.titleTxt = "  New ";
    form.PortraitOpt = true;
    form.boldYesOpt = form.letterOpt = false;
    form.leftTxt = "1.5in";
    form.rightTxt = "wide";
    form.TopTxt = "0.25";
    app.mainFrm.previewPage.iReportStartRow = 9;
    form.ApplyBtn_Click();
    EXPECT_FALSE(form.unloaded);
    EXPECT_EQ(section("[Report Data"), "1.5|0|0.25|2|5|1|New|False|") << "a text reads as 0";
    EXPECT_EQ(section("[Printed Cols"), "Price|Name|");
    EXPECT_EQ(section("[PrnInvoiceCols"), "");
    EXPECT_EQ(textsOf(preview())[1], "Price@3350,360") << "the preview behind it follows";
    form.Command2_Click(); // takes nothing back
    EXPECT_TRUE(form.unloaded);
    EXPECT_EQ(app.document.reportData.reportTitle, "New");
}

TEST_F(PageSetup, EachViewOfAnInvoiceDatabaseKeepsItsColumns) {
    openCopyOf("invoices.fwk");
    for (const std::size_t view : {0U, 1U}) {
        app.document.bInvoiceView = view == 1;
        print::reportPageSetup form(app);
        for (auto& row : form.LV3) row.Checked = false;
        form.LV3.at(view).Checked = true;
        form.ApplyBtn_Click();
        EXPECT_EQ(section(view == 1 ? "[PrnItemCols" : "[PrnInvoiceCols"), form.LV3[view].Text + "|");
        EXPECT_EQ(section("[Printed Cols"), form.LV3[view].Text + "|");
    }
    EXPECT_NE(section("[PrnItemCols"), section("[PrnInvoiceCols"));
}

TEST_F(PageSetup, LayoutSettingsGoIntoTheFormAndBack) {
    openRecords(1, "F|Name|1440|1440|2000|1000");
    shell::SSTab1_Click(app, app::layoutTab);
    const std::string before = section("[Layout Options");
    print::layoutPageSetupFrm form(app);
    form.OKButton_Click();
    EXPECT_EQ(section("[Layout Options"), before) << "taken over without a change";
    EXPECT_TRUE(form.unloaded && !form.customFrm.Visible);
    form.unloaded = false;
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

    form.unloaded = app.document.bModified = false;
    form.leftTxt = "2";
    form.rightTxt = "0.75";
    form.bottomTxt = "none";
    form.PortraitOpt = false;
    for (const auto& [spacing, message] : {std::pair("narrow", 1), {"0.5", 0}}) {
        EXPECT_FALSE(form.unloaded || app.document.bModified);
        form.spacingTxt = spacing;
        form.OKButton_Click();
        EXPECT_EQ(told().starts_with("i Printer Not Installed"), message == 1);
    }
    EXPECT_EQ(section("[Layout Options"), "7|5|2|1|0|0.75|256|2|0.5|");
    EXPECT_TRUE(form.unloaded && app.document.bModified);
    EXPECT_EQ(app.mainFrm.layoutPage.layoutPic2.Width, 7 * 1440) << "the sheet follows";
    EXPECT_EQ(app.mainFrm.previewPage.rptPreview1.Width, 7 * 1440) << "and the preview";
    EXPECT_EQ(wordsOf(preview()), "r1");
}

TEST_F(PageSetup, ListsOfPapers) {
    openRecords(3, "F|Name|1440|1440|2000|1000");
    run("Multiple_Layout_Preview_All");
    app.document.layoutOptions.layoutPaperSize = 5; // the printer has no such paper
    print::layoutPageSetupFrm form(app);
    EXPECT_FALSE(form.paperList.SelectedItem.has_value());
    form.OKButton_Click();
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 9) << "the first of the list";
    EXPECT_EQ(wordsOf(preview()), "r1 r2 r3");
    platform.paperNames = {{"A4", 9}, {"A4", 70}};
    EXPECT_THROW(print::layoutPageSetupFrm{app}, core::RunTimeError);
}

} // namespace
