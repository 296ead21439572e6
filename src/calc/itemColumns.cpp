#include "calc/itemColumns.h"

#include <unordered_map>

namespace calc {

ItemColumns::ItemColumns(const core::Document& document) {
    std::unordered_map<std::string, int> fields;
    document.layout.layoutField.forEach([&](const core::LayoutField& field) {
        if (++fields[field.Tag] == 2) names_.insert(field.Tag);
    });
}

} // namespace calc
