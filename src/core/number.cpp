#include "core/number.h"

#include "core/runTimeError.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace core {

namespace {

constexpr int mostPlainDigits = 18;
constexpr std::uint64_t largestExact = std::uint64_t{1} << 53; // up to here a double holds every integer
constexpr double smallestPrecise = 1e-300;                     // well ahead of the doubles with fewer digits

constexpr std::array<std::uint64_t, mostPlainDigits + 1> powersOfTen = [] {
    std::array<std::uint64_t, mostPlainDigits + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
    return powers;
}();

std::uint64_t powerOfTen(int exponent) {
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

// Both terms are exact as doubles, so the quotient is the double nearest to the written number.
std::optional<double> exactDouble(const PlainNumber& number) {
    if (number.digits > largestExact) return std::nullopt;
    const double magnitude =
        static_cast<double>(number.digits) / static_cast<double>(powerOfTen(number.places));
    return number.negative ? -magnitude : magnitude;
}

// The digits of a positive number without trailing zeros, and the power of ten of the first.
class Scientific {
public:
    explicit Scientific(double value) {
        char* last = std::to_chars(first(), end(), value, std::chars_format::scientific).ptr;
        read(last);
        // Up to 15 digits the shortest form is the rounded one as well, and found faster.
        if (digits_.size() <= significantDigits && value > smallestPrecise) return;
        constexpr int behindPoint = significantDigits - 1;
        read(std::to_chars(first(), end(), value, std::chars_format::scientific, behindPoint).ptr);
    }
    explicit Scientific(float value) {
        read(std::to_chars(first(), end(), value, std::chars_format::scientific).ptr);
    }

    Scientific(const Scientific&) = delete; // digits_ looks into the buffer
    Scientific& operator=(const Scientific&) = delete;

    std::string text(bool negative) const {
        std::string text = negative ? "-" : "";
        const auto count = static_cast<int>(digits_.size());
        if (exponent_ >= static_cast<int>(significantDigits) || exponent_ <= -5) {
            text.append(digits_, 0, 1);
            if (count > 1) text.append(".").append(digits_, 1);
            const std::string power = std::to_string(std::abs(exponent_));
            return text.append(exponent_ < 0 ? "E-" : "E+").append(power.size() < 2 ? "0" : "").append(power);
        }
        if (exponent_ < 0)
            return text.append("0.").append(static_cast<std::size_t>(-exponent_ - 1), '0').append(digits_);
        if (count <= exponent_ + 1)
            return text.append(digits_).append(static_cast<std::size_t>(exponent_ + 1 - count), '0');
        const auto whole = static_cast<std::size_t>(exponent_) + 1;
        return text.append(digits_, 0, whole).append(".").append(digits_, whole);
    }

private:
    static constexpr std::size_t significantDigits = 15;

    char* first() { return buffer_.data(); }
    char* end() { return buffer_.data() + buffer_.size(); }

    // "1.234e+05": the point gives way, so that the digits stand together.
    void read(char* last) {
        char* mark = std::find(first(), last, 'e');
        const char* power = mark[1] == '+' ? mark + 2 : mark + 1;
        std::from_chars(power, last, exponent_);
        char* from = first();
        if (mark - from > 1) {
            from[1] = from[0];
            ++from;
        }
        while (mark - from > 1 && mark[-1] == '0') --mark;
        digits_ = std::string_view(from, static_cast<std::size_t>(mark - from));
    }

    std::array<char, 64> buffer_{};
    std::string_view digits_;
    int exponent_ = 0;
};

class ValReader {
public:
    explicit ValReader(std::string_view text) : text_(text) {}

    double read() {
        readSign();
        if (!readDigits()) return 0;
        readExponent();
        const std::optional<double> value = toDouble(number_);
        if (value) return *value;
        const double most = std::numeric_limits<double>::max();
        return number_.front() == '-' ? -most : most;
    }

private:
    char current() {
        constexpr std::string_view blanks = " \t\n\r";
        while (at_ < text_.size() && blanks.find(text_[at_]) != std::string_view::npos) ++at_;
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    void take() { number_.push_back(text_[at_++]); }

    bool takeDigits() {
        const std::size_t before = number_.size();
        while (isDigit(current())) take();
        return number_.size() > before;
    }
    void readSign() {
        if (current() == '-' || current() == '+') take();
    }
    bool readDigits() {
        const bool whole = takeDigits();
        if (current() != '.') return whole;
        take();
        return takeDigits() || whole;
    }
    // A mark that no digits follow is none of the number's.
    void readExponent() {
        constexpr std::string_view exponentMarks = "eEdD";
        const std::size_t mantissa = number_.size();
        if (exponentMarks.find(current()) == std::string_view::npos) return;
        take();
        readSign();
        if (!takeDigits()) number_.resize(mantissa);
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::string number_;
};

// The value of "12", "-12.5" or "12,5": all but the forms in which a blank, an exponent or very many
// digits have to be looked at.
std::optional<double> plainVal(std::string_view text) {
    text = ltrim(text);
    std::size_t at = 0;
    PlainNumber number;
    int count = 0;
    const auto takeDigits = [&] {
        const int before = count;
        for (; at < text.size() && isDigit(text[at]); ++at, ++count)
            number.digits = number.digits * 10 + static_cast<std::uint64_t>(text[at] - '0');
        return count - before;
    };
    if (text.starts_with('-')) {
        number.negative = true;
        ++at;
    }
    takeDigits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        number.places = takeDigits();
    }
    constexpr std::string_view continues = " \t\n\reEdD+";
    if (at < text.size() && continues.find(text[at]) != std::string_view::npos) return std::nullopt;
    if (count == 0) return 0;
    if (count > mostPlainDigits) return std::nullopt;
    return exactDouble(number);
}

} // namespace

std::optional<PlainNumber> readPlainNumber(std::string_view text) {
    text = trim(text);
    PlainNumber number;
    std::size_t at = 0;
    int count = 0;
    const auto take = [&](char c) {
        const bool isThere = at < text.size() && text[at] == c;
        if (isThere) ++at;
        return isThere;
    };
    const auto takeDigit = [&] {
        if (at == text.size() || !isDigit(text[at])) return false;
        number.digits = number.digits * 10 + static_cast<std::uint64_t>(text[at++] - '0');
        ++count;
        return true;
    };
    number.negative = take('-');
    take('$');
    while (takeDigit() || (count > 0 && take(','))) {
    }
    const int whole = count;
    if (take('.'))
        while (takeDigit()) {
        }
    if (at != text.size() || count == 0 || count > mostPlainDigits) return std::nullopt;
    number.places = count - whole;
    return number;
}

std::optional<std::uint64_t> PlainNumber::digitsWith(int wantedPlaces, Rounding rounding) const {
    if (wantedPlaces >= places) {
        std::uint64_t all = 0;
        if (__builtin_mul_overflow(digits, powerOfTen(wantedPlaces - places), &all)) return std::nullopt;
        return all;
    }
    const std::uint64_t unit = powerOfTen(places - wantedPlaces);
    const std::uint64_t kept = digits / unit;
    const std::uint64_t half = unit / 2;
    const std::uint64_t rest = digits % unit;
    const bool halfGoesUp = rounding == Rounding::HalfAwayFromZero || kept % 2 == 1;
    return kept + (rest > half || (rest == half && halfGoesUp) ? 1 : 0);
}

bool isNumeric(std::string_view text) {
    return readPlainNumber(text) || readDecimal(text);
}

std::optional<double> toDouble(std::string_view text) {
    if (const std::optional<PlainNumber> plain = readPlainNumber(text))
        if (const std::optional<double> value = exactDouble(*plain)) return value;
    const std::optional<Decimal> decimal = readDecimal(text);
    if (!decimal) return std::nullopt;
    if (decimal->isZero()) return 0;
    const std::string written =
        (decimal->negative ? "-." : ".") + decimal->digits + "e" + std::to_string(decimal->point);
    double value = 0;
    const auto result = std::from_chars(written.data(), written.data() + written.size(), value);
    const bool isTooLarge = result.ec == std::errc::result_out_of_range && decimal->point > 0;
    return isTooLarge ? std::nullopt : std::optional(value);
}

double val(std::string_view text) {
    const std::optional<double> plain = plainVal(text);
    return plain ? *plain : ValReader(text).read();
}

namespace {

// Nearly all numbers of a database have four decimals at most. A double that is nearest to such a number of
// up to 13 digits has that number for its text, and an integer is written in a fraction of the time.
std::string shortText(std::int64_t tenThousandths) {
    char text[24];
    char* const end = std::to_chars(std::begin(text), std::end(text), tenThousandths).ptr;
    constexpr int decimals = 4;
    char* const point = end - decimals;
    char* last = end;
    while (last != point && last[-1] == '0') --last;
    if (last == point) return {text, point};
    std::string all(text, point);
    return all.append(1, '.').append(point, last);
}

} // namespace

std::string numberText(double value) {
    if (value == 0 || !std::isfinite(value)) return "0";
    constexpr double tenThousand = 10000, most = 1e9, mostWhole = 1e15;
    const double size = std::abs(value);
    if (size >= 1 && size < mostWhole && std::trunc(value) == value)
        return std::to_string(static_cast<std::int64_t>(value));
    if (size >= 1 && size < most) {
        const double scaled = value * tenThousand;
        const auto whole = static_cast<std::int64_t>(scaled);
        if (static_cast<double>(whole) == scaled) return shortText(whole);
    }
    return Scientific(std::abs(value)).text(value < 0);
}

std::string numberText(float value) {
    if (value == 0 || !std::isfinite(value)) return "0";
    return Scientific(std::abs(value)).text(value < 0);
}

double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

namespace {

template <typename Integer>
Integer toInteger(double value) {
    const double rounded = roundHalfEven(value);
    // Written so that a value that is no number fails too.
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        raise(errors::overflow, numberText(value));
    return static_cast<Integer>(rounded);
}

} // namespace

std::int16_t toInt16(double value) {
    return toInteger<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return toInteger<std::int32_t>(value);
}

} // namespace core
