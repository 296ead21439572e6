#include "labels/labelPrinting.h"
#include "app/fileSettings.h"
#include "labels/labelFrm.h"
#include "print/layoutPrinting.h"
#include "print/previewPlace.h"
#include "printRecorder.h"
#include "shell/undo.h"
#include "table.h"

#include <fstream>

namespace {

std::vector<labels::LabelStock> knownStocks() {
    std::ifstream file(SAMPLES_DIR "/../stocks/labels.tsv");
    return labels::readLabelStocks(std::string(std::istreambuf_iterator<char>(file), {}));
}

// A sheet of two by three labels, a millimetre apart.
constexpr const char* smallSheet = "Maker\tsmall\tLabels\tA4\t2\t3\t80\t40\t10\t20\t81\t41\trectangle";

struct Labels : testing::Test, PrintProgram {
    print::PreviewPage& page = print::previewPage(app);

    labels::LabelChoice prepare(const labels::LabelStock& stock, std::vector<std::string> lines) {
        labels::LabelDesign design =
            labels::designLabel(app.document, stock, {std::move(lines), {}, 0, false}, platform.metrics);
        labels::placeDesign(app, design);
        app.document.layoutOptions = labels::labelPage(stock);
        labels::LabelChoice choice;
        choice.stock = stock;
        return choice;
    }
    void keep(const labels::LabelChoice& choice) { EXPECT_TRUE(labels::keepLabelChoice(app, choice)); }
    // How far the labels of the first sheet are from the stock's places, in twips; -1: too few.
    float furthest(const labels::LabelStock& stock) {
        platform.printed = {};
        page.iLayoutIndex = 0;
        RecordingPrinter printer(platform.printed);
        printer.measureWith(platform.metrics);
        app.mainFrm.theListView->MultiSelect = false;
        print::PrintMultipleLayouts(app, printer);
        const core::LayoutField& field = app.document.layout.layoutField[1];
        const core::LayoutOptions options = labels::labelPage(stock);
        float furthest = 0;
        if (std::ssize(sheet(0)) != stock.perSheet()) return -1;
        for (int n = 1; n <= stock.perSheet(); ++n) {
            const auto& text = std::get<drawing::DrawnText>(sheet(0).at(static_cast<std::size_t>(n - 1)));
            const auto corner = stock.position(n);
            furthest = std::max({furthest,
                                 std::abs(text.Left - (field.Left - options.layoutLeftMargin * 1440) -
                                          static_cast<float>(corner.left)),
                                 std::abs(text.Top - (field.Top - options.layoutTopMargin * 1440) -
                                          static_cast<float>(corner.top))});
        }
        return furthest;
    }
};

TEST_F(Labels, StandWhereTheStockHasThemAndWithoutItWhereTheFileSaysSo) {
    constexpr float tenthOfMillimetre = 5.67F;
    openRecords(250);
    int all = 0, kept = 0;
    const auto stocks = knownStocks();
    for (std::size_t i = 0; i < stocks.size(); i += 7) {
        const labels::LabelStock& stock = stocks[i];
        if (stock.perSheet() > 250 || stock.shape == labels::LabelShape::Cd) continue;
        const labels::LabelChoice choice = prepare(stock, {"{Name}"});
        const auto off = labels::deviation(stock, app.document.layout);
        keep(choice);
        const float byStock = furthest(stock);
        EXPECT_TRUE(byStock >= 0 && byStock < 1) << stock.maker << " " << stock.number << " " << byStock;
        labels::keepLabelChoice(app, std::nullopt);
        const float byFile = furthest(stock);
        const bool isExact = byFile >= 0 && byFile <= tenthOfMillimetre;
        EXPECT_EQ(isExact, off && *off <= 0.1) << stock.maker << " " << stock.number << " " << byFile;
        ++all;
        kept += isExact ? 1 : 0;
    }
    EXPECT_GT(all, 100);
    EXPECT_GT(kept * 2, all); // most sheets need nothing beside the file
}

TEST_F(Labels, StartCopiesAndOutlinesAreAsChosen) {
    open(DataFile("Name Many:4", "r1|2;r2|;r3|x;r4|-1;r5|1"));
    labels::LabelChoice choice = prepare(*labels::labelStockOf(smallSheet), {"{Name}"});
    const auto print = [&] {
        keep(choice);
        run("Print_All_As_Multiple_Layouts");
        platform.printed.paper.clear();
        return printed();
    };
    EXPECT_EQ(print(), "r1 r2 r3 r4 r5|.");
    choice.start = 5;
    EXPECT_EQ(print(), "r1 r2/r3 r4 r5|.");
    choice.copies = 2;
    EXPECT_EQ(print(), "r1 r1/r2 r2 r3 r3 r4 r4/r5 r5|.");
    // In the preview, which begins with the used places.
    run("Multiple_Layout_Preview_All");
    EXPECT_EQ(turn("First Next Next Next Back Last"),
              "r1..r1>6; r2..r4>12; r5..r5>18; r1..r1>6; r1..r1>6; r5..r5>18; ");
    EXPECT_EQ(print::previewPlaceText(app) + (print::turnPreview(app, true) ? "!" : ""), "Page 3 of 3");
    choice.copiesColumn = "Many";
    EXPECT_EQ(print(), "r1 r1/r5|.");
    EXPECT_EQ(labels::aboutLabels(choice, labels::countLabels(app, choice, false)),
              "3 labels on 2 sheets.  3 records have no number above 0 there: no label.");
    choice.copiesColumn.clear();
    keep(choice);
    select({2, 4});
    run("Print_Selected_Multiple_Layouts");
    EXPECT_EQ(printed().substr(0, 12), "r2 r2/r4 r4|");
    for (int row = 1; row <= 5; ++row) EXPECT_EQ(app.document.LV.at(row).Selected, row == 2 || row == 4);
    choice.bOutlines = true;
    keep(choice);
    run("Multiple_Layout_Preview_All");
    EXPECT_EQ(drawnOn(preview()).substr(0, 50), "567,1134 4535,2268 1,8421504; 5159,1134 4535,2268 ");
    drawing::RecordedPage round;
    choice.stock.shape = labels::LabelShape::Ellipse;
    labels::drawOutline(choice.stock, round, 567, 1134, drawing::LineStyle::Dotted);
    EXPECT_EQ(drawnOn({round.drawn().at(0), round.drawn().at(18), round.drawn().at(71)}),
              ".5102,2268-5094,2367; .2835,3402-2637,3397; .5094,2169-5102,2268");
    // Other margins, and the layout prints as any other one.
    app.document.layoutOptions.layoutLeftMargin += 0.1F;
    EXPECT_FALSE(labels::labelChoice(app));
}

TEST_F(Labels, TooManyAreRefusedAndALongPrintCanBeGivenUp) {
    open(DataFile("Name Many:4", "r1|1e9;r2|1000"));
    for (int i = 0; i < 200; ++i) record({"more", "1000"});
    labels::LabelChoice choice = prepare(*labels::labelStockOf(smallSheet), {"{Name}"});
    choice.copiesColumn = "Many";
    keep(choice);
    run("Print_All_As_Multiple_Layouts");
    EXPECT_TRUE(
        told().ends_with("That would be 202000 labels.  At most 100000 are printed at a time.  Select "
                         "fewer records."));
    choice.copiesColumn.clear();
    keep(choice);
    printed();
    platform.givesUpAt = 10;
    run("Print_All_As_Multiple_Layouts");
    EXPECT_EQ(told(), "");
    EXPECT_EQ(printed().find('.'), std::string::npos); // no file takes the old one's place
    for (const auto& c :
         table("0\t40\t2\t3 -> ; 80\t40\t200\t200 -> ; 1\t1\t150\t150 -> ; 1\t1\t90\t90 -> x")) {
        const std::string size = core::replaceAll(c[0], "\t", " ");
        const auto n = core::split(c[0], '\t');
        std::string line = "M\t1\tL\tA4\t";
        line.append(n[2]).append("\t").append(n[3]).append("\t").append(n[0]).append("\t").append(n[1]);
        EXPECT_EQ(labels::labelStockOf(line + "\t0\t0\t1\t1\trectangle").has_value(), c[1] == "x") << size;
    }
}

// Texts of 10 points: a character is 100 wide and a line 200 high.
TEST_F(Labels, EmptyLinesAndLonelyWordsAreLeftOut) {
    for (const auto& c :
         table("Ann|Way 1|12|Ny|AL -> {A},{B},{C} {D} -> Ann@0,0, Way 1@0,200, 12@0,400,  Ny@200,400; "
               "Ann||12|Ny|AL -> {A},{B},{C} {D} -> Ann@0,0, 12@0,200,  Ny@200,200; "
               "Ann||12||AL -> {D}# {E} -> AL@0,0; Ann|||Ny| -> {D}# {E} -> Ny@0,0; "
               "Ann|||Ny|AL -> {D}# {E} -> Ny@0,0, #@200,0,  AL@300,0; ||||x -> Tel: {E} -> Tel:@0,0,  "
               "x@400,0; "
               "Ann|||| -> Tel: {E},{A} -> Ann@0,0; Ann|||| -> Words,{A} -> Words@0,0, Ann@0,200",
               3)) {
        open(DataFile("A B C D E", c[0]));
        std::vector<std::string> lines;
        for (const std::string_view line : core::split(c[1], ',')) lines.emplace_back(line);
        const labels::LabelStock stock = *labels::labelStockOf(smallSheet);
        labels::LabelDesign design =
            labels::designLabel(app.document, stock, {lines, {}, 10, false}, platform.metrics);
        float left = 9000, top = 9000;
        design.objects.tLabel.forEach([&](const core::Label& label) {
            left = std::min(left, label.Left);
            top = std::min(top, label.Top);
        });
        design.objects.layoutField.forEach([&](core::LayoutField& field) {
            left = std::min(left, field.Left);
            top = std::min(top, field.Top);
            field.Text = cell(1, field.Tag.c_str());
        });
        drawing::RecordedPage target;
        target.measureWith(platform.metrics);
        target.setPage({});
        labels::drawLabel(app, design.objects, target, -left, -top, true, 9000);
        EXPECT_EQ(core::replaceAll(drawnOn(target.drawn()), "; ", ", "), c[2]) << c[0] << " in " << c[1];
    }
}

TEST_F(Labels, TheWizardSetsAPageAndADesignInOneStep) {
    openRecords(3, "F|Name|1440|1440|2000|1000");
    app.rooms.of<labels::LabelOpening>().stocks = knownStocks();
    shell::beforeEvent(app);
    platform.onForm = [&](std::string_view) {
        labels::labelFrm form(app);
        form.searchTxt_Change("avery l7163");
        form.nextBtn_Click();
        form.linesTxt_Change("To {Name}");
        EXPECT_EQ(wordsOf(form.preview.drawn()), "To  r1");
        form.nextBtn_Click();
        form.startTxt_Change(99); // the last place
        form.nextBtn_Click();     // the layout has an object, and the question is waved away
        EXPECT_FALSE(form.unloaded);
        platform.choices = {0};
        form.nextBtn_Click();
        EXPECT_TRUE(form.unloaded);
    };
    run("mnuLabels");
    shell::afterEvent(app);
    EXPECT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(wordsOf(preview()), "To  r1");
    EXPECT_EQ(app.document.layout.layoutField[1].Tag, "Name");
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 9);
    EXPECT_EQ(app.mainFrm.control("mnuUndo").Caption, "&Undo Label Wizard");
    run("mnuUndo");
    EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, 1);
    EXPECT_EQ(app.document.layout.layoutField[1].Left, 1440);
    EXPECT_FALSE(labels::labelChoice(app));                 // the design that it was for is gone
    EXPECT_EQ(labels::labelFrm(app).linesTxt, "To {Name}"); // of the last time
    app.document.lockPassword = "x";
    platform.forms.clear();
    run("mnuLabels");
    EXPECT_TRUE(platform.forms.empty());
}

} // namespace
