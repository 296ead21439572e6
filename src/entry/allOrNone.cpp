#include "entry/allOrNone.h"

namespace entry {

void addAllOrNone(core::Document& document, const std::function<void()>& add) {
    const int records = document.LV.count();
    const auto lastKey = document.iLastKey;
    std::vector<core::CellText> serials;
    document.SerialsLV.forEach([&](const core::Item& serial) { serials.push_back(serial.subItem(1)); });
    try {
        add();
    } catch (...) {
        int row = 0;
        document.LV.removeIf([&](const core::Item&) { return ++row > records; });
        document.iLastKey = lastKey;
        auto before = serials.begin();
        document.SerialsLV.forEach([&](core::Item& serial) { serial.subItem(1) = *before++; });
        throw;
    }
}

} // namespace entry
