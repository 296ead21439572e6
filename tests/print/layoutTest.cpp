#include "print/layoutPrinting.h"
#include "print/previewPage.h"
#include "print/printCommands.h"
#include "printRecorder.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"
#include "shell/mainWindow.h"
#include "storage/saveFile.h"
#include "table.h"

#include <gtest/gtest.h>

namespace {

// A field at the margins' corner.
constexpr const char* oneField = "F|Name|1440|1440|2000|1000";

struct Layout : testing::Test, PrintProgram {
    print::PreviewPage& page = print::previewPage(app);
    core::LayoutOptions& options = app.document.layoutOptions;

    void showLayoutPreview() {
        for (const int tab : {app::layoutTab, app::previewTab}) shell::SSTab1_Click(app, tab);
    }
    std::string turn(std::string_view buttons) {
        return walk(buttons, [&] { return wordsOf(preview()); });
    }
};

// Texts of 10 points: a character is 100 wide and a line 200 high.
TEST_F(Layout, WordsWrapIntoTheirBox) {
    // Width, height, and the lines with their heights. The last word is not measured; a line that begins
    // shows, what is below it is dropped; a word too long makes empty lines, down to the end.
    for (const auto& c :
         table("810 -> 1000 -> one two three x -> one two @500,0, three x@500,200; 809 -> 1000 -> one two "
               "three x -> one @500,0, two @500,200, three x@500,400; 810 -> 1000 -> one two three -> one "
               "two three@500,0; 310 -> 1000 -> a  b -> a  b@500,0; 500 -> 1000 -> one   two   x -> one "
               "@500,0, two @500,200, x@500,400; 410 -> 400 -> aa bb cc dd -> aa @500,0, bb @500,200; 410 -> "
               "401 -> aa bb cc dd -> aa @500,0, bb @500,200, cc dd@500,400; 500 -> 600 -> Donaudampfschiff "
               "ahoi; 500 -> 0 -> x; 500 -> 600; 500 -> 600 -> Donaudampfschiff -> Donaudampfschiff@500,0",
               4)) {
        drawing::RecordedPage target;
        target.measureWith(platform.metrics);
        target.setPage({});
        target.FontSize = 10;
        print::printWrapped(target, 500, std::stof(c[1]), std::stof(c[0]), c[2]);
        EXPECT_EQ(core::replaceAll(textsOf(target.drawn()), "; ", ", "), c[3]) << c[2] << " in " << c[0];
    }
}

TEST_F(Layout, EveryKindOfObjectHasItsPlaceOnThePage) {
    open(DataFile().objects(
        "F|Name|1440|1500|2000|600|True|False|True|Arial|10|255|;F|Price|3000|2500|2000|300;L|A "
        "label|5000|3000|2000|400|False|True|False|Times|12|65280||0|;LN|1440|4000|5000|75|0|;VLN|6000|1440|"
        "75|3000|0|;B|1320|960|9000|4500|128|3|"));
    showLayoutPreview();
    EXPECT_EQ(textsOf(preview()), "Bolt@1440,1500; $1.50@4500,2500; A label@5000,3000");
    EXPECT_EQ(facesOf(preview()), "Arial 10 bu 255; Arial 10  0; Times 12 i 65280");
    EXPECT_EQ(linesOf(preview()), "1440,4036-6440,4036; 6036,1440-6036,4440; .1440,0-1440,15840; "
                                  ".10800,0-10800,15840; .0,1440-12240,1440; .0,14400-12240,14400");
    const auto box = [](const auto& it) {
        return placeOf(it.Left, it.Top) + " " + placeOf(it.Width, it.Height) + " " +
               std::to_string(it.pen.DrawWidth) + " " + std::to_string(it.pen.ForeColor);
    };
    EXPECT_EQ(allOf<drawing::DrawnRectangle>(preview(), box), "1335,975 8970,4470 3 128");
    // An image stands in its holder; an empty number prints nothing and the rest goes on.
    auto& holder = app.document.layout.imgHolder.load(1);
    holder.Left = 1000;
    holder.Top = 2000;
    holder.viewImage = {"cover.jpg", 10, 20, 300, 400, true, true};
    app.document.layout.clipPic.load(1); // has no picture
    app.document.layout.layoutField.find(2)->Text.clear();
    run("Print");
    const auto picture = [](const auto& it) {
        return placeOf(it.Left, it.Top) + " " + placeOf(it.Width, it.Height);
    };
    EXPECT_EQ(allOf<drawing::DrawnPicture>(sheet(0), picture), "1010,2020 300,400");
    EXPECT_EQ(linesOf(sheet(0)), "1440,4036-6440,4036; 6036,1440-6036,4440") << "paper has no guides";
    EXPECT_EQ(printed(), "Bolt A label|.");
    // As one of many all of it moves along.
    app.document.layout.layoutField.find(1)->Left = 5000;
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(textsOf(sheet(0)), "Bolt@5240,1734; $1.50@4740,2734; A label@5240,3234; Nut@5240,5970; "
                                 "$.25@4840,6970; A label@5240,7470");
    EXPECT_EQ(linesOf(sheet(0)),
              "1680,4270-6680,4270; 6276,1674-6276,4674; 1680,8506-6680,8506; 6276,5910-6276,8910");
    EXPECT_EQ(allOf<drawing::DrawnRectangle>(sheet(0), box),
              "1575,1209 8970,4470 3 128; 1575,5445 8970,4470 3 128");
    EXPECT_EQ(allOf<drawing::DrawnPicture>(sheet(0), picture), "1250,2254 300,400; 1250,6490 300,400");
}

TEST_F(Layout, ASavedLayoutGivesTheSamePages) {
    openCopyOf("books.fwk");
    std::string pages[2];
    for (std::string& all : pages) {
        run("All_As_Layouts");
        for (const Page& each : std::exchange(platform.printed, {}).sheets)
            all += textsOf(each) + linesOf(each) + facesOf(each) + "\n";
        app::setDocumentModified(app, true);
        storage::SaveFile(app, false, false);
        open(app.document.currentFile);
    }
    EXPECT_EQ(std::ranges::count(pages[0], '\n'), app.document.LV.count() - 1);
    EXPECT_EQ(pages[0], pages[1]);
}

TEST_F(Layout, ThePreviewGoesThroughTheRecordsWhichCommandsPrint) {
    openRecords(4, oneField);
    showLayoutPreview();
    EXPECT_EQ(turn("Next Back Back Last Next Back First Next"), "r2; r1; r1; r4; r4; r3; r1; r2");
    EXPECT_EQ(selection(), "01000");
    openRecords(0, oneField); // Totals alone
    showLayoutPreview();
    turn("First Last Next Back");
    EXPECT_EQ(told(), "");
    openRecords(4, oneField);
    for (const auto& c : table("All_As_Layouts -> r1|r2|r3|r4|. -> 00010; Selected_As_Layouts -> r2|r4|. -> "
                               "00010; Print_All_As_Multiple_Layouts -> r1 r2 r3 r4|. -> 00001; "
                               "Print_Selected_Multiple_Layouts -> r2 r4|. -> 01011",
                               3)) {
        select({2, 4, 5}); // 5 is the Totals row
        run(c[0].c_str());
        EXPECT_EQ(printed() + selection() + told(), c[1] + c[2]) << c[0];
        EXPECT_TRUE(app.document.LV.MultiSelect);
        platform.fileCancelled = true;
        run(c[0].c_str());
        platform.fileCancelled = false;
        platform.dialogAnswer.reset(); // cancelled
        run(c[0].c_str());
        platform.dialogAnswer = platform::PrintChoice{1, 1};
        EXPECT_EQ(printed() + told(), "");
        EXPECT_EQ(options.layoutPaperSize, 1);
    }
    select({2, 3, 5});
    run("Multiple_Layout_Preview_Selected");
    EXPECT_EQ(wordsOf(preview()) + selection(), "r2 r301101");
    run("Print"); // as on show, without a dialog
    EXPECT_EQ(printed(), "r2 r3|.");
}

TEST_F(Layout, ThePrintDialogGivesTheDocumentItsPaper) {
    openRecords(1, oneField);
    shell::SSTab1_Click(app, app::layoutTab);
    platform.dialogAnswer = platform::PrintChoice{9, 2};
    for (int i = 0; i < 2; ++i) run("Print");
    EXPECT_EQ(platform.forms, (std::vector<std::string>{"printer 1 1", "printer 9 2"}));
    EXPECT_EQ(platform.printed.paper, "16838,11906"); // A4 across
    options.layoutPaperSize = 256;                    // the lengths of the database
    showLayoutPreview();
    EXPECT_EQ(placeOf(page.rptPreview1.Width, page.rptPreview1.Height), "5760,8640");
    // As on the preview: what hangs over the paper's bottom is cut off, and takes no other sheet.
    openRecords(1, "F|Name|1440|15700|2000|1000");
    shell::SSTab1_Click(app, app::layoutTab);
    printed();
    run("Print");
    EXPECT_EQ(textsOf(sheet(0)), "r1@1440,15700");
    EXPECT_EQ(printed(), "r1|.");
}

// 2000 x 1000 with a gap of 216 in 9360 x 12960: 4 across, 10 down, the rest at both sides.
TEST_F(Layout, ManyLayoutsStandInAGrid) {
    openRecords(45, oneField);
    run("Multiple_Layout_Preview_All");
    EXPECT_EQ(app.mainFrm.SSTab1, app::previewTab);
    std::string wanted;
    for (int i = 0; i < 40; ++i)
        wanted += (i == 0 ? "r" : "; r") + std::to_string(i + 1) + "@" +
                  placeOf(1440 + 356 + 2216 * (i % 4), 1440 + 508 + 1216 * (i / 4));
    EXPECT_EQ(textsOf(preview()), wanted);
    EXPECT_EQ(std::ranges::count(linesOf(preview()), '.'), 4);
    // The first on a page, how many, and where the next begin.
    EXPECT_EQ(walk("Next Next Last Back First Next",
                   [&] {
                       const std::string texts = textsOf(preview());
                       return texts.substr(0, texts.find('@')) + " " +
                              std::to_string(std::ranges::count(texts, '@')) + " " +
                              std::to_string(page.iLayoutIndex);
                   }),
              "r41 5 46; r1 40 40; r6 40 45; r1 40 40; r1 40 40; r41 5 46");
    run("Print");
    EXPECT_TRUE(platform.forms.empty());
    EXPECT_EQ(textsOf(sheet(0)), wanted);
    EXPECT_TRUE(printed().ends_with("r40/r41 r42 r43 r44 r45|."));
    openRecords(40, oneField);
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(platform.printed.ends, "|.") << "a full last page is the last";
    // The results are fewer than the records, whose count decides about the next sheet.
    openRecords(90, oneField);
    search::takeOverColumns(app);
    search::findRecords(app, {{{"Name", search::within, "r9", ""}}});
    printed();
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(told() + printed(), "r9 r90/|.");
}

// What sets the room that one layout takes.
TEST_F(Layout, TheExtentOfALayout) {
    // Among them a label that is narrower, and yet counts.
    for (const auto& c : table("F|Name|1440|1440|2000|1000 -> 4 across, 10 down; F|Name|1440|1440|2000|1000 "
                               "+ F|Name|3440|2440|1000|500 -> 2 across, 7 down; F|Name|1440|1440|2000|1000 "
                               "+ L|x|1440|1440|900|300 -> 8 across, 10 down; F|Name|1440|1440|2000|1000 + "
                               "LN|1440|3000|3000|75|0| -> 2 across, 7 down; F|Name|1440|1440|2000|1000 + "
                               "VLN|3500|1440|75|3000|0| -> 3 across, 4 down; B|1440|1440|4000|4000|0|1| -> "
                               "2 across, 3 down; F|Name|1440|1440|12000|1000 -> 0 across, 10 down")) {
        openRecords(5, core::replaceAll(c[0], " + ", ";"));
        run("Multiple_Layout_Preview_All");
        EXPECT_EQ(std::to_string(page.iLayoutCols) + " across, " + std::to_string(page.iLayoutRows) + " down",
                  c[1])
            << c[0];
    }
    EXPECT_EQ(turn("Next Last Back"), "");
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(printed(), "|.") << "one empty sheet";
    EXPECT_NE(told().find("not even one fits"), std::string::npos);
    openRecords(2); // neither a layout nor a gap
    options.layoutSpacing = 0;
    run("Multiple_Layout_Preview_All");
    EXPECT_TRUE(told().starts_with("i Printer Not Installed"));
    EXPECT_TRUE(app.document.LV.MultiSelect);
}

} // namespace
