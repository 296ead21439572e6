#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace calc {

// The value of an arithmetic expression: numbers ("12", ".5", "5.", "1e3"), + - * / with * and / ahead
// of + and -, signs in any number, parentheses, blanks between them, and bare names, which are worth 0.
// A name begins with a letter and goes on with letters, digits and "_"; letters are those of any
// script. Words that have a meaning of their own in a script ("And", "Mod", "True", ...) are refused.
//
// Raises syntax for everything else: the empty text, two operands side by side, any other character,
// nesting deeper than 250 levels. Raises divisionByZero, and overflow for a number or result beyond a
// double.
double evaluate(std::string_view text);

// Where evaluate would raise syntax, as a byte offset; nothing for an expression that is well formed,
// whatever its value.
std::optional<std::size_t> syntaxErrorAt(std::string_view text);

} // namespace calc
