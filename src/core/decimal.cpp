#include "core/decimal.h"

#include "core/text.h"

#include <algorithm>

namespace core {

namespace {

constexpr int farthestExponent = 100000; // beyond it all numbers are zero or out of every range

class DecimalReader {
public:
    explicit DecimalReader(std::string_view text) : text_(trim(text)) {}

    std::optional<Decimal> read() {
        readPrefix();
        if (!readDigits() || !readExponent() || !readSuffix() || at_ != text_.size()) return std::nullopt;
        if (parenthesis_) number_.negative = true; // with a minus sign as well
        stripZeros();
        return number_;
    }

private:
    char current() const { return at_ < text_.size() ? text_[at_] : '\0'; }
    bool take(char c) {
        if (current() != c) return false;
        ++at_;
        return true;
    }
    void skipBlanks() {
        while (take(' ')) {
        }
    }
    bool takeSign() {
        if (sign_ || (current() != '-' && current() != '+')) return false;
        sign_ = true;
        number_.negative = current() == '-';
        ++at_;
        return true;
    }
    bool takeOnce(char c, bool& taken) { return !taken && take(c) && (taken = true); }

    void readPrefix() {
        while (takeSign() || takeOnce('$', dollar_) || takeOnce('(', parenthesis_)) skipBlanks();
    }

    bool readDigits() {
        for (; isDigit(current()) || (current() == ',' && !number_.digits.empty()); ++at_)
            if (current() != ',') number_.digits.push_back(current());
        number_.point = static_cast<int>(number_.digits.size());
        if (take('.'))
            for (; isDigit(current()); ++at_) number_.digits.push_back(current());
        return !number_.digits.empty();
    }

    bool readExponent() {
        const char mark = current();
        if (mark != 'e' && mark != 'E' && mark != 'd' && mark != 'D') return true;
        ++at_;
        const bool negative = current() == '-';
        if (current() == '-' || current() == '+') ++at_;
        if (!isDigit(current())) return false;
        int exponent = 0;
        for (; isDigit(current()); ++at_)
            exponent = std::min(exponent * 10 + (current() - '0'), farthestExponent);
        number_.point += negative ? -exponent : exponent;
        return true;
    }

    bool readSuffix() {
        for (bool more = true; more;) {
            skipBlanks();
            more = (!parenthesis_ && takeSign()) || takeOnce('$', dollar_);
            if (parenthesis_ && !closed_ && take(')')) more = closed_ = true;
        }
        return parenthesis_ == closed_;
    }

    void stripZeros() {
        const std::size_t first = std::min(number_.digits.find_first_not_of('0'), number_.digits.size());
        number_.digits.erase(0, first);
        number_.point -= static_cast<int>(first);
        number_.digits.erase(number_.digits.find_last_not_of('0') + 1);
        if (number_.digits.empty()) number_.point = 0;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    bool sign_ = false, dollar_ = false, parenthesis_ = false, closed_ = false;
    Decimal number_;
};

bool roundsUp(const Decimal& number, std::size_t kept, Rounding rounding) {
    const char first = number.digits[kept];
    if (first != '5') return first > '5';
    const bool exactHalf = kept + 1 == number.digits.size();
    if (rounding == Rounding::HalfAwayFromZero || !exactHalf) return true;
    return kept > 0 && (number.digits[kept - 1] - '0') % 2 == 1;
}

} // namespace

std::optional<Decimal> readDecimal(std::string_view text) {
    return DecimalReader(text).read();
}

Decimal rounded(const Decimal& number, int places, Rounding rounding) {
    const long kept = static_cast<long>(number.point) + places;
    if (kept >= static_cast<long>(number.digits.size())) return number;
    Decimal result;
    if (kept < 0) return result;
    const auto count = static_cast<std::size_t>(kept);
    const bool up = roundsUp(number, count, rounding);
    result.negative = number.negative;
    result.digits = number.digits.substr(0, count);
    result.point = number.point;
    if (up) {
        std::size_t at = count;
        while (at > 0 && result.digits[at - 1] == '9') result.digits[--at] = '0';
        if (at > 0) {
            ++result.digits[at - 1];
        } else {
            result.digits.insert(result.digits.begin(), '1');
            ++result.point;
        }
    }
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    if (result.digits.empty()) return Decimal();
    return result;
}

} // namespace core
