#pragma once

#include "core/document.h"

#include <string>
#include <vector>

namespace file {

// The text of data.dat for the document. A clone has no rows and counters of 0. In an invoice
// database the column widths and the positions of the view on show are taken over from iLV first,
// which is why the document is not const.
std::string writeDataFile(core::Document& document, bool bClone);

// The same design with other rows than all records: the text down to the rows, and the line of one row.
std::string writeDesign(core::Document& document, bool bClone);
class RowWriter {
public:
    explicit RowWriter(const core::ColumnHeaders& columns);
    void append(std::string& out, const core::Item& item) const;

private:
    std::vector<bool> isText_;
};

// The text as bytes of the file: Windows-1252 when every character fits, else UTF-8 with a mark.
std::string encodeDataFile(std::string text);

} // namespace file
