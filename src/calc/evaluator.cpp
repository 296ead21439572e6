#include "calc/evaluator.h"

#include "core/runTimeError.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace calc {

namespace {

using core::raise;
namespace errors = core::errors;

constexpr int deepestNesting = 250;

constexpr std::array<std::string_view, 56> keywords = {
    "And",  "ByRef",    "ByVal",   "Call",     "Case",   "Class", "Const",   "Dim",    "Do",       "Each",
    "Else", "ElseIf",   "Empty",   "End",      "Eqv",    "Erase", "Error",   "Exit",   "Explicit", "False",
    "For",  "Function", "Get",     "GoTo",     "If",     "Imp",   "In",      "Is",     "Let",      "Like",
    "Loop", "Me",       "Mod",     "New",      "Next",   "Not",   "Nothing", "Null",   "On",       "Option",
    "Or",   "Preserve", "Private", "Property", "Public", "ReDim", "Rem",     "Resume", "Select",   "Set",
    "Sub",  "Then",     "True",    "Wend",     "While",  "Xor"};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isNameStart(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text) {}

    double parse() {
        const double value = sum();
        if (current() != '\0' || at_ != text_.size()) raise(errors::syntax, std::string(text_));
        return value;
    }

private:
    // The next character that is no blank; a zero at the end.
    char current() {
        while (at_ < text_.size() && text_[at_] == ' ') ++at_;
        return at_ < text_.size() ? text_[at_] : '\0';
    }

    static double checked(double value) {
        if (!std::isfinite(value)) raise(errors::overflow, "calculation");
        return value;
    }

    double sum() {
        double value = product();
        for (char sign = current(); sign == '+' || sign == '-'; sign = current()) {
            ++at_;
            const double next = product();
            value = checked(sign == '+' ? value + next : value - next);
        }
        return value;
    }

    double product() {
        double value = factor();
        for (char sign = current(); sign == '*' || sign == '/'; sign = current()) {
            ++at_;
            const double next = factor();
            if (sign == '/' && next == 0) raise(errors::divisionByZero);
            value = checked(sign == '*' ? value * next : value / next);
        }
        return value;
    }

    double factor() {
        bool negative = false;
        for (char sign = current(); sign == '+' || sign == '-'; sign = current()) {
            negative = negative != (sign == '-');
            ++at_;
        }
        const double value = operand();
        return negative ? -value : value;
    }

    double operand() {
        const char c = current();
        if (c == '(') return group();
        if (isDigit(c) || c == '.') return number();
        if (isNameStart(c)) return name();
        raise(errors::syntax, std::string(text_));
    }

    double group() {
        if (++depth_ > deepestNesting) raise(errors::syntax, "too many parentheses");
        ++at_;
        const double value = sum();
        if (current() != ')') raise(errors::syntax, std::string(text_));
        ++at_;
        --depth_;
        return value;
    }

    double number() {
        const char* first = text_.data() + at_;
        double value = 0;
        const auto result = std::from_chars(first, text_.data() + text_.size(), value);
        if (result.ec == std::errc::result_out_of_range) raise(errors::overflow, "number");
        if (result.ec != std::errc()) raise(errors::syntax, std::string(text_));
        at_ += static_cast<std::size_t>(result.ptr - first);
        endOperand();
        return value;
    }

    double name() {
        const std::size_t from = at_;
        while (at_ < text_.size() && (isNameStart(text_[at_]) || isDigit(text_[at_]) || text_[at_] == '_'))
            ++at_;
        const std::string_view word = text_.substr(from, at_ - from);
        if (std::ranges::any_of(keywords,
                                [&](std::string_view keyword) { return core::equalsNoCase(keyword, word); }))
            raise(errors::syntax, std::string(word));
        endOperand();
        return 0;
    }

    // Behind an operand stands an operator, a parenthesis or the end.
    void endOperand() {
        const char c = current();
        if (isDigit(c) || isNameStart(c) || c == '_' || c == '.' || c == '(')
            raise(errors::syntax, std::string(text_));
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int depth_ = 0;
};

} // namespace

double evaluate(std::string_view text) {
    return Parser(text).parse();
}

} // namespace calc
