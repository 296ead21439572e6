#include "sheetFixture.h"

namespace {

// One object of each kind, all in the same place.
const char* const allKinds =
    "F|Name|1000|1000|1800|900;L|Text|1000|1000|1800|900;LN|1000|1000|1800|900|0|;"
    "VLN|1000|1000|1800|900|0|;B|1000|1000|1800|900|0|1|;P|Photo|1000|1000|1800|900|;"
    "C|art.gif|1000|1000|1800|900|";

struct Dragging : Sheet {
    void openDesign(std::string_view lines, bool snap = false, const DataFile& file = records()) {
        openSheet(lines, true, file);
        app.mainFrm.bSnapToGrid = snap;
    }
};

TEST_F(Dragging, EveryKindFollowsThePointer) {
    for (const Family family : core::allFamilies) {
        it = {family, 1};
        openDesign(allKinds);
        expect("take -> 1000 1000 1800 900, rulers 1000 1000; by 1 0 by -134 177 -> 867 1177 1800 900, "
               "rulers 867 1177; drop click -> 867 1177 1800 900, grip 2667 2077; by 500 500 -> 867 1177 "
               "1800 900, grip 2667 2077");
        openDesign(allKinds, true);
        expect("take by -133 177 drop click -> 840 1200 1800 900, grip 2640 2100");
    }
}

// Left of the corner or above it nothing happens, and snapped sizes wait for more than a step.
TEST_F(Dragging, TheGripSizesEachKindInItsDirections) {
    platform.pictures["art.gif"] = {3000, 1500};
    for (const Family family : core::allFamilies) {
        it = {family, 1};
        const auto expectSize = [&](const char* acts, float width, float height, const char* rulers) {
            if (family == Family::vLine) width = 1800; // a line keeps its thickness
            if (family == Family::pbLine) height = 900;
            EXPECT_EQ(after(acts), texts({1000, 1000, width, height}) + ", grip " +
                                       texts({1000 + width, 1000 + height}) + rulers);
        };
        openDesign(allKinds);
        expectSize("click key 0 0 grip by -1800 3000", 1800, 900, ", rulers 1000 4900");
        expectSize("by 4000 -3900", 1800, 900, ", rulers 5000 1000");
        expectSize("by -2655 678", 1345, 678, ", rulers 2345 1678");
        openDesign(allKinds, true);
        expectSize("click key 0 0 grip by 120 -120", 1800, 900, ", rulers 2920 1780");
        expectSize("by 1 -1 by 120 120 release", 1920, 720, "");
        expectSize("grip by 2080 3280 release", 3960, 3960, "");
    }
    const core::FittedImage& image = objects.clipPic[1].clipImage; // fitted anew
    EXPECT_EQ(texts({image.Left, image.Top, image.Width, image.Height}), "480 1230 3000 1500");
}

// Where the box stands, and the steps of the pointer, each measured from the last that moved it.
TEST_F(Dragging, SnapWaitsForMoreThanAStepAndRoundsHalfToEven) {
    openDesign("B|0|0|1800|900|0|1|", true);
    for (const auto& c :
         table("1000 -> 100 -> 1000; 1000 -> 120 -> 1000; 1000 -> 121 -> 1080; 1000 -> -121 -> 840; 1000 -> "
               "60 60 1 -> 1080; 1000 -> 200 100 -> 1200; 1000 -> 200 121 -> 1320; 1020 -> 240 -> 1200; 1020 "
               "-> 360 -> 1440; 60 -> -240 -> -240; 300 -> -240 -> 0"))
        for (const bool vertical : {false, true}) {
            it = {Family::pBox, 1};
            object().Left = object().Top = std::stof(c[0]);
            after("take");
            for (const std::string_view step : core::split(c[1], ' '))
                after(vertical ? "by 0 " + std::string(step) : "by " + std::string(step) + " 0");
            EXPECT_EQ(texts({object().Left, object().Top}), vertical ? c[0] + " " + c[2] : c[2] + " " + c[0]);
        }
}

TEST_F(Dragging, LocksStopTheMouseAlone) {
    openDesign(allKinds, false, records().section("Locks", "pBox,1|TLABEL, 01|"));
    expect("tLabel,1 take by 300 300 drop click -> 1000 1000 1800 900, grip 2800 1900 locked; pBox,1 take by "
           "300 300 drop click -> 1000 1000 1800 900, grip 2800 1900 locked; grip by 300 300 release key 39 "
           "2 -> 1015 1000 1800 900, grip 2815 1900 locked");
    EXPECT_TRUE(app.mainFrm.control("layoutToolbar.Lock").Value);
    expect("layoutField,1 take by 15 0 drop click -> 1015 1000 1800 900, grip 2815 1900");
    EXPECT_FALSE(app.mainFrm.control("layoutToolbar.Lock").Value);
}

// Any key puts the others below the one that is selected, a copy too.
TEST_F(Dragging, ARepeatedFieldMovesAndSizesAsOne) {
    openDesign("F|Qty|1000|1000|900|300;F|Qty|0|0|900|300;F|Qty|0|0|900|300;F|Name|100|5000|1800|300");
    for (const auto& c :
         table("1 take by 200 100 drop click -> 1200 1100 900 300, 1200 1400 900 300, 1200 1700 900 300; 1 "
               "grip by 100 200 release -> 1200 1100 1000 500, 1200 1600 1000 500, 1200 2100 1000 500; 1 key "
               "38 2 -> 1200 1085 1000 500, 1200 1585 1000 500, 1200 2085 1000 500; 3 select key 65 0 -> "
               "1200 2585 1000 500, 1200 3085 1000 500, 1200 2085 1000 500")) {
        after("layoutField," + c[0]);
        std::string places;
        for (it.Index = 1; it.Index <= 4; ++it.Index) places += place() + (it.Index < 4 ? ", " : "");
        EXPECT_EQ(places, c[1] + ", 100 5000 1800 300");
    }
}

// Lines across and beside a box, in front of it, a field and a copy of it.
TEST_F(Dragging, ALineIsGrabbedFromBesideIt) {
    openDesign("B|0|0|5000|5000|0|1|;LN|1000|1000|2910|75|0|;VLN|4500|1000|75|900|0|;"
               "F|Name|1000|1100|900|300;F|Name|1000|1100|900|300");
    for (const auto& c :
         table("2000 880  -> pbLine,1; 2000 879  -> layoutPic2,0; 4030 1195  -> pbLine,1; 880 1000  -> "
               "pbLine,1; 4031 1000  -> layoutPic2,0; 879 1000  -> layoutPic2,0; 2000 900 pBox,1 -> "
               "pbLine,1; 2000 1200 pBox,1 -> pBox,1; 4450 1000 pBox,1 -> vLine,1; 4200 1050 pBox,1 -> "
               "pBox,1; 1100 1110 layoutField,1 -> layoutField,1; 1100 1110 layoutField,2 -> pbLine,1")) {
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
            SCOPED_TRACE(testing::Message() << nameOf(family) << designing);
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
            EXPECT_EQ(page.selectedObject, it);
            platform.shownFonts.clear();
            take(MouseButton::Middle);
            if (bText) after("by 500 500");
            EXPECT_FALSE(layout::object_MouseUp(app, it, MouseButton::Middle));
            EXPECT_EQ(platform.shownFonts.size(), bText && designing ? 1U : 0U);
            if (!designing) after("take by 500 500 drop grip by 500 500 release key 39 2 key 46 0");
            EXPECT_EQ(lines(), before);
        }
}

// By a pixel, or by a step of the grid, which is no line of it. Ctrl comes alone.
TEST_F(Dragging, KeysMoveAndDelete) {
    openDesign("B|1000|1000|1800|900|0|1|");
    for (const auto& c : table("key 39 2 -> 1015 1000 -> 1120 1000; key 37 2 -> 985 1000 -> 880 1000; key 40 "
                               "2 -> 1000 1015 -> 1000 1120; key 38 2 -> 1000 985 -> 1000 880; key 39 3 -> "
                               "1000 1000 -> 1000 1000; key 41 2 -> 1000 1000 -> 1000 1000"))
        for (const std::size_t snap : {0U, 1U}) {
            app.mainFrm.bSnapToGrid = snap == 1;
            after("pBox,1 select");
            object().Left = object().Top = 1000;
            EXPECT_TRUE(after(c[0]).starts_with(c.at(1 + snap) + " ")) << c[0];
            EXPECT_EQ(page.Handle.Left, object().Left + 1800);
        }
    EXPECT_TRUE(layout::Form_KeyDown(app, layout::keyDelete, 0));
    EXPECT_FALSE(layout::Form_KeyDown(app, 'A', 0));
    EXPECT_EQ(state(), "none, grip 12525 16125"); // with nothing selected it is at the sheet's corner
}

TEST_F(Dragging, ALabelThatIsTypedInIsNeitherDraggedNorDeleted) {
    openDesign(allKinds);
    platform.answers = {platform::Answer::Yes};
    expect("tLabel,1 click dblclick take by 300 300 drop key 46 0 -> 1000 1000 1800 900, grip 2800 1900");
    for (const auto& [acts, isOpen] : {std::pair("Box Delete", true),
                                       {"select Delete", false},
                                       {"Label dblclick", true},
                                       {"Nuke", false}}) {
        after(acts);
        EXPECT_EQ(page.bEditingLabel, isOpen) << acts;
    }
}

} // namespace
