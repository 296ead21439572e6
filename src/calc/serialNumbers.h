#pragma once

#include "app/app.h"

#include <optional>
#include <string>
#include <string_view>

namespace calc {

// What a new record proposes for a column: the next serial number, today's date, or nothing. The
// counter itself moves on only when a record is stored.
std::optional<std::string> proposedValue(app::App& app, std::string_view column);

// A new record has been stored with something in the column: its counter, if it has one, goes up.
void advanceSerial(core::Document& document, std::string_view column);

// Today as cells hold it, mm/dd/yyyy.
std::string todayText(app::App& app);

} // namespace calc
