#include "fwkProgram.h"

#include <fstream>
#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace {

// What another program finds in a PDF file.
class PrintTest : public FwkTest {
protected:
    std::string askPdf(const std::string& command) const {
        const std::string line = "cd '" + files.string() + "' && " + command + " 2>&1";
        std::string answer;
        FILE* pipe = ::popen(line.c_str(), "r");
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) answer.push_back(static_cast<char>(c));
        ::pclose(pipe);
        return answer;
    }
    int pages(const std::string& file) const {
        const std::string info = askPdf("pdfinfo " + file);
        const std::size_t place = info.find("Pages:");
        return place == std::string::npos ? -1 : std::stoi(info.substr(place + 6));
    }
    std::string text(const std::string& file) const { return askPdf("pdftotext -layout " + file + " -"); }

    void SetUp() override {
        if (askPdf("pdfinfo -v").find("pdfinfo version") == std::string::npos)
            GTEST_SKIP() << "poppler-utils is not installed";
        if (!std::filesystem::exists(std::string(FWK_PROGRAM) + "-print"))
            GTEST_SKIP() << "this build does not print";
    }
};

TEST_F(PrintTest, TheReportHasAllRecords) {
    copyOf("books.fwk");
    const auto before = read(path("books.fwk"));
    EXPECT_EQ(outputOf("report books.fwk -o books.pdf"), "");
    EXPECT_EQ(read(path("books.fwk")), before);
    EXPECT_EQ(pages("books.pdf"), 1);
    const std::string words = text("books.pdf");
    for (const char* wanted :
         {"Books on the shelves", "Les Misérables", "Moby-Dick; or, The W  ", "$949.97", "------"})
        EXPECT_THAT(words, HasSubstr(wanted));
    EXPECT_THAT(words, Not(HasSubstr("The Whale"))) << "a text is cut to its column";
    EXPECT_THAT(words, Not(HasSubstr("lent to"))) << "a column that is not chosen";
    EXPECT_THAT(askPdf("pdfinfo books.pdf"), HasSubstr("612 x 792"));
    EXPECT_THAT(askPdf("pdffonts books.pdf"), HasSubstr("Mono"));

    outputOf("report books.fwk -o books.pdf --columns Notes,Title --title Mine");
    const std::string chosen = text("books.pdf");
    EXPECT_THAT(chosen, HasSubstr("Mine"));
    EXPECT_THAT(chosen, HasSubstr("lent to a friend. l"));
    EXPECT_THAT(chosen, Not(HasSubstr("$949.97")));
}

TEST_F(PrintTest, AReportOfManyRecordsHasThemAll) {
    copyOf("packages-32000.fwk");
    const Outcome outcome = run("report packages-32000.fwk -o big.pdf --columns Package,Bytes");
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_LT(outcome.maxKilobytes, 300'000);
    EXPECT_GT(pages("big.pdf"), 400);
    EXPECT_GT(std::ranges::count(text("big.pdf"), '\n'), 32000);
}

TEST_F(PrintTest, LayoutsComeOneToAPageOrMany) {
    copyOf("books.fwk");
    outputOf("layouts books.fwk -o one.pdf");
    EXPECT_EQ(pages("one.pdf"), 42);
    EXPECT_THAT(text("one.pdf"), HasSubstr("Moby-Dick; or, The Whale"));
    EXPECT_THAT(askPdf("pdfimages -list -f 1 -l 1 one.pdf"), HasSubstr("image")) << "cover and clip art";
    runAll({"layouts books.fwk --many -o many.pdf", "layouts books.fwk --records i3,i1 -o two.pdf",
            "layouts books.fwk --many --records i2 -o label.pdf"});
    EXPECT_EQ(pages("many.pdf"), 14);
    EXPECT_EQ(pages("two.pdf"), 2);
    EXPECT_THAT(askPdf("pdftotext -f 1 -l 1 two.pdf -"), HasSubstr("Don Quijote"));
    EXPECT_EQ(pages("label.pdf"), 1);
    EXPECT_THAT(text("label.pdf"), HasSubstr("Les Misérables"));
    EXPECT_THAT(text("label.pdf"), Not(HasSubstr("Quijote")));
}

TEST_F(PrintTest, InvoicesPrintTheirRows) {
    copyOf("invoices.fwk");
    runAll({"layouts invoices.fwk -o invoices.pdf", "report invoices.fwk -o report.pdf"});
    EXPECT_THAT(text("invoices.pdf"), HasSubstr("Washer"));
    EXPECT_THAT(text("report.pdf"), HasSubstr("Ærø"));
}

TEST_F(PrintTest, RefusalsLeaveTheOldFile) {
    copyOf("books.fwk");
    std::ofstream(path("old.pdf")) << "old";
    DataFile wide;
    wide.layout = "F|Name|1440|1440|12000|1000|False|False|False|Arial|10|0|\r\n";
    make("wide.fwk", wide.text());
    expectRefused({{"report absent.fwk -o old.pdf", 1, "File not found"},
                   {"report books.fwk -o old.pdf --columns Prise", 1, "no column \"Prise\""},
                   {"layouts books.fwk -o old.pdf --records i1,i99", 1, "no record \"i99\""},
                   {"layouts books.fwk -o old.pdf --records Totals", 1, "no record \"Totals\""},
                   {"report books.fwk -o no/such/folder.pdf", 1, "folder.pdf"},
                   {"layouts wide.fwk -o old.pdf --many", 1, "wide.fwk: no layout fits on a sheet\n"},
                   {"report books.fwk", 2, "--output"}});
    // The last bytes are written when all has been drawn.
    const std::string narrow =
        "cd " + files.string() + " && ulimit -f 4 && " + FWK_PROGRAM + " report books.fwk -o old.pdf 2>why";
    EXPECT_EQ(WEXITSTATUS(std::system(narrow.c_str())), 1);
    EXPECT_THAT(read(path("why")), HasSubstr("File too large"));
    EXPECT_EQ(read(path("old.pdf")), "old");
}

} // namespace
