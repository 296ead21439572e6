#include "print/layoutPrinting.h"
#include "print/previewNavigation.h"
#include "print/printCommands.h"
#include "printRecorder.h"
#include "shell/mainWindow.h"
#include "storage/saveFile.h"
#include "table.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using Lines = std::vector<std::string>;

namespace {

// A field at the margins' corner.
constexpr const char* oneField = "F|Name|1440|1440|2000|1000";

class Layout : public testing::Test, protected PrintProgram {
protected:
    app::PreviewPage& page = app.mainFrm.previewPage;
    core::LayoutOptions& options = app.document.layoutOptions;

    void showLayoutPreview() {
        shell::SSTab1_Click(app, app::layoutTab);
        shell::SSTab1_Click(app, app::previewTab);
    }
    void showManyPreview() { run("Multiple_Layout_Preview_All"); }
    std::string turn(std::string_view buttons) {
        return walk(buttons, [&] { return wordsOf(preview()); });
    }
};

// Texts of 10 points: a character is 100 wide and a line 200 high.
TEST_F(Layout, WordsWrapIntoTheirBox) {
    // Width, height, and the lines with their heights. The last word is not measured; a line that begins
    // shows, what is below it is dropped; a word too long makes empty lines, down to the end.
    for (const auto& c :
         table("810 -> 1000 -> one two three x -> one two @0,three x@200,; "
               "809 -> 1000 -> one two three x -> one @0,two @200,three x@400,; "
               "810 -> 1000 -> one two three -> one two three@0,; 310 -> 1000 -> a  b -> a  b@0,; "
               "500 -> 1000 -> one   two   x -> one @0,two @200,x@400,; "
               "410 -> 400 -> aa bb cc dd -> aa @0,bb @200,; "
               "410 -> 401 -> aa bb cc dd -> aa @0,bb @200,cc dd@400,; "
               "500 -> 600 -> Donaudampfschiff ahoi; 500 -> 0 -> x; 500 -> 600; "
               "500 -> 600 -> Donaudampfschiff -> Donaudampfschiff@0,",
               4)) {
        drawing::RecordedPage target;
        target.measureWith(platform.metrics);
        target.setPage({});
        target.FontSize = 10;
        print::printWrapped(target, 500, std::stof(c[1]), std::stof(c[0]), c[2]);
        std::string lines;
        for (const auto& line : drawnOf<drawing::DrawnText>(target.drawn())) {
            lines += line.text + "@" + std::to_string(std::lround(line.Top)) + ",";
            EXPECT_EQ(line.Left, 500);
        }
        EXPECT_EQ(lines, c[3]) << c[2] << " in " << c[0];
    }
}

TEST_F(Layout, EveryKindOfObjectHasItsPlaceOnThePage) {
    open(DataFile().objects("F|Name|1440|1500|2000|600|True|False|True|Arial|10|255|;"
                            "F|Price|3000|2500|2000|300;"
                            "L|A label|5000|3000|2000|400|False|True|False|Times|12|65280||0|;"
                            "LN|1440|4000|5000|75|0|;VLN|6000|1440|75|3000|0|;B|1320|960|9000|4500|128|3|"));
    showLayoutPreview();
    EXPECT_THAT(textsOf(preview()), ElementsAre("Bolt@1440,1500", "$1.50@4500,2500", "A label@5000,3000"));
    EXPECT_THAT(linesOf(preview()),
                ElementsAre("1440,4036-6440,4036", "6036,1440-6036,4440", ".1440,0-1440,15840",
                            ".10800,0-10800,15840", ".0,1440-12240,1440", ".0,14400-12240,14400"));
    std::string faces;
    for (const auto& [left, top, text, font, color] : drawnOf<drawing::DrawnText>(preview()))
        faces += font.FontName + std::to_string(std::lround(font.FontSize)) + (font.FontBold ? " bold" : "") +
                 (font.FontItalic ? " italic" : "") + (font.FontUnderline ? " underline " : " ") +
                 std::to_string(color) + "; ";
    EXPECT_EQ(faces, "Arial10 bold underline 255; Arial10 0; Times12 italic 65280; ");
    const auto boxes = drawnOf<drawing::DrawnRectangle>(preview());
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_THAT((std::vector<float>{boxes[0].Left, boxes[0].Top, boxes[0].Width, boxes[0].Height}),
                ElementsAre(1335, 975, 8970, 4470));
    EXPECT_TRUE(boxes[0].pen.DrawWidth == 3 && boxes[0].pen.ForeColor == 128);

    // An image stands in its holder; an empty number prints nothing and the rest goes on.
    auto& holder = app.document.layout.imgHolder.load(1);
    holder.Left = 1000;
    holder.Top = 2000;
    holder.viewImage = {"cover.jpg", 10, 20, 300, 400, true, true};
    app.document.layout.clipPic.load(1); // has no picture
    app.document.layout.layoutField.find(2)->Text.clear();
    run("Print");
    const auto pictures = drawnOf<drawing::DrawnPicture>(sheet(0));
    ASSERT_EQ(pictures.size(), 1U);
    EXPECT_THAT(
        (std::vector<float>{pictures[0].Left, pictures[0].Top, pictures[0].Width, pictures[0].Height}),
        ElementsAre(1010, 2020, 300, 400));
    EXPECT_EQ(linesOf(sheet(0)).size(), 2U) << "paper has no guides";
    EXPECT_EQ(printed(), "Bolt A label");
}

TEST_F(Layout, ASavedLayoutGivesTheSamePages) {
    openCopyOf("books.fwk");
    run("All_As_Layouts");
    const auto before = platform.printed.sheets;
    ASSERT_EQ(before.size(), static_cast<std::size_t>(app.document.LV.count() - 1));
    app::setDocumentModified(app, true);
    storage::SaveFile(app, false, false);
    open(app.document.currentFile);
    platform.printed = {};
    run("All_As_Layouts");
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_FALSE(textsOf(before[i]).empty());
        EXPECT_EQ(textsOf(sheet(i)), textsOf(before[i]));
        EXPECT_EQ(linesOf(sheet(i)), linesOf(before[i]));
    }
}

TEST_F(Layout, ThePreviewGoesThroughTheRecords) {
    openRecords(4, oneField);
    showLayoutPreview();
    EXPECT_EQ(turn("Next Back Back Last Next Back First Next"), "r2; r1; r1; r4; r4; r3; r1; r2");
    EXPECT_EQ(selection(), "01000");
    openRecords(0, oneField); // Totals alone
    showLayoutPreview();
    turn("First Last Next Back");
    EXPECT_EQ(told(), "");
}

TEST_F(Layout, CommandsPrintAllOrTheSelection) {
    openRecords(4, oneField);
    for (const auto& c :
         table("All_As_Layouts -> r1/r2/r3/r4 -> 4 -> 00010; Selected_As_Layouts -> r2/r4 -> 2 -> 00010; "
               "Print_All_As_Multiple_Layouts -> r1 r2 r3 r4 -> 1; "
               "Print_Selected_Multiple_Layouts -> r2 r4 -> 1 -> 01011",
               4)) {
        platform.dialogAnswer = platform::PrintChoice{1, 1};
        select({2, 4, 5}); // 5 is the Totals row
        run(c[0].c_str());
        EXPECT_EQ(std::to_string(platform.printed.jobs.size()), c[2]);
        EXPECT_TRUE(platform.printed.closed && app.document.LV.MultiSelect);
        EXPECT_EQ(printed(), c[1]) << c[0];
        if (!c[3].empty()) {
            EXPECT_EQ(selection(), c[3]) << c[0];
        }
        platform.dialogAnswer.reset(); // cancelled
        run(c[0].c_str());
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(options.layoutPaperSize, 1);
    }
    select({2, 3, 5});
    run("Multiple_Layout_Preview_Selected");
    EXPECT_EQ(wordsOf(preview()), "r2 r3");
    EXPECT_EQ(selection(), "01101");
    run("Print"); // as on show, without a dialog
    EXPECT_EQ(printed(), "r2 r3");
}

TEST_F(Layout, ThePrintDialogGivesTheDocumentItsPaper) {
    openRecords(1, oneField);
    shell::SSTab1_Click(app, app::layoutTab);
    platform.dialogAnswer = platform::PrintChoice{9, 2};
    run("Print");
    EXPECT_EQ(platform.dialogsShown[0].PaperSize, 1);
    EXPECT_EQ(options.layoutPaperSize, 9);
    EXPECT_EQ(options.layoutOrientation, 2);
    ASSERT_EQ(platform.printed.papers.size(), 1U);
    EXPECT_EQ(platform.printed.papers[0].Width, 16838); // A4 across
    EXPECT_EQ(platform.printed.papers[0].Height, 11906);
    options.layoutPaperSize = 256; // the lengths of the database
    showLayoutPreview();
    EXPECT_EQ(page.rptPreview1.Width, 4 * 1440);
    EXPECT_EQ(page.rptPreview1.Height, 6 * 1440);
}

// 2000 x 1000 with a gap of 216 in 9360 x 12960: 4 across, 10 down, the rest at both sides.
TEST_F(Layout, ManyLayoutsStandInAGrid) {
    openRecords(45, oneField);
    showManyPreview();
    EXPECT_EQ(app.mainFrm.SSTab1, app::previewTab);
    Lines wanted;
    for (int i = 0; i < 40; ++i)
        wanted.push_back("r" + std::to_string(i + 1) + "@" +
                         placeOf(1440 + 356 + 2216 * static_cast<float>(i % 4),
                                 1440 + 508 + 1216 * static_cast<float>(i / 4)));
    EXPECT_EQ(textsOf(preview()), wanted);
    EXPECT_EQ(linesOf(preview()).size(), 4U);
    // The first on a page, how many, and where the next begin.
    EXPECT_EQ(walk("Next Next Last Back First Next",
                   [&] {
                       const Lines texts = textsOf(preview());
                       return texts[0].substr(0, texts[0].find('@')) + " " + std::to_string(texts.size()) +
                              " " + std::to_string(page.iLayoutIndex);
                   }),
              "r41 5 46; r1 40 40; r6 40 45; r1 40 40; r1 40 40; r41 5 46");
    run("Print");
    EXPECT_TRUE(platform.dialogsShown.empty());
    EXPECT_THAT(platform.printed.jobs, ElementsAre(2U));
    EXPECT_EQ(textsOf(sheet(0)), wanted);
    EXPECT_EQ(textsOf(sheet(1)).size(), 5U);
    printed();
    openRecords(40, oneField);
    run("Print_All_As_Multiple_Layouts");
    EXPECT_THAT(platform.printed.jobs, ElementsAre(1U)) << "a full last page is the last";
}

// What sets the room that one layout takes.
TEST_F(Layout, TheExtentOfALayout) {
    const std::pair<std::string, const char*> cases[] = {
        {oneField, "4 across, 10 down"},
        {std::string(oneField) + ";F|Name|3440|2440|1000|500", "2 across, 7 down"},
        {std::string(oneField) + ";L|x|1440|1440|900|300",
         "8 across, 10 down"}, // narrower, and yet it counts
        {std::string(oneField) + ";LN|1440|3000|3000|75|0|", "2 across, 7 down"},
        {"B|1440|1440|4000|4000|0|1|", "2 across, 3 down"},
        {"F|Name|1440|1440|12000|1000", "0 across, 10 down"}};
    for (const auto& [objects, grid] : cases) {
        openRecords(5, objects);
        showManyPreview();
        EXPECT_EQ(std::to_string(page.iLayoutCols) + " across, " + std::to_string(page.iLayoutRows) + " down",
                  grid)
            << objects;
    }
    EXPECT_EQ(turn("Next Last Back"), "");
    run("Print_All_As_Multiple_Layouts");
    EXPECT_THAT(platform.printed.jobs, ElementsAre(1U)) << "one empty sheet";
    EXPECT_EQ(printed(), "");
    EXPECT_THAT(told(), testing::HasSubstr("not even one fits"));

    openRecords(2); // neither a layout nor a gap
    options.layoutSpacing = 0;
    showManyPreview();
    EXPECT_TRUE(told().starts_with("i Printer Not Installed"));
    EXPECT_TRUE(app.document.LV.MultiSelect);
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
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(told(), "");
    EXPECT_EQ(printed(), "r7 r9/");
}

// As on the preview: what hangs over the paper's bottom is cut off.
TEST_F(Layout, TextsBelowThePaperTakeNoOtherSheet) {
    openRecords(1, "F|Name|1440|15700|2000|1000");
    shell::SSTab1_Click(app, app::layoutTab);
    run("Print");
    ASSERT_EQ(platform.printed.sheets.size(), 1U);
    EXPECT_THAT(textsOf(sheet(0)), ElementsAre("r1@1440,15700"));
}

} // namespace
