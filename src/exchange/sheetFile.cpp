#include "core/encoding.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "exchange/csvReader.h"
#include "exchange/formats/formats.h"
#include "exchange/outCells.h"
#include "exchange/textRows.h"
#include "file/fileHandle.h"

#include <array>
#include <utility>

namespace exchange {

namespace {

constexpr std::array<std::pair<std::string_view, Format>, 15> endings = {{
    {".csv", Format::Csv},
    {".tsv", Format::Tsv},
    {".tab", Format::Tsv},
    {".xlsx", Format::Xlsx},
    {".xlsm", Format::Xlsx},
    {".ods", Format::Ods},
    {".json", Format::Json},
    {".sqlite", Format::Sqlite},
    {".sqlite3", Format::Sqlite},
    {".db", Format::Sqlite},
    {".db3", Format::Sqlite},
    {".html", Format::Html},
    {".htm", Format::Html},
    {".vcf", Format::Vcard},
    {".vcard", Format::Vcard},
}};

std::string textIn(const std::filesystem::path& file) {
    auto bytes = file::readSmallFile(file, SheetBounds::fileBytes);
    if (!bytes) refuseSheet(core::tr("it is larger than 64 MB"));
    return textOf(*std::move(bytes));
}

Sheet sheetOf(const CsvTable& table, const Progress& progress) {
    constexpr std::size_t rowsBetween = 500;
    SheetCollector collector;
    for (const std::string_view name : table.header()) collector.text(std::string(name));
    collector.endRow();
    for (std::size_t row = 0; row < table.rowCount(); ++row) {
        for (std::size_t i = 0; i < table.header().size(); ++i)
            collector.text(std::string(table.cell(row, i)));
        collector.endRow();
        if (row % rowsBetween == 0) tellProgress(progress, row, table.rowCount());
    }
    return collector.take();
}

Sheet sheetOf(const TextRows& rows) {
    SheetCollector collector;
    for (const TextRow& row : rows) {
        for (const std::string& cell : row.cells) collector.text(cell);
        collector.endRow();
    }
    return collector.take();
}

Sheet readText(const std::filesystem::path& file, Format format, const Progress& progress) {
    switch (format) {
    case Format::Tsv:
        return sheetOf(readTabbedRows(textIn(file)));
    case Format::Html:
        return sheetOf(readHtmlRows(textIn(file)));
    case Format::Json:
        return readJsonSheet(textIn(file), progress);
    case Format::Vcard:
        return readVcardSheet(textIn(file), progress);
    default:
        return sheetOf(CsvTable(textIn(file)), progress);
    }
}

} // namespace

std::optional<Format> formatOf(std::string_view fileName) {
    for (const auto& [ending, format] : endings)
        if (fileName.size() > ending.size() &&
            core::equalsNoCase(fileName.substr(fileName.size() - ending.size()), ending))
            return format;
    return std::nullopt;
}

std::vector<std::string> sheetNames(const std::filesystem::path& file, Format format) {
    switch (format) {
    case Format::Xlsx:
        return xlsx::names(file);
    case Format::Ods:
        return ods::names(file);
    case Format::Sqlite:
        return sqlite::names(file);
    default:
        return {std::string()};
    }
}

const std::string& sheetAt(const std::vector<std::string>& names, std::size_t sheet) {
    if (sheet >= names.size()) refuseSheet(core::tr("it has no such sheet"));
    return names[sheet];
}

Sheet readSheet(const std::filesystem::path& file, Format format, std::size_t sheet,
                const std::function<bool(int percent)>& progress) {
    try {
        switch (format) {
        case Format::Xlsx:
            return xlsx::read(file, sheet, progress);
        case Format::Ods:
            return ods::read(file, sheet, progress);
        case Format::Sqlite:
            return sqlite::read(file, sheet, progress);
        default:
            sheetAt({std::string()}, sheet);
            return readText(file, format, progress);
        }
    } catch (const TableError& error) {
        refuseSheet(error.what());
    }
}

bool isTextFormat(Format format) {
    return format != Format::Xlsx && format != Format::Ods && format != Format::Sqlite;
}

std::string sheetText(Format format, const OutTable& table,
                      const std::function<bool(int percent)>& progress) {
    switch (format) {
    case Format::Tsv:
        return csvText(table, '\t', progress);
    case Format::Json:
        return jsonText(table, progress);
    case Format::Html:
        return htmlText(table, progress);
    case Format::Vcard:
        return vcardText(table, progress);
    default:
        return csvText(table, ',', progress);
    }
}

void writeSheet(const std::filesystem::path& file, Format format, const OutTable& table,
                const std::function<bool(int percent)>& progress, const std::filesystem::path& like) {
    const Target target{file, like};
    switch (format) {
    case Format::Xlsx:
        return xlsx::write(target, table, progress);
    case Format::Ods:
        return ods::write(target, table, progress);
    case Format::Sqlite:
        return sqlite::write(target, table, progress);
    default:
        return writeBytes(target, sheetText(format, table, progress));
    }
}

} // namespace exchange
