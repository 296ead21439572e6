#pragma once

#include <string_view>

namespace platform {

// The code of the paper that is usual where a locale is spoken ("de_AT.UTF-8"): A4, or Letter where that is
// sold, and for a name that tells no country.
int paperOfLocale(std::string_view name);
// That of the locale which the process was started in for papers: LC_ALL, LC_PAPER or LANG.
int localePaper();

} // namespace platform
