#include "print/layoutPrinting.h"
#include "print/previewNavigation.h"
#include "print/printCommands.h"
#include "printRecorder.h"
#include "shell/commands.h"
#include "shell/mainWindow.h"

#include <gmock/gmock.h>

using platform::Drawn;
using testing::ElementsAre;
using Lines = std::vector<std::string>;

namespace {

// A field at the margins' corner, 2000 wide and 1000 high.
constexpr const char* oneField = "F|Name|1440|1440|2000|1000|False|False|False|Arial|10|0|\r\n";

class Layout : public testing::Test, protected PrintProgram {
protected:
    app::PreviewPage& page = app.mainFrm.previewPage;

    void showLayoutPreview() {
        shell::SSTab1_Click(app, app::layoutTab);
        shell::SSTab1_Click(app, app::previewTab);
    }
    void showManyPreview() { shell::runCommand(app, "Multiple_Layout_Preview_All"); }
    void click(const char* key) { print::reportToolbar_ButtonClick(app, key); }
};

// Texts of 10 points: a character is 100 wide and a line 200 high.
TEST_F(Layout, WordsWrapIntoTheirBox) {
    struct Case {
        const char* text;
        float width, height;
        Lines lines;
    };
    const Case cases[] = {
        {"one two three x", 810, 1000, {"one two @500,0", "three x@500,200"}},
        {"one two three x", 809, 1000, {"one @500,0", "two @500,200", "three x@500,400"}},
        {"one two three", 810, 1000, {"one two three@500,0"}}, // the last word is not measured
        {"a  b", 310, 1000, {"a  b@500,0"}},
        {"one   two   x", 500, 1000, {"one @500,0", "two @500,200", "x@500,400"}},
        {"aa bb cc dd", 410, 400, {"aa @500,0", "bb @500,200"}}, // the rest is dropped
        {"aa bb cc dd",
         410,
         401,
         {"aa @500,0", "bb @500,200", "cc dd@500,400"}}, // a line begins, so it shows
        {"Donaudampfschiff ahoi", 500, 600, {}},         // empty lines, down to the end
        {"Donaudampfschiff", 500, 600, {"Donaudampfschiff@500,0"}},
        {"x", 500, 0, {}},
        {"", 500, 600, {}}};
    for (const Case& each : cases) {
        platform::RecordedPage target;
        target.measureWith(platform.metrics);
        target.setPage({});
        target.FontSize = 10;
        print::printWrapped(target, 500, each.height, each.width, each.text);
        EXPECT_EQ(textsOf(target.drawn()), each.lines) << each.text << " in " << each.width;
    }
}

TEST_F(Layout, EveryKindOfObjectHasItsPlaceOnThePage) {
    DataFile file;
    file.layout = "F|Name|1440|1500|2000|600|True|False|True|Arial|10|255|\r\n"
                  "F|Price|3000|2500|2000|300|False|False|False|Arial|10|0|\r\n"
                  "L|A label|5000|3000|2000|400|False|True|False|Times|12|65280||0|\r\n"
                  "LN|1440|4000|5000|75|0|\r\nVLN|6000|1440|75|3000|0|\r\nB|1320|960|9000|4500|128|3|\r\n";
    open(file.text());
    showLayoutPreview();
    EXPECT_THAT(textsOf(preview()), ElementsAre("Bolt@1440,1500", "$1.50@4500,2500", "A label@5000,3000"));
    EXPECT_THAT(linesOf(preview()),
                ElementsAre("1440,4036-6440,4036", "6036,1440-6036,4440", ".1440,0-1440,15840",
                            ".10800,0-10800,15840", ".0,1440-12240,1440", ".0,14400-12240,14400"));
    const auto texts = drawnOf<platform::DrawnText>(preview());
    EXPECT_TRUE(texts[0].font.FontBold && !texts[1].font.FontBold);
    EXPECT_EQ(texts[0].ForeColor, 255);
    EXPECT_EQ(texts[2].font.FontName, "Times");
    EXPECT_FALSE(texts[2].font.FontBold);
    const auto boxes = drawnOf<platform::DrawnRectangle>(preview());
    ASSERT_EQ(boxes.size(), 1U);
    const auto& box = boxes[0];
    EXPECT_THAT((std::vector<float>{box.Left, box.Top, box.Width, box.Height}),
                ElementsAre(1335, 975, 8970, 4470));
    EXPECT_TRUE(box.pen.DrawWidth == 3 && box.pen.ForeColor == 128);

    // An image stands in its holder; an empty number prints nothing and the rest goes on.
    auto& holder = app.document.layout.imgHolder.load(1);
    holder.Left = 1000;
    holder.Top = 2000;
    holder.viewImage = {"cover.jpg", 10, 20, 300, 400, true, true};
    app.document.layout.clipPic.load(1); // has no picture
    app.document.layout.layoutField.find(2)->Text.clear();
    shell::runCommand(app, "Print");
    ASSERT_EQ(platform.printed.sheets.size(), 1U);
    const auto pictures = drawnOf<platform::DrawnPicture>(platform.printed.sheets[0]);
    ASSERT_EQ(pictures.size(), 1U);
    EXPECT_EQ(pictures[0].Left, 1010);
    EXPECT_EQ(pictures[0].Top, 2020);
    EXPECT_EQ(pictures[0].Width, 300);
    EXPECT_EQ(textsOf(platform.printed.sheets[0]).size(), 2U);
    EXPECT_EQ(linesOf(platform.printed.sheets[0]).size(), 2U) << "paper has no guides";
}

TEST_F(Layout, ThePreviewGoesThroughTheRecords) {
    openRecords(4, oneField);
    showLayoutPreview();
    constexpr std::pair<const char*, const char*> steps[] = {{"Next", "r2"}, {"Last", "r4"},  {"Next", "r4"},
                                                             {"Back", "r3"}, {"First", "r1"}, {"Back", "r1"}};
    for (const auto& [key, shown] : steps) {
        click(key);
        EXPECT_EQ(wordsOf(preview()), shown) << key;
    }
    EXPECT_EQ(selection(), "10000");
}

TEST_F(Layout, EachRecordIsAJobOfItsOwn) {
    openRecords(4, oneField);
    select({2, 4, 5}); // 5 is the Totals row
    shell::runCommand(app, "All_As_Layouts");
    EXPECT_THAT(platform.printed.jobs, ElementsAre(1U, 1U, 1U, 1U));
    EXPECT_EQ(wordsOf(platform.printed.sheets[3]), "r4");
    EXPECT_EQ(app.document.LV.selectedItem(), &app.document.LV.at(4));

    select({2, 4, 5});
    platform.printed = {};
    shell::runCommand(app, "Selected_As_Layouts");
    ASSERT_EQ(platform.printed.sheets.size(), 2U);
    EXPECT_EQ(wordsOf(platform.printed.sheets[0]), "r2");
    EXPECT_EQ(wordsOf(platform.printed.sheets[1]), "r4");
    EXPECT_TRUE(app.document.LV.MultiSelect);

    // A cancelled print dialog prints nothing and leaves the document's paper.
    platform.printed = {};
    platform.dialogAnswer.reset();
    for (const char* key : {"All_As_Layouts", "Selected_As_Layouts", "Print_All_As_Multiple_Layouts",
                            "Print_Selected_Multiple_Layouts"})
        shell::runCommand(app, key);
    EXPECT_TRUE(platform.printed.sheets.empty());
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 1);
}

TEST_F(Layout, ThePrintDialogGivesTheDocumentItsPaper) {
    openRecords(1, oneField);
    shell::SSTab1_Click(app, app::layoutTab);
    platform.dialogAnswer = platform::PrintChoice{9, 2};
    shell::runCommand(app, "Print");
    EXPECT_EQ(platform.dialogsShown[0].PaperSize, 1);
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 9);
    EXPECT_EQ(app.document.layoutOptions.layoutOrientation, 2);
    ASSERT_EQ(platform.printed.papers.size(), 1U);
    EXPECT_EQ(platform.printed.papers[0].Width, 16838); // A4 across
    EXPECT_EQ(platform.printed.papers[0].Height, 11906);
}

// 2000 x 1000 with a gap of 216 in 9360 x 12960: 4 across, 10 down, the rest at both sides.
TEST_F(Layout, ManyLayoutsStandInAGrid) {
    openRecords(45, oneField);
    showManyPreview();
    EXPECT_EQ(app.mainFrm.SSTab1, app::previewTab);
    EXPECT_EQ(page.iLayoutCols, 4);
    EXPECT_EQ(page.iLayoutRows, 10);
    const Lines texts = textsOf(preview());
    ASSERT_EQ(texts.size(), 40U);
    const int padX = (9360 - 2216 * 4 + 216) / 2;
    const int padY = (12960 - 1216 * 10 + 216) / 2;
    const auto place = [&](int column, int row) {
        return std::to_string(1440 + padX + column * 2216) + "," + std::to_string(1440 + padY + row * 1216);
    };
    EXPECT_EQ(texts[0], "r1@" + place(0, 0));
    EXPECT_EQ(texts[3], "r4@" + place(3, 0));
    EXPECT_EQ(texts[4], "r5@" + place(0, 1));
    EXPECT_EQ(texts[39], "r40@" + place(3, 9));
    EXPECT_EQ(linesOf(preview()).size(), 4U);

    struct Step {
        const char* key;
        const char* first;
        std::size_t shown;
        int index;
    };
    constexpr Step steps[] = {{"Next", "r41", 5, 46},
                              {"Next", "r1", 40, 40},
                              {"Last", "r6", 40, 45},
                              {"Back", "r1", 40, 40},
                              {"First", "r1", 40, 40}};
    for (const Step& step : steps) {
        click(step.key);
        EXPECT_TRUE(textsOf(preview())[0].starts_with(std::string(step.first) + "@")) << step.key;
        EXPECT_EQ(textsOf(preview()).size(), step.shown) << step.key;
        EXPECT_EQ(page.iLayoutIndex, step.index) << step.key;
    }

    shell::runCommand(app, "Print"); // without a dialog
    EXPECT_TRUE(platform.dialogsShown.empty());
    EXPECT_THAT(platform.printed.jobs, ElementsAre(2U));
    EXPECT_EQ(textsOf(platform.printed.sheets[0]), texts);
    EXPECT_EQ(textsOf(platform.printed.sheets[1]).size(), 5U);
}

TEST_F(Layout, AFullLastPageIsTheLast) {
    openRecords(40, oneField);
    shell::runCommand(app, "Print_All_As_Multiple_Layouts");
    EXPECT_THAT(platform.printed.jobs, ElementsAre(1U));
}

TEST_F(Layout, TheSelectionPrintsAndStaysSelected) {
    openRecords(6, oneField);
    select({2, 3, 6});
    shell::runCommand(app, "Multiple_Layout_Preview_Selected");
    EXPECT_EQ(wordsOf(preview()), "r2 r3 r6");
    EXPECT_EQ(selection(), "0110010");
    shell::runCommand(app, "Print_Selected_Multiple_Layouts");
    ASSERT_EQ(platform.printed.sheets.size(), 1U);
    EXPECT_EQ(wordsOf(platform.printed.sheets[0]), "r2 r3 r6");
    EXPECT_EQ(selection(), "0110010");
}

// The widest object sets the width, by a test that forgets the margin but for fields.
TEST_F(Layout, TheExtentCanFallBack) {
    openRecords(1, std::string(oneField) + "L|x|1440|1440|900|300|False|False|False|Arial|10|0||0|\r\n");
    showManyPreview();
    EXPECT_EQ(page.iLayoutCols, 9360 / (900 + 216)) << "the label, though narrower, has passed";
    EXPECT_EQ(page.iLayoutRows, 10);
}

TEST_F(Layout, ALayoutLargerThanThePaperIsOneEmptyPage) {
    openRecords(5, "F|Name|1440|1440|12000|1000|False|False|False|Arial|10|0|\r\n");
    showManyPreview();
    EXPECT_EQ(page.iLayoutsPerPage, 0);
    EXPECT_TRUE(textsOf(preview()).empty());
    for (const char* key : {"Next", "Last", "Back"}) click(key);
    EXPECT_EQ(platform.messages.size(), 4U) << "each page tells why it is empty";
    shell::runCommand(app, "Print_All_As_Multiple_Layouts");
    EXPECT_THAT(platform.printed.jobs, ElementsAre(1U));
    EXPECT_TRUE(textsOf(platform.printed.sheets[0]).empty());
    EXPECT_THAT(platform.messages.back().text, testing::HasSubstr("not even one fits"));
}

TEST_F(Layout, NoLayoutAndNoSpacingEndInTheMessage) {
    openRecords(2);
    app.document.layoutOptions.layoutSpacing = 0;
    showManyPreview();
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].caption, "Printer Not Installed");
    EXPECT_TRUE(app.document.LV.MultiSelect);
}

TEST_F(Layout, CustomPaperHasTheLengthsOfTheDatabase) {
    openRecords(1, oneField);
    app.document.layoutOptions.layoutPaperSize = 256;
    app.document.layoutOptions.layoutOrientation = 2;
    showLayoutPreview();
    EXPECT_EQ(page.rptPreview1.Width, 4 * 1440);
    EXPECT_EQ(page.rptPreview1.Height, 6 * 1440);
}

// The results are fewer than the records, whose count decides about the next sheet.
TEST_F(Layout, SearchResultsAreCountedLikeTheRecords) {
    openRecords(90, oneField);
    core::RecordsList& found = app.document.searchLV;
    found.clear();
    found.columns = app.document.LV.columns;
    for (const char* text : {"r7", "r9"}) found.add(text).subItem(1) = text;
    core::addTotalsRow(found);
    found.Visible = true;
    app.mainFrm.theListView = &found;
    shell::runCommand(app, "Print_All_As_Multiple_Layouts");
    EXPECT_TRUE(platform.messages.empty());
    ASSERT_EQ(platform.printed.sheets.size(), 2U);
    EXPECT_EQ(wordsOf(platform.printed.sheets[0]), "r7 r9");
    EXPECT_EQ(wordsOf(platform.printed.sheets[1]), "");
}

// As on the preview: what hangs over the paper's bottom is cut off.
TEST_F(Layout, TextsBelowThePaperTakeNoOtherSheet) {
    openRecords(1, "F|Name|1440|15700|2000|1000|False|False|False|Arial|10|0|\r\n");
    shell::SSTab1_Click(app, app::layoutTab);
    shell::runCommand(app, "Print");
    ASSERT_EQ(platform.printed.sheets.size(), 1U);
    EXPECT_THAT(textsOf(platform.printed.sheets[0]), ElementsAre("r1@1440,15700"));
}

} // namespace
