#include "tables/toldCells.h"

namespace tables {

std::vector<ToldCell> toldCells(const ImportTable& table, std::size_t most, bool byTarget) {
    std::vector<ToldCell> cells;
    for (const ImportTable::Refusal& refusal : table.refusals(most)) {
        const ImportTable::Column& column = table.columns()[refusal.column];
        const bool hasTarget = byTarget && column.target != nullptr;
        cells.push_back({std::to_string(refusal.row), hasTarget ? column.target->Text : column.name,
                         std::string(refusal.value), refusal.reason});
    }
    return cells;
}

std::vector<ToldCell> toldCells(const NewRecords& records, std::size_t most) {
    std::vector<ToldCell> cells;
    for (const NewRecords::Refusal& refusal : records.refusals(most))
        cells.push_back({std::to_string(refusal.row), records.sources()[refusal.column].target->Text,
                         std::string(refusal.value), refusal.reason});
    return cells;
}

std::string inWords(const ToldCell& cell) {
    std::string line = "row ";
    line.append(cell.Row).append(", \"").append(cell.Column).append("\": \"");
    return line.append(cell.Value).append("\" ").append(cell.Reason);
}

} // namespace tables
