#include "labels/labelFrm.h"
#include "core/objectRef.h"
#include "printRecorder.h"
#include "table.h"
#include "transcript.h"

namespace {

constexpr const char* smallLabels = "Maker\t1\tLabels\tA4\t2\t3\t80\t40\t10\t20\t81\t41\trectangle";

// The Label Wizard in front of a person. Behind acts stands what is on view then: of the sheet its line of
// the table; of the label its record, its size and what is drawn; of the print what is said of it. "<" and
// ">" are the buttons that can be pressed.
struct Wizard : testing::Test, PrintProgram {
    std::optional<labels::labelFrm> form;

    void openWizard(const std::string& objects = {}) {
        platform.pictures["bolt.jpg"] = {3000, 1500};
        DataFile file(
            "Name Qty:4 Photo:7 Made:1 Price:2",
            "Ann|2|bolt.jpg|05/04/2001|$1.50;Bob|x|||$2.00;A long name of a person|2000|gone.jpg||");
        open(make("cards.fwk", file.objects(objects).text(), {"bolt.jpg"}));
        app.rooms.of<labels::LabelOpening>().stocks =
            labels::readLabelStocks(std::string("\n") + smallLabels +
                                    "\nMaker\t2\tDiscs\tA4\t1\t2\t100\t100\t20\t20\t100\t110\tcd\n"
                                    "Maker\t3\tRound\tA4\t3\t4\t50\t50\t10\t20\t60\t60\tround");
        form.emplace(app);
    }
    void act(const std::string& words) {
        const std::size_t blank = std::min(words.find(' '), words.size() - 1);
        const std::string text = words.substr(blank + 1);
        const auto number = [&] { return std::stoi(text); };
        const auto place = [&](const std::vector<std::string>& list) {
            return static_cast<int>(std::ranges::find(list, text) - list.begin());
        };
        const std::map<std::string, std::function<void()>> acts = {
            {"open", [&] { form.emplace(app); }},
            {"search", [&] { form->searchTxt_Change(text == "all" ? "" : text); }},
            {"entry", [&] { form->List1_Click(number()); }},
            {"own", [&] { form->ownChk_Click(text == "on"); }},
            {"box", [&] { form->ownTxt_Change(number(), text.substr(2)); }},
            {"paper", [&] { form->paperCbo_Click(place(form->paperCbo)); }},
            {"lines", [&] { form->linesTxt_Change(core::replaceAll(text, "/", "\n")); }},
            {"picture", [&] { form->pictureCbo_Click(place(form->pictureCbo)); }},
            {"size", [&] { form->sizeCbo_Click(place(form->sizeCbo)); }},
            {"centred", [&] { form->centredChk_Click(text == "on"); }},
            {"record", [&] { form->recordBtn_Click(number()); }},
            {"start", [&] { form->startTxt_Change(number()); }},
            {"copies", [&] { form->copiesTxt_Change(number()); }},
            {"of", [&] { form->copiesCbo_Click(place(form->copiesCbo)); }},
            {"outlines", [&] { form->outlinesChk_Click(text == "on"); }},
            {"closed", [&] { form->closedUpChk_Click(text == "up"); }},
            {"answer", [&] { platform.choices = {number()}; }},
            {"back", [&] { form->backBtn_Click(); }},
            {"next", [&] { form->nextBtn_Click(); }}};
        acts.at(words.substr(0, words.find(' ')))();
    }
    std::string shown() const {
        std::string all;
        if (form->page == labels::labelFrm::SheetPage && form->stock)
            all = core::replaceAll(labels::labelStockLine(*form->stock), "\t", "|");
        if (form->page == labels::labelFrm::TextPage)
            all = form->recordLbl + " " + form->sizeLbl + " " + drawnOn(form->preview.drawn());
        if (form->page == labels::labelFrm::PrintPage)
            all = form->aboutLbl + " " + form->exactLbl.substr(0, 19);
        if (form->unloaded) all = "over";
        return all + form->fault + (form->backEnabled ? " <" : "") + (form->nextEnabled ? " >" : "");
    }
    void expectShown(std::string_view transcript) {
        expectTranscript(core::replaceAll(transcript, "\\\n", ""), [this](const std::string& acts) {
            for (const auto& each : table(acts, 1)) act(each[0]);
            return "$ " + acts + "\n" + core::replaceAll(shown(), ": the longest texts are printed", ":") +
                   "\n";
        });
    }
};

TEST_F(Wizard, TheSheetIsFoundOrDescribed) {
    openWizard();
    expectShown(R"(
$ search all; entry 2 -> Maker|3|Round|A4|3|4|50|50|10|20|60|60|round >
$ search no such -> No sheet of labels is called so, or has labels of that size.
$ search discs; own on; box 0 33,5; box 1 -1 -> "-1" is no length or number.
$ box 1 20; box 2 x -> "x" is no length or number.
$ box 2 0 -> Labels of this size and number do not find room on the paper.  There are 10000 on a sheet at most.
$ box 2 4; box 3 3; box 4 5; box 5 6.5; box 6 1.25; box 7 2; paper A5
Own size|33,5 x 20|Labels|A5|4|3|33.5|20|5|6.5|34.75|22|rectangle >
$ own off -> Maker|2|Discs|A4|1|2|100|100|20|20|100|110|cd >
$ own on; box 7 0 -> Own size|100 x 100|Labels|A4|1|2|100|100|20|20|100|100|rectangle >
)");
}

TEST_F(Wizard, TheLabelIsShownAndItsPrintIsTold) {
    openWizard();
    expectShown(R"(
$ search maker 1; next
Record 1 of 3. Text of 14 points Ann@159,159 Arial 14  0; 2@159,439; 05/04/2001@159,719 < >
$ lines {Name} from {Price}/{Made}; record 1
Record 2 of 3. Text of 14 points Bob@159,159 Arial 14  0;  from@579,159;  $2.00@1279,159 < >
$ record 5 -> Record 3 of 3. Text of 14 points A long name of a person@159,159 Arial 14  0 < >
$ record -9; size 12 points; centred on; lines {Name}/{Made}
Record 1 of 3. Text of 12 points Ann@159,894 Arial 12  0; 05/04/2001@159,1134 < >
$ picture Photo; lines {Name} from {Price}
Record 1 of 3. Text of 12 points: smaller, or are cut at the edge Ann@1644,1014 Arial 12  0;  from@2004,1014; \
 $1.50@2604,1014; 159,783 1405,702 < >
$ lines / -> Record 1 of 3. Text of 12 points 847,464 3000,1500 < >
$ picture None -> Record 1 of 3.  Choose at least one column for the label. <
$ lines {Name}//; size 36 points; record 9
Record 3 of 3. Text of 36 points: smaller, or are cut at the edge A long name of a@159,774 Arial 27  0 < >
$ back; search discs; next
Record 3 of 3. Text of 36 points: smaller, or are cut at the edge A long name of @1417,831 Arial 27  0 < >
$ size As large as fits; back; search round; next
Record 3 of 3. Text of 8.5 points A long name of a person@425,1332 Arial 8.5  0 < >
$ lines {Name}/to {Qty}; size 10 points; picture Photo; next -> 3 labels on 1 sheet. The database itself < >
$ closed apart; back; record -2
Record 1 of 3. Text of 10 points: smaller, or are cut at the edge Ann@1299,1217; 2@2309,1417; to@1299,1417; \
426,1252 660,330 < >
$ next; start 13; copies 3 -> 9 labels on 2 sheets. The database itself < >
$ copies 0; start 0 -> 3 labels on 1 sheet. The database itself < >
$ start 12; copies 1001 -> 3000 labels on 251 sheets. The database itself < >
$ of Qty
1002 labels on 85 sheets.  1 record has no number above 0 there: no label.  1 record asks for more than 1000, \
which is the most. The database itself < >
$ of the same number of each record; copies 2; outlines on -> 6 labels on 2 sheets. The database itself < >
$ next -> over < >
# Proposed the next time, until another sheet and print are chosen.
$ open -> Maker|3|Round|A4|3|4|50|50|10|20|60|60|round >
$ next
Record 1 of 3. Text of 10 points: smaller, or are cut at the edge Ann@1299,1217; 2@2309,1417; to@1299,1417; \
426,1252 660,330 < >
$ next -> 6 labels on 2 sheets. The database itself < >
$ back; back; own on; box 6 25; box 7 0; next; centred off; closed up
Record 1 of 3. Text of 10 points: smaller, or are cut at the edge Ann@1087,170; to@1087,370;  2@1287,370; \
171,1210 831,415 < >
$ next; of Price; copies 7; next
0 labels on 1 sheet.  3 records have no number above 0 there: no label. The database cannot < >
$ answer 0; next -> over < >
$ open -> Own size|50 x 50|Labels|A4|3|4|50|50|10|20|75|50|rectangle >
$ next; size As large as fits; next
0 labels on 1 sheet.  3 records have no number above 0 there: no label. The database cannot < >
)");
    EXPECT_TRUE(told().starts_with("? Label Wizard: The layout has 4 objects.") && told().empty());
    const labels::LabelChoice kept = labels::labelChoice(app).value();
    EXPECT_EQ(kept.copiesColumn + std::to_string(kept.copies) + std::to_string(kept.start), "Price712");
    EXPECT_TRUE(kept.bOutlines && kept.bClosedUp);
}

// What is designed comes along to the corner of the label, and not beyond the paper's.
TEST_F(Wizard, ALayoutThatIsKeptMoves) {
    openWizard("F|Name|1440|1540|1000|300;L|x|1640|1740|900|240;LN|1440|50|500|75|0|;VLN|1440|1550|75|500|0|;"
               "B|100|2000|500|500|0|1|;P|Photo|2440|2540|600|600|;C|art.gif|3440|3540|600|600|");
    app.document.layoutOptions.layoutLeftMargin = app.document.layoutOptions.layoutTopMargin = 1;
    for (const char* each : {"search maker 1", "next", "lines {Qty}", "next", "answer 1", "next"}) act(each);
    std::string places;
    for (const core::Family family : core::allFamilies)
        core::visitFamily(app.document.layout, family, [&](auto& array) {
            array.forEach([&](auto& each) { places += placeOf(each.Left, each.Top) + " "; });
        });
    EXPECT_EQ(places, "538,1205 738,1405 538,0 538,1215 0,1665 1538,2205 2538,3205 ");
    EXPECT_EQ(form->linesTxt, "{Qty}");
    EXPECT_EQ(labels::labelFrm(app).linesTxt, "{Name}\n{Qty}\n{Made}"); // it is not in use
}

// A blank of most fonts is half as wide as their letters.
struct NarrowBlanks : PlainMetrics {
    float textWidth(const drawing::TextFont& font, std::string_view text) override {
        const auto blanks = static_cast<float>(std::ranges::count(text, ' '));
        return PlainMetrics::textWidth(font, text) - blanks * font.FontSize * 4.5F;
    }
};

// However small the letters are, and however long the text of another record.
TEST_F(Wizard, BlanksBesideWordsStay) {
    NarrowBlanks metrics;
    for (const std::size_t longest : {2U, 30U, 80U, 400U})
        for (const float size : {0.F, 6.F, 8.F, 10.F, 14.F}) {
            open(DataFile("A B C", "Ann|7|y;" + std::string(longest, 'x') + "|2|z"));
            labels::LabelDesign design =
                labels::designLabel(app.document, *labels::labelStockOf(smallLabels),
                                    {{"To {A}, {B} is {C}"}, {}, size, false}, metrics);
            design.objects.layoutField.forEach(
                [&](core::LayoutField& field) { field.Text = cell(1, field.Tag.c_str()); });
            drawing::RecordedPage target;
            target.measureWith(metrics);
            target.setPage({});
            labels::drawLabel(app, design.objects, target, 0, 0, true, 9000);
            std::string all;
            for (const drawing::Drawn& each : target.drawn()) all += std::get<drawing::DrawnText>(each).text;
            EXPECT_EQ(all, "To Ann, 7 is y") << longest << " at " << size;
        }
}

} // namespace
