#pragma once

#include "core/recordsList.h"

#include <vector>

namespace cli {

enum class RecordsForm { Table, Json, Csv };

// Prints the records of a list and its Totals row, which CSV leaves out. A row of invoices, which has
// no key of its own, shows the key of the record that it came from.
void printRecords(core::RecordsList& list, const std::vector<const core::Column*>& columns, RecordsForm form);

} // namespace cli
