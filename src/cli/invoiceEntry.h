#pragma once

#include "cli/recordEntry.h"

namespace cli {

// Store an invoice by the window's own routine: what is named goes into the layout's fields, several values
// of an item column one below the other. Raise Failure for a column without a field, and for more values
// than it has.
core::Item& addInvoice(Session& session, const std::vector<CellValue>& values);
// Puts the values into the layout's fields, and no more.
void fillInvoice(Session& session, const std::vector<CellValue>& values);
void updateInvoice(Session& session, core::Item& record, const std::vector<CellValue>& values);

} // namespace cli
