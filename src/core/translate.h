#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace core {

// Every text that a user of the window reads goes through tr(). The English texts in the source are the keys
// of the catalogues (translations/*.ts), which Qt's own tools make from the literals that stand inside these
// calls; so the argument is a literal, or a text that marked() has shown to them. What stands in a file, in
// the settings or in a script stays English and does not pass here. Without a catalogue, as in fwk, each text
// is given back as it is.

std::string tr(std::string_view text);

// One thing or many: %n stands for the number in both.
//   tr("%n record", "%n records", n)
std::string tr(const char* one, const char* many, int n);

// For texts in tables that are made before the catalogue is read: shows them to the tools; whoever shows them
// to the user calls tr().
constexpr const char* marked(const char* text) {
    return text;
}

// Puts the values in the places %1 to %9, all at once: a %1 within a value stays. A translation may turn them
// about.
//   fill(tr("Page %1 of %2"), {page, pages})
std::string fill(std::string_view pattern, std::initializer_list<std::string_view> values);

// What looks a text up; many is empty and n below 0 for a text that counts nothing. Answers nothing for a
// text that it does not have. One for the whole program, set before any window is made; an empty function
// takes it away.
using Catalogue = std::function<std::string(const std::string& text, const std::string& many, int n)>;
void setCatalogue(Catalogue catalogue);

} // namespace core
