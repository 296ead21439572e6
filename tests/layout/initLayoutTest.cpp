#include "sheetFixture.h"

namespace {

const char* const fields = "F|Name|1000|1000|1815|285|False|False|False|Arial|8.25|0|\r\n"
                           "F|Sum|1000|2000|1815|285|False|False|False|Arial|8.25|0|\r\n"
                           "P|Photo|4000|1000|1815|1575|\r\nC|art.gif|4000|3000|2175|1815|\r\n"
                           "L|Title|100|100|1695|195|False|False|False|Arial|8.25|0|\r\n";

TEST_F(Sheet, BothModesShowTheirSide) {
    app.mainFrm.bHighlightCalc = true;
    open(fields);
    EXPECT_TRUE(page.layoutPic2.Visible);
    EXPECT_EQ(objects.layoutField[1].Text, "Bolt");
    EXPECT_FALSE(objects.layoutField[1].Locked);
    EXPECT_EQ(objects.layoutField[2].BackColor, 0xFFFF00); // cyan
    EXPECT_EQ(objects.imgHolder[1].BackColor, core::white);
    EXPECT_EQ(objects.imgHolder[1].ToolTipText, "bolt.jpg");
    EXPECT_EQ(objects.clipPic[1].BorderStyle, 0);
    EXPECT_FALSE(page.layoutToolbarInFront || page.bGrid || page.bRulersVisible);

    design();
    EXPECT_EQ(objects.layoutField[1].Text, "Name");
    EXPECT_TRUE(objects.layoutField[1].Locked);
    EXPECT_EQ(objects.layoutField[2].BackColor, 0xFFFF00);
    EXPECT_EQ(objects.imgHolder[1].BackColor, 0x808080);
    const core::FittedImage& image = objects.imgHolder[1].viewImage;
    EXPECT_EQ(image.path, "");
    EXPECT_EQ(image.Width, 1815);
    EXPECT_EQ(image.Left, 0);
    EXPECT_EQ(objects.clipPic[1].BorderStyle, 1);
    EXPECT_TRUE(page.layoutToolbarInFront && page.bGrid && page.bRulersVisible);
    EXPECT_TRUE(app.mainFrm.control("layoutToolbar.Picture").Enabled);
    EXPECT_FALSE(app.mainFrm.control("layoutToolbar.Rows").Enabled);
    EXPECT_EQ(page.fieldMenu, (std::vector<std::string>{"Name", "Qty", "Price", "Made", "Sum"}));
    EXPECT_EQ(page.pictureMenu, (std::vector<std::string>{"Photo", "Second_Photo"}));

    app.document.bModified = false;
    page.Handle.Visible = true;
    layout::select(app, {Family::tLabel, 1});
    objects.tLabel[1].BackColor = 0;
    browse();
    EXPECT_EQ(objects.layoutField[1].Text, "Bolt");
    EXPECT_EQ(objects.tLabel[1].BackColor, core::white);
    EXPECT_TRUE(app.document.bModified);
    EXPECT_FALSE(page.Handle.Visible);
    EXPECT_EQ(page.selectedObject.name(), "tLabel,1"); // outlives the change of modes
    app.mainFrm.bHighlightCalc = false;
    layout::InitLayout(app, false);
    EXPECT_EQ(objects.layoutField[2].BackColor, core::white);
}

TEST_F(Sheet, OnlyTheHeadOfARepeatedFieldAnswersTheMouse) {
    const std::string line = "F|Qty|100|100|1000|300|False|False|False|Arial|8|0|\r\n";
    open(line + line + fields + line);
    EXPECT_TRUE(objects.layoutField[2].Enabled);
    design();
    EXPECT_TRUE(objects.layoutField[1].Enabled);
    EXPECT_FALSE(objects.layoutField[2].Enabled);
    EXPECT_TRUE(objects.layoutField[3].Enabled);
    EXPECT_FALSE(objects.layoutField[5].Enabled);
    EXPECT_EQ(objects.layoutField[5].Text, "Qty");
    browse();
    EXPECT_TRUE(objects.layoutField[5].Enabled);
}

TEST_F(Sheet, ThePaperGivesTheSheetItsSize) {
    struct Case {
        std::int16_t paper, orientation;
        float length, height;
        long width, tall;
        const char* label;
    };
    const Case cases[] = {{1, 1, 4, 6, 12240, 15840, "Paper Size: 8.5 x 11"},
                          {5, 1, 4, 6, 12240, 20160, "Paper Size: 8.5 x 14"},
                          {1, 2, 4, 6, 15840, 12240, "Paper Size: 11 x 8.5"},
                          {9, 1, 4, 6, 11906, 16838, "Paper Size: 8.3 x 11.7"},
                          {256, 1, 5.5F, 8.5F, 7920, 12240, "Paper Size: 5.5 x 8.5"},
                          {256, 1, 4.1F, 3.05F, 5904, 4392, "Paper Size: 4.1 x 3"},
                          {999, 1, 4, 6, 12240, 15840, "Paper Size: 8.5 x 11"},
                          {256, 1, -3, 1e30F, 0, 720000, "Paper Size: 0 x 500"}};
    open();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        app.document.layoutOptions.layoutPaperSize = c.paper;
        app.document.layoutOptions.layoutOrientation = c.orientation;
        app.document.layoutOptions.customPaperLength = c.length;
        app.document.layoutOptions.customPaperHeight = c.height;
        layout::InitLayout(app, false);
        EXPECT_EQ(static_cast<long>(page.layoutPic2.Width), c.width);
        EXPECT_EQ(static_cast<long>(page.layoutPic2.Height), c.tall);
        EXPECT_EQ(page.marginLbl, c.label);
    }
}

TEST_F(Sheet, MarginsAreMeasuredFromTheEdges) {
    open();
    core::LayoutOptions& options = app.document.layoutOptions;
    options.layoutLeftMargin = 0.5003F; // 720.4 twips, of which whole ones count
    options.layoutTopMargin = 0.25F;
    options.layoutRightMargin = 2;
    options.layoutBottomMargin = 1;
    layout::InitLayout(app, false);
    EXPECT_EQ(page.marginLeft, 720);
    EXPECT_EQ(page.marginTop, 360);
    EXPECT_EQ(page.marginRight, 12240 - 2880);
    EXPECT_EQ(page.marginBottom, 15840 - 1440);
    options.layoutLeftMargin = 1e9F; // of a damaged file
    layout::InitLayout(app, false);
    EXPECT_TRUE(page.layoutPic2.Visible);
}

TEST_F(Sheet, ScrollingMovesSheetAndRulers) {
    open();
    EXPECT_EQ(page.layoutVScroll.Max, 15840 - 5000);
    EXPECT_EQ(page.layoutHScroll.Max, 12240 - 6000);
    EXPECT_EQ(page.layoutPic2.Top, 0);    // browsing
    EXPECT_EQ(page.layoutPic2.Left, 285); // not narrower than the viewport
    design();
    EXPECT_EQ(page.layoutPic2.Top, 285);
    EXPECT_EQ(page.ruler1.Width, 12240);
    EXPECT_EQ(page.ruler2.Height, 15840);

    layout::layoutVScroll_Change(app, 600);
    EXPECT_EQ(page.layoutPic2.Top, -600);
    EXPECT_EQ(page.ruler2.Top, 285 - 600);
    layout::layoutVScroll_Change(app, 1); // a step of 1 counts as the top
    EXPECT_EQ(page.layoutPic2.Top, 285);
    layout::layoutVScroll_Change(app, 0);
    EXPECT_EQ(page.layoutPic2.Top, 285);
    EXPECT_EQ(page.ruler2.Top, 285 - 45);
    layout::layoutHScroll_Change(app, 700);
    EXPECT_EQ(page.layoutPic2.Left, -700);
    EXPECT_EQ(page.ruler1.Left, 285 - 700);
    layout::layoutHScroll_Change(app, 99999); // not beyond its end
    EXPECT_EQ(page.layoutHScroll.Value, page.layoutHScroll.Max);
    layout::layoutHScroll_Change(app, 0);
    EXPECT_EQ(page.layoutPic2.Left, 285);
}

TEST_F(Sheet, ASheetThatFitsStandsInTheMiddleWhileBrowsing) {
    open();
    layout::layoutHScroll_Change(app, 700);
    layout::layoutPic1_Resize(app, 14240,
                              5000); // wide enough now: the bar goes back, the sheet to the middle
    EXPECT_EQ(page.layoutHScroll.Max, 0);
    EXPECT_EQ(page.layoutHScroll.Value, 0);
    EXPECT_EQ(page.layoutPic2.Left, 1000);
    EXPECT_EQ(page.ruler1.Width, 14240);
    design();
    EXPECT_EQ(page.layoutPic2.Left, 285);
    layout::layoutPic1_Resize(app, 14240, 20000); // and high enough: the ruler covers no edge
    EXPECT_EQ(page.layoutVScroll.Max, 0);
    EXPECT_EQ(page.layoutPic2.Top, 285);
}

TEST_F(Sheet, AnInvoiceDatabaseWithoutRecordsHidesTheSheet) {
    open();
    app.document.bInvoiceStyle = true;
    app.document.iLV.clear();
    core::addTotalsRow(app.document.iLV);
    layout::InitLayout(app, false);
    EXPECT_FALSE(page.layoutPic2.Visible);
    EXPECT_EQ(platform.lastMessage(),
              "To create a new invoice record please click on the New toolbar button.  "
              "It's the first one on the Layout Tab's toolbar.");
    EXPECT_FALSE(app.mainFrm.control("layoutNavBar.Add").Enabled);
    app.mainFrm.control("Design").Value = true;
    layout::refreshLayoutMode(app);
    EXPECT_TRUE(page.layoutPic2.Visible);
    EXPECT_FALSE(app.mainFrm.control("layoutToolbar.Picture").Enabled);
    EXPECT_TRUE(app.mainFrm.control("layoutToolbar.Rows").Enabled);
}

} // namespace
