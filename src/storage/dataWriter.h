#pragma once

#include "core/document.h"

#include <string>

namespace storage {

// The text of data.dat for the document. A clone has no rows and counters of 0. In an invoice
// database the column widths and the positions of the view on show are taken over from iLV first,
// which is why the document is not const.
std::string writeDataFile(core::Document& document, bool bClone);

// The text as bytes of the file: Windows-1252 when every character fits, else UTF-8 with a mark.
std::string encodeDataFile(std::string text);

} // namespace storage
