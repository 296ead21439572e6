#include "sheetFixture.h"

namespace {

const char* const fields = "F|Name|1000|1000|1815|285;F|Sum|1000|2000|1815|285;P|Photo|4000|1000|1815|1575|;"
                           "C|art.gif|4000|3000|2175|1815|;L|Title|100|100|1695|195";

struct InitLayout : Sheet {
    // What each object shows, "Bolt locked off tinted; ", and what there is of sheet, toolbar, grid, rulers
    // and of the buttons Picture and Rows, and Add.
    std::string look() {
        std::string all;
        const auto add = [&](const std::string& text,
                             std::initializer_list<std::pair<bool, const char*>> marks) {
            all += text;
            for (const auto& [holds, mark] : marks) all += holds ? mark : "";
        };
        objects.layoutField.forEach([&](const auto& each) {
            add(each.Text, {{each.Locked, " locked"},
                            {!each.Enabled, " off"},
                            {each.BackColor == 0xFFFF00, " cyan"},
                            {true, "; "}});
        });
        objects.imgHolder.forEach([&](const auto& each) {
            add(each.ToolTipText, {{each.BackColor != core::white, " grey"},
                                   {!each.viewImage.path.empty(), " shown"},
                                   {true, "; "}});
        });
        objects.clipPic.forEach([&](const auto& each) { add("", {{each.BorderStyle == 1, "framed; "}}); });
        objects.tLabel.forEach([&](const auto& each) {
            add("", {{each.BackColor != core::white, "marked "}, {!each.Locked, "open "}});
        });
        const bool bars = page.layoutToolbarInFront;
        for (const bool shown : {page.layoutPic2.Visible, bars, page.bGrid, page.bRulersVisible})
            all += shown ? "1" : "0";
        for (const char* key : {"Picture", "Rows"})
            all += bars && app.mainFrm.control("layoutToolbar." + std::string(key)).Enabled ? "1" : "0";
        return all + (!bars && app.mainFrm.control("layoutNavBar.Add").Enabled ? "1" : "0");
    }
    void expectLooks(std::string_view cases) {
        for (const auto& c : table(cases)) {
            after(c[0]);
            EXPECT_EQ(look(), core::replaceAll(c[1], ", ", "; "));
        }
    }
    // Where sheet and rulers stand, and the bars.
    std::string view() const {
        const auto bar = [](const auto& of) {
            return std::to_string(of.Value) + "/" + std::to_string(of.Max);
        };
        return texts({page.layoutPic2.Left, page.layoutPic2.Top, page.ruler1.Left, page.ruler2.Top}) + ", " +
               texts({page.ruler1.Width, page.ruler2.Height}) + ", " + bar(page.layoutHScroll) + " " +
               bar(page.layoutVScroll);
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
    openSheet("F|Qty|1|1|900|300;F|Sum|1|1|900|300;F|Name|1|1|900|300;F|Qty|1|1|900|300");
    app.mainFrm.bHighlightCalc = false;
    expectLooks("design -> Qty locked, Sum locked, Name locked, Qty locked off, 1111100; design -> 12, 18, "
                "Bolt, 12, 1000001");
}

// A column's name would be taken for a value.
TEST_F(InitLayout, WithoutRecords) {
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
    options.layoutLeftMargin = 0.5003F; // 720.4 twips, of which whole ones count
    options.layoutTopMargin = 0.25F;
    options.layoutRightMargin = 2;
    // Paper, orientation and custom size; the sheet's size and its margins.
    for (const auto& c :
         table("1 1 4 6 -> 12240 15840 720 360 9360 14400 8.5 x 11; 5 1 4 6 -> 12240 20160 720 360 9360 "
               "18720 8.5 x 14; 9 2 4 6 -> 16838 11906 720 360 13958 10466 11.7 x 8.3; 256 2 5.5 8.5 -> 7920 "
               "12240 720 360 5040 10800 5.5 x 8.5; 256 1 4.1 3.05 -> 5904 4392 720 360 3024 2952 4.1 x 3; "
               "999 1 4 6 -> 12240 15840 720 360 9360 14400 8.5 x 11; 256 1 -3 1e30 -> 0 720000 720 360 "
               "-2880 718560 0 x 500")) {
        std::istringstream(c[0]) >> options.layoutPaperSize >> options.layoutOrientation >>
            options.customPaperLength >> options.customPaperHeight;
        layout::InitLayout(app, false);
        EXPECT_EQ(texts({page.layoutPic2.Width, page.layoutPic2.Height, page.marginLeft, page.marginTop,
                         page.marginRight, page.marginBottom}) +
                      page.marginLbl.substr(std::string("Paper Size:").size()),
                  c[1]);
    }
    options.layoutLeftMargin = 1e9F; // of a damaged file
    layout::InitLayout(app, false);
    EXPECT_EQ(page.marginLeft, 32767);
}

// A step of 1 counts as the top, and each return to it takes the ruler higher.
TEST_F(InitLayout, ScrollingMovesSheetAndRulers) {
    openSheet();
    EXPECT_EQ(view(), "285 0 285 285, 12240 15840, 0/6240 0/10840");
    after("design");
    for (const auto& c :
         table("v600 -> 285 -600 285 -315, 12240 15840, 0/6240 600/10840; v1 -> 285 285 285 284, 12240 "
               "15840, 0/6240 1/10840; v0 -> 285 285 285 240, 12240 15840, 0/6240 0/10840; h700 -> -700 285 "
               "-415 240, 12240 15840, 700/6240 0/10840; v99999 -> -700 -10840 -415 -10555, 12240 15840, "
               "700/6240 10840/10840; v-5 -> -700 285 -415 240, 12240 15840, 700/6240 0/10840; h0 -> 285 285 "
               "285 240, 12240 15840, 0/6240 0/10840")) {
        const int value = std::stoi(c[0].substr(1));
        c[0][0] == 'v' ? layout::layoutVScroll_Change(app, value) : layout::layoutHScroll_Change(app, value);
        EXPECT_EQ(view(), c[1]) << c[0];
    }
    after("design");
    layout::layoutHScroll_Change(app, 700);
    layout::layoutVScroll_Change(app, 700);
    layout::layoutPic1_Resize(app, 14240, 5000); // wide enough: the bars go back, the sheet to the middle
    EXPECT_EQ(view(), "1000 0 285 285, 14240 15840, 0/0 0/10840");
    after("design");
    layout::layoutPic1_Resize(app, 14240, 20000); // and high enough: the ruler covers no edge
    EXPECT_EQ(view(), "285 285 285 285, 14240 20000, 0/0 0/0");
}

} // namespace
