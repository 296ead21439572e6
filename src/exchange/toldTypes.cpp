#include "exchange/toldTypes.h"

#include "core/format.h"
#include "exchange/columnTypes.h"

#include <map>

namespace exchange {

namespace {

using Kind = SheetCell::Kind;

// "2024-12-31" and 1234.5 as a database has them.
void restoreCell(SheetCell& cell) {
    if (cell.kind == Kind::Date) {
        const std::string iso = cell.text.str();
        std::string day = iso.substr(5, 2);
        cell.text = day.append("/").append(iso, 8).append("/").append(iso, 0, 4);
    } else if (cell.kind == Kind::Number && cell.bMoney) {
        cell.text = core::format(cell.text, core::Mask::Money);
    }
    if (cell.kind != Kind::Empty) cell.kind = Kind::Text;
}

} // namespace

std::vector<std::string> typedHeadings(const OutTable& table) {
    std::vector<std::string> headings;
    for (const OutColumn& column : table.columns) {
        const bool hasType = column.type != core::ColumnType::None;
        std::string heading = column.name;
        heading.append(":").append(core::typeName(hasType ? column.type : core::ColumnType::Text));
        headings.push_back(std::move(heading));
    }
    return headings;
}

void restoreTypes(Sheet& sheet, const std::vector<std::string>& told) {
    std::map<std::string, const std::string*, std::less<>> headings;
    for (const std::string& heading : told)
        if (const auto column = typedColumn(heading)) headings.emplace(column->name, &heading);
    if (sheet.rows.empty() || headings.empty()) return;
    SheetRow first = sheet.rows.front();
    for (SheetCell& cell : first) {
        const auto found = headings.find(cell.text.view());
        if (found == headings.end()) return;
        cell = {Kind::Text, *found->second};
    }
    for (SheetRow& row : sheet.rows)
        for (SheetCell& cell : row) restoreCell(cell);
    sheet.rows.front() = std::move(first);
    sheet.bTyped = false;
}

} // namespace exchange
