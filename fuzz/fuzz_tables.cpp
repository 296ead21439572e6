// Feeds any bytes to the readers of other programs' tables, and what they read to the recognition of its
// columns. The first byte says which reader. Whatever the rest is, it must end with a table or with an error
// that is told, and a table has no more than its bounds allow.

#include "core/runTimeError.h"
#include "exchange/delimited.h"
#include "exchange/sheetCollector.h"
#include "file/archive/zip.h"
#include "tables/importTable.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>

namespace {

using exchange::Format;
using exchange::Sheet;
using std::filesystem::path;

// The file that the inputs take turns in; a process has its own, since libFuzzer can run several.
const path& filePath() {
    static const path file =
        std::filesystem::temp_directory_path() / ("ferrowick-fuzz-" + std::to_string(getpid()) + ".table");
    return file;
}

// The parts of a workbook, one of which is the input: an archive that is fuzzed seldom gets past its
// checksums.
void writeWorkbook(char which, const std::string& bytes) {
    const auto relation = [](const char* id, const char* type, const char* target) {
        return std::string("<Relationship Id='") + id + "' Type='x/" + type + "' Target='" + target + "'/>";
    };
    file::Zip zip;
    zip.CreateArchive(filePath());
    zip.addPart("_rels/.rels", "<R>" + relation("a", "officeDocument", "b.xml") + "</R>", true);
    zip.addPart("_rels/b.xml.rels",
                "<R>" + relation("s", "worksheet", "s.xml") + relation("t", "sharedStrings", "t.xml") +
                    relation("f", "styles", "f.xml") + "</R>",
                true);
    zip.addPart("b.xml", which == 'B' ? bytes : "<w><sheets><sheet name='A' id='s'/></sheets></w>", true);
    zip.addPart("t.xml", which == 'T' ? bytes : "<t><si><t>a</t></si><si><t>12</t></si></t>", true);
    zip.addPart("f.xml",
                which == 'F' ? bytes : "<f><cellXfs><xf numFmtId='0'/><xf numFmtId='14'/></cellXfs></f>",
                true);
    zip.addPart("s.xml",
                which == 'S' ? bytes
                             : "<s><row><c t='s'><v>0</v></c><c s='1'><v>45000</v></c></row>"
                               "<row><c s='2'><v>0.5</v></c></row></s>",
                true);
    zip.CloseArchive();
}

void writeContent(const std::string& bytes) {
    file::Zip zip;
    zip.CreateArchive(filePath());
    zip.addPart("content.xml", bytes, true);
    zip.CloseArchive();
}

Sheet readFile(Format format) {
    const std::vector<std::string> names = exchange::sheetNames(filePath(), format);
    return exchange::readSheet(filePath(), format, names.size() - 1);
}

Sheet readText(const std::string& bytes) {
    const std::string text = exchange::decodedText(bytes, exchange::recognizedEncoding(bytes));
    Sheet sheet;
    sheet.rows = exchange::readDelimited(text, exchange::recognizedDelimiters(text));
    return sheet;
}

Sheet readAs(char reader, const std::string& bytes) {
    constexpr std::string_view readers = "cthjvsxo";
    constexpr Format formats[] = {Format::Csv,   Format::Tsv,    Format::Html, Format::Json,
                                  Format::Vcard, Format::Sqlite, Format::Xlsx, Format::Ods};
    if (reader == 'd') return readText(bytes);
    const std::size_t place = readers.find(reader);
    if (place != std::string_view::npos) {
        std::ofstream(filePath(), std::ios::binary) << bytes;
        return readFile(formats[place]);
    }
    if (reader == 'O') {
        writeContent(bytes);
        return readFile(Format::Ods);
    }
    writeWorkbook(reader, bytes);
    return readFile(Format::Xlsx);
}

void recognize(Sheet sheet) {
    using namespace std::chrono;
    tables::ImportTable table(std::move(sheet), {}, true, year(2024) / 2 / 29);
    for (std::size_t record = 0; record < table.count(); ++record)
        for (std::size_t i = 0; i < table.columns().size(); ++i) table.cell(record, i);
    (void)table.refusals(100);
    table.keepAsText();
    if (table.refusedCount() > 0 && table.whyNoDatabase().empty())
        for (const auto& refusal : table.refusals(1))
            if (table.columns()[refusal.column].how.as.type != core::ColumnType::Text) {
                std::cerr << "a column with refused cells is no text\n";
                std::abort();
            }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    try {
        Sheet sheet = readAs(static_cast<char>(data[0]),
                             std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
        if (sheet.rows.size() > exchange::SheetBounds::rows) std::abort();
        recognize(std::move(sheet));
    } catch (const core::RunTimeError&) { // no table
    } catch (const exchange::TableError&) {
    }
    unlink(filePath().c_str());
    return 0;
}
