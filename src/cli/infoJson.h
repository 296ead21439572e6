#pragma once

#include "core/document.h"

#include <cstdint>
#include <string>
#include <vector>

namespace cli {

// One entry of a database's archive; the size is that of the unpacked entry in bytes.
struct ArchiveEntry {
    std::string name, comment;
    std::uint64_t size = 0;
};

// What a database is, without its records, under the names that its fields have in the program.
std::string infoAsJson(const core::Document& document, const std::vector<ArchiveEntry>& entries);

// "standard" or "invoice", and "items" or "invoices".
const char* styleName(const core::Document& document);
const char* viewName(const core::Document& document);

} // namespace cli
