#include "fwkProgram.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using nlohmann::json;
using ::testing::HasSubstr;

namespace {

std::vector<std::string> columnOf(const std::string& records) {
    std::vector<std::string> cells;
    const json parsed = json::parse(records);
    for (const json& record : parsed["records"]) cells.push_back(record["cells"][0]);
    return cells;
}

// The entries of an archive but data.dat: name, comment and bytes, in their order.
std::vector<std::string> imagesOf(const std::filesystem::path& archive) {
    std::vector<std::string> images;
    platform::Zip Zip;
    Zip.OpenArchive(archive);
    for (int i = 0; i < Zip.FileCount(); ++i) {
        const std::string name = Zip.FileNameAt(i);
        if (name == "data.dat") continue;
        images.push_back(name + ":" + Zip.commentAt(i) + ":" + *Zip.readEntry(name, 1 << 20));
    }
    return images;
}

TEST_F(FwkTest, SortsInTheDirectionToldAndStoresTheOrder) {
    DataFile data;
    data.names = "Name|Qty|Price|Day|";
    data.types = "3|4|2|1|";
    data.widths = "1|1|1|1|";
    data.spots = "1|2|3|4|5|";
    data.rows = "b|9|$2.00|01/02/2001|\r\nA|10|$10.00|02/01/2000|\r\nc|-3|$.50|01/01/2001|\r\n"
                "a|10|$3.00|12/31/1999|\r\n------|26|$15.50|------|\r\n";
    make("rows.fwk", data.text());
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"Name", {"A", "a", "b", "c"}},
        {"name --descending", {"c", "b", "A", "a"}}, // equal ones keep their order
        {"Qty", {"b", "c", "A", "a"}},               // as padded texts: a sign sorts behind blanks
        {"Day", {"a", "A", "c", "b"}},
        {"Day --descending", {"b", "c", "A", "a"}},
    };
    for (const auto& [arguments, expected] : cases) {
        EXPECT_EQ(outputOf(std::string("sort rows.fwk ") + arguments), "");
        EXPECT_EQ(columnOf(outputOf("records rows.fwk --json --columns Name")), expected) << arguments;
    }
    const json records = json::parse(outputOf("records rows.fwk --json"));
    EXPECT_EQ(records["totals"], json::parse(R"(["------", "26", "$15.50", "------"])"));
    EXPECT_EQ(records["records"][0]["key"], "i1") << "keys count in the order of the file";
}

TEST_F(FwkTest, ASavedFileIsTheSameFile) {
    for (const char* name : {"books.fwk", "packages-500.fwk"}) {
        copyOf(name, "a.fwk");
        const std::string before = dataFileOf("a.fwk");
        const auto images = imagesOf(path("a.fwk"));
        // Neither the second name of the file nor the fact that it exists asks for --yes.
        outputOf("save-as a.fwk ../files/a.fwk");
        EXPECT_EQ(dataFileOf("a.fwk"), before) << name;
        EXPECT_EQ(imagesOf(path("a.fwk")), images) << name;
        outputOf("save-as a.fwk copy.fwk --yes");
        EXPECT_EQ(dataFileOf("copy.fwk"), before) << name;
        EXPECT_EQ(imagesOf(path("copy.fwk")), images) << name;
    }
    const json info = json::parse(outputOf("info a.fwk --json"));
    EXPECT_EQ(info["entries"][0]["comment"], "Main Data File");
}

TEST_F(FwkTest, AnInvoiceDatabaseKeepsItsRecordsAndItsStyle) {
    copyOf("invoices.fwk");
    const std::string before = outputOf("records invoices.fwk --json");
    outputOf("save-as invoices.fwk copy.fwk");
    EXPECT_EQ(outputOf("records copy.fwk --json"), before);
    outputOf("sort copy.fwk Invoice_No --descending");
    EXPECT_EQ(columnOf(outputOf("records copy.fwk --json --columns Invoice_No")),
              (std::vector<std::string>{"4", "3", "2", "1"}));
    EXPECT_EQ(json::parse(outputOf("info copy.fwk --json"))["style"], "invoice");
}

TEST_F(FwkTest, ACloneHasTheDesignAlone) {
    copyOf("books.fwk");
    copyOf("invoices.fwk", "taken.fwk");
    const std::string original = readBytes(path("books.fwk"));
    outputOf("clone books.fwk taken.fwk --yes");
    EXPECT_EQ(readBytes(path("books.fwk")), original);
    json info = json::parse(outputOf("info taken.fwk --json"));
    EXPECT_EQ(info["records"], 0);
    EXPECT_EQ(info["serials"]["No"], "0");
    EXPECT_EQ(info["entries"].size(), 1U) << "images do not go along";
    const json source = json::parse(outputOf("info books.fwk --json"));
    for (const char* key : {"columns", "formulas", "layout", "locks", "totaledCols", "reportData"})
        EXPECT_EQ(info[key], source[key]) << key;
}

TEST_F(FwkTest, CharactersStayInTheCodePageThatHoldsThem) {
    DataFile data;
    data.rows = "\xC6r\xF8 \x80\x81|1||\r\nb|2||\r\n------|3||\r\n";
    make("western.fwk", data.text());
    data.rows = "\xEF\xBB\xBF";
    DataFile utf8;
    utf8.rows = "\xD0\x96|1||\r\nb|2||\r\n------|3||\r\n";
    make("other.fwk", "\xEF\xBB\xBF" + utf8.text());
    for (const char* name : {"western.fwk", "other.fwk"}) {
        const std::string before = dataFileOf(name);
        outputOf(std::string("sort ") + name + " Qty --descending");
        EXPECT_NE(dataFileOf(name), before) << name;
        outputOf(std::string("sort ") + name + " Qty");
        const std::string after = dataFileOf(name);
        EXPECT_EQ(after.substr(after.find("[Begin")), before.substr(before.find("[Begin"))) << name;
        EXPECT_EQ(after.starts_with("\xEF\xBB\xBF"), before.starts_with("\xEF\xBB\xBF")) << name;
    }
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
    for (const rlim_t bytes : {0, 4096, 1'000'000}) {
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
