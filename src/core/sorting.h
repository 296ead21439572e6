#pragma once

#include "core/recordsList.h"

#include <string>

namespace core {

// The sorts behind a click on a column's header. Ascending and descending take turns over all
// columns, beginning with descending. Columns of other types than Text and Picture are sorted by a
// key made from each cell: a date turned round to yyyymmdd, a number padded with blanks in front.

// Keeps the keys in the items' Text, where LV has no use of its own for it.
void sortByColumnKey(RecordsList& list, const Column& column);
// For lists whose Text is the key of a record: the keys go into a column that lives only for the sort.
void sortByHiddenColumn(RecordsList& list, const Column& column);

std::string sortKeyOf(std::string_view cell, ColumnType type);

} // namespace core
