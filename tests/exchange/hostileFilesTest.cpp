#include "core/runTimeError.h"
#include "sheetFile.h"

#include <ctime>
#include <dlfcn.h>
#include <malloc.h>

namespace {

using HostileFiles = SheetFile;

// With a sanitizer in it, a program keeps what it has freed.
bool isSanitized() {
    return dlsym(RTLD_DEFAULT, "__asan_init") != nullptr;
}

TEST_F(HostileFiles, AreRefusedInTime) {
    // What they cost is measured without the sanitizers alone; with them they are as wrong, but smaller.
    const std::size_t part = isSanitized() ? 8 : 1;
    const auto many = [&](std::string_view text, std::size_t times) {
        std::string all;
        for (std::size_t i = 0; i < times / part; ++i) all += text;
        return all;
    };
    const std::string row = "<table:table-row><table:table-cell office:value-type='float' office:value='1'";
    const std::string cell = "<c r='A1'><v>1</v></c>";
    xlsx("doctype.xlsx", "<!DOCTYPE x [<!ENTITY a '&b;&b;'>]><row>" + cell + "</row>");
    xlsx("bomb.xlsx", std::string(70 << 20, ' '));
    xlsx("rows.xlsx", "<dimension ref='A1:A2147483648'/><row r='2147483648'>" + cell + "</row>");
    xlsx("columns.xlsx", "<row>" + many("<c><v>1</v></c>", 200'000) + "</row>");
    xlsx("one.xlsx", "<row><c r='ZZZZZZZZZZZ1'><v>1</v></c></row>");
    xlsx("deep.xlsx", "<row>" + many("<c>", 1'500'000) + "</row>");
    xlsx("strings.xlsx", "<row>" + many("<c t='s'><v>0</v></c>", 3'000 * part) + "</row>", "",
         "<si><t>" + std::string(32'000, 'x') + "</t></si>");
    xlsx("blanks.xlsx", many("<row><c r='EZZ1'><v>1</v></c></row>", 5'000));
    xlsx("unknown.xlsx", "<row><c t='s'><v>7</v></c></row>");
    xlsx("short.xlsx", "<row><c><v>1</v>");
    ods("rows.ods", "<table:table>" + row +
                        "/></table:table-row><table:table-row table:number-rows-repeated='2147483648'>" +
                        row.substr(17) + "/></table:table-row></table:table>");
    ods("columns.ods",
        "<table:table>" + row + " table:number-columns-repeated='1000000'/></table:table-row></table:table>");
    ods("both.ods", "<table:table><table:table-row table:number-rows-repeated='60000'>" + row.substr(17) +
                        " table:number-columns-repeated='4000'/></table:table-row></table:table>");
    ods("huge.ods",
        "<table:table>" + row +
            " table:number-columns-repeated='99999999999999999999'/></table:table-row></table:table>");
    ods("none.ods", "");
    sqlite("cycle.sqlite", "CREATE TABLE b(x); CREATE VIEW a AS SELECT * FROM b; DROP TABLE b; CREATE VIEW b "
                           "AS SELECT * FROM a;");
    const char* const endless =
        "CREATE VIEW v AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) SELECT ";
    sqlite("endless.sqlite", (std::string(endless) + "i FROM n").c_str());
    sqlite("silent.sqlite", (std::string(endless) + "count(*) FROM n").c_str());
    sqlite("large.sqlite", "CREATE VIEW v AS SELECT replace(hex(zeroblob(8000000)), '0', 'xxxxxxxx')");
    writeBytes(path("deep.json"), "[[" + std::string((30 << 20) / part, '['));
    writeBytes(path("wide.json"), "[[" + many("0,", 16 << 20) + "0]]");
    writeBytes(path("pieces.vcf"), "BEGIN:VCARD\nA" + std::string((60 << 20) / part, ';'));
    writeBytes(path("large.csv"), std::string(65 << 20, 'x'));
    writeBytes(path("open.csv"), "a,\"b\nc");
    zip("parts.xlsx", {{"other", ""}});
    xlsx("merged.xlsx", "<sheetData><row>" + cell + "</row></sheetData>" +
                            many("<mergeCell ref='A1:EZZ60000'/>", 70'000 * part));
    for (const auto& each : fs::directory_iterator(folder)) {
        const std::string name = each.path().filename().string();
        malloc_trim(0);
        writeBytes("/proc/self/clear_refs", "5"); // the most memory, anew
        const std::clock_t start = std::clock();  // of the processor: others may work beside this
        EXPECT_EQ(raisedBy([&] { read(name); }), core::errors::badFileFormat) << name;
        EXPECT_TRUE(isSanitized() || std::clock() - start < 2 * CLOCKS_PER_SEC) << name;
        const std::string status = readBytes("/proc/self/status");
        const long kilobytes = std::stol(status.substr(status.find("VmHWM:") + 6));
        EXPECT_TRUE(isSanitized() || kilobytes < 256 * 1024) << name << " " << kilobytes;
    }
}

} // namespace
