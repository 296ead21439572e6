#include "layout/toolbar.h"
#include "layout/labels.h"
#include "layout/placeColumns.h"
#include "layout/rulers.h"
#include "sheetFixture.h"

namespace {

struct Toolbar : Sheet {
    // Plays acts; the objects are told from the back to the front, then what is selected, and the locks.
    void expectOrders(std::string_view cases) {
        for (const auto& c : table(cases)) {
            after(c[0]);
            std::map<int, std::string> names;
            for (const Family family : core::allFamilies)
                visitFamily(objects, family, [&](auto& array) {
                    array.forEach([&](auto& each) {
                        names[each.zOrder] = ObjectRef{family, each.Index}.name() + " ";
                    });
                });
            std::string all;
            for (const auto& [zOrder, name] : names) all += name;
            if (page.selectedObject.isObject()) all += "selected " + page.selectedObject.name() + " ";
            all += page.Handle.bLocked ? "locked " : "";
            all += app.mainFrm.control("layoutToolbar.Lock").Value ? "pressed " : "";
            EXPECT_EQ(all + text(app.document.locks), c[1]) << c[0];
        }
    }
};

TEST_F(Toolbar, EveryButtonAddsItsObjectAtTheCommonPlaceInFront) {
    openSheet({}, true);
    app.mainFrm.bHighlightCalc = true;
    app.document.layoutOptions.layoutLeftMargin = 0.5F;
    layout::layoutVScroll_Change(app, 600);
    for (const auto& c :
         table("pbLine,1 Line -> 720 675 2910 75; vLine,1 vLine -> 720 3735 75 3135; pBox,1 Box -> 720 2415 "
               "2295 1815; clipPic,1 ClipArt -> 720 2415 2175 1815; tLabel,1 Label -> 720 795 1695 195; "
               "layoutField,1 Name -> 720 885 1815 285; imgHolder,1 Photo -> 720 2175 1815 1575")) {
        page.Handle.bLocked = true;
        const std::string added = after(c[0]);
        EXPECT_EQ(added, c[1] + ", grip");
        EXPECT_EQ(page.selectedObject, it);
    }
    expectOrders(
        " -> pbLine,1 vLine,1 pBox,1 clipPic,1 tLabel,1 layoutField,1 imgHolder,1 selected imgHolder,1 ");
    after("Qty Price Made Sum Name Photo");
    EXPECT_EQ(told(), "i Field already added!\ni Field already added.");
    std::string looks;
    objects.layoutField.forEach([&](const core::LayoutField& field) {
        looks += field.Text + std::to_string(static_cast<int>(field.align)) +
                 (field.BackColor == core::white ? " " : "t ");
    });
    EXPECT_EQ(looks, "Name0 Qty1 Price1 Made0 Sum1t ");
    for (const layout::ToolbarButton& button : layout::toolbarButtons()) // rows are an invoice's
        EXPECT_EQ(layout::isButtonEnabled(app, button.key), button.key != "-" && button.key != "Rows");
    EXPECT_TRUE(objects.clipPic[1].BorderStyle == 1 && objects.imgHolder[1].BackColor == 0x808080);
}

// A lock outlives its object; the grip of a new one tells it when it is clicked.
TEST_F(Toolbar, ANewObjectTakesTheLowestFreeIndexAndItsLocks) {
    openSheet({}, true);
    expectOrders(
        "Label Label Label tLabel,2 select Lock -> tLabel,1 tLabel,2 tLabel,3 selected tLabel,2 locked "
        "pressed tLabel,2|; Delete Delete layoutPic2,0 click -> tLabel,1 tLabel,3 tLabel,2|; Label -> "
        "tLabel,1 tLabel,3 tLabel,2 selected tLabel,2 tLabel,2|; tLabel,2 click -> tLabel,1 tLabel,3 "
        "tLabel,2 selected tLabel,2 locked pressed tLabel,2|; Lock Label -> tLabel,1 tLabel,3 tLabel,2 "
        "tLabel,4 selected tLabel,4 ; Delete Lock -> tLabel,1 tLabel,3 tLabel,2 ");
}

TEST_F(Toolbar, ARepeatedFieldIsOneInAllButItsStyle) {
    openSheet("F|Qty|0|0|900|300;F|Qty|0|0|900|300;B|0|0|900|900|0|1|;L|x|0|0|9|9;F|Name|0|0|900|300", true);
    expectOrders(
        "pBox,1 select SendFront -> layoutField,3 tLabel,1 layoutField,2 layoutField,1 pBox,1 selected "
        "pBox,1 ; layoutField,1 select SendFront -> layoutField,3 tLabel,1 pBox,1 layoutField,1 "
        "layoutField,2 selected layoutField,1 ; SendBack -> layoutField,2 layoutField,1 layoutField,3 "
        "tLabel,1 pBox,1 selected layoutField,1 ; layoutField,3 select SendBack layoutField,1 select -> "
        "layoutField,3 layoutField,2 layoutField,1 tLabel,1 pBox,1 selected layoutField,1 ");
    const std::string before = lines();
    after("Font"); // cancelled
    EXPECT_EQ(lines(), before);
    platform.fonts = {{"Times", 14.25F, false, true, true, true, 0xFF0000}};
    after("Font Bold Italic Underline layoutField,2 select Font"); // all take the font, one the styles
    platform.fonts = {platform.shownFonts.back(),                  // what was proposed, to another object
                      {"Arial", 8, true, false, false, false, 0x00FF00},
                      {"Arial", 8, true, false, false, false, 255}};
    // A box takes the colour alone.
    after("layoutField,3 select Font pBox,1 select Font Bold layoutPic2,0 select Font Bold");
    EXPECT_EQ(lines(), "F|Qty|0|0|900|300|True|False|False|Times|14.25|16711680|; "
                       "F|Qty|0|0|900|300|False|True|True|Times|14.25|16711680|; "
                       "F|Name|0|0|900|300|False|True|True|Times|14.25|16711680|; "
                       "L|x|0|0|9|9|False|False|False|Arial|10|0||0|; B|0|0|900|900|65280|1|; ");
    EXPECT_TRUE(objects.layoutField[3].FontStrikethru);
    platform.answers = {platform::Answer::No, platform::Answer::Yes};
    expectOrders("layoutField,1 select Delete Nuke -> layoutField,3 tLabel,1 pBox,1 ; Nuke -> ");
    EXPECT_TRUE(told().starts_with("- Erase Layout Confirmation: Are you sure?\n- Erase"));
}

TEST_F(Toolbar, BorderWidthsFromOneToTen) {
    openSheet("B|0|0|900|900|0|3|"); // in browse mode as well
    for (const auto& c : table("0 -> 3; 11 -> 3; ten -> 3; 10 -> 10; 1 -> 1; 2.5px -> 2")) {
        platform.inputs = {c[0]};
        after("pBox,1 dblclick");
        EXPECT_EQ(std::to_string(objects.pBox[1].DrawWidth), c[1]) << c[0];
    }
    EXPECT_EQ(platform.proposed.back() + told().substr(0, 25), "1- Border Width Setting: E");
}

TEST_F(Toolbar, LabelsTakeNamesTextsAndLinks) {
    openSheet({}, true);
    // Text, bold, marked as selected, open, link.
    const auto expect = [&](const std::string& acts, const char* wanted) {
        after(acts);
        std::string all;
        objects.tLabel.forEach([&](const core::Label& label) {
            all += label.Text + (label.FontBold ? " bold" : "") +
                   (label.BackColor == core::white ? "" : " marked") + (label.Locked ? "" : " open") +
                   (label.Tag.empty() ? "" : " to " + label.Tag) + "; ";
        });
        EXPECT_EQ(all + (page.bEditingLabel ? "typing" : ""), wanted);
    };
    expect("Second_Photo AutoLabel Name AutoLabel Box AutoLabel", "Second Photo bold; Name bold; Label; ");
    // One that is typed in is neither dragged nor deleted by a key.
    expect("tLabel,3 select Delete tLabel,1 click dblclick take by 300 300 drop key 46 0",
           "Second Photo bold marked open; Name bold; typing");
    EXPECT_EQ(state(), "1440 195 1695 195, grip");
    EXPECT_TRUE(layout::tLabel_KeyPress(app, 'a') && !layout::tLabel_KeyPress(app, 13));
    EXPECT_TRUE(told().starts_with("i Please use separate labels for multiple lines"));
    layout::tLabel_Change(app.document, 1, "Went");
    layout::tLabel_LostFocus(app, 1);
    platform.inputs = {"http://a"};
    expect("Link click", "Went bold marked to http://a; Name bold; ");
    expect("tLabel,2 click", "Went bold to http://a; Name bold marked; ");
    expect("design dblclick design click Label", "Went bold to http://a; Name bold; Label; ");
    EXPECT_TRUE(platform.links.empty()); // while it is designed
    EXPECT_TRUE(told().starts_with("- Insert Link: Enter URL or email address."));
    expect("Box Link tLabel,1 select Link", "Went bold; Name bold; Label; "); // cancelled: the link is gone
    EXPECT_EQ(platform.proposed.back(), "http://a");
    expect("tLabel,3 dblclick Box Delete", "Went bold; Name bold; Label open; typing");
    platform.answers = {platform::Answer::Yes};
    expect("tLabel,3 select Delete tLabel,2 dblclick Nuke", "");
}

TEST_F(Toolbar, LinksOpenWebAndMailAskAboutTheRestAndStartNoPrograms) {
    for (const auto& c : table("notes.txt -> x; tool -> x; fake.pdf -> #!/bin/sh; it.desktop -> x; odd.txt "
                               "-> \n[Desktop Entry]\nExec=x"))
        ScriptedPlatform::write(platform.folder / c[0], c[1]);
    std::filesystem::permissions(platform.folder / "tool", std::filesystem::perms::owner_all);
    std::filesystem::create_symlink(platform.folder / "it.desktop", platform.folder / "alias.txt");
    openSheet("L|Go|0|0|9|9");
    // What is opened at once, what after a question, or is refused; "~" is the folder of the database.
    const auto follow = [&](const std::string& target) {
        platform.links.clear();
        objects.tLabel[1].Tag = target;
        after("tLabel,1 click");
        const std::string said = told(), opened = platform.links.empty() ? "" : platform.links[0];
        const std::string half = opened.substr(0, 150),
                          shown = opened.size() > 300 ? half + " ... " + half : opened;
        EXPECT_TRUE(said[0] != '?' || opened.empty() || said == "? Open " + shown + "? No") << said;
        return said.starts_with('!') ? "refuses" : (said.empty() ? "opens " : "asks ") + opened;
    };
    const std::string cases =
        "http://example.org -> opens http://example.org;  mailto:me@a?subject=Two words  -> opens "
        "mailto:me@a?subject=Two words; HTTPS://a/x.sh -> opens HTTPS://a/x.sh; WWW.a -> opens http://WWW.a; "
        "http:// -> asks http://; javascript:alert(1) -> asks javascript:alert(1); a%2 -> asks a%2; "
        "file:///etc/passwd -> asks file:///etc/passwd; notes.txt -> asks ~/notes.txt; ~/notes.txt -> asks "
        "~/notes.txt; http://a\nfile:///x -> refuses; bin/sh -> refuses; C:\\Windows\\calc.EXE -> refuses; "
        "/none/x.desktop/ -> refuses; y.%73h -> refuses; file:///none/x%2Edesktop?y=.txt -> refuses; tool -> "
        "refuses; FILE://host~/fake%2epdf#1 -> refuses; fake.pdf -> refuses; odd.txt -> refuses; alias.txt "
        "-> refuses;   -> opens ";
    const std::string x(150, 'x'), longer = x + "y" + x;
    platform.answers.assign(7, platform::Answer::Yes);
    for (const auto& c : table(core::replaceAll(cases, "~", platform.folder.string())))
        EXPECT_EQ(follow(c[0]), c[1]) << c[0];
    EXPECT_EQ(follow(longer), "asks " + longer);
    EXPECT_EQ(follow("notes.txt"), "asks ") << "answered No";
}

TEST_F(Toolbar, AllColumnsFindRoomBetweenTheMargins) {
    for (const int columns : {1, 9, 40, 70, 200}) {
        std::string names = "P1:7 P2:7";
        for (int i = 0; i < columns; ++i) names += " C" + std::to_string(i) + (i % 3 == 0 ? ":1" : "");
        openSheet({}, true, DataFile(names));
        told();
        layout::placeAllColumns(app);
        std::vector<const core::LayoutObject*> placed;
        objects.layoutField.forEach([&](const auto& box) { placed.push_back(&box); });
        const std::size_t boxes = placed.size();
        EXPECT_EQ(boxes < std::size_t(columns), !told().empty()) << columns;
        EXPECT_GE(boxes, std::min<std::size_t>(std::size_t(columns), 70));
        objects.imgHolder.forEach([&](const auto& box) { placed.push_back(&box); });
        for (std::size_t a = 0; a < placed.size(); ++a) {
            const core::LayoutObject& one = *placed[a];
            EXPECT_TRUE(one.Left >= page.marginLeft && one.Left + one.Width <= page.marginRight + 1 &&
                        one.Top >= page.marginTop && one.Top + one.Height <= page.marginBottom + 1)
                << columns << " " << a;
            for (std::size_t b = 0; b < a; ++b)
                EXPECT_FALSE(
                    one.Left < placed[b]->Left + placed[b]->Width && placed[b]->Left < one.Left + one.Width &&
                    one.Top < placed[b]->Top + placed[b]->Height && placed[b]->Top < one.Top + one.Height)
                    << columns << " " << a << " " << b;
        }
    }
}

TEST_F(Toolbar, GuidesStandWhereTheRulerWasClicked) {
    openSheet({}, true);
    const auto expect = [&](const char* wanted) {
        std::string all;
        for (const auto* array : {&page.rulePic, &page.rulePic2})
            array->forEach([&](const auto& each) { all += texts({each.Left, each.Top, each.line}) + "; "; });
        EXPECT_EQ(all, wanted);
    };
    for (const float x : {1440.F, 2880.F}) layout::ruler1_Click(app, x);
    layout::ruler2_Click(app, 1440);
    expect("127.5 1440 1430; 1440 142.5 1455; 2880 142.5 2895; ");
    layout::rulePic_MouseDown(app, 1, 30);
    layout::dragTo(app, 7, 2000); // 30 less, and four pixels
    layout::endDrag(app);
    layout::dragTo(app, 7, 5000);
    layout::rulePic2_MouseDown(app, 1, 30);
    layout::dragTo(app, 3000, 7); // and three
    expect("127.5 2030 2015; 3015 142.5 3030; 2880 142.5 2895; ");
    layout::rulePic2_DblClick(app, 1);
    layout::ruler1_Click(app, 100);
    layout::dragTo(app, 4000, 7);
    layout::rulePic_DblClick(app, 1);
    after("design"); // the lines stay
    expect("100 142.5 115; 2880 142.5 2895; ");
    layout::clearGuides(app);
    expect("");
}

// By the keyboard: "to" moves the guide that was put there last, "+" and "-" go on from it.
TEST_F(Toolbar, GuidesStandOnTheGridAndStayOnTheSheet) {
    openSheet({}, true);
    for (const auto side : {layout::RulerSide::Above, layout::RulerSide::Left}) {
        const bool isAbove = side == layout::RulerSide::Above;
        const std::string end = isAbove ? "12240" : "15840";
        const char* const cases =
            "put 1000 -> 960; to 961 -> 961; put 1000 -> 960; to 960.5 -> 960.5; put 1021 -> 1080; put 950 "
            "-> "
            "1200; put -500 -> 0; put 1e6 -> END; put 1e6 -> 120; to -3 -> 0; to 1e6 -> END; - -> END; - -> "
            "1200; - -> 1080; - -> 961; + -> 1080; - -> 961; - -> 960.5; - -> 0; - -> none; - -> END; + -> "
            "none; + -> 0";
        int index = 0;
        for (const auto& c : table(core::replaceAll(cases, "END", end))) {
            const float place = c[0].size() == 1 ? 0 : std::stof(c[0].substr(c[0].find(' ')));
            if (c[0][0] == 'p') index = layout::insertGuide(app, side, place);
            if (c[0][0] == 't') layout::moveGuide(app, side, index, place);
            if (c[0].size() == 1) index = layout::nextGuide(app, side, index, c[0] == "+" ? 1 : -1);
            const layout::Guide* guide = layout::guidesOn(app, side).find(index);
            EXPECT_EQ(guide == nullptr ? "none" : texts({guide->line}), c[1]) << c[0] << isAbove;
            EXPECT_TRUE(!guide || guide->line == (isAbove ? guide->Left + 15 : guide->Top - 15));
        }
        layout::removeGuide(app, side, index);
        for (index = 0; index < 999 && layout::insertGuide(app, side, 0) != 0;) ++index;
        EXPECT_EQ(index, (isAbove ? 103 : 133) - 4); // each grid line, but for what stands on four
    }
}

} // namespace
