#pragma once

#include "core/document.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace calc {

// Which columns have several values in an invoice. The layout alone decides it: two or more fields that show
// a column make it one of the item rows. The layout is asked once for all columns.
class ItemColumns {
public:
    explicit ItemColumns(const core::Document& document);
    bool contains(std::string_view name) const { return names_.contains(std::string(name)); }

private:
    std::unordered_set<std::string> names_;
};

} // namespace calc
