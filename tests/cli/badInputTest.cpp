#include "fwkProgram.h"

#include <chrono>
#include <gmock/gmock.h>
#include <zip.h>

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

constexpr const char* changing[] = {"sort % Name",
                                    "save-as % copy.fwk",
                                    "clone % clone.fwk",
                                    "recalculate %",
                                    "total %",
                                    "column add % Added:Number --auto",
                                    "add % Name=x",
                                    "update % i1 Name=y",
                                    "duplicate % i1 2",
                                    "delete % i1",
                                    "column remove % Name --yes"};

class BadInput : public FwkTest {
protected:
    // Whatever the file is, no command crashes on it or changes anything by reading it; those that
    // change or copy it either do their work or fail, and then leave all as it was.
    void useAll(const std::string& name, const std::string& what, std::size_t first = 0,
                std::size_t step = 1) {
        const auto before = state();
        const std::string bytes = read(path(name)); // each command finds the file as it was
        for (const char* command : {"info %", "records % --json", "check %"}) {
            use(command, name, what);
            EXPECT_EQ(state(), before) << what << ", " << command;
        }
        for (std::size_t i = first; i < std::size(changing); i += step) {
            const auto start = state();
            const Outcome outcome = use(changing[i], name, what);
            EXPECT_TRUE(outcome.code == 0 || state() == start) << what << ", " << changing[i];
            std::filesystem::remove(path("copy.fwk"));
            std::filesystem::remove(path("clone.fwk"));
            write(name, bytes);
        }
        EXPECT_FALSE(std::filesystem::exists(files / ".." / "x.jpg")) << what;
    }
    Outcome use(std::string command, const std::string& name, const std::string& what) {
        const Outcome outcome = run(command.replace(command.find('%'), 1, name));
        EXPECT_TRUE(outcome.code == 0 || (outcome.code == 1 && outcome.err.starts_with("fwk: ")))
            << what << ", " << command << ": code " << outcome.code << ", signal " << outcome.signal << "\n"
            << outcome.err;
        return outcome;
    }
};

std::string repeated(const std::string& text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

TEST_F(BadInput, FilesThatCannotBeOpened) {
    const std::string whole = DataFile{}.text(), archive = read(TEST_DATA_DIR "/books.fwk");
    DataFile sameNames, tooManyRows, lessTypes, badLayout, noNumber;
    sameNames.names = "Name|NAME|Price|";
    tooManyRows.rows = repeated("a|1|2|\r\n", 40'000);
    lessTypes.types = "3|4|";
    badLayout.layout = "C|a.gif|1|2\r\n";
    noNumber.layout = "B|1|2|x|4|5|6|\r\n";
    std::vector<std::pair<std::string, std::string>> cases; // the bytes, and a part of the reason
    for (const auto& [data, reason] : {std::pair<std::string, const char*>{"", "the text ends too early"},
                                       {std::string(5000, '\xA5') + "\r\n\r\n[[[", "the text ends too early"},
                                       {std::string(5000, '\0'), "the text ends too early"},
                                       {whole.substr(0, 8), "the text ends too early"},
                                       {whole.substr(0, whole.find("[Begin")), "the text ends too early"},
                                       {sameNames.text(), "NAME"},
                                       {lessTypes.text(), "Price"},
                                       {badLayout.text(), "Subscript out of range"},
                                       {noNumber.text(), "\"x\" is no number"},
                                       {tooManyRows.text(), "it has more than 32767 records"}})
        cases.emplace_back(read(path(make("bad.fwk", data))), reason);
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, archive.size() / 2, archive.size() - 1})
        cases.emplace_back(archive.substr(0, length), "");
    cases.emplace_back("not an archive\n", "");
    cases.emplace_back(archive + std::string(100'000, 'x'), "");
    std::string damaged = archive, noData = archive;
    damaged[300] ^= 0x55;
    for (std::size_t at = 0; (at = noData.find("data.dat", at)) != std::string::npos;) noData[at] = 'D';
    cases.emplace_back(damaged, "");
    cases.emplace_back(noData, "");
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [bytes, reason] = cases[i];
        const std::string what = "case " + std::to_string(i) + ": " + reason;
        write("bad.fwk", bytes);
        useAll("bad.fwk", what, i % 5, 5);
        for (const std::string command : {"info bad.fwk", "check bad.fwk"}) {
            const Outcome outcome = run(command);
            EXPECT_EQ(outcome.code, 1) << what;
            EXPECT_THAT(outcome.err, StartsWith("fwk: bad.fwk: ")) << what;
            EXPECT_THAT(outcome.err, HasSubstr(reason)) << what;
        }
    }
}

TEST_F(BadInput, OddFilesThatOpen) {
    DataFile cut, lengths, garbage;
    cut.rows = "a|1|2|\r\nb|2";
    lengths.rows = "a|\r\n\r\nb|1|2|3|4|\r\nno separator\r\n------|------|------|\r\n";
    garbage.layout = "\x01\x02garbage|||\r\n";
    garbage.more = "[Future Thing  ]x|\r\nnoise\r\n[Locks         ]pBox,99999999999|nonsense|\r\n";
    for (const DataFile* data : {&cut, &lengths, &garbage}) {
        make("odd.fwk", data->text());
        useAll("odd.fwk", data->rows);
        EXPECT_EQ(run("info odd.fwk").code, 0) << data->rows;
        EXPECT_EQ(run("check odd.fwk").code, 1) << data->rows;
    }
}

// libzip itself takes every name.
TEST_F(BadInput, UnsafeEntriesStayInTheArchive) {
    DataFile data;
    data.layout = "C|../x.jpg|1|2|3|4|\r\nC|/etc/x.jpg|1|2|3|4|\r\n";
    const std::string text = data.text();
    const std::vector<const char*> unsafe = {"../x.jpg", "/etc/x.jpg", "a/b.jpg", "C:x.jpg"};
    zip_t* zip = zip_open(path("unsafe.fwk").c_str(), ZIP_CREATE, nullptr);
    zip_file_add(zip, "data.dat", zip_source_buffer(zip, text.data(), text.size(), 0), 0);
    for (const char* name : unsafe) zip_file_add(zip, name, zip_source_buffer(zip, "evil", 4, 0), 0);
    ASSERT_EQ(zip_close(zip), 0);
    useAll("unsafe.fwk", "unsafe entries");
    const Outcome outcome = run("check unsafe.fwk");
    for (const std::string name : unsafe)
        EXPECT_THAT(outcome.out, HasSubstr("entry \"" + name + "\" has a name that is never unpacked"));
}

// A small archive that unpacks to a lot, and a text that would take many times its size in memory.
TEST_F(BadInput, ABombIsRefusedWithinBounds) {
    constexpr std::size_t large = 16'000'000;
    using Part = std::string DataFile::*;
    const struct {
        Part part;
        const char *head, *repeats;
        std::size_t count;
    } cases[] = {{&DataFile::more, "[InvoiceCols   ]", "|", large},
                 {&DataFile::layout, "", "F||0|0|0|0|0|0|0||0|0|\r\n", large / 25},
                 {&DataFile::rows, "", "a|1|2|\r\n", large / 8},
                 {nullptr, "", "", 270'000'000}};
    for (const auto& [part, what, repeats, count] : cases) {
        if (part != nullptr) {
            DataFile data;
            data.*part = what + repeated(repeats, count) + "\r\n";
            make("bomb.fwk", data.text());
        } else
            make("bomb.fwk", std::string(count, '\0'));
        ASSERT_LT(std::filesystem::file_size(path("bomb.fwk")), 1'000'000U);
        const auto start = std::chrono::steady_clock::now();
        const Outcome outcome = run("info bomb.fwk");
        EXPECT_EQ(outcome.code, 1) << what << count << outcome.signal;
        EXPECT_LT(outcome.maxKilobytes, 300'000) << what << count;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << what << count;
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
    const std::pair<const DataFile*, const char*> cases[] = {
        {&good, ""},
        {&names, "column \"Price\" has the unknown type \"9\"\n"
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
        {&counts, "line 8: section [Column Names  ] is there twice\n"
                  "section [Column Types  ] has 4 elements in place of 3\n"
                  "section [Column Widths ] has 5 elements in place of 3\n"
                  "section [Column Spots  ] has 2 elements in place of 4\n"},
        {&order, "the width \"1e9\" of a column is out of range\n"
                 "section [Column Spots  ] is no order of the columns\n"},
        {&rows, "line 9: row with too few cells\n"
                "line 10: row with too many cells\n"
                "line 11: row with too few cells\n"
                "line 11: row without a separator at its end\n"}};
    for (const auto& [data, findings] : cases) {
        if (data == &names)
            make("a.fwk", data->text(), {"in.jpg", "orphan.jpg"});
        else
            make("a.fwk", data->text());
        const Outcome outcome = run("check a.fwk");
        EXPECT_EQ(outcome.out, findings);
        EXPECT_EQ(outcome.code, outcome.out.empty() ? 0 : 1) << findings;
        const auto lines = std::ranges::count(outcome.out, '\n');
        EXPECT_EQ(outcome.err, lines == 0 ? "" : "fwk: a.fwk: " + std::to_string(lines) + " findings\n");
    }
    DataFile endless;
    endless.rows = repeated("a|\r\n", 20000);
    make("a.fwk", endless.text());
    const Outcome outcome = run("check a.fwk");
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 1001) << "the list ends";
    EXPECT_THAT(outcome.out, HasSubstr(" more\n"));
}

} // namespace
