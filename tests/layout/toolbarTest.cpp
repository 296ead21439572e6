#include "sheetFixture.h"

#include "layout/dragging.h"
#include "layout/labels.h"
#include "layout/rulers.h"
#include "layout/toolbar.h"

namespace {

const core::LayoutObject& selectedIn(app::App& app) {
    return objectAt(app.document.layout, app.mainFrm.layoutPage.selectedObject);
}

TEST_F(Sheet, EveryButtonAddsItsObjectAtTheCommonPlace) {
    struct Case {
        const char* button;
        const char* object;
        const char* place;
    };
    const Case cases[] = {
        {"Line", "pbLine,1", "720 675 2910 75"},       {"vLine", "vLine,1", "720 3735 75 3135"},
        {"Box", "pBox,1", "720 2415 2295 1815"},       {"ClipArt", "clipPic,1", "720 2415 2175 1815"},
        {"Label", "tLabel,1", "720 795 1695 195"},     {"Name", "layoutField,1", "720 885 1815 285"},
        {"Photo", "imgHolder,1", "720 2175 1815 1575"}};
    open();
    design();
    app.document.layoutOptions.layoutLeftMargin = 0.5F;
    layout::layoutVScroll_Change(app, 600);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.button);
        page.Handle.bLocked = true;
        const bool isColumn = app.document.LV.columns.find(c.button) != nullptr;
        isColumn ? layout::layoutToolbar_ButtonMenuClick(app, c.button)
                 : layout::layoutToolbar_ButtonClick(app, c.button);
        EXPECT_EQ(page.selectedObject.name(), c.object);
        const core::LayoutObject& added = selectedIn(app);
        EXPECT_EQ(place(added), c.place);
        EXPECT_TRUE(added.Visible && page.Handle.Visible);
        EXPECT_FALSE(page.Handle.bLocked);
        EXPECT_EQ(page.Handle.Top, added.Top + added.Height);
    }
    EXPECT_EQ(objects.layoutField[1].Text, "Name");
    EXPECT_EQ(objects.imgHolder[1].BackColor, 0x808080);
    EXPECT_EQ(objects.clipPic[1].BorderStyle, 1);
    EXPECT_GT(objects.imgHolder[1].zOrder, objects.layoutField[1].zOrder);
}

TEST_F(Sheet, AColumnIsPlacedOnce) {
    open();
    design();
    const bool snap = app.mainFrm.bSnapToGrid;
    layout::layoutToolbar_ButtonClick(app, "Snap");
    EXPECT_EQ(app.mainFrm.bSnapToGrid, !snap);
    for (const char* column : {"Name", "Photo"}) {
        layout::layoutToolbar_ButtonMenuClick(app, column);
        layout::layoutToolbar_ButtonMenuClick(app, column);
    }
    EXPECT_EQ(platform.texts(), (std::vector<std::string>{"Field already added!", "Field already added."}));
    EXPECT_EQ(objects.count(), 2);
}

TEST_F(Sheet, FieldsAreAlignedAndTintedByTheirColumn) {
    open();
    design();
    app.mainFrm.bHighlightCalc = true;
    for (const char* column : {"Name", "Qty", "Price", "Made", "Sum"}) {
        layout::layoutToolbar_ButtonMenuClick(app, column);
        const core::LayoutField& field = objects.layoutField[page.selectedObject.Index];
        const bool numeric = app.document.isNumericColumn(column);
        EXPECT_EQ(field.align, numeric ? core::Alignment::Right : core::Alignment::Left) << column;
        EXPECT_EQ(field.BackColor == core::white, std::string_view(column) != "Sum") << column;
    }
}

TEST_F(Sheet, ANewObjectTakesTheLowestFreeIndexAndItsLocks) {
    open();
    design();
    for (int i = 1; i <= 3; ++i) layout::layoutToolbar_ButtonClick(app, "Label");
    layout::select(app, {Family::tLabel, 2});
    layout::layoutToolbar_ButtonClick(app, "Lock");
    EXPECT_TRUE(page.Handle.bLocked && app.mainFrm.control("layoutToolbar.Lock").Value);
    EXPECT_EQ(app.document.locks.items(), std::vector<std::string>{"tLabel,2"});
    layout::layoutToolbar_ButtonClick(app, "Delete");
    EXPECT_FALSE(page.Handle.Visible || page.selectedObject.isObject());
    layout::layoutToolbar_ButtonClick(app, "Delete"); // nothing selected: nothing happens
    EXPECT_EQ(objects.tLabel.count(), 2);
    layout::layoutToolbar_ButtonClick(app, "Label");
    EXPECT_EQ(page.selectedObject.name(), "tLabel,2");
    EXPECT_FALSE(page.Handle.bLocked); // until it is clicked
    layout::object_Click(app, page.selectedObject);
    EXPECT_TRUE(page.Handle.bLocked);
    layout::layoutToolbar_ButtonClick(app, "Lock");
    EXPECT_TRUE(app.document.locks.empty());
    EXPECT_FALSE(app.mainFrm.control("layoutToolbar.Lock").Value);
    layout::layoutToolbar_ButtonClick(app, "Label");
    EXPECT_EQ(page.selectedObject.name(), "tLabel,4");
    layout::selectNothing(app);
    layout::layoutToolbar_ButtonClick(app, "Lock");
    EXPECT_TRUE(app.document.locks.empty());
}

TEST_F(Sheet, DeletingTheHeadTakesTheWholeGroup) {
    const std::string line = "F|Qty|0|0|900|300|False|False|False|Arial|8|0|\r\n";
    open(line + "F|Name|0|0|900|300|False|False|False|Arial|8|0|\r\n" + line + line +
         "P|Photo|0|0|900|900|\r\n");
    design();
    layout::select(app, {Family::layoutField, 1});
    layout::layoutToolbar_ButtonClick(app, "Delete");
    EXPECT_EQ(objects.layoutField.count(), 1);
    EXPECT_EQ(objects.layoutField[2].Tag, "Name");

    layout::layoutToolbar_ButtonClick(app, "Nuke"); // answered No
    EXPECT_EQ(platform.messages.back().text, "Are you sure?");
    EXPECT_EQ(platform.messages.back().caption, "Erase Layout Confirmation");
    EXPECT_EQ(objects.count(), 2);
    platform.answers.push_back(platform::Answer::Yes);
    layout::layoutToolbar_ButtonClick(app, "Nuke");
    EXPECT_EQ(objects.count(), 0);
}

TEST_F(Sheet, AutomaticLabelsTakeTheNameOfTheField) {
    struct Case {
        const char* column; // that is selected; nullptr for a box
        const char* text;
        bool bold;
    };
    const Case cases[] = {
        {"Second_Photo", "Second Photo", true}, {"Price", "Price", true}, {nullptr, "Label", false}};
    open();
    design();
    for (const Case& c : cases) {
        c.column != nullptr ? layout::layoutToolbar_ButtonMenuClick(app, c.column) : layout::addBox(app);
        page.Handle.bLocked = true;
        layout::layoutToolbar_ButtonMenuClick(app, "AutoLabel");
        const core::Label& label = objects.tLabel[page.selectedObject.Index];
        EXPECT_EQ(label.Text, c.text);
        EXPECT_EQ(label.FontBold, c.bold);
        EXPECT_TRUE(page.Handle.bLocked); // the menu leaves the grip's colour alone
    }
    layout::object_Click(app, {Family::tLabel, 1});
    EXPECT_EQ(objects.tLabel[1].BackColor, layout::selectedLabelColor);
    layout::layoutToolbar_ButtonClick(app, "Label"); // the new one is selected, the old one no longer marked
    EXPECT_EQ(objects.tLabel[1].BackColor, core::white);
}

TEST_F(Sheet, FontsAndColours) {
    const std::string line = "F|Qty|0|0|900|300|True|False|False|Arial|9|128|\r\n";
    open(line + line + "B|0|0|900|900|0|1|\r\n");
    design();
    layout::select(app, {Family::layoutField, 1});
    layout::layoutToolbar_ButtonClick(app, "Font"); // cancelled
    EXPECT_EQ(platform.shownFonts.back().FontName, "Arial");
    EXPECT_TRUE(platform.shownFonts.back().FontBold);
    EXPECT_EQ(platform.shownFonts.back().ForeColor, 128);
    EXPECT_EQ(objects.layoutField[1].FontName, "Arial");
    platform.fonts.push_back({"Times New Roman", 14.25F, false, true, true, true, 0xFF0000});
    layout::layoutToolbar_ButtonClick(app, "Font");
    for (const int index : {1, 2}) { // the copies too
        const core::LayoutField& field = objects.layoutField[index];
        EXPECT_EQ(field.FontName, "Times New Roman");
        EXPECT_EQ(field.FontSize, 14.25F);
        EXPECT_TRUE(!field.FontBold && field.FontItalic && field.FontUnderline && field.FontStrikethru);
        EXPECT_EQ(field.ForeColor, 0xFF0000);
    }
    for (const char* button : {"Bold", "Italic", "Underline"}) layout::layoutToolbar_ButtonClick(app, button);
    EXPECT_TRUE(objects.layoutField[1].FontBold); // of this one alone
    EXPECT_FALSE(objects.layoutField[1].FontItalic || objects.layoutField[1].FontUnderline);
    EXPECT_TRUE(objects.layoutField[2].FontItalic);

    layout::select(app, {Family::pBox, 1}); // a box takes the colour
    platform.fonts.push_back({"Arial", 8, false, false, false, false, 0x00FF00});
    layout::layoutToolbar_ButtonClick(app, "Font");
    EXPECT_EQ(objects.pBox[1].ForeColor, 0x00FF00);
    layout::layoutToolbar_ButtonClick(app, "Bold");
    layout::selectNothing(app);
    platform.fonts.push_back({"Arial", 8, false, false, false, false, 255});
    layout::layoutToolbar_ButtonClick(app, "Font");
    layout::layoutToolbar_ButtonClick(app, "Bold");
    EXPECT_EQ(objects.pBox[1].ForeColor, 0x00FF00);
}

TEST_F(Sheet, StackingMovesAGroupAsAWhole) {
    const std::string line = "F|Qty|0|0|900|300|False|False|False|Arial|9|0|\r\n";
    open(line + line + "B|0|0|900|900|0|1|\r\nL|x|0|0|9|9|False|False|False|Arial|9|0|\r\n");
    design();
    const auto order = [&](Family family, int index) { return objectAt(objects, {family, index}).zOrder; };
    EXPECT_LT(order(Family::pBox, 1), order(Family::tLabel, 1)); // boxes lie behind all others
    layout::select(app, {Family::pBox, 1});
    layout::layoutToolbar_ButtonClick(app, "SendFront");
    EXPECT_GT(order(Family::pBox, 1), order(Family::layoutField, 1));
    layout::select(app, {Family::layoutField, 1});
    layout::layoutToolbar_ButtonClick(app, "SendFront");
    EXPECT_GT(order(Family::layoutField, 1), order(Family::pBox, 1));
    EXPECT_GT(order(Family::layoutField, 2), order(Family::pBox, 1));
    layout::layoutToolbar_ButtonClick(app, "SendBack");
    EXPECT_LT(order(Family::layoutField, 2), order(Family::tLabel, 1));
    EXPECT_LT(order(Family::layoutField, 1), order(Family::pBox, 1));
}

TEST_F(Sheet, BorderWidthsFromOneToTen) {
    const std::pair<const char*, int> cases[] = {{"3.4", 3}, {"0", 3}, {"11", 3},    {"", 3},    {"ten", 3},
                                                 {"10", 10}, {"1", 1}, {"2.5px", 2}, {"0.5", 2}, {"3.5", 4}};
    open("B|0|0|900|900|0|3|\r\n");
    for (const auto& [answer, width] : cases) {
        platform.inputs.push_back(answer);
        layout::object_DblClick(app, {Family::pBox, 1}); // in browse mode as well
        EXPECT_EQ(objects.pBox[1].DrawWidth, width) << answer;
    }
    EXPECT_EQ(platform.lastMessage(), "Enter value from 1 to 10 for border width.");
    EXPECT_EQ(platform.messages.back().caption, "Border Width Setting");
    EXPECT_EQ(platform.proposed.back(), "1");
}

TEST_F(Sheet, LinksOpenWebAndMailAskAboutTheRestAndStartNoPrograms) {
    const std::string folder = platform.folder.string() + "/";
    for (const auto& [name, content] : {std::pair("notes.txt", "text"),
                                        {"tool", "data"},
                                        {"fake.pdf", "#!/bin/sh"},
                                        {"it.desktop", "x"},
                                        {"odd.txt", "\n[Desktop Entry]\nExec=x"}})
        ScriptedPlatform::write(folder + name, content);
    std::filesystem::permissions(folder + "tool", std::filesystem::perms::owner_all);
    std::filesystem::create_symlink(folder + "it.desktop", folder + "alias.txt");
    enum Outcome { opens, asks, refuses };
    struct Case {
        std::string target, opened;
        Outcome outcome;
    };
    const Case cases[] = {
        {"http://example.org", "http://example.org", opens},
        {" mailto:me@example.org?subject=Two words ", "mailto:me@example.org?subject=Two words", opens},
        {"HTTPS://example.org/setup.sh", "HTTPS://example.org/setup.sh", opens},
        {"WWW.example.org", "http://WWW.example.org", opens},
        {"http://", "http://", asks},
        {"javascript:alert(1)", "javascript:alert(1)", asks},
        {"ftp://example.org/list", "ftp://example.org/list", asks},
        {"example.org", "example.org", asks},
        {"--help", "--help", asks},
        {"file:///etc/passwd", "file:///etc/passwd", asks},
        {"/etc", "/etc", asks},
        {"notes.txt", folder + "notes.txt", asks}, // beside the database
        {folder + "notes.txt", folder + "notes.txt", asks},
        {"http://example.org\nfile:///x", "", refuses},
        {"/bin/sh", "", refuses},
        {"bin/sh", "", refuses},
        {"C:\\Windows\\calc.EXE", "", refuses},
        {"\\\\server\\share\\x.exe", "", refuses},
        {"smb://host/setup.sh", "", refuses},
        {"/none/x.desktop/", "", refuses},
        {"file:///none/x%2Edesktop?y=.txt", "", refuses},
        {"FILE://host" + folder + "fake%2epdf#1", "", refuses},
        {"tool", "", refuses},
        {"fake.pdf", "", refuses},
        {"odd.txt", "", refuses},
        {"alias.txt", "", refuses},
    };
    open("L|Go|0|0|9|9|False|False|False|Arial|9|0|\r\n");
    for (const auto& [target, opened, outcome] : cases) {
        for (const platform::Answer answer : {platform::Answer::Yes, platform::Answer::No}) {
            SCOPED_TRACE(target);
            platform.links.clear();
            platform.messages.clear();
            platform.answers = {answer};
            objects.tLabel[1].Tag = target;
            layout::object_Click(app, {Family::tLabel, 1});
            const bool follows = outcome == opens || (outcome == asks && answer == platform::Answer::Yes);
            EXPECT_EQ(platform.links, follows ? std::vector{opened} : std::vector<std::string>{});
            EXPECT_EQ(platform.told() == "3|Ferrowick|Open " + opened + "?", outcome == asks);
            EXPECT_EQ(platform.told().starts_with("2|Ferrowick|"), outcome == refuses);
            EXPECT_EQ(platform.messages.size(), outcome == opens ? 0U : 1U);
        }
    }
    platform.messages.clear();
    platform.answers.clear();
    objects.tLabel[1].Tag = "   ";
    layout::object_Click(app, {Family::tLabel, 1});
    EXPECT_TRUE(platform.messages.empty());
    platform.links.clear();
    objects.tLabel[1].Tag = "http://example.org";
    design();
    layout::object_Click(app, {Family::tLabel, 1});
    EXPECT_TRUE(platform.links.empty());

    platform.inputs.push_back("not checked");
    layout::layoutToolbar_ButtonClick(app, "Link");
    EXPECT_EQ(platform.proposed.back(), "http://example.org");
    EXPECT_EQ(platform.messages.back().caption, "Insert Link");
    EXPECT_EQ(objects.tLabel[1].Tag, "not checked");
    layout::layoutToolbar_ButtonClick(app, "Link"); // cancelled: the link is gone
    EXPECT_EQ(objects.tLabel[1].Tag, "");
    layout::addBox(app);
    const std::size_t asked = platform.messages.size();
    layout::layoutToolbar_ButtonClick(app, "Link");
    EXPECT_EQ(platform.messages.size(), asked);
}

TEST_F(Sheet, LabelsAreTypedInAfterADoubleClick) {
    open("L|Go|0|0|9|9|False|False|False|Arial|9|0|\r\n");
    layout::object_DblClick(app, {Family::tLabel, 1}); // not while browsing
    EXPECT_TRUE(objects.tLabel[1].Locked);
    design();
    layout::object_DblClick(app, {Family::tLabel, 1});
    EXPECT_FALSE(objects.tLabel[1].Locked);
    EXPECT_TRUE(layout::tLabel_KeyPress(app, 'a'));
    EXPECT_FALSE(layout::tLabel_KeyPress(app, 13));
    EXPECT_EQ(platform.lastMessage(),
              "Please use separate labels for multiple lines, or resize your label and allow "
              "your text to wrap automatically.");
    layout::tLabel_Change(app, 1, "Went");
    layout::tLabel_LostFocus(app, 1);
    EXPECT_EQ(objects.tLabel[1].Text, "Went");
    EXPECT_TRUE(objects.tLabel[1].Locked);
    EXPECT_FALSE(page.bEditingLabel);
}

TEST_F(Sheet, GuidesStandWhereTheRulerWasClicked) {
    open();
    design();
    layout::ruler1_Click(app, 1440);
    layout::ruler2_Click(app, 1440);
    layout::ruler1_Click(app, 2880);
    EXPECT_EQ(page.rulePic2[1].line, 1455);
    EXPECT_EQ(page.rulePic[1].line, 1430);

    layout::rulePic_MouseDown(app, 1, 30);
    layout::dragTo(app, 7, 2000);
    EXPECT_EQ(page.rulePic[1].Top, 2030); // 2000 - 30, and four pixels
    EXPECT_EQ(page.rulePic[1].line, 2015);
    layout::endDrag(app);
    layout::dragTo(app, 7, 5000);
    EXPECT_EQ(page.rulePic[1].line, 2015);
    layout::rulePic2_MouseDown(app, 1, 30);
    layout::dragTo(app, 3000, 7);
    EXPECT_EQ(page.rulePic2[1].Left, 3015); // three pixels
    EXPECT_EQ(page.rulePic2[1].line, 3030);
    layout::rulePic2_DblClick(app, 1);
    EXPECT_EQ(page.drag, app::LayoutPage::Drag::None);
    EXPECT_EQ(page.rulePic2.count(), 1);
    layout::ruler1_Click(app, 100);
    EXPECT_EQ(page.rulePic2[1].Left, 100);
    browse();
    EXPECT_EQ(page.rulePic2.count(), 2); // the lines stay
    layout::clearGuides(app);
    layout::clearGuides(app);
    EXPECT_EQ(page.rulePic.count() + page.rulePic2.count(), 0);
}

} // namespace
