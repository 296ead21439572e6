#pragma once

#include "core/document.h"

namespace core {

enum class TotalsMode { Add = 1, Subtract = 2 };

bool isTotaledColumn(const Document& document, std::string_view name);

// Adds a row into, or takes it out of, the Totals row of its list. Column types are LV's, in all
// lists. A rowIndex below 1 does nothing.
void UpdateTotalsRow(const Document& document, TotalsMode mode, RecordsList& list, int rowIndex);

// The same for many rows in one go: the columns and the Totals row are looked up once.
class TotalsRowUpdater {
public:
    TotalsRowUpdater(const Document& document, RecordsList& list);
    void update(TotalsMode mode, const Item& item) const;

private:
    struct TotaledColumn {
        int subItem;
        ColumnType type;
    };

    std::vector<TotaledColumn> columns_;
    Item* totals_;
};

// Writes "------" into every cell of the Totals row.
void resetTotalsRow(RecordsList& list);

} // namespace core
