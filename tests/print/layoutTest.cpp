#include "print/layoutPrinting.h"
#include "print/previewPlace.h"
#include "printRecorder.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"
#include "shell/mainWindow.h"
#include "table.h"

namespace {

// A field at the margins' corner.
constexpr const char* oneField = "F|Name|1440|1440|2000|1000";

struct Layout : testing::Test, PrintProgram {
    print::PreviewPage& page = print::previewPage(app);
    core::LayoutOptions& options = app.document.layoutOptions;

    void showLayoutPreview() {
        for (const int tab : {app::layoutTab, app::previewTab}) shell::SSTab1_Click(app, tab);
    }
    std::string selection() const {
        std::string rows;
        app.document.LV.forEach([&](const core::Item& item) { rows += item.Selected ? '1' : '0'; });
        return rows;
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
        target.FontName = "Arial";
        target.FontSize = 10;
        print::printWrapped(target, 500, std::stof(c[1]), std::stof(c[0]), c[2]);
        EXPECT_EQ(core::replaceAll(drawnOn(target.drawn()), "; ", ", "), c[3]) << c[2] << " in " << c[0];
    }
}

TEST_F(Layout, EveryKindOfObjectHasItsPlaceOnThePage) {
    DataFile file("Name Price:2", "Bolt|$1.50;Nut|");
    open(
        file.objects("F|Name|1440|1500|2000|600|True|False|True|Arial|10|255|;F|Price|3000|2500|2000|300;L|A "
                     "label|5000|3000|2000|400|False|True|False|Times|12|65280||0|;LN|1440|4000|5000|75|0|;"
                     "VLN|6000|1440|75|3000|0|;B|1320|960|9000|4500|128|3|"));
    showLayoutPreview();
    EXPECT_EQ(drawnOn(preview()),
              "Bolt@1440,1500 Arial 10 bu 255; $1.50@4500,2500 Arial 10  0; A label@5000,3000 Times 12 i "
              "65280; 1440,4036-6440,4036; 6036,1440-6036,4440; 1335,975 8970,4470 3,128; "
              ".1440,0-1440,15840; .10800,0-10800,15840; .0,1440-12240,1440; .0,14400-12240,14400");
    // As one of many all of it moves along, with the image in its holder. An empty number prints nothing, and
    // the rest goes on; paper has no guides.
    core::ImgHolder& holder = app.document.layout.imgHolder.load(1);
    holder.Left = 1000;
    holder.Top = 2000;
    holder.viewImage = {"cover.jpg", 10, 20, 300, 400, true, true};
    app.document.layout.clipPic.load(1); // has no picture
    app.document.layout.layoutField.find(1)->Left = 5000;
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(
        drawnOn(sheet(0)),
        "Bolt@5240,1734 Arial 10 bu 255; $1.50@4740,2734 Arial 10  0; A label@5240,3234 Times 12 i "
        "65280; 1680,4270-6680,4270; 6276,1674-6276,4674; 1575,1209 8970,4470 3,128; 1250,2254 300,400; "
        "Nut@5240,5970 Arial 10 bu 255; A label@5240,7470 Times 12 i 65280; 1680,8506-6680,8506; "
        "6276,5910-6276,8910; 1575,5445 8970,4470 3,128; 1250,6490 300,400");
}

TEST_F(Layout, ThePreviewGoesThroughTheRecordsWhichCommandsPrint) {
    openRecords(0, oneField); // Totals alone
    showLayoutPreview();
    turn("First Last Next Back");
    EXPECT_EQ(told() + print::previewPlaceText(app), "");
    openRecords(4, oneField);
    showLayoutPreview();
    EXPECT_EQ(turn("Next Back Back Last Next Back Next First Next"),
              "r2>0; r1>0; r1>0; r4>0; r4>0; r3>0; r4>0; r1>0; r2>0; ");
    EXPECT_EQ(selection() + print::previewPlaceText(app), "01000Record 2 of 4");
    for (const auto& c : table("All_As_Layouts -> r1|r2|r3|r4|.00010; Selected_As_Layouts -> r2|r4|.00010; "
                               "Print_All_As_Multiple_Layouts -> r1 r2 r3 r4|.00001; "
                               "Print_Selected_Multiple_Layouts -> r2 r4|.01011")) {
        select({2, 4, 5}); // 5 is the Totals row
        run(c[0].c_str());
        EXPECT_EQ(printed() + selection() + told(), c[1]) << c[0];
        EXPECT_TRUE(app.document.LV.MultiSelect);
        platform.fileCancelled = true;
        run(c[0].c_str());
        platform.fileCancelled = false;
        platform.dialogAnswer.reset(); // cancelled
        run(c[0].c_str());
        platform.dialogAnswer = platform::PrintChoice{1, 1};
        EXPECT_EQ(printed() + told(), "");
    }
    select({2, 3});
    run("Multiple_Layout_Preview_Selected");
    EXPECT_EQ(wordsOf(preview()) + selection(), "r2 r301100");
    EXPECT_EQ(print::previewPlaceText(app), "Page 1 of 1");
    run("Print"); // as on show, without a dialog
    EXPECT_EQ(printed(), "r2 r3|.");
}

TEST_F(Layout, ThePrintDialogGivesTheDocumentItsPaper) {
    openRecords(1, "F|Name|1440|15700|2000|1000"); // what hangs over the bottom takes no other sheet
    shell::SSTab1_Click(app, app::layoutTab);
    for (const platform::PrintChoice choice : {platform::PrintChoice{9, 2}, {1, 1}}) {
        platform.dialogAnswer = choice;
        run("Print");
        EXPECT_EQ(platform.forms.back() + " " + platform.printed.paper,
                  choice.PaperSize == 9 ? "printer 1,1 16838,11906" : "printer 9,2 12240,15840");
        EXPECT_EQ(drawnOn(sheet(0)), "r1@1440,15700");
        EXPECT_EQ(printed(), "r1|.");
    }
    options.layoutPaperSize = 256; // the lengths of the database
    showLayoutPreview();
    EXPECT_EQ(placeOf(page.rptPreview1.Width, page.rptPreview1.Height), "5760,8640");
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
    EXPECT_EQ(drawnOn(preview()), wanted + "; .1440,0-1440,15840; .10800,0-10800,15840; .0,1440-12240,1440; "
                                           ".0,14400-12240,14400");
    EXPECT_EQ(print::previewPlaceText(app), "Page 1 of 2");
    EXPECT_EQ(turn("Next Next Last Back First Next"),
              "r41..r45>46; r1..r40>40; r6..r45>45; r1..r40>40; r1..r40>40; r41..r45>46; ");
    EXPECT_TRUE(print::previewPlaceText(app) == "Page 2 of 2" && !print::turnPreview(app, true));
    run("Print");
    EXPECT_EQ(drawnOn(sheet(0)), wanted);
    EXPECT_TRUE(printed().ends_with("r40/r41 r42 r43 r44 r45|."));
    openRecords(40, oneField);
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(platform.printed.ends, "|.") << "a full last page is the last";
    // The results are fewer than the records, whose count decides about the next sheet.
    openRecords(90, oneField);
    search::takeOverColumns(app.document);
    search::findRecords(app, {{{"Name", search::within, "r9", ""}}});
    printed();
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(told() + printed(), "r9 r90/|.");
}

// What sets the room that one layout takes, across and down.
TEST_F(Layout, TheExtentOfALayout) {
    // Beside the field, or without it; a label that is narrower counts.
    for (const auto& c : table(" -> 4,10; F|Name|3440|2440|1000|500 -> 2,7; L|x|1440|1440|900|300 -> 8,10; "
                               "LN|1440|3000|3000|75|0| -> 2,7; VLN|3500|1440|75|3000|0| -> 3,4; "
                               "B|1440|1440|4000|4000|0|1| -> 2,3; P|Name|1440|1440|4000|4000| -> 2,3; "
                               "C|a.gif|1440|1440|4000|4000| -> 2,3; F|Name|1440|1440|12000|1000 -> 0,10")) {
        openRecords(5, std::string(oneField) + ";" + c[0]);
        run("Multiple_Layout_Preview_All");
        EXPECT_EQ(placeOf(page.iLayoutCols, page.iLayoutRows), c[1]) << c[0];
    }
    EXPECT_EQ(turn("Next Last Back"), ">0; >5; >5; ");
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
