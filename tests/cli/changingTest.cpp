#include "fwkProgram.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

using ::testing::HasSubstr;

namespace {

TEST_F(FwkTest, SortsInTheDirectionToldAndStoresTheOrder) {
    DataFile data({{"Name", 3}, {"Qty", 4}, {"Price", 2}, {"Day", 1}});
    data.rows = "b|9|$2.00|01/02/2001|\r\nA|10|$10.00|02/01/2000|\r\nc|-3|$.50|01/01/2001|\r\n"
                "a|10|$3.00|12/31/1999|\r\n------|26|$15.50|------|\r\n";
    make("rows.fwk", data.text());
    const std::pair<const char*, const char*> cases[] = {
        {"Name", "i1|A|\ni2|a|\ni3|b|\ni4|c|\n"},              // keys count in the order of the file
        {"name --descending", "i1|c|\ni2|b|\ni3|A|\ni4|a|\n"}, // equal ones keep their order
        {"Qty", "i1|b|\ni2|c|\ni3|A|\ni4|a|\n"},               // as padded texts: a sign sorts behind blanks
        {"Day", "i1|a|\ni2|A|\ni3|c|\ni4|b|\n"},
        {"Day --descending", "i1|b|\ni2|c|\ni3|A|\ni4|a|\n"}};
    for (const auto& [arguments, expected] : cases) {
        EXPECT_EQ(outputOf(std::string("sort rows.fwk ") + arguments), "");
        EXPECT_EQ(rowsOf("records rows.fwk --columns Name"), std::string(expected) + "Totals|------|\n");
    }
    EXPECT_THAT(rows("rows.fwk"), HasSubstr("\nTotals|------|26|$15.50|------|\n"));
}

TEST_F(FwkTest, ASavedFileIsTheSameFile) {
    for (const char* name : {"books.fwk", "packages-500.fwk"}) {
        copyOf(name, "a.fwk");
        const auto before = entriesOf(path("a.fwk"), true);
        // Neither the second name of the file nor the fact that it exists asks for --yes.
        outputOf("save-as a.fwk ../files/a.fwk");
        EXPECT_EQ(entriesOf(path("a.fwk"), true), before) << name;
        outputOf("save-as a.fwk copy.fwk --yes");
        EXPECT_EQ(entriesOf(path("copy.fwk"), true), before) << name;
    }
    copyOf("invoices.fwk");
    outputOf("save-as invoices.fwk invoiceCopy.fwk");
    EXPECT_EQ(rows("invoiceCopy.fwk"), rows("invoices.fwk"));
    EXPECT_EQ(info("invoiceCopy.fwk", "/style"), "\"invoice\"");
}

TEST_F(FwkTest, ACloneHasTheDesignAlone) {
    copyOf("books.fwk");
    copyOf("invoices.fwk", "taken.fwk");
    const std::string original = read(path("books.fwk"));
    outputOf("clone books.fwk taken.fwk --yes");
    EXPECT_EQ(read(path("books.fwk")), original);
    const std::string clone = outputOf("info taken.fwk --json"), source = outputOf("info books.fwk --json");
    EXPECT_EQ(jsonAt(clone, "/records") + jsonAt(clone, "/serials/No"), "0\"0\"");
    EXPECT_EQ(jsonAt(clone, "/entries/1"), "(none)") << "images do not go along";
    for (const char* part :
         {"/columns", "/formulas", "/layout", "/locks", "/totaledCols", "/reportData", "/entries/0/comment"})
        EXPECT_EQ(jsonAt(clone, part), jsonAt(source, part));
}

TEST_F(FwkTest, AFailedSaveLeavesTheFileAsItWas) {
    copyOf("books.fwk");
    std::filesystem::permissions(path("books.fwk"), std::filesystem::perms(0444));
    auto before = state();
    Outcome outcome = run("sort books.fwk Price");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_THAT(outcome.err, HasSubstr("Ferrowick: There was an error writing to the file."));
    EXPECT_THAT(outcome.err, HasSubstr("\nfwk: books.fwk: could not be saved: it is read-only\n"));
    EXPECT_EQ(state(), before);

    copyOf("packages-32000.fwk", "large.fwk");
    before = state();
    // A limit on the size of files stands for a full disk.
    struct rlimit whole {};
    ::getrlimit(RLIMIT_FSIZE, &whole);
    for (const rlim_t bytes : {0, 1'000'000}) {
        const struct rlimit limit { bytes, whole.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const pid_t child = start({"sort", "large.fwk", "Bytes"});
        ::setrlimit(RLIMIT_FSIZE, &whole);
        outcome = finish(child);
        EXPECT_EQ(outcome.code, 1) << bytes << " signal " << outcome.signal;
        EXPECT_EQ(state(), before) << bytes;
    }
}

} // namespace
