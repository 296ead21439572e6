#include "platform/localePaper.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace platform {

namespace {

constexpr int letterCode = 1, a4Code = 9;

// The countries whose offices have Letter in their printers.
constexpr std::array<std::string_view, 14> letterCountries = {"BZ", "CA", "CL", "CO", "CR", "GT", "MX",
                                                              "NI", "PA", "PH", "PR", "SV", "US", "VE"};

} // namespace

// By the name alone: a locale that was named but never generated on this machine says where its user lives,
// too.
int paperOfLocale(std::string_view name) {
    name = name.substr(0, name.find_first_of(".@"));
    const std::size_t line = name.find('_');
    if (line == std::string_view::npos) return letterCode;
    const std::string_view country = name.substr(line + 1);
    constexpr std::size_t lengthOfCountry = 2;
    if (country.size() != lengthOfCountry) return letterCode;
    return std::ranges::find(letterCountries, country) == letterCountries.end() ? a4Code : letterCode;
}

int localePaper() {
    for (const char* variable : {"LC_ALL", "LC_PAPER", "LANG"}) {
        const char* name = std::getenv(variable);
        if (name != nullptr && *name != '\0') return paperOfLocale(name);
    }
    return letterCode;
}

} // namespace platform
