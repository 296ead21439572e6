#include "tables/importTable.h"

#include "app/longWork.h"
#include "calc/columns.h"
#include "core/text.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "exchange/columnTypes.h"
#include "file/dataWriter.h"
#include "storage/saveSteps.h"

#include <algorithm>
#include <limits>
#include <set>

namespace tables {

namespace {

using core::ColumnType;
using exchange::SheetCell;
using exchange::SheetRow;

constexpr std::size_t mostRecords = std::numeric_limits<decltype(core::Document::iLastKey)>::max();
constexpr std::size_t mostTableColumns = 4096; // far beyond what a database has

bool isBlankRow(const SheetRow& row) {
    return std::ranges::all_of(row, [](const SheetCell& cell) { return core::trim(cell.text).empty(); });
}

} // namespace

ImportTable::ImportTable(exchange::Sheet sheet, const Hints& hints, bool bLenient,
                         std::chrono::year_month_day today, const exchange::Progress& progress)
    : bTyped_(sheet.bTyped), bLenient_(bLenient), hints_(hints), today_(today) {
    std::vector<Row> rows;
    std::size_t width = 0, number = 0;
    for (SheetRow& cells : sheet.rows) {
        ++number;
        if (isBlankRow(cells)) continue;
        while (core::trim(cells.back().text).empty()) cells.pop_back();
        width = std::max(width, cells.size());
        rows.push_back({number, std::move(cells)});
    }
    if (rows.empty()) throw exchange::TableError(core::tr("it has no rows"));
    if (rows.size() > mostRecords + 1)
        throw exchange::TableError(
            core::fill(core::tr("it has more rows than the %1 records that a database holds"),
                       {std::to_string(mostRecords)}));
    if (width > mostTableColumns)
        throw exchange::TableError(
            core::fill(core::tr("it has more than %1 columns"), {std::to_string(mostTableColumns)}));
    rows_ = std::make_shared<std::vector<Row>>(std::move(rows));
    columns_.resize(width);
    setHeadings(firstRowIsHeadings(), progress);
}

// Texts, each another one and none of them a value.
bool ImportTable::firstRowIsHeadings() const {
    std::set<std::string> names;
    for (const SheetCell& cell : rows_->front().cells) {
        const std::string_view name = core::trim(cell.text);
        if (cell.kind != SheetCell::Kind::Text || name.empty()) return false;
        if (writtenNumber(name, '.') || writtenNumber(name, ',') ||
            writtenDate(name, DateOrder::DayMonthYear) || writtenDate(name, DateOrder::MonthDayYear))
            return false;
        if (!names.insert(core::upper(name)).second) return false;
    }
    return rows_->size() > 1 || !names.empty();
}

void ImportTable::setHeadings(bool hasHeadings, const exchange::Progress& progress) {
    hasHeadings_ = hasHeadings;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        Column& column = columns_[i];
        column = {};
        if (hasHeadings_ && i < rows_->front().cells.size())
            column.heading = core::trim(rows_->front().cells[i].text);
        column.name = exchange::columnName(column.heading);
        if (column.name.empty()) column.name.append("Column_").append(std::to_string(i + 1));
    }
    refused_.assign(columns_.size(), {});
    if (!takeToldTypes()) recognizeAll(progress);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        exchange::tellProgress(progress, columns_.size() + i, columns_.size() * 2);
        check(i);
    }
}

// A table that goes out of the program with its types comes back with them.
bool ImportTable::takeToldTypes() {
    if (!hasHeadings_) return false;
    std::vector<exchange::TableColumn> told;
    for (const Column& column : columns_)
        if (auto typed = exchange::typedColumn(column.heading)) told.push_back(*std::move(typed));
    if (told.size() != columns_.size()) return false;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        columns_[i].name = exchange::columnName(told[i].name);
        columns_[i].how.as.type = told[i].type;
        columns_[i].how.as.bToTheLetter = true;
    }
    return true;
}

// What is open in one column may be settled by the others.
void ImportTable::recognizeAll(const exchange::Progress& progress) {
    Hints hints = hints_;
    bool isDateSettled = hints.bDatesTold, isDecimalSettled = hints.bDecimalTold;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        exchange::tellProgress(progress, i, columns_.size() * 2);
        Recognized& how = columns_[i].how = recognized(i, hints_);
        if (how.as.type == ColumnType::Date && !how.bDatesOpen && !isDateSettled &&
            how.as.dates != DateOrder::YearMonthDay) {
            hints.dates = how.as.dates;
            isDateSettled = true;
        }
        const bool isNumber = how.as.type == ColumnType::Number || how.as.type == ColumnType::Currency;
        if (isNumber && !how.bDecimalOpen && !isDecimalSettled && how.as.decimal != hints_.decimal) {
            hints.decimal = how.as.decimal;
            isDecimalSettled = true;
        }
    }
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].how.bDatesOpen || columns_[i].how.bDecimalOpen)
            columns_[i].how = recognized(i, hints);
}

Recognized ImportTable::recognized(std::size_t column, const Hints& hints,
                                   std::optional<ColumnType> type) const {
    std::vector<const SheetCell*> cells;
    cells.reserve(count());
    for (std::size_t record = 0; record < count(); ++record) cells.push_back(&sheetCell(record, column));
    return recognize(cells, bTyped_, hints, bLenient_, type);
}

const SheetCell& ImportTable::sheetCell(std::size_t record, std::size_t column) const {
    static const SheetCell none;
    const SheetRow& cells = rowOf(record).cells;
    return column < cells.size() ? cells[column] : none;
}

CheckedCell ImportTable::cell(std::size_t record, std::size_t column) const {
    return readCell(sheetCell(record, column), columns_[column].how.as, today_);
}

void ImportTable::check(std::size_t column) {
    refused_[column].clear();
    if (!columns_[column].bImport) return;
    for (std::size_t record = 0; record < count(); ++record)
        if (CheckedCell read = cell(record, column); !read.reason.empty())
            refused_[column].push_back({record, std::move(read.reason)});
}

void ImportTable::setImport(std::size_t column, bool bImport) {
    columns_.at(column).bImport = bImport;
    check(column);
}

void ImportTable::setReadAs(std::size_t column, const ReadAs& as) {
    Recognized& how = columns_.at(column).how;
    how.as = as;
    how.bDatesOpen = how.bDecimalOpen = false; // somebody has settled it
    check(column);
}

void ImportTable::setType(std::size_t column, ColumnType type) {
    columns_.at(column).how = recognized(column, hints_, type);
    check(column);
}

void ImportTable::setSign(std::size_t column, const CurrencySign& sign) {
    Recognized& how = columns_.at(column).how;
    Hints hints = hints_;
    hints.decimal = how.as.decimal;
    hints.sign = sign;
    how = recognized(column, hints, how.as.type);
    check(column);
}

void ImportTable::setTarget(std::size_t column, const core::Column* target) {
    Column& changed = columns_.at(column);
    changed.target = target;
    changed.bImport = target != nullptr;
    if (target != nullptr) changed.how = recognized(column, hints_, target->type());
    check(column);
}

void ImportTable::keepAsText() {
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (!refused_[i].empty()) setReadAs(i, {});
}

std::size_t ImportTable::refusedCount() const {
    std::size_t total = 0;
    for (const auto& refused : refused_) total += refused.size();
    return total;
}

std::vector<ImportTable::Refusal> ImportTable::refusals(std::size_t most) const {
    std::vector<Refusal> first;
    for (std::size_t column = 0; column < refused_.size(); ++column) {
        const auto& refused = refused_[column];
        for (std::size_t i = 0; i < std::min(most, refused.size()); ++i)
            first.push_back({rowOf(refused[i].record).number, column,
                             sheetCell(refused[i].record, column).text, refused[i].reason});
    }
    std::ranges::stable_sort(first, {}, &Refusal::row);
    if (first.size() > most) first.erase(first.begin() + static_cast<std::ptrdiff_t>(most), first.end());
    return first;
}

std::string ImportTable::whyNoDatabase(bool bInvoiceStyle) const {
    std::set<std::string> names;
    std::size_t columns = 0;
    for (const Column& column : columns_) {
        if (!column.bImport) continue;
        ++columns;
        if (bInvoiceStyle && column.how.as.type == ColumnType::Picture)
            return core::tr("An invoice database has no Picture columns.");
        const std::string name = exchange::columnName(column.name);
        std::string why;
        if (name.empty()) return core::tr("A column has no name.");
        if (name.find('|') != std::string::npos)
            why = core::tr("The column name \"%1\" holds a \"|\".");
        else if (core::equalsNoCase(name, "Index"))
            why = core::tr("The column name \"%1\" cannot be used.");
        else if (!names.insert(core::upper(name)).second)
            why = core::tr("The column name \"%1\" is there twice.");
        if (!why.empty()) return core::fill(why, {name});
    }
    if (columns == 0) return core::tr("No column is chosen.");
    if (columns <= calc::mostColumns) return {};
    return core::fill(core::tr("There are %1 columns, a database has at most %2."),
                      {std::to_string(columns), std::to_string(calc::mostColumns)});
}

exchange::TextRow ImportTable::headingRow() const {
    exchange::TextRow row;
    for (const Column& column : columns_) row.cells.push_back(column.heading);
    return row;
}

void ImportTable::forget(std::size_t record) {
    if (rows_.use_count() == 1) (*rows_)[record + (hasHeadings_ ? 1 : 0)].cells = {};
}

exchange::TextRows ImportTable::rowsForTargets(const exchange::Progress& progress) const {
    constexpr std::size_t rowsBetween = 500;
    exchange::TextRows rows;
    rows.reserve(count());
    for (std::size_t record = 0; record < count(); ++record) {
        if (record % rowsBetween == 0) exchange::tellProgress(progress, record, count());
        exchange::TextRow row{rowNumber(record), std::vector<std::string>(columns_.size())};
        for (std::size_t i = 0; i < columns_.size(); ++i)
            if (columns_[i].target != nullptr) row.cells[i] = cell(record, i).text;
        rows.push_back(std::move(row));
    }
    return rows;
}

Targets findTargets(app::App& app, ImportTable& table, const exchange::Progress& progress) {
    const NewRecords named(app, {table.headingRow(), table.headingRow()},
                           table.hasHeadings() ? Headings::Yes : Headings::No);
    Targets targets{named.targets(), {}};
    for (std::size_t i = 0; i < named.sources().size(); ++i) {
        exchange::tellProgress(progress, i, named.sources().size());
        table.setTarget(i, named.sources()[i].target);
        targets.whyLeftOut.push_back(named.sources()[i].whyLeftOut);
    }
    return targets;
}

NewRecords newRecordsOf(app::App& app, const ImportTable& table, const exchange::Progress& progress) {
    std::vector<const core::Column*> targets;
    for (const ImportTable::Column& column : table.columns()) targets.push_back(column.target);
    constexpr int half = 2;
    const auto first = [&](int percent) { return !progress || progress(percent / half); };
    const auto second = [&](int percent) { return !progress || progress((100 + percent) / half); };
    return {app, table.rowsForTargets(first), targets, second};
}

void addImportedColumns(core::Document& document, const ImportTable& table) {
    for (const ImportTable::Column& column : table.columns())
        if (column.bImport)
            calc::addColumn(document, exchange::columnName(column.name),
                            std::to_string(static_cast<int>(column.how.as.type)));
}

namespace {

template <typename Forget>
void addRecords(app::App& app, core::Document& document, const ImportTable& table, const Forget& forget) {
    std::vector<std::size_t> imported;
    for (std::size_t i = 0; i < table.columns().size(); ++i)
        if (table.columns()[i].bImport) imported.push_back(i);
    document.LV.reserve(table.count() + 1);
    app::LongWork work(app, core::tr("Making the records"), static_cast<int>(table.count()));
    for (std::size_t record = 0; record < table.count(); ++record) {
        work.reached(static_cast<int>(record));
        core::Item& item = document.LV.add(document.nextKey());
        for (std::size_t i = 0; i < imported.size(); ++i)
            item.cells[i] = table.cell(record, imported[i]).text;
        forget(record);
    }
    core::moveTotals(document.LV);
}

} // namespace

void addImportedRecords(app::App& app, core::Document& document, const ImportTable& table) {
    addRecords(app, document, table, [](std::size_t) {});
}

void takeImportedRecords(app::App& app, core::Document& document, ImportTable& table) {
    addRecords(app, document, table, [&](std::size_t record) { table.forget(record); });
}

bool writeImported(app::App& app, const std::string& target, const ImportTable& table, bool bInvoiceStyle) {
    core::Document document;
    document.bInvoiceStyle = bInvoiceStyle;
    addImportedColumns(document, table);
    core::addTotalsRow(document.LV);
    addImportedRecords(app, document, table);
    const std::string bytes = file::encodeDataFile(file::writeDataFile(document, false));
    return storage::writeNewFile(app, target, [&] { storage::packAlone(app, target, bytes); });
}

} // namespace tables
