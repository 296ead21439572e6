#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/imageSize.h"
#include "exchange/toldTypes.h"
#include "file/atomicFile.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <new>
#include <xlsxwriter.h>

namespace exchange::xlsx {

namespace {

constexpr std::size_t longestText = 32'767; // characters that a spreadsheet takes in a cell
constexpr double twipsOfCharacter =
    105; // of the width of a digit in the usual font, with its share of the edge

struct FreeWorkbook {
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
};

// "_x000D_" would be read as the character of that code.
std::string codesKept(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view piece = text.substr(at, 7);
        if (piece.size() == 7 && piece.starts_with("_x") && piece.back() == '_' &&
            std::ranges::all_of(piece.substr(2, 4), [](char c) {
                return core::isDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
            }))
            out.append("_x005F");
        out.push_back(text[at]);
    }
    return out;
}

// What a spreadsheet takes as the name of a sheet.
std::string sheetTitle(std::string_view title) {
    constexpr std::size_t longestName = 31;
    std::string name(core::left(title, longestName));
    std::ranges::replace_if(
        name, [](char c) { return std::string_view("[]:*?/\\'").find(c) != std::string_view::npos; }, '_');
    return core::trim(name).empty() ? "Records" : name;
}

class SheetWriter {
public:
    SheetWriter(const std::string& file, const OutTable& table)
        : table_(table), book_(newBook(file, table)), formulas_(table, OutFormulas::Style::Xlsx) {
        if (!book_) throw std::bad_alloc();
        const std::string title = sheetTitle(table.title);
        // A name that the library still refuses is no reason to refuse the table.
        if (workbook_validate_sheet_name(book_.get(), title.c_str()) == LXW_NO_ERROR)
            sheet_ = workbook_add_worksheet(book_.get(), title.c_str());
        else
            sheet_ = workbook_add_worksheet(book_.get(), nullptr);
        if (sheet_ == nullptr) throw std::bad_alloc();
        writeHeading();
    }

    void writeRow(std::size_t row) {
        placePictures(row);
        const bool bBold = table_.bLastIsTotals && row + 1 == table_.rows.size();
        for (std::size_t i = 0; i < table_.columns.size(); ++i) {
            const std::string_view text = cellIn(table_, row, i);
            if (text.empty()) continue;
            const auto line = static_cast<lxw_row_t>(row + 1);
            const auto column = static_cast<lxw_col_t>(i);
            const OutCell cell = outCell(table_.columns[i].type, text);
            lxw_format* format = formatFor(cell, bBold);
            if (cell.what == OutCell::What::Text) {
                if (core::length(text) > longestText) refuseLong(row);
                check(worksheet_write_string(sheet_, line, column, codesKept(text).c_str(), format));
            } else if (const auto formula = formulas_.at(row, i, cell)) {
                check(
                    worksheet_write_formula_num(sheet_, line, column, formula->c_str(), format, cell.value));
            } else {
                check(worksheet_write_number(sheet_, line, column, cell.value, format));
            }
        }
    }

    // Ends the workbook, whatever comes of it.
    void close() { check(workbook_close(book_.release())); }

private:
    // Above the name of its file, which stays the value of the cell. What is no picture for a spreadsheet is
    // its name alone.
    void placePictures(std::size_t row) {
        constexpr double twipsOfPixel = 15;
        constexpr double height = 60, rowPoints = 60; // 60 points are 80 pixels; the name takes the rest
        for (std::size_t i = 0; !table_.pictures.empty() && i < table_.columns.size(); ++i) {
            const std::string_view name = cellIn(table_, row, i);
            if (table_.columns[i].type != core::ColumnType::Picture || name.empty()) continue;
            const std::filesystem::path file = table_.pictures / name;
            std::error_code error;
            const auto size = std::filesystem::exists(file, error) ? imageSize(file) : std::nullopt;
            if (!size) continue;
            const double width = std::max(table_.columns[i].widthTwips / twipsOfPixel, 1.0);
            lxw_image_options options{};
            options.x_scale = std::min(
                {height / static_cast<double>(size->height), width / static_cast<double>(size->width), 1.0});
            options.y_scale = options.x_scale;
            options.object_position = LXW_OBJECT_MOVE_AND_SIZE;
            const auto line = static_cast<lxw_row_t>(row + 1);
            check(worksheet_set_row(sheet_, line, rowPoints, nullptr));
            check(
                worksheet_insert_image_opt(sheet_, line, static_cast<lxw_col_t>(i), file.c_str(), &options));
        }
    }

    void writeHeading() {
        for (std::size_t i = 0; i < table_.columns.size(); ++i) {
            const auto column = static_cast<lxw_col_t>(i);
            const double width = std::clamp(table_.columns[i].widthTwips / twipsOfCharacter, 1.0, 250.0);
            check(worksheet_set_column(sheet_, column, column, width, nullptr));
            const std::string name = codesKept(table_.columns[i].name);
            check(worksheet_write_string(sheet_, 0, column, name.c_str(), formatFor({}, true)));
        }
        tellTypes();
        worksheet_freeze_panes(sheet_, 1, 0);
        worksheet_repeat_rows(sheet_, 0, 0);
    }

    // As properties of the workbook, which take texts of so many characters.
    void tellTypes() {
        constexpr std::size_t longestProperty = 255;
        std::size_t number = 0;
        for (const std::string& heading : typedHeadings(table_)) {
            std::string name(typeProperty);
            name.append(std::to_string(++number));
            if (core::length(heading) <= longestProperty)
                check(workbook_set_custom_property_string(book_.get(), name.c_str(), heading.c_str()));
        }
    }

    // Row by row, so that memory has the rows once; but the places of pictures need the heights of all rows.
    static lxw_workbook* newBook(const std::string& file, const OutTable& table) {
        lxw_workbook_options options{};
        options.constant_memory = table.pictures.empty() ? LXW_TRUE : LXW_FALSE;
        return workbook_new_opt(file.c_str(), &options);
    }

    [[noreturn]] static void refuseLong(std::size_t row) {
        refuseSheet(core::fill(core::tr("record %1 has a text too long for a spreadsheet"),
                               {std::to_string(row + 1)}));
    }
    static void check(lxw_error error) {
        if (error == LXW_NO_ERROR) return;
        if (error == LXW_ERROR_MEMORY_MALLOC_FAILED) throw std::bad_alloc();
        const bool bFile = error <= LXW_ERROR_ZIP_CLOSE;
        core::raise(bFile ? core::errors::deviceIO : core::errors::badFileFormat, lxw_strerror(error));
    }

    lxw_format* formatFor(const OutCell& cell, bool bBold) {
        std::string code;
        if (cell.what == OutCell::What::Date) code = "mm/dd/yyyy";
        if (cell.what == OutCell::What::Money) code = "\"$\"#,###.00";
        if (cell.what == OutCell::What::Number) {
            code = cell.bLeadingZero ? "0" : "#";
            if (cell.places > 0) code.append(".").append(static_cast<std::size_t>(cell.places), '0');
        }
        if (code.empty() && !bBold) return nullptr;
        lxw_format*& format = formats_[{code, bBold}];
        if (format == nullptr) {
            format = workbook_add_format(book_.get());
            if (format == nullptr) throw std::bad_alloc();
            if (!code.empty()) format_set_num_format(format, code.c_str());
            if (bBold) format_set_bold(format);
        }
        return format;
    }

    const OutTable& table_;
    std::unique_ptr<lxw_workbook, FreeWorkbook> book_;
    lxw_worksheet* sheet_ = nullptr;
    OutFormulas formulas_;
    std::map<std::pair<std::string, bool>, lxw_format*> formats_;
};

} // namespace

void write(const Target& target, const OutTable& table, const Progress& progress) {
    constexpr std::size_t rowsBetween = 500;
    if (table.columns.empty()) refuseSheet(core::tr("it has no columns"));
    file::AtomicFile result(target.file, target.like);
    // The library opens a file by its name; this one is the hidden file that takes the place of the old one.
    SheetWriter writer("/proc/self/fd/" + std::to_string(result.fd()), table);
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        writer.writeRow(row);
        if (row % rowsBetween == 0) tellProgress(progress, row, table.rows.size());
    }
    writer.close();
    result.commit();
}

} // namespace exchange::xlsx
