#pragma once

#include "app/app.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace invoice {

// Whether a column has several values in an invoice. The layout alone decides it: two or more fields
// that show the column make it one of the item rows.
bool isItemColumn(const core::Document& document, std::string_view name);

// The layout asked once for all columns.
class ItemColumns {
public:
    explicit ItemColumns(const core::Document& document);
    bool contains(std::string_view name) const { return names_.contains(std::string(name)); }

private:
    std::unordered_set<std::string> names_;
};

// Rebuild iLV from LV: one row an item row, and one row an invoice. A row's Text is the key of the
// record in LV that it came from.
void BuildItemsView(app::App& app);
void BuildInvoicesView(app::App& app);

// The report's columns are those that have been chosen for the view on show.
void choosePrintedCols(core::Document& document);

// The view on show after a record has been written: its columns stay as the user has sized and dragged
// them, and the row of the selected record is selected.
void refreshRows(app::App& app);

} // namespace invoice
