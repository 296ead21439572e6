#include "sheetFixture.h"

namespace {

const char* const fields = "F|Name|1000|1000|1815|285;F|Sum|1000|2000|1815|285;P|Photo|4000|1000|1815|1575|;"
                           "C|art.gif|4000|3000|2175|1815|;L|Title|100|100|1695|195";

struct InitLayout : Sheet {
    // What each object shows, "Bolt locked off cyan; ", and what there is of sheet, toolbar, grid, rulers and
    // of the buttons Picture and Rows, and Add.
    void expectLooks(std::string_view cases) {
        for (const auto& c : table(cases)) {
            after(c[0]);
            std::string all;
            objects.layoutField.forEach([&](const core::LayoutField& each) {
                all += each.Text + (each.Locked ? " locked" : "") + (each.Enabled ? "" : " off") +
                       (each.BackColor == 0xFFFF00 ? " cyan, " : ", ");
            });
            objects.imgHolder.forEach([&](const core::ImgHolder& each) {
                all += each.ToolTipText + (each.BackColor == core::white ? "" : " grey") +
                       (each.viewImage.path.empty() ? ", " : " shown, ");
            });
            objects.clipPic.forEach(
                [&](const auto& each) { all += each.BorderStyle == 1 ? "framed, " : ""; });
            objects.tLabel.forEach([&](const core::Label& each) {
                all += std::string(each.BackColor == core::white ? "" : "marked ") +
                       (each.Locked ? "" : "open ");
            });
            const bool bars = page.layoutToolbarInFront;
            const auto enabled = [&](const char* key) { return app.mainFrm.control(key).Enabled; };
            for (const bool shown :
                 {page.layoutPic2.Visible, bars, page.bGrid, page.bRulersVisible,
                  bars && enabled("layoutToolbar.Picture"), bars && enabled("layoutToolbar.Rows"),
                  !bars && enabled("layoutNavBar.Add")})
                all += shown ? "1" : "0";
            EXPECT_EQ(all, c[1]);
        }
    }
};

TEST_F(InitLayout, BothModesShowTheirSide) {
    platform.pictures["bolt.jpg"] = {1500, 1500};
    app.mainFrm.bHighlightCalc = true;
    openSheet(fields);
    expectLooks(" -> Bolt, 18 cyan, bolt.jpg shown, 1000001; design -> Name locked, Sum locked cyan, "
                "bolt.jpg grey, framed, 1111100");
    const core::FittedImage& image = objects.imgHolder[1].viewImage;
    EXPECT_EQ(texts({image.Left, image.Top, image.Width, image.Height}), "0 0 1815 1575");
    EXPECT_EQ(page.fieldMenu, (std::vector<std::string>{"Name", "Qty", "Price", "Made", "Sum"}));
    EXPECT_EQ(page.pictureMenu, (std::vector<std::string>{"Photo", "Second_Photo"}));
    app.document.bModified = false;
    expectLooks("tLabel,1 click dblclick key 65 0 -> Name locked, Sum locked cyan, bolt.jpg grey, framed, "
                "marked open 1111100; design -> Bolt, 18 cyan, bolt.jpg shown, 1000001");
    EXPECT_EQ(state(), "100 100 1695 195"); // without a grip
    EXPECT_TRUE(app.document.bModified && page.selectedObject == it);
    // The copies of a repeated field do not answer to the mouse.
    openSheet("F|Qty|1|1|900|300;F|Sum|1|1|900|300;F|Qty|1|1|900|300");
    app.mainFrm.bHighlightCalc = false;
    expectLooks("design -> Qty locked, Sum locked, Qty locked off, 1111100; design -> 12, 18, 12, 1000001");
    // Without records a column's name would be taken for a value.
    openSheet(fields, true, DataFile("Name Sum:5 Photo:7"));
    expectLooks("design -> , , , 1000001");
    EXPECT_EQ(told(), "");
    openSheet(fields, false, DataFile("Name Sum:5 Photo:7").section("DatabaseStyle", "True"));
    expectLooks(" -> , , , 0000000; design -> Name locked, Sum locked,  grey, framed, 1111010");
    EXPECT_EQ(told(), "i To create a new invoice record please click on the New toolbar button.  It's the "
                      "first one on the Layout Tab's toolbar.");
}

TEST_F(InitLayout, ThePaperGivesTheSheetItsSizeAndMargins) {
    openSheet();
    core::LayoutOptions& options = app.document.layoutOptions;
    options.layoutTopMargin = 0.25F;
    options.layoutRightMargin = 2;
    // Paper, orientation, custom size and left margin; the sheet's size and its margins, of which the left
    // one counts in whole twips.
    for (const auto& c :
         table("9 2 4 6 .5003 -> 16838 11906 720 360 13958 10466 11.7 x 8.3; 256 2 5.5 8.5 1 -> 7920 12240 "
               "1440 360 5040 10800 5.5 x 8.5; 999 1 4 6 1e9 -> 12240 15840 32767 360 9360 14400 8.5 x 11; "
               "256 1 -3 1e30 1 -> 0 720000 1440 360 -2880 718560 0 x 500")) {
        std::istringstream(c[0]) >> options.layoutPaperSize >> options.layoutOrientation >>
            options.customPaperLength >> options.customPaperHeight >> options.layoutLeftMargin;
        layout::InitLayout(app, false);
        EXPECT_EQ(texts({page.layoutPic2.Width, page.layoutPic2.Height, page.marginLeft, page.marginTop,
                         page.marginRight, page.marginBottom}) +
                      page.marginLbl.substr(std::string("Paper Size:").size()),
                  c[1]);
    }
}

// A step of 1 counts as the top, and each return to it takes the ruler higher. A viewport that is wide enough
// sends the bars back and the sheet to the middle; when it is high enough the ruler covers no edge.
TEST_F(InitLayout, ScrollingMovesSheetAndRulers) {
    openSheet();
    for (const auto& c :
         table("h0 -> 285 0 285 285, 12240 15840, 0/6240 0/10840; design v600 -> 285 -600 285 -315, 12240 "
               "15840, 0/6240 600/10840; v1 -> 285 285 285 284, 12240 15840, 0/6240 1/10840; v0 -> 285 285 "
               "285 240, 12240 15840, 0/6240 0/10840; h700 -> -700 285 -415 240, 12240 15840, 700/6240 "
               "0/10840; v99999 -> -700 -10840 -415 -10555, 12240 15840, 700/6240 10840/10840; v-5 -> -700 "
               "285 -415 240, 12240 15840, 700/6240 0/10840; design h0 -> 285 0 285 240, 12240 15840, 0/6240 "
               "0/10840; v700 -> 285 -700 285 -415, 12240 15840, 0/6240 700/10840; s5000 -> 1000 0 285 285, "
               "14240 15840, 0/0 0/10840; design s20000 -> 285 285 285 285, 14240 20000, 0/0 0/0")) {
        const std::size_t act = c[0].rfind(' ') + 1; // the last, or the only one
        if (c[0].starts_with("design")) after("design");
        const int value = std::atoi(c[0].c_str() + act + 1);
        if (c[0][act] == 'v') layout::layoutVScroll_Change(app, value);
        if (c[0][act] == 'h') layout::layoutHScroll_Change(app, value);
        if (c[0][act] == 's') layout::layoutPic1_Resize(app, 14240, static_cast<float>(value));
        std::string bars;
        for (const auto& bar : {page.layoutHScroll, page.layoutVScroll})
            bars += " " + std::to_string(bar.Value) + "/" + std::to_string(bar.Max);
        EXPECT_EQ(texts({page.layoutPic2.Left, page.layoutPic2.Top, page.ruler1.Left, page.ruler2.Top}) +
                      ", " + texts({page.ruler1.Width, page.ruler2.Height}) + "," + bars,
                  c[1])
            << c[0];
    }
}

} // namespace
