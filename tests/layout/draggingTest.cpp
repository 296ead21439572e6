#include "sheetFixture.h"

namespace {

// One object of each kind, all in the same place.
const char* const allKinds =
    "F|Name|1000|1000|1800|900;L|Text|1000|1000|1800|900;LN|1000|1000|1800|900|0|;VLN|1000|1000|1800|900|0|;"
    "B|1000|1000|1800|900|0|1|;P|Photo|1000|1000|1800|900|;C|art.gif|1000|1000|1800|900|";

using Dragging = Sheet;

// Snapped, it waits for more than a step of the pointer, measured from the last that moved it.
TEST_F(Dragging, EveryKindFollowsThePointer) {
    for (const Family family : core::allFamilies) {
        it = {family, 1};
        openSheet(allKinds, true);
        expect("take -> 1000 1000 1800 900, rulers; by 1 0 by -134 177 -> 867 1177 1800 900, rulers; drop "
               "click -> 867 1177 1800 900, grip; by 500 500 -> 867 1177 1800 900, grip; Snap take by 120 "
               "-120 -> 867 1177 1800 900, rulers; by 1 -1 by 120 -120 -> 960 1080 1800 900, rulers; by 60 "
               "60 drop click -> 1200 1080 1800 900, grip");
    }
}

// Left of the corner or above it nothing happens. A line keeps its thickness, clip art is fitted anew.
TEST_F(Dragging, TheGripSizes) {
    platform.pictures["art.gif"] = {3000, 1500};
    openSheet(allKinds, true);
    expect("pBox,1 click key 0 0 grip by -1800 3000 -> 1000 1000 1800 900, grip, rulers 1000 4900; by 4000 "
           "-3900 -> 1000 1000 1800 900, grip, rulers 5000 1000; by -2655 678 release -> 1000 1000 1345 678, "
           "grip; pbLine,1 click key 0 0 grip by 100 100 release -> 1000 1000 1900 900, grip; vLine,1 click "
           "key 0 0 grip by 100 100 release -> 1000 1000 1800 1000, grip; Snap grip by 130 130 release -> "
           "1000 1000 1800 1080, grip; pbLine,1 click key 0 0 grip by 130 130 release -> 1000 1000 2040 900, "
           "grip; clipPic,1 click key 0 0 grip by 120 -120 -> 1000 1000 1800 900, grip, rulers 2920 1780; by "
           "1 -1 by 120 120 release -> 1000 1000 1920 720, grip; grip by 2080 3280 release -> 1000 1000 3960 "
           "3960, grip");
    const core::FittedImage& image = objects.clipPic[1].clipImage;
    EXPECT_EQ(texts({image.Left, image.Top, image.Width, image.Height}), "480 1230 3000 1500");
}

// The keys move by a pixel, or by a step of the grid, which is no line of it. Ctrl comes alone.
TEST_F(Dragging, LocksStopTheMouseAndNoKeys) {
    openSheet(allKinds, true, records().section("Locks", "pBox,1|TLABEL, 01|"));
    expect("tLabel,1 take by 300 300 drop click -> 1000 1000 1800 900, grip locked; pBox,1 take by 300 300 "
           "drop click -> 1000 1000 1800 900, grip locked; grip by 300 300 release key 39 2 -> 1015 1000 "
           "1800 900, grip locked; key 40 2 -> 1015 1015 1800 900, grip locked; key 37 2 key 38 2 key 39 3 "
           "key 41 2 key 36 2 -> 1000 1000 1800 900, grip locked; Snap key 39 2 key 40 2 -> 1120 1120 1800 "
           "900, grip locked; key 37 2 key 38 2 -> 1000 1000 1800 900, grip locked");
    EXPECT_TRUE(app.mainFrm.control("layoutToolbar.Lock").Value);
    after("layoutField,1 click");
    EXPECT_FALSE(app.mainFrm.control("layoutToolbar.Lock").Value);
    EXPECT_TRUE(layout::Form_KeyDown(app, layout::keyDelete, 0));
    EXPECT_FALSE(layout::Form_KeyDown(app, 'A', 0));
    EXPECT_EQ(state(), "none, grip 12525 16125"); // with nothing selected it is at the sheet's corner
}

// Any key puts the others below the one that is selected, a copy too.
TEST_F(Dragging, ARepeatedFieldMovesAndSizesAsOne) {
    openSheet("F|Qty|1000|1000|900|300;F|Qty|0|0|900|300;F|Qty|0|0|900|300;F|Name|100|5000|1800|300", true);
    for (const auto& c :
         table("1 take by 200 100 drop click -> 1200 1100 900 300, 1200 1400 900 300, 1200 1700 900 300; 1 "
               "grip by 100 200 release -> 1200 1100 1000 500, 1200 1600 1000 500, 1200 2100 1000 500; 3 "
               "select key 65 0 -> 1200 2600 1000 500, 1200 3100 1000 500, 1200 2100 1000 500")) {
        after("layoutField," + c[0]);
        std::string places;
        for (it.Index = 1; it.Index <= 4; ++it.Index) places += place() + (it.Index < 4 ? ", " : "");
        EXPECT_EQ(places, c[1] + ", 100 5000 1800 300");
    }
}

// Lines across and beside a box, in front of it, a field and a copy of it.
TEST_F(Dragging, ALineIsGrabbedFromBesideIt) {
    openSheet("B|0|0|5000|5000|0|1|;LN|1000|1000|2910|75|0|;VLN|4500|1000|75|900|0|;F|Name|1000|1100|900|300;"
              "F|Name|1000|1100|900|300",
              true);
    for (const auto& c : table("2000 880  -> pbLine,1; 2000 879  -> layoutPic2,0; 4030 1195  -> pbLine,1; "
                               "4031 1000  -> layoutPic2,0; 879 1000  -> layoutPic2,0; 2000 900 pBox,1 -> "
                               "pbLine,1; 2000 1200 pBox,1 -> pBox,1; 4450 1000 pBox,1 -> vLine,1; 1100 1110 "
                               "layoutField,1 -> layoutField,1; 1100 1110 layoutField,2 -> pbLine,1")) {
        std::string hit;
        std::istringstream(c[0]) >> X >> Y >> hit;
        EXPECT_EQ(layout::grabbedObject(app, ref(hit), X, Y).name(), c[1]) << c[0];
    }
    after("pbLine,1 select");
    EXPECT_EQ(layout::selectionText(app), "At 0.69, 0.69   Size 2.02 x 0.05 in");
    after("SendBack design");
    EXPECT_EQ(layout::grabbedObject(app, {Family::pBox, 1}, 2000, 900).name(), "pBox,1");
    EXPECT_EQ(layout::selectionText(app), "");
}

// While browsing nothing moves. The right button offers the import on pictures, and the middle one a font for
// what has a text.
TEST_F(Dragging, TheButtonsOfTheMouse) {
    for (const bool designing : {false, true})
        for (const Family family : core::allFamilies) {
            openSheet(allKinds, designing);
            const std::string before = lines();
            it = {family, 1};
            const bool bPicture = family == Family::imgHolder || family == Family::clipPic;
            const bool bText = family == Family::layoutField || family == Family::tLabel;
            const bool bLine = family == Family::pbLine || family == Family::vLine;
            take(MouseButton::Right);
            EXPECT_EQ(layout::object_MouseUp(app, it, MouseButton::Right), bPicture);
            EXPECT_EQ(page.selectedObject == it, bPicture || (designing && bLine));
            after(bText ? "drop click" : "by 500 500 click");
            platform.shownFonts.clear();
            take(MouseButton::Middle);
            if (bText) after("by 500 500");
            EXPECT_FALSE(layout::object_MouseUp(app, it, MouseButton::Middle));
            EXPECT_EQ(platform.shownFonts.size(), bText && designing ? 1U : 0U);
            if (!designing) after("take by 500 500 drop grip by 500 500 release key 39 2 key 46 0");
            EXPECT_EQ(lines(), before) << nameOf(family) << designing;
        }
}

} // namespace
