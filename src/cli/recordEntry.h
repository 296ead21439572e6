#pragma once

#include "cli/session.h"

#include <string>
#include <vector>

namespace cli {

// What is to be stored in one column of a record.
struct CellValue {
    const core::Column* column;
    std::string text;
};

// Reads "NAME=VALUE" arguments: a name may hold "=", as long as it is a column's. Raises Failure for a
// column that does not exist, one that is named twice, and one that takes no value.
std::vector<CellValue> cellValues(Session& session, const std::vector<std::string>& arguments);

// Store by the window's own routine. A new record has a box for every column that can be typed into, and
// those that nobody names hold what a new record proposes.
core::Item& addRecord(Session& session, const std::vector<CellValue>& values);
void updateRecord(Session& session, core::Item& record, const std::vector<CellValue>& values);

} // namespace cli
