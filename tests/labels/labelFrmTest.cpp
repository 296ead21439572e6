#include "labels/labelFrm.h"
#include "file/layoutLines.h"
#include "printRecorder.h"
#include "table.h"
#include "transcript.h"

namespace {

// Behind acts stands what is on view then: of the sheet its line of the table; of the label its record, its
// size and what is drawn; of the print what is said of it. "<" and ">" are the buttons that can be pressed.
struct Wizard : testing::Test, PrintProgram {
    std::optional<labels::labelFrm> form;

    void openWizard(const std::string& objects = {}) {
        platform.pictures["bolt.jpg"] = {3000, 1500};
        const std::string records =
            "Ann|2|bolt.jpg|05/04/2001|$1.50;Bob|x|||$2.00;A long name of a person|2000|gone.jpg||";
        const DataFile file = DataFile("Name Qty:4 Photo:7 Made:1 Price:2", records).objects(objects);
        open(make("cards.fwk", file.text(), {"bolt.jpg"}));
        app.rooms.of<labels::LabelOpening>().stocks =
            labels::readLabelStocks("\nMaker\t1\tLabels\tA4\t2\t3\t80\t40\t10\t20\t81\t41\trectangle\n"
                                    "Maker\t2\tDiscs\tA4\t1\t2\t100\t100\t20\t20\t100\t110\tcd\n"
                                    "Maker\t3\tRound\tA4\t3\t4\t50\t50\t10\t20\t60\t60\tround");
        form.emplace(app);
    }
    void act(const std::string& words) {
        const std::string what = words.substr(0, words.find(' '));
        const std::string text = what == words ? "" : words.substr(what.size() + 1);
        const auto in = [&](const std::vector<std::string>& list) {
            return static_cast<int>(std::ranges::find(list, text) - list.begin());
        };
        const std::map<std::string, std::function<void()>> acts = {
            {"open", [&] { form.emplace(app); }},
            {"search", [&] { form->searchTxt_Change(text); }},
            {"entry", [&] { form->List1_Click(std::stoi(text)); }},
            {"own", [&] { form->ownChk_Click(text == "on"); }},
            {"box", [&] { form->ownTxt_Change(std::stoi(text), text.substr(2)); }},
            {"paper", [&] { form->paperCbo_Click(in(form->paperCbo)); }},
            {"lines", [&] { form->linesTxt_Change(core::replaceAll(text, "/", "\n")); }},
            {"picture", [&] { form->pictureCbo_Click(in(form->pictureCbo)); }},
            {"size", [&] { form->sizeCbo_Click(in(form->sizeCbo)); }},
            {"centred", [&] { form->centredChk_Click(text == "on"); }},
            {"record", [&] { form->recordBtn_Click(std::stoi(text)); }},
            {"start", [&] { form->startTxt_Change(std::stoi(text)); }},
            {"copies", [&] { form->copiesTxt_Change(std::stoi(text)); }},
            {"of", [&] { form->copiesCbo_Click(in(form->copiesCbo)); }},
            {"outlines", [&] { form->outlinesChk_Click(text == "on"); }},
            {"closed", [&] { form->closedUpChk_Click(text == "up"); }},
            {"back", [&] { form->backBtn_Click(); }},
            {"next", [&] { form->nextBtn_Click(); }}};
        acts.at(what)();
    }
    std::string play(const std::string& script) {
        for (const auto& each : table(script, 1)) act(each[0]);
        const std::string tooLong = ": the longest texts are printed smaller, or are cut at the edge";
        const std::array pages = {
            form->stock ? core::replaceAll(labels::labelStockLine(*form->stock), "\t", "|") : std::string(),
            form->recordLbl + " " + core::replaceAll(form->sizeLbl, tooLong, "!") + " " +
                drawnOn(form->preview.drawn()),
            form->aboutLbl + " " + form->exactLbl.substr(0, 19)};
        return "$ " + script + "\n" + (form->unloaded ? "over" : pages.at(std::size_t(form->page))) +
               form->fault + (form->backEnabled ? " <" : "") + (form->nextEnabled ? " >\n" : "\n");
    }
};

TEST_F(Wizard, ShowsTheSheetTheLabelAndItsPrint) {
    openWizard();
    platform.choices = {0};
    platform.metrics.blank = 0.55F; // as in most fonts
    expectTranscript(R"(
$ search no such -> No sheet of labels is called so, or has labels of that size.
$ search; entry 2 -> Maker|3|Round|A4|3|4|50|50|10|20|60|60|round >
$ search discs; own on; box 0 33,5; box 1 -1 -> "-1" is no length or number.
$ box 1 20; box 2 x -> "x" is no length or number.
$ box 2 0 -> Labels of this size and number do not find room on the paper.  There are 10000 on a sheet at most.
$ box 2 4; box 3 3; box 4 5; box 5 6.5; box 6 1.25; box 7 2; paper A5
Own size|33,5 x 20|Labels|A5|4|3|33.5|20|5|6.5|34.75|22|rectangle >
$ own off -> Maker|2|Discs|A4|1|2|100|100|20|20|100|110|cd >
$ own on; box 7 0 -> Own size|100 x 100|Labels|A4|1|2|100|100|20|20|100|100|rectangle >
$ own off; search maker 1; next; lines {Name} from {Price}/{Made}; record 1
Record 2 of 3. Text of 14 points Bob@159,159 Arial 14  0;  from@579,159;  $2.00@1216,159 < >
$ lines {Name -> Record 2 of 3.  A column is written in braces: {Name}. <
$ lines {Photo} -> Record 2 of 3.  There is no column "Photo" whose text could be printed. <
$ lines {Name} {Name} -> Record 2 of 3.  The column "Name" stands on the label twice. <
$ lines words -> Record 2 of 3.  Choose at least one column for the label. <
$ record -9; size 12 points; centred on; picture Photo; lines {Name} {Qty}
Record 1 of 3. Text of 12 points! Ann@1644,1014 Arial 12  0;  2@2004,1014; 159,783 1405,702 < >
$ lines / -> Record 1 of 3. Text of 12 points 847,464 3000,1500 < >
$ picture None; lines {Name}//; size 36 points; record 9; back; search discs; next
Record 3 of 3. Text of 36 points! A long name of a @1417,831 Arial 27  0 < >
$ size As large as fits; back; search round; next
Record 3 of 3. Text of 9.5 points A long name of a person@425,1322 Arial 9.5  0 < >
$ lines {Name}/to {Qty}; size 10 points; picture Photo; record -2; next; closed apart; start 13; copies 0
3 labels on 2 sheets. The database itself < >
$ copies 3; start 0 -> 9 labels on 1 sheet. The database itself < >
$ start 12; copies 1001 -> 3000 labels on 251 sheets. The database itself < >
$ of Qty
1002 labels on 85 sheets.  1 record has no number above 0 there: no label.  1 record asks for more than 1000, which is the most. The database itself < >
$ of the same number of each record; copies 2; outlines on; next -> over < >
# Proposed the next time, until another sheet and print are chosen.
$ open; next
Record 1 of 3. Text of 10 points! Ann@1299,1217; 2@2309,1417; to@1299,1417; 426,1252 660,330 < >
$ back; own on; box 6 25; box 7 0; next; centred off; closed up
Record 1 of 3. Text of 10 points! Ann@1087,170; to@1087,370;  2@1287,370; 171,1210 831,415 < >
$ next -> 6 labels on 2 sheets. The database cannot < >
$ of Price; next; open -> Own size|50 x 50|Labels|A4|3|4|50|50|10|20|75|50|rectangle >
)",
                     [this](const std::string& script) { return play(script); });
    EXPECT_TRUE(form->copiesIndex == 3 && form->choice.copies == 2 && form->choice.start == 12 &&
                form->choice.bOutlines && form->choice.bClosedUp && form->pictureIndex == 1 &&
                form->sizeIndex == 5 && !form->bCentred);
}

// What is designed comes along to the corner of the label, and not beyond the paper's.
TEST_F(Wizard, MovesALayoutThatIsKept) {
    openWizard("LN|1440|50|500|75|16777215|;B|100|2000|500|500|0|1|;C|art.gif|1640|1740|600|600|");
    app.document.layoutOptions.layoutLeftMargin = app.document.layoutOptions.layoutTopMargin = 1;
    platform.choices = {1};
    play("search maker 1; next; lines {Qty}; next; next");
    std::string lines;
    file::writeLayoutLines(lines, app.document.layout, "; ");
    EXPECT_EQ(lines, "LN|538|0|500|75|16777215|; B|0|1665|500|500|0|1|; C|art.gif|738|1405|600|600|; ");
}

} // namespace
