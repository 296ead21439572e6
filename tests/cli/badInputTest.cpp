#include "fwkProgram.h"

#include <gmock/gmock.h>
#include <zip.h>

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

constexpr const char* commands[] = {"info %", "info % --json", "records %", "records % --json", "check %"};

class BadInput : public FwkTest {
protected:
    // Whatever the file is, no command crashes on it or changes anything by reading it; those that
    // change or copy it either do their work or fail, and then leave all as it was.
    void useAll(const std::string& name, const char* what) {
        const auto before = state();
        const std::string bytes = readBytes(path(name)); // each command finds the file as it was
        for (const std::string command : commands) {
            const Outcome outcome = run(std::string(command).replace(command.find('%'), 1, name));
            expectEnd(outcome, what + std::string(", ") + command);
            EXPECT_EQ(state(), before) << what << ", " << command;
        }
        for (const char* command :
             {"sort % A", "save-as % copy.fwk", "clone % clone.fwk", "recalculate %", "total %",
              "column add % Added:Number --auto", "add % Name=x", "update % i1 Name=y", "duplicate % i1 2",
              "delete % i1", "column remove % Name --yes"}) {
            const auto start = state();
            const std::string line = command;
            const Outcome outcome = run(std::string(line).replace(line.find('%'), 1, name));
            expectEnd(outcome, what + std::string(", ") + command);
            EXPECT_TRUE(outcome.code == 0 || state() == start) << what << ", " << command;
            std::filesystem::remove(path("copy.fwk"));
            std::filesystem::remove(path("clone.fwk"));
            std::ofstream(path(name), std::ios::binary) << bytes;
        }
        EXPECT_FALSE(std::filesystem::exists(files / ".." / "x.jpg")) << what;
    }

    static void expectEnd(const Outcome& outcome, const std::string& what) {
        EXPECT_TRUE(outcome.code == 0 || outcome.code == 1)
            << what << ": code " << outcome.code << ", signal " << outcome.signal << "\n"
            << outcome.err;
        EXPECT_TRUE(outcome.code == 0 || outcome.err.starts_with("fwk: ")) << what;
    }
};

std::string rowsOf(int count) {
    std::string rows;
    for (int i = 0; i < count; ++i) rows += "a|1|2|\r\n";
    return rows;
}

TEST_F(BadInput, FilesThatCannotBeOpened) {
    const std::string whole = DataFile{}.text();
    DataFile sameNames, tooManyRows, lessTypes, badLayout, noNumber;
    sameNames.names = "Name|NAME|Price|";
    tooManyRows.rows = rowsOf(40'000);
    lessTypes.types = "3|4|";
    badLayout.layout = "C|a.gif|1|2\r\n";
    noNumber.layout = "B|1|2|x|4|5|6|\r\n";
    const struct {
        const char* what;
        std::string bytes;
        const char* reason;
    } cases[] = {
        {"empty data.dat", "", "the text ends too early"},
        {"garbage", std::string(5000, '\xA5') + "\r\n\r\n[[[", "the text ends too early"},
        {"zeros", std::string(5000, '\0'), "the text ends too early"},
        {"cut in the layout", whole.substr(0, 8), "the text ends too early"},
        {"cut in the sections", whole.substr(0, whole.find("[Begin")), "the text ends too early"},
        {"two columns of one name", sameNames.text(), "NAME"},
        {"fewer types than columns", lessTypes.text(), "Price"},
        {"short layout line", badLayout.text(), "Subscript out of range"},
        {"no number", noNumber.text(), "\"x\" is no number"},
        {"40,000 rows", tooManyRows.text(), "it has more than 32767 records"},
    };
    for (const auto& c : cases) {
        make("bad.fwk", c.bytes);
        useAll("bad.fwk", c.what);
        for (const std::string command : commands) {
            const Outcome outcome = run(std::string(command).replace(command.find('%'), 1, "bad.fwk"));
            EXPECT_EQ(outcome.code, 1) << c.what << ", " << command;
            EXPECT_THAT(outcome.err, StartsWith("fwk: bad.fwk: ")) << c.what << ", " << command;
            EXPECT_THAT(outcome.err, HasSubstr(c.reason)) << c.what << ", " << command;
        }
    }
}

TEST_F(BadInput, WhatIsNoArchive) {
    const std::string whole = readBytes(std::string(TEST_DATA_DIR) + "/books.fwk");
    std::vector<std::pair<std::string, std::string>> cases = {
        {"no byte", ""}, {"text", "not an archive\n"}, {"wrong end", whole + std::string(100'000, 'x')}};
    for (const std::size_t length :
         {std::size_t{1}, std::size_t{4}, whole.size() / 2, whole.size() - 22, whole.size() - 1})
        cases.emplace_back("cut at " + std::to_string(length), whole.substr(0, length));
    std::string noData = whole;
    for (std::size_t at = noData.find("data.dat"); at != std::string::npos; at = noData.find("data.dat", at))
        noData[at] = 'D';
    cases.emplace_back("without data.dat", noData);
    std::string damaged = whole;
    damaged[300] ^= 0x55;
    cases.emplace_back("damaged data.dat", damaged);
    for (const auto& [what, bytes] : cases) {
        std::ofstream(path("bad.fwk"), std::ios::binary) << bytes;
        useAll("bad.fwk", what.c_str());
        EXPECT_EQ(run("info bad.fwk").code, 1) << what;
    }
}

TEST_F(BadInput, OddFilesThatOpen) {
    DataFile cut, shortAndLong, garbage;
    cut.rows = "a|1|2|\r\nb|2";
    shortAndLong.rows = "a|\r\n\r\nb|1|2|3|4|\r\nno separator\r\n------|------|------|\r\n";
    garbage.layout = "\x01\x02garbage|||\r\n";
    garbage.more = "[Future Thing  ]x|\r\nnoise\r\n[Locks         ]pBox,99999999999|nonsense|\r\n";
    const std::pair<const char*, DataFile*> cases[] = {
        {"cut in a row", &cut}, {"rows of all lengths", &shortAndLong}, {"garbage lines", &garbage}};
    for (const auto& [what, data] : cases) {
        make("odd.fwk", data->text());
        useAll("odd.fwk", what);
        EXPECT_EQ(run("info odd.fwk").code, 0) << what;
        EXPECT_EQ(run("check odd.fwk").code, 1) << what;
    }
}

// libzip itself takes every name.
TEST_F(BadInput, UnsafeEntriesStayInTheArchive) {
    DataFile data;
    data.layout = "C|../x.jpg|1|2|3|4|\r\nC|/etc/x.jpg|1|2|3|4|\r\n";
    const std::string text = data.text();
    zip_t* zip = zip_open(path("unsafe.fwk").c_str(), ZIP_CREATE, nullptr);
    const std::pair<const char*, std::string> entries[] = {{"data.dat", text},
                                                           {"../x.jpg", "evil"},
                                                           {"/etc/x.jpg", "evil"},
                                                           {"a/b.jpg", "evil"},
                                                           {"C:x.jpg", "evil"}};
    for (const auto& [name, bytes] : entries)
        zip_file_add(zip, name, zip_source_buffer(zip, bytes.data(), bytes.size(), 0), 0);
    ASSERT_EQ(zip_close(zip), 0);
    useAll("unsafe.fwk", "unsafe entries");
    const Outcome outcome = run("check unsafe.fwk");
    for (const char* name : {"../x.jpg", "/etc/x.jpg", "a/b.jpg", "C:x.jpg"})
        EXPECT_THAT(outcome.out,
                    HasSubstr("entry \"" + std::string(name) + "\" has a name that is never unpacked"));
}

// A small archive that unpacks to a lot, and a text that would take many times its size in memory.
TEST_F(BadInput, ABombIsRefusedWithinBounds) {
    constexpr std::size_t large = 40'000'000;
    DataFile separators, objects, rows;
    separators.more = "[InvoiceCols   ]" + std::string(large, '|') + "\r\n";
    for (std::size_t i = 0; i < large / 25; ++i) objects.layout += "F||0|0|0|0|0|0|0||0|0|\r\n";
    rows.rows = rowsOf(static_cast<int>(large / 8));
    std::string zeros;
    zeros.resize(300'000'000);
    const std::pair<const char*, std::string> cases[] = {{"zeros", zeros},
                                                         {"separators", separators.text()},
                                                         {"layout objects", objects.text()},
                                                         {"rows", rows.text()}};
    for (const auto& [what, text] : cases) {
        make("bomb.fwk", text);
        ASSERT_LT(std::filesystem::file_size(path("bomb.fwk")), 1'000'000U);
        const auto start = std::chrono::steady_clock::now();
        const Outcome outcome = run("info bomb.fwk");
        EXPECT_EQ(outcome.code, 1) << what << outcome.signal;
        EXPECT_LT(outcome.maxKilobytes, 1'000'000) << what;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << what;
    }
}

TEST_F(FwkTest, CheckNamesWhatIsWrong) {
    DataFile good, names, counts, order, rows;
    good.more = "[Totaled Cols  ]Qty|\r\n[Formulas      ]Price,Qty * ( 2.5 + Qty )|\r\n";
    names.names = "Name|Qty|Price|Photo|";
    names.types = "3|4|9|7|";
    names.widths = "1|1|1|1|";
    names.spots = "1|2|3|4|5|";
    names.layout = "F|Gone|1|1|1|1|False|False|False|A|8|0|\r\nP|Name|1|1|1|1|\r\nC|absent.gif|1|1|1|1|\r\n";
    names.more = "[Totaled Cols  ]Sum|\r\n[Printed Cols  ]Nme|\r\n[Formulas      ]Qty,Price * "
                 "Pieces|Value,Undefined|\r\n"
                 "[Increments    ]No,4|\r\n[Locks         ]pBox,1|layoutField,1|\r\n[Optioned Cols ]Day|\r\n";
    names.rows = "a|1|2|in.jpg|\r\nb|1|2|lost.jpg|\r\nc|1|2|lost.jpg|\r\nlast|1|2||\r\n";
    counts.types = "3|4|2|3|";
    counts.widths = "1|1|1|1|1|";
    counts.spots = "1|2|";
    counts.more = "[Column Names  ]Name|Qty|Price|\r\n";
    order.widths = "1440|1e9|1|";
    order.spots = "1|2|2|4|";
    rows.rows = "a|1|\r\nb|1|2|3|\r\nc|1|2\r\n------|------|------|\r\n";
    const struct {
        const char* what;
        const DataFile& data;
        const char* findings;
    } cases[] = {
        {"good", good, ""},
        {"names", names,
         "column \"Price\" has the unknown type \"9\"\n"
         "totaledCols names \"Sum\", which is no column\n"
         "optionedCols names \"Day\", which is no column\n"
         "printedCols names \"Nme\", which is no column\n"
         "a serial counter names \"No\", which is no column\n"
         "the formula of \"Qty\" names \"Pieces\", which is no column\n"
         "a formula names \"Value\", which is no column\n"
         "layoutField 1 names \"Gone\", which is no column\n"
         "imgHolder 1 names \"Name\", which is no Picture column\n"
         "clipPic 1 names the image \"absent.gif\", which is not in the archive\n"
         "a lock names \"pBox,1\", which is not on the layout\n"
         "i2 in \"Photo\" names the image \"lost.jpg\", which is not in the archive\n"
         "the last row is no Totals row: it has \"last\" in \"Name\"\n"
         "nothing names the image \"orphan.jpg\"\n"},
        {"counts", counts,
         "line 8: section [Column Names  ] is there twice\n"
         "section [Column Types  ] has 4 elements in place of 3\n"
         "section [Column Widths ] has 5 elements in place of 3\n"
         "section [Column Spots  ] has 2 elements in place of 4\n"},
        {"order", order,
         "the width \"1e9\" of a column is out of range\n"
         "section [Column Spots  ] is no order of the columns\n"},
        {"rows", rows,
         "line 9: row with too few cells\n"
         "line 10: row with too many cells\n"
         "line 11: row with too few cells\n"
         "line 11: row without a separator at its end\n"},
    };
    for (const auto& c : cases) {
        if (std::string(c.what) == "names")
            make("a.fwk", c.data.text(), {"in.jpg", "orphan.jpg"});
        else
            make("a.fwk", c.data.text());
        const Outcome outcome = run("check a.fwk");
        EXPECT_EQ(outcome.out, c.findings) << c.what;
        EXPECT_EQ(outcome.code, outcome.out.empty() ? 0 : 1) << c.what;
        const auto lines = std::ranges::count(outcome.out, '\n');
        EXPECT_EQ(outcome.err, lines == 0 ? "" : "fwk: a.fwk: " + std::to_string(lines) + " findings\n")
            << c.what;
    }
}

TEST_F(FwkTest, CheckStopsListingWhatHasNoEnd) {
    DataFile data;
    for (int i = 0; i < 20000; ++i) data.rows += "a|\r\n";
    make("a.fwk", data.text());
    const Outcome outcome = run("check a.fwk");
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 1001);
    EXPECT_TRUE(outcome.out.find(" more\n") != std::string::npos) << outcome.err;
}

} // namespace
