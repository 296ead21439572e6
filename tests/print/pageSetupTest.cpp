#include "core/runTimeError.h"
#include "print/layoutPageSetupFrm.h"
#include "print/reportPageSetup.h"
#include "printRecorder.h"
#include "shell/commands.h"
#include "shell/mainWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class PageSetup : public testing::Test, protected PrintProgram {};

TEST_F(PageSetup, TheButtonShowsTheFormOfThePrintMode) {
    openRecords(1);
    shell::runCommand(app, "mnuPageSetup");
    shell::SSTab1_Click(app, app::layoutTab);
    shell::runCommand(app, "PageSetup");
    app.mainFrm.iPrintMode = app::printMultipleLayouts;
    shell::runCommand(app, "PageSetup");
    EXPECT_THAT(platform.forms, ElementsAre("reportPageSetup", "layoutPageSetupFrm", "layoutPageSetupFrm"));
}

TEST_F(PageSetup, ReportSettingsGoIntoTheFormAndBack) {
    open(DataFile{}.text());
    core::Document& document = app.document;
    document.printedCols.add("Price");
    document.LV.columns.setPosition(4, 2); // Price in front
    document.reportData = {1, 0.5F, 0.25F, 2, 5, 1, "Old", true};
    print::reportPageSetup form(app);
    ASSERT_EQ(form.LV3.size(), 3U);
    EXPECT_EQ(form.LV3[0].Text, "Price");
    EXPECT_TRUE(form.LV3[0].Checked);
    EXPECT_FALSE(form.LV3[1].Checked);
    EXPECT_TRUE(form.PortraitOpt && form.boldYesOpt && !form.letterOpt);
    EXPECT_EQ(form.leftTxt + "," + form.rightTxt + "," + form.TopTxt + "," + form.bottomTxt, "1,0.5,0.25,2");
    EXPECT_EQ(form.titleTxt, "Old");

    EXPECT_FALSE(form.allChk());
    form.allChk_Click(true);
    EXPECT_TRUE(form.allChk());
    form.allChk_Click(false);
    EXPECT_FALSE(form.LV3[2].Checked);
    form.LV3[0].Checked = form.LV3[1].Checked = true;
    form.titleTxt = "  New ";
    form.boldYesOpt = form.PortraitOpt = false;
    form.letterOpt = true;
    form.leftTxt = "1.5in";
    form.rightTxt = "wide";
    app.mainFrm.previewPage.iReportStartRow = 9;
    form.ApplyBtn_Click();
    EXPECT_FALSE(form.unloaded);
    EXPECT_THAT(document.printedCols.items(), ElementsAre("Price", "Name"));
    EXPECT_TRUE(document.prnInvoiceCols.empty());
    EXPECT_EQ(document.reportData.reportTitle, "New");
    EXPECT_EQ(document.reportData.reportLeftMargin, 1.5F);
    EXPECT_EQ(document.reportData.reportRightMargin, 0); // a text reads as 0
    EXPECT_EQ(document.reportData.reportPaperSize, 1);
    EXPECT_EQ(document.reportData.reportOrientation, 2);
    EXPECT_TRUE(document.bModified);
    EXPECT_EQ(textsOf(preview())[1], "Price@3350,360") << "the preview behind it follows";
    form.Command2_Click(); // takes nothing back
    EXPECT_TRUE(form.unloaded);
    EXPECT_EQ(document.reportData.reportTitle, "New");

    print::reportPageSetup empty(app);
    for (auto& row : empty.LV3) row.Checked = false;
    empty.Command1_Click();
    EXPECT_TRUE(empty.unloaded);
    EXPECT_EQ(wordsOf(preview()), "New");
}

TEST_F(PageSetup, EachViewOfAnInvoiceDatabaseKeepsItsColumns) {
    openCopyOf("invoices.fwk");
    for (const bool itemView : {false, true}) {
        app.document.bInvoiceView = itemView;
        print::reportPageSetup form(app);
        ASSERT_GT(form.LV3.size(), 1U);
        for (auto& row : form.LV3) row.Checked = false;
        form.LV3[itemView ? 1 : 0].Checked = true;
        form.ApplyBtn_Click();
        const auto& kept = itemView ? app.document.prnItemCols : app.document.prnInvoiceCols;
        EXPECT_THAT(kept.items(), ElementsAre(form.LV3[itemView ? 1 : 0].Text));
        EXPECT_EQ(kept.items(), app.document.printedCols.items());
    }
    EXPECT_NE(app.document.prnItemCols.items(), app.document.prnInvoiceCols.items());
}

TEST_F(PageSetup, LayoutSettingsGoIntoTheFormAndBack) {
    openRecords(1, "F|Name|1440|1440|2000|1000|False|False|False|Arial|10|0|\r\n");
    shell::SSTab1_Click(app, app::layoutTab);
    print::layoutPageSetupFrm form(app);
    ASSERT_EQ(form.paperList.ListItems.size(), 3U);
    EXPECT_EQ(form.paperList.SelectedItem, 1U);
    EXPECT_FALSE(form.customFrm.Visible);
    EXPECT_EQ(form.spacingTxt, "0.15");
    form.paperList_ItemClick(2);
    EXPECT_TRUE(form.customFrm.Visible);
    for (const char* wrong : {"0", "-1", "x"}) {
        form.lengthTxt = wrong;
        form.heightTxt = "5";
        form.customOkBtn_Click();
        EXPECT_EQ(platform.lastMessage(), "Invalid values specified. Values must be greater than 0.");
        EXPECT_TRUE(form.customFrm.Visible);
    }
    form.lengthTxt = "7";
    form.customOkBtn_Click();
    EXPECT_FALSE(form.customFrm.Visible);
    form.CancelButton_Click();
    EXPECT_EQ(app.document.layoutOptions.customPaperLength, 7) << "what was accepted stays";
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 1);

    platform.messages.clear();
    form.unloaded = false;
    form.leftTxt = "2";
    form.bottomTxt = "none";
    form.spacingTxt = "0.5";
    form.PortraitOpt = false;
    form.OKButton_Click();
    EXPECT_TRUE(form.unloaded);
    EXPECT_TRUE(platform.messages.empty());
    const core::LayoutOptions& options = app.document.layoutOptions;
    EXPECT_EQ(options.layoutLeftMargin, 2);
    EXPECT_EQ(options.layoutBottomMargin, 0);
    EXPECT_EQ(options.layoutSpacing, 0.5F);
    EXPECT_EQ(options.layoutOrientation, 2);
    EXPECT_EQ(options.layoutPaperSize, 256);
    EXPECT_TRUE(app.document.bModified);
    EXPECT_EQ(app.mainFrm.layoutPage.layoutPic2.Width, 7 * 1440) << "the sheet follows";
    EXPECT_EQ(app.mainFrm.previewPage.rptPreview1.Width, 7 * 1440) << "and the preview";
    EXPECT_EQ(wordsOf(preview()), "r1");
}

TEST_F(PageSetup, OddPapersAndSpacings) {
    openRecords(1, "F|Name|1440|1440|2000|1000|False|False|False|Arial|10|0|\r\n");
    app.document.layoutOptions.layoutPaperSize = 5; // the printer has no such paper
    print::layoutPageSetupFrm form(app);
    EXPECT_FALSE(form.paperList.SelectedItem.has_value());
    form.spacingTxt = "narrow";
    form.OKButton_Click();
    EXPECT_EQ(platform.messages.back().caption, "Printer Not Installed");
    EXPECT_FALSE(form.unloaded);
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 5);
    form.spacingTxt = "0";
    form.OKButton_Click();
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 9) << "the first of the list";

    platform.paperNames = {{"A4", 9}, {"A4", 70}};
    EXPECT_THROW(print::layoutPageSetupFrm{app}, core::RunTimeError);
}

} // namespace
