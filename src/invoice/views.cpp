#include "invoice/views.h"

#include "calc/itemColumns.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/totalsRow.h"
#include "core/translate.h"

#include <algorithm>
#include <unordered_map>

namespace invoice {

namespace {

using core::Column;
using core::Document;
using core::Item;
using core::RecordsList;

// No invoice list comes near them; a file that asks for more was made to fill the memory.
constexpr long long mostRows = 4'000'000;
constexpr long long mostCells = 60'000'000;

Column& copyColumn(RecordsList& list, const Column& column) {
    Column& copy = list.columns.add(column.Key, column.Text, column.Width);
    copy.align = column.align;
    copy.Tag = column.Tag;
    return copy;
}

void clearView(RecordsList& list) {
    list.clear();
    list.columns.clear();
}

// A position beyond the table stands for the last place.
void positionColumns(RecordsList& list, const core::NamedCollection& positions) {
    const int columns = list.columns.count();
    std::vector<int> wanted;
    for (const auto& entry : positions) {
        if (static_cast<int>(wanted.size()) == columns) break;
        wanted.push_back(static_cast<int>(std::clamp(core::val(entry.item), 1.0, double(columns))));
    }
    list.columns.setPositions(wanted);
}

// Where each column of the view, from Index 2 on, has its cell in a record.
std::vector<int> sourceCells(const RecordsList& view, const RecordsList& records) {
    std::vector<int> subItems;
    for (const Column& column : view.columns)
        if (column.Index != 1) subItems.push_back(records.columns[column.Text].Index - 1);
    return subItems;
}

// Item rows are counted in the first record, by its last cell of several values: the layout gives all
// invoices the same number.
int itemRows(const RecordsList& records) {
    if (records.empty()) return 0;
    int rows = 0;
    for (const core::CellText& cell : records.at(1).cells) {
        const auto values = std::ranges::count(cell.view(), core::itemSeparator);
        if (values > 0) rows = static_cast<int>(values);
    }
    return rows;
}

std::string_view valueOf(std::string_view cell, const std::vector<std::string_view>& parts, int row) {
    if (parts.size() < 2) return cell;
    return static_cast<std::size_t>(row) < parts.size() ? parts[static_cast<std::size_t>(row)]
                                                        : std::string_view();
}

void addItemRows(RecordsList& view, const Item& record, int rows, const std::vector<int>& cells,
                 const core::TotalsRowUpdater& totals) {
    std::vector<std::vector<std::string_view>> parts;
    parts.reserve(record.cells.size());
    for (const core::CellText& cell : record.cells) parts.push_back(core::split(cell, core::itemSeparator));
    // The first cell of several values alone decides which item rows there are.
    const auto deciding = std::ranges::find_if(parts, [](const auto& values) { return values.size() > 1; });
    for (int row = 0; row < rows; ++row) {
        if (deciding != parts.end() && valueOf({}, *deciding, row).empty()) continue;
        Item& shown = view.add({}, record.Key);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const auto cell = static_cast<std::size_t>(cells[i] - 1);
            shown.cells[i] = valueOf(record.cells[cell], parts[cell], row);
        }
        totals.update(core::TotalsMode::Add, shown);
    }
}

} // namespace

void choosePrintedCols(Document& document) {
    document.printedCols.clear();
    for (const auto& column : document.bInvoiceView ? document.prnItemCols : document.prnInvoiceCols)
        document.printedCols.add(column.item, column.item);
}

void BuildInvoicesView(core::Document& document) {
    RecordsList& view = document.iLV;
    const calc::ItemColumns items(document);
    clearView(view);
    for (const Column& column : document.LV.columns)
        if (column.Index == 1 || !items.contains(column.Text)) copyColumn(view, column);
    positionColumns(view, document.invoiceCols);
    addTotalsRow(view).Text = core::totalsKey;
    const std::vector<int> cells = sourceCells(view, document.LV);
    const core::TotalsRowUpdater totals(document, view);
    document.LV.forEach([&](const Item& record) {
        if (record.isTotals()) return;
        Item& shown = view.add({}, record.Key);
        for (std::size_t i = 0; i < cells.size(); ++i) shown.cells[i] = record.subItem(cells[i]);
        totals.update(core::TotalsMode::Add, shown);
    });
    moveTotals(view);
}

void BuildItemsView(core::Document& document) {
    RecordsList& view = document.iLV;
    const calc::ItemColumns items(document);
    clearView(view);
    for (const Column& column : document.LV.columns) {
        const bool isItem = items.contains(column.Text);
        if (column.isNumeric()) {
            // The sums of an invoice have no place among its items.
            if (isItem) copyColumn(view, column);
            continue;
        }
        Column& copy = copyColumn(view, column);
        if (!isItem) view.columns.setPosition(copy.Index, view.columns.count());
    }
    positionColumns(view, document.itemLevelCols);
    addTotalsRow(view).Text = core::totalsKey;
    const int rows = itemRows(document.LV);
    const long long allRows = static_cast<long long>(rows) * document.LV.count();
    if (allRows > mostRows || allRows * view.columns.count() > mostCells)
        core::raise(core::errors::overflow, core::tr("item rows"));
    const std::vector<int> cells = sourceCells(view, document.LV);
    const core::TotalsRowUpdater totals(document, view);
    document.LV.forEach([&](const Item& record) {
        if (!record.isTotals()) addItemRows(view, record, rows, cells, totals);
    });
    moveTotals(view);
}

void refreshRows(core::Document& document) {
    RecordsList& view = document.iLV;
    const core::ColumnHeaders before = view.columns;
    rebuildView(document);
    const auto isSame = [](const Column& a, const Column& b) { return a.Key == b.Key && a.Tag == b.Tag; };
    if (std::ranges::equal(before, view.columns, isSame)) view.columns = before;
    const Item* record = document.LV.selectedItem();
    Item* row = record == nullptr ? nullptr : view.findText(record->Key);
    if (row == nullptr) return;
    view.clearSelection();
    view.setSelectedItem(row);
}

void rebuildView(core::Document& document) {
    if (!document.bInvoiceStyle && !document.iLV.Visible) return;
    // The widths that the user has given the columns on show are those of the columns.
    for (const Column& shown : document.iLV.columns) {
        Column* column = document.LV.columns.find(shown.Text);
        if (column != nullptr && column->Index != 1) column->Width = shown.Width;
    }
    if (document.bInvoiceView)
        BuildItemsView(document);
    else
        BuildInvoicesView(document);
}

} // namespace invoice
