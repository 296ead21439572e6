#pragma once

#include "app/app.h"

#include <optional>
#include <string>
#include <vector>

namespace print {

// Papers, one of which may be chosen.
struct PaperChoice {
    std::vector<platform::PaperName> papers;
    std::optional<std::size_t> chosen;

    std::optional<int> code() const;
};

// The papers of a report beside Letter and Legal, by their names in the user's language: those that everybody
// can buy, the printer's, and that of the database, which is chosen when it is none of the two. Code 0 is
// that of a database in which nobody has chosen any.
PaperChoice papersBesideTheOptions(platform::Platform& platform, int present);

// The printer's papers in its own order, and behind them those that everybody can buy.
std::vector<platform::PaperName> allPapers(platform::Platform& platform);

// What there is to say of a paper that prints on another one; empty for all others.
std::string paperNotice(platform::Platform& platform, int code);

} // namespace print
