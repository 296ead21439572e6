#include "calc/serialNumbers.h"

#include "core/dates.h"
#include "core/number.h"

namespace calc {

std::string todayText(app::App& app) {
    const std::chrono::year_month_day today = app.platform.today();
    return core::formatDate(static_cast<int>(today.year()), static_cast<unsigned>(today.month()),
                            static_cast<unsigned>(today.day()));
}

std::optional<std::string> proposedValue(app::App& app, std::string_view column) {
    if (const core::Item* serial = app.document.SerialsLV.findText(column))
        return core::numberText(core::val(serial->subItem(1)) + 1);
    if (app.document.optionedCols.contains(column)) return todayText(app);
    return std::nullopt;
}

void advanceSerial(core::Document& document, std::string_view column) {
    core::Item* serial = document.SerialsLV.findText(column);
    if (serial != nullptr) serial->subItem(1) = core::numberText(core::val(serial->subItem(1)) + 1);
}

} // namespace calc
