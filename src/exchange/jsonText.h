#pragma once

#include <string>
#include <string_view>

namespace exchange {

// The text in quotes, as JSON has it. The library for JSON makes a list of 32,000 records take twice the
// time.
void appendJsonText(std::string& out, std::string_view text);

} // namespace exchange
