#include "sheetFixture.h"

#include "layout/dragging.h"

#include <cmath>

namespace {

// Takes the object at (50, 40) inside it and moves the pointer by each of the steps.
struct Drag {
    app::App& app;
    ObjectRef object;
    long X = 0, Y = 0;

    Drag(app::App& toUse, ObjectRef taken, MouseButton button = MouseButton::Left)
        : app(toUse), object(taken) {
        const core::LayoutObject& at = objectAt(app.document.layout, object);
        X = std::lround(at.Left) + 50;
        Y = std::lround(at.Top) + 40;
        const bool border = object.family == Family::layoutField || object.family == Family::imgHolder;
        layout::object_MouseDown(app, object, button, border ? 20 : 50, border ? 10 : 40, X, Y);
    }
    Drag& by(long x, long y) {
        X += x;
        Y += y;
        layout::dragTo(app, X, Y);
        return *this;
    }
    void release(MouseButton button = MouseButton::Left) {
        layout::object_MouseUp(app, object, button);
        layout::object_Click(app, object);
    }
};

struct GripDrag {
    app::App& app;
    GripDrag(app::App& toUse, ObjectRef object, long X, long Y) : app(toUse) {
        layout::object_Click(app, object);
        layout::Handle_MouseDown(app, X, Y);
    }
    GripDrag& to(long X, long Y) {
        layout::dragTo(app, X, Y);
        return *this;
    }
    void release() { layout::Handle_MouseUp(app); }
};

const char* const lines =
    "F|Name|1000|1000|1800|300|False|False|False|Arial|8|0|\r\n"
    "L|Text|1000|1000|1800|300|False|False|False|Arial|8|0|\r\n"
    "LN|1000|1000|2910|75|0|\r\nVLN|1000|1000|75|3135|0|\r\nB|1000|1000|1800|900|0|1|\r\n"
    "P|Photo|1000|1000|1815|1575|\r\nC|art.gif|1000|1000|2175|1815|\r\n";

constexpr Family kinds[] = {Family::layoutField, Family::tLabel,    Family::pbLine, Family::vLine,
                            Family::pBox,        Family::imgHolder, Family::clipPic};

TEST_F(Sheet, WithoutSnapEveryKindFollowsThePointerExactly) {
    open(lines);
    design();
    app.mainFrm.bSnapToGrid = false;
    for (const Family family : kinds) {
        SCOPED_TRACE(core::nameOf(family));
        const ObjectRef object{family, 1};
        Drag drag(app, object);
        EXPECT_FALSE(page.Handle.Visible);
        const core::LayoutObject& at = objectAt(objects, object);
        EXPECT_EQ(at.Left, 1000); // a press alone moves nothing
        drag.by(1, 0).by(-34, 77);
        EXPECT_EQ(at.Left, 967);
        EXPECT_EQ(at.Top, 1077);
        EXPECT_EQ(page.ruler1.line, 967);
        EXPECT_EQ(page.ruler2.line, 1077);
        drag.release();
        EXPECT_FALSE(page.ruler1.line || page.ruler2.line);
        EXPECT_TRUE(page.Handle.Visible);
        EXPECT_EQ(page.Handle.Left, at.Left + at.Width);
        EXPECT_EQ(page.Handle.Top, at.Top + at.Height);
        EXPECT_EQ(page.selectedObject, object);
        drag.by(500, 500); // the drag is over
        EXPECT_EQ(at.Left, 967);
    }
}

TEST_F(Sheet, SnapWaitsForMoreThanAStepAndRoundsHalfToEven) {
    struct Case {
        float left;              // where the box stands
        std::vector<long> steps; // of the pointer
        float expected;
    };
    const Case cases[] = {
        {1000, {100}, 1000},       // not far enough
        {1000, {120}, 1000},       // still not
        {1000, {121}, 1080},       // 1121 is 9.34 steps
        {1000, {-121}, 840},       // 879 is 7.3 steps
        {1000, {60, 60, 1}, 1080}, // measured from where it was taken, not from the last event
        {1000, {200, 100}, 1200},  // 1200; the second step is measured from the first
        {1000, {200, 121}, 1320},  // 1321 is 11.008 steps
        {1000, {200, -100}, 1200}, //
        {1020, {240}, 1200},       // 1260 is 10.5 steps: half to even, down
        {1020, {360}, 1440},       // 1380 is 11.5 steps: up
        {60, {-240}, -240},        // -180 is -1.5 steps
        {300, {-240}, 0},          // 60 is half a step
    };
    open(lines);
    design();
    app.mainFrm.bSnapToGrid = true;
    core::LayoutObject& box = objects.pBox[1];
    for (const Case& c : cases) {
        for (const bool vertical : {false, true}) {
            SCOPED_TRACE(testing::Message()
                         << c.left << " by " << testing::PrintToString(c.steps) << vertical);
            box.Left = box.Top = c.left;
            Drag drag(app, {Family::pBox, 1});
            for (const long step : c.steps) drag.by(vertical ? 0 : step, vertical ? step : 0);
            drag.release();
            EXPECT_EQ(vertical ? box.Top : box.Left, c.expected);
            EXPECT_EQ(vertical ? box.Left : box.Top, c.left); // the other direction has not moved
        }
    }
}

TEST_F(Sheet, ResizingGivesEachKindItsOwnDirections) {
    struct Case {
        Family family;
        const char* free;    // pointer to (2345, 1678) from the grip, the object at (1000, 1000)
        const char* snapped; // 1345 is 11.2 steps, 678 is 5.65
    };
    const Case cases[] = {{Family::layoutField, "1000 1000 1345 678", "1000 1000 1320 720"},
                          {Family::tLabel, "1000 1000 1345 678", "1000 1000 1320 720"},
                          {Family::pbLine, "1000 1000 1345 75", "1000 1000 1320 75"},
                          {Family::vLine, "1000 1000 75 678", "1000 1000 75 720"},
                          {Family::pBox, "1000 1000 1345 678", "1000 1000 1320 720"},
                          {Family::imgHolder, "1000 1000 1345 678", "1000 1000 1320 720"},
                          {Family::clipPic, "1000 1000 1345 678", "1000 1000 1320 720"}};
    open(lines);
    for (const Case& c : cases) {
        for (const bool snap : {false, true}) {
            SCOPED_TRACE(testing::Message() << core::nameOf(c.family) << snap);
            open(lines);
            design();
            app.mainFrm.bSnapToGrid = snap;
            core::LayoutObject& object = objectAt(objects, {c.family, 1});
            GripDrag drag(app, {c.family, 1}, 9000, 9000);
            drag.to(999, 5000).to(5000, 1000).to(1000, 1000); // above or left of the corner nothing happens
            if (!snap) drag.to(1500, 1500);
            drag.to(2345, 1678);
            EXPECT_EQ(place(object), snap ? c.snapped : c.free);
            EXPECT_EQ(page.ruler1.line, 2345); // here the rulers follow the pointer
            EXPECT_EQ(page.ruler2.line, 1678);
            EXPECT_EQ(page.Handle.Left, object.Left + object.Width);
            EXPECT_TRUE(page.Handle.Visible);
            drag.release();
            EXPECT_FALSE(page.ruler1.line);
        }
    }
}

TEST_F(Sheet, SnappedSizesWaitForMoreThanAStepToo) {
    open(lines);
    design();
    app.mainFrm.bSnapToGrid = true;
    const core::LayoutObject& box = objects.pBox[1];
    GripDrag drag(app, {Family::pBox, 1}, 2800, 1900);
    drag.to(2920, 1780);
    EXPECT_EQ(place(box), "1000 1000 1800 900");
    drag.to(2921, 1779);
    EXPECT_EQ(place(box), "1000 1000 1920 720"); // 1921 is 16.008 steps, 779 is 6.49
    drag.to(3041, 1779);
    EXPECT_EQ(box.Width, 1920);
}

TEST_F(Sheet, ClipArtIsFittedAnewWhenItHasBeenSized) {
    platform.pictures["art.gif"] = {3000, 1500};
    open(lines);
    const core::FittedImage& image = objects.clipPic[1].clipImage;
    EXPECT_EQ(image.Width, 2174); // too wide for its height: one twip less than the holder
    design();
    app.mainFrm.bSnapToGrid = false;
    GripDrag drag(app, {Family::clipPic, 1}, 3175, 2815);
    drag.to(5000, 5000).release();
    EXPECT_EQ(objects.clipPic[1].Width, 4000);
    EXPECT_EQ(image.Width, 3000); // its natural size
    EXPECT_EQ(image.Left, 500);
    EXPECT_EQ(image.Top, 1250);
}

TEST_F(Sheet, LocksStopTheMouseAlone) {
    open(lines, "[Locks         ]pBox,1|TLABEL, 01|\r\n");
    design();
    app.mainFrm.bSnapToGrid = false;
    const ObjectRef box{Family::pBox, 1};
    layout::object_Click(app, box);
    EXPECT_TRUE(page.Handle.bLocked);
    EXPECT_TRUE(app.mainFrm.control("layoutToolbar.Lock").Value);
    EXPECT_TRUE(layout::isLocked(app, {Family::tLabel, 1}));
    EXPECT_FALSE(layout::isLocked(app, {Family::layoutField, 1}));
    Drag(app, box).by(300, 300).release();
    GripDrag(app, box, 2800, 1900).to(4000, 4000).release();
    EXPECT_EQ(place(objects.pBox[1]), "1000 1000 1800 900");
    EXPECT_TRUE(page.Handle.Visible); // red, where it belongs
    EXPECT_EQ(page.Handle.Left, 2800);
    EXPECT_TRUE(layout::Form_KeyDown(app, layout::keyRight, layout::ctrlShift));
    EXPECT_EQ(objects.pBox[1].Left, 1015);
    layout::object_Click(app, {Family::layoutField, 1});
    EXPECT_FALSE(page.Handle.bLocked);
    EXPECT_FALSE(app.mainFrm.control("layoutToolbar.Lock").Value);
}

TEST_F(Sheet, ARepeatedFieldMovesAndSizesAsOne) {
    const std::string line = "F|Qty|1000|1000|900|300|False|False|False|Arial|8|0|\r\n";
    open(line + "F|Name|100|5000|1800|300|False|False|False|Arial|8|0|\r\n" + line + line);
    design();
    app.mainFrm.bSnapToGrid = false;
    Drag(app, {Family::layoutField, 1}).by(200, 100).release();
    EXPECT_EQ(place(objects.layoutField[1]), "1200 1100 900 300");
    EXPECT_EQ(place(objects.layoutField[3]), "1200 1400 900 300");
    EXPECT_EQ(place(objects.layoutField[4]), "1200 1700 900 300");
    GripDrag(app, {Family::layoutField, 1}, 2100, 1400).to(2200, 1600).release();
    EXPECT_EQ(place(objects.layoutField[3]), "1200 1600 1000 500");
    EXPECT_EQ(place(objects.layoutField[4]), "1200 2100 1000 500");
    layout::Form_KeyDown(app, layout::keyUp, layout::ctrlShift);
    EXPECT_EQ(place(objects.layoutField[4]), "1200 2085 1000 500");
    EXPECT_EQ(place(objects.layoutField[2]), "100 5000 1800 300");
    // Any key puts the others below the one that is selected, a copy too.
    layout::select(app, {Family::layoutField, 4});
    layout::Form_KeyDown(app, 'A', 0);
    EXPECT_EQ(place(objects.layoutField[1]), "1200 2585 1000 500");
}

// A line of 75 twips from 1000 to 3910 across a box, in front of it, and a pixel of 15 twips.
TEST_F(Sheet, ALineIsGrabbedFromBesideIt) {
    open(
        "B|0|0|5000|5000|0|1|\r\nLN|1000|1000|2910|75|0|\r\nF|Name|1000|1100|900|300|False|False|False|A|8|0|"
        "\r\n");
    design();
    const ObjectRef line{Family::pbLine, 1}, box{Family::pBox, 1}, field{Family::layoutField, 1};
    struct Case {
        ObjectRef hit;
        long X, Y;
        ObjectRef taken;
    };
    for (const Case& c : {Case{{}, 2000, 880, line}, Case{{}, 2000, 879, {}}, Case{{}, 4030, 1195, line},
                          Case{{}, 4031, 1000, {}}, Case{box, 2000, 900, line}, Case{box, 2000, 1200, box},
                          Case{field, 1100, 1110, field}})
        EXPECT_EQ(layout::grabbedObject(app, c.hit, c.X, c.Y), c.taken) << c.X << " " << c.Y;
    EXPECT_EQ(layout::selectionText(app), "");
    layout::select(app, line);
    EXPECT_EQ(layout::selectionText(app), "At 0.69, 0.69   Size 2.02 x 0.05 in");
    layout::sendToBack(app);
    EXPECT_EQ(layout::grabbedObject(app, box, 2000, 900), box);
}

TEST_F(Sheet, TheMouseMovesNothingWhileBrowsing) {
    open(lines);
    for (const Family family : kinds) {
        Drag(app, {family, 1}).by(500, 500).release();
        EXPECT_EQ(objectAt(objects, {family, 1}).Left, 1000) << core::nameOf(family);
        EXPECT_EQ(page.selectedObject.family, family); // but a click selects
    }
    layout::Handle_MouseDown(app, 3000, 3000);
    EXPECT_EQ(page.drag, app::LayoutPage::Drag::None);
    EXPECT_FALSE(layout::Form_KeyDown(app, layout::keyDelete, 0));
    EXPECT_EQ(objects.count(), 7);
}

TEST_F(Sheet, TheMiddleButtonChoosesAFont) {
    open(lines);
    design();
    for (const Family family : {Family::layoutField, Family::tLabel}) {
        layout::object_Click(app, {family, 1});
        platform.fonts.push_back({"Courier New", 12, true, false, false, false, 255});
        Drag drag(app, {family, 1}, MouseButton::Middle);
        drag.by(500, 500);
        EXPECT_FALSE(layout::object_MouseUp(app, {family, 1}, MouseButton::Middle));
        EXPECT_EQ(objectAt(objects, {family, 1}).Left, 1000);
        EXPECT_EQ(core::findFont(objects, {family, 1})->FontName, "Courier New");
    }
    browse();
    EXPECT_FALSE(layout::object_MouseUp(app, {Family::layoutField, 1}, MouseButton::Middle));
    EXPECT_EQ(platform.shownFonts.size(), 2U);
}

TEST_F(Sheet, TheRightButtonOffersTheImportOnPictures) {
    open(lines);
    for (const bool designing : {false, true}) {
        if (designing) design();
        for (const Family family : kinds) {
            const ObjectRef object{family, 1};
            Drag drag(app, object, MouseButton::Right);
            const bool picture = family == Family::imgHolder || family == Family::clipPic;
            EXPECT_EQ(layout::object_MouseUp(app, object, MouseButton::Right), picture);
            EXPECT_EQ(page.selectedObject == object,
                      picture || (designing && (family == Family::pbLine || family == Family::vLine)));
            EXPECT_EQ(page.drag, app::LayoutPage::Drag::None); // nothing sticks to the pointer
            layout::selectNothing(app);
        }
    }
}

TEST_F(Sheet, KeysMoveAndDelete) {
    struct Case {
        int key, shift;
        bool snap;
        const char* expected;
    };
    const Case cases[] = {
        {layout::keyRight, 2, false, "1015 1000"}, {layout::keyLeft, 2, false, "985 1000"},
        {layout::keyDown, 2, false, "1000 1015"},  {layout::keyUp, 2, false, "1000 985"},
        {layout::keyRight, 2, true, "1120 1000"}, // a step, not the next line of the grid
        {layout::keyUp, 2, true, "1000 880"},      {layout::keyRight, 0, true, "1000 1000"},
        {layout::keyRight, 3, true, "1000 1000"}, // Ctrl and nothing else
    };
    open(lines);
    design();
    core::LayoutObject& box = objects.pBox[1];
    layout::select(app, {Family::pBox, 1});
    for (const Case& c : cases) {
        box.Left = box.Top = 1000;
        app.mainFrm.bSnapToGrid = c.snap;
        layout::Form_KeyDown(app, c.key, c.shift);
        EXPECT_EQ(core::numberText(box.Left) + " " + core::numberText(box.Top), c.expected);
        EXPECT_EQ(page.Handle.Left, box.Left + box.Width);
    }
    EXPECT_TRUE(layout::Form_KeyDown(app, layout::keyDelete, 0));
    EXPECT_EQ(objects.pBox.count(), 0);
    EXPECT_FALSE(page.selectedObject.isObject());
    page.Handle.Visible = false;
    layout::Form_KeyDown(app, 'A', 0); // any key shows the grip, with nothing selected at the sheet's corner
    EXPECT_TRUE(page.Handle.Visible);
    EXPECT_EQ(page.Handle.Left, page.layoutPic2.Left + page.layoutPic2.Width);
    layout::Handle_MouseDown(app, 5000, 5000);
    EXPECT_EQ(page.drag, app::LayoutPage::Drag::None);
}

TEST_F(Sheet, ALabelThatIsTypedInIsNeitherDraggedNorDeleted) {
    open(lines);
    design();
    const ObjectRef label{Family::tLabel, 1};
    layout::object_Click(app, label);
    layout::object_DblClick(app, label);
    EXPECT_TRUE(page.bEditingLabel);
    Drag(app, label).by(300, 300);
    EXPECT_EQ(objects.tLabel[1].Left, 1000);
    EXPECT_FALSE(layout::Form_KeyDown(app, layout::keyDelete, 0));
    EXPECT_EQ(objects.tLabel.count(), 1);
    layout::addBox(app);
    layout::deleteSelectedObject(app); // another object: the label stays open
    EXPECT_TRUE(page.bEditingLabel);
    layout::select(app, label);
    layout::deleteSelectedObject(app); // the toolbar takes it, and the next label can be dragged
    EXPECT_FALSE(page.bEditingLabel);
    layout::addLabel(app, false);
    layout::object_DblClick(app, label);
    layout::eraseLayout(app);
    EXPECT_FALSE(page.bEditingLabel);
}

} // namespace
