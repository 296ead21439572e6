#include "cli/columnArgument.h"

#include "core/text.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>

namespace cli {

namespace {

// In the order of the option buttons.
constexpr std::array<const char*, 6> types = {"Date", "Currency", "Calculation", "Number", "Text", "Picture"};

int typeOptOf(std::string_view type) {
    const auto* found =
        std::ranges::find_if(types, [&](const char* t) { return core::equalsNoCase(t, type); });
    return found == types.end() ? -1 : static_cast<int>(found - types.begin());
}

std::string whatIsWrong(const std::string& argument) {
    const std::size_t colon = argument.rfind(':');
    if (colon == std::string::npos) return "\"" + argument + "\" is not of the form NAME:TYPE";
    if (ColumnArgument(argument).typeOpt >= 0) return {};
    return "\"" + argument.substr(colon + 1) +
           "\" is none of the types Text, Number, Currency, Date, Picture, Calculation";
}

} // namespace

ColumnArgument::ColumnArgument(const std::string& argument)
    : name(argument.substr(0, argument.rfind(':'))),
      typeOpt(typeOptOf(argument.substr(argument.rfind(':') + 1))) {}

std::vector<std::string> namesIn(const std::string& list) {
    std::vector<std::string> names;
    if (!list.empty())
        for (const std::string_view name : core::split(list, ',')) names.emplace_back(name);
    return names;
}

void expectColumns(CLI::Option& option) {
    option.check(whatIsWrong);
    option.option_text("NAME:TYPE");
}

} // namespace cli
