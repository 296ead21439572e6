#include "calc/evaluator.h"

#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace calc {

namespace {

using core::raise;
namespace errors = core::errors;

constexpr int deepestNesting = 250;

constexpr std::array<std::string_view, 60> keywords = {
    "And",  "ByRef",    "ByVal",   "Call",     "Case",   "Class", "Const",   "Dim",    "Do",       "Each",
    "Else", "ElseIf",   "Empty",   "End",      "Eqv",    "Erase", "Error",   "Exit",   "Explicit", "False",
    "For",  "Function", "Get",     "GoTo",     "If",     "Imp",   "In",      "Is",     "Let",      "Like",
    "Loop", "Me",       "Mod",     "New",      "Next",   "Not",   "Nothing", "Null",   "On",       "Option",
    "Or",   "Preserve", "Private", "Property", "Public", "ReDim", "Rem",     "Resume", "Select",   "Set",
    "Stop", "Sub",      "Then",    "To",       "True",   "Until", "Wend",    "While",  "With",     "Xor"};

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}
bool isNameStart(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || !isAscii(c);
}

// The blocks of marks, signs and symbols beyond ASCII; all other characters there pass for letters.
bool isLetter(char32_t c) {
    struct Range {
        char32_t first, last;
    };
    constexpr Range symbols[] = {{0x80, 0xA9},     {0xAB, 0xB4},     {0xB6, 0xB9},     {0xBB, 0xBF},
                                 {0xD7, 0xD7},     {0xF7, 0xF7},     {0x2000, 0x2BFF}, {0x3000, 0x303F},
                                 {0xD800, 0xF8FF}, {0xFE00, 0xFE6F}, {0xFEFF, 0xFF20}, {0x1F000, 0x1FAFF}};
    return std::ranges::none_of(symbols,
                                [&](const Range& range) { return c >= range.first && c <= range.last; });
}

class Parser {
public:
    explicit Parser(std::string_view text, bool bFormOnly = false) : text_(text), bFormOnly_(bFormOnly) {}

    double parse() {
        const double value = sum();
        if (current() != '\0' || at_ != text_.size()) raise(errors::syntax, std::string(text_));
        return value;
    }
    std::size_t at() const { return at_; }

private:
    // The next character that is no blank; a zero at the end.
    char current() {
        while (at_ < text_.size() && text_[at_] == ' ') ++at_;
        return at_ < text_.size() ? text_[at_] : '\0';
    }

    double checked(double value) const {
        if (bFormOnly_) return 0;
        if (!std::isfinite(value)) raise(errors::overflow, core::tr("calculation"));
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
            if (sign == '/' && next == 0 && !bFormOnly_) raise(errors::divisionByZero);
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
        if (core::isDigit(c) || c == '.') return number();
        if (isNameStart(c)) return name();
        raise(errors::syntax, std::string(text_));
    }

    double group() {
        if (++depth_ > deepestNesting) raise(errors::syntax, core::tr("too many parentheses"));
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
        const auto size = static_cast<std::size_t>(result.ptr - first);
        if (result.ec == std::errc::result_out_of_range) {
            // Beyond a double, or so near to zero that it is none: only the first is an error.
            const std::optional<double> read = core::toDouble(text_.substr(at_, size));
            if (!read && !bFormOnly_) raise(errors::overflow, core::tr("number"));
            value = read.value_or(0);
        } else if (result.ec != std::errc()) {
            raise(errors::syntax, std::string(text_));
        }
        at_ += size;
        endOperand();
        return value;
    }

    double name() {
        const std::size_t from = at_;
        while (takeNameCharacter()) {
        }
        const std::string_view word = text_.substr(from, at_ - from);
        if (word.empty()) raise(errors::syntax, std::string(text_));
        if (std::ranges::any_of(
                keywords, [&](std::string_view keyword) { return core::equalsNoCase(keyword, word); })) {
            at_ = from;
            raise(errors::syntax, std::string(word));
        }
        endOperand();
        return 0;
    }

    bool takeNameCharacter() {
        if (at_ == text_.size()) return false;
        std::size_t next = at_;
        const char c = text_[at_];
        const char32_t character = core::nextCodePoint(text_, next);
        const bool isStrayByte = !isAscii(c) && next == at_ + 1;
        const bool belongs =
            isAscii(c) ? isNameStart(c) || core::isDigit(c) || c == '_' : isLetter(character);
        if (isStrayByte || !belongs) return false;
        at_ = next;
        return true;
    }

    // Behind an operand stands an operator, a parenthesis or the end.
    void endOperand() {
        const char c = current();
        if (core::isDigit(c) || isNameStart(c) || c == '_' || c == '.' || c == '(')
            raise(errors::syntax, std::string(text_));
    }

    std::string_view text_;
    bool bFormOnly_; // nothing is worked out
    std::size_t at_ = 0;
    int depth_ = 0;
};

} // namespace

double evaluate(std::string_view text) {
    return Parser(text).parse();
}

std::optional<std::size_t> syntaxErrorAt(std::string_view text) {
    Parser parser(text, true);
    try {
        parser.parse();
    } catch (const core::RunTimeError&) {
        return parser.at();
    }
    return std::nullopt;
}

} // namespace calc
