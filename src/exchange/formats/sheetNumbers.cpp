#include "exchange/formats/sheetNumbers.h"

#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace exchange {

namespace {

using Kind = SheetCell::Kind;
using What = NumberShape::What;
using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int spreadsheetDigits = 15;
constexpr long secondsOfDay = 86'400;
constexpr double lastSerial = 2'958'466; // behind the year 9999
constexpr int firstSureSerial = 61;      // the first of March 1900
constexpr int mostPlaces = 15;

sys_days firstDay() {
    return sys_days(year_month_day(std::chrono::year(1899), std::chrono::month(12), std::chrono::day(30)));
}

int decimalIn(std::string_view digits) {
    int value = -1;
    if (!digits.empty() && std::ranges::all_of(digits, core::isDigit))
        std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

template <typename... Values>
std::string printed(const char* format, Values... values) {
    std::array<char, 64> text{};
    const int size = std::snprintf(text.data(), text.size(), format, values...);
    return {text.data(), static_cast<std::size_t>(std::clamp(size, 0, 63))};
}

std::string dayText(sys_days day) {
    const year_month_day date(day);
    return printed("%04d-%02u-%02u", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                   static_cast<unsigned>(date.day()));
}

std::string timeText(long seconds) {
    return printed("%02ld:%02ld:%02ld", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

std::optional<sys_days> dayOf(int year, int month, int day) {
    const year_month_day date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day)));
    if (year < 0 || month < 0 || day < 0 || !date.ok()) return std::nullopt;
    return sys_days(date);
}

std::optional<sys_days> dayOfCell(std::string_view cell) {
    if (cell.size() != 10 || cell[2] != '/' || cell[5] != '/') return std::nullopt;
    return dayOf(decimalIn(cell.substr(6)), decimalIn(cell.substr(0, 2)), decimalIn(cell.substr(3, 2)));
}

// "13:05", "13:05:00.25"
std::optional<long> secondsOf(std::string_view text) {
    text = text.substr(0, text.find_first_of(".Z+"));
    const auto parts = core::split(text, ':');
    if (parts.size() < 2 || parts.size() > 3) return std::nullopt;
    long seconds = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const int part = i < parts.size() ? decimalIn(parts[i]) : 0;
        if (part < 0 || part > 59 || (i == 0 && part > 24)) return std::nullopt;
        seconds = seconds * 60 + part;
    }
    return seconds;
}

// What the letters of a format tell, one after the other.
class FormatReader {
public:
    explicit FormatReader(std::string_view code) : code_(code) {}

    NumberShape read() {
        while (at_ < code_.size() && code_[at_] != ';') step();
        const bool bTime = bTime_;
        const bool bDate = bDate_ || (bMonth_ && !bTime);
        NumberShape shape;
        if (bDate || bTime) {
            shape.what = !bDate ? What::Time : (bTime ? What::DateTime : What::Date);
            return shape;
        }
        shape.places = bCutDown_ ? 0 : std::min(places_, mostPlaces);
        shape.bMoney = bSign_;
        shape.bLeadingZero = !(bPoint_ && !bWholeZero_ && bWhole_);
        return shape;
    }

private:
    void step() {
        const char c = code_[at_++];
        if (c == '"') {
            const std::size_t from = at_;
            skipBehind('"');
            return lookForSign(code_.substr(from, at_ - from));
        }
        if (c == '\\' || c == '_' || c == '*') {
            if (c == '\\') lookForSign(code_.substr(std::min(at_, code_.size()), 3));
            ++at_;
            return;
        }
        if (c == '[') return bracket();
        const std::string_view rest = code_.substr(at_ - 1);
        lookForSign(rest.substr(0, 3));
        for (const std::string_view word : {"AM/PM", "am/pm", "A/P", "a/p", "General", "GENERAL"})
            if (rest.starts_with(word)) {
                at_ += word.size() - 1;
                bTime_ = bTime_ || c != 'G';
                return;
            }
        letter(c);
    }
    void letter(char c) {
        switch (c) {
        case 'y':
        case 'Y':
        case 'd':
        case 'D':
            bDate_ = true;
            break;
        case 'm':
        case 'M':
            bMonth_ = true;
            break;
        case 'h':
        case 'H':
        case 's':
        case 'S':
            bTime_ = true;
            break;
        case '%':
        case 'E':
        case '/':
            bCutDown_ = true; // the digits shown are not those of the value
            break;
        case '.':
            bPoint_ = true;
            break;
        case '#':
            bWhole_ = bWhole_ || !bPoint_;
            break;
        case '0':
            bWholeZero_ = bWholeZero_ || !bPoint_;
            places_ += bPoint_ ? 1 : 0;
            break;
        default:
            break;
        }
    }
    void skipBehind(char end) { at_ = std::min(code_.find(end, at_), code_.size() - 1) + 1; }
    void lookForSign(std::string_view text) {
        for (const std::string_view sign : {"$", "\xE2\x82\xAC", "\xC2\xA3", "\xC2\xA5"})
            bSign_ = bSign_ || text.starts_with(sign);
    }
    // "[h]" is an elapsed time; others are colours, conditions and currencies.
    void bracket() {
        const std::size_t from = at_;
        skipBehind(']');
        const std::string_view inside = code_.substr(from, at_ - 1 - from);
        // "[$-409]" is a language alone.
        if (inside.starts_with('$') && !inside.starts_with("$-")) bSign_ = true;
        if (!inside.empty() && inside.find_first_not_of("hHmMsS") == std::string_view::npos) bTime_ = true;
    }

    std::string_view code_;
    std::size_t at_ = 0;
    int places_ = 0;
    bool bDate_ = false, bTime_ = false, bMonth_ = false;
    bool bCutDown_ = false, bPoint_ = false, bWhole_ = false, bWholeZero_ = false;
    bool bSign_ = false;
};

} // namespace

NumberShape shapeOf(std::string_view formatCode) {
    return FormatReader(formatCode).read();
}

NumberShape builtInShape(std::size_t id) {
    const auto within = [&](std::size_t first, std::size_t last) { return id >= first && id <= last; };
    NumberShape shape;
    if (id == 22)
        shape.what = What::DateTime;
    else if (within(14, 17) || within(27, 31) || id == 36 || within(50, 54) || within(57, 58))
        shape.what = What::Date;
    else if (within(18, 21) || within(32, 35) || within(45, 47) || within(55, 56))
        shape.what = What::Time;
    else if (id == 2 || id == 4 || within(7, 8) || within(39, 40) || within(43, 44))
        shape.places = 2;
    shape.bMoney = within(5, 8) || id == 42 || id == 44;
    return shape;
}

std::optional<double> doubleIn(std::string_view text) {
    while (!text.empty() && std::string_view(" \t\r\n").find(text.back()) != std::string_view::npos)
        text.remove_suffix(1);
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n+"), text.size()));
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::string numberDigits(double value, int places, bool bLeadingZero) {
    if (value == 0) value = 0; // no sign
    std::array<char, 512> text{};
    auto result =
        std::to_chars(text.begin(), text.end(), value, std::chars_format::general, spreadsheetDigits);
    std::string digits(text.data(), result.ptr);
    if (digits.find('e') != std::string::npos) {
        const int exponent = static_cast<int>(std::floor(std::log10(std::abs(value))));
        const int behind = std::clamp(spreadsheetDigits - 1 - exponent, 0, 340);
        result = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, behind);
        digits.assign(text.data(), result.ptr);
        if (digits.find('.') != std::string::npos) digits.erase(digits.find_last_not_of('0') + 1);
        if (digits.ends_with('.')) digits.pop_back();
    }
    std::size_t point = digits.find('.');
    if (point == std::string::npos && places > 0) digits.push_back('.');
    point = std::min(digits.find('.'), digits.size());
    const std::size_t has = point == digits.size() ? 0 : digits.size() - point - 1;
    if (has < static_cast<std::size_t>(places)) digits.append(static_cast<std::size_t>(places) - has, '0');
    if (!bLeadingZero) {
        const std::size_t first = digits.starts_with('-') ? 1 : 0;
        if (digits.compare(first, 2, "0.") == 0) digits.erase(first, 1);
    }
    return digits;
}

std::string digitsAsShown(std::string digits, std::string_view shown) {
    const auto significant = [](std::string_view text) {
        std::string only;
        for (const char c : text)
            if (core::isDigit(c) && (c != '0' || !only.empty())) only.push_back(c);
        return only;
    };
    const std::string had = significant(digits);
    const std::string seen = significant(shown);
    const bool bPadded = seen.size() > had.size() && seen.starts_with(had) && !had.empty() &&
                         seen.find_first_not_of('0', had.size()) == std::string::npos &&
                         seen.size() - had.size() <= static_cast<std::size_t>(mostPlaces);
    const bool bSameScale = shown.find_first_of("%Ee") == std::string_view::npos;
    if (bPadded && bSameScale) {
        if (digits.find('.') == std::string::npos) digits.push_back('.');
        digits.append(seen.size() - had.size(), '0');
    }
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    const std::size_t begin = shown.find_first_of("0123456789.,");
    if (begin != std::string_view::npos && !core::isDigit(shown[begin]) &&
        digits.compare(first, 2, "0.") == 0)
        digits.erase(first, 1);
    return digits;
}

SheetCell shapedCell(double serial, const NumberShape& shape, bool b1904) {
    const bool bPossible = serial >= 0 && serial < lastSerial;
    if (shape.what == What::Number || !bPossible)
        return {Kind::Number,
                numberDigits(serial, shape.what == What::Number ? shape.places : 0, shape.bLeadingZero),
                shape.bMoney};
    const long total = std::lround(serial * static_cast<double>(secondsOfDay));
    if (shape.what == What::Time) return {Kind::Time, timeText(total)};
    constexpr int days1904 = 1462;
    long day = total / secondsOfDay;
    if (b1904)
        day += days1904;
    else if (day < firstSureSerial - 1)
        ++day;
    std::string text = dayText(firstDay() + days(day));
    if (shape.what == What::Date) return {Kind::Date, std::move(text)};
    text.push_back(' ');
    return {Kind::DateTime, text.append(timeText(total % secondsOfDay))};
}

std::optional<int> daySerial(std::string_view cell) {
    const auto day = dayOfCell(cell);
    if (!day) return std::nullopt;
    const long serial = (*day - firstDay()).count();
    return serial < firstSureSerial ? std::nullopt : std::optional(static_cast<int>(serial));
}

std::string isoDate(std::string_view cell) {
    const auto day = dayOfCell(cell);
    return day ? dayText(*day) : std::string(cell);
}

SheetCell isoCell(std::string_view text) {
    const std::size_t gap = text.find_first_of("T ");
    const std::string_view date = text.substr(0, gap);
    const auto parts = core::split(date, '-');
    if (parts.size() == 3 && parts[0].size() == 4) {
        const auto day = dayOf(decimalIn(parts[0]), decimalIn(parts[1]), decimalIn(parts[2]));
        const auto seconds = gap == std::string_view::npos ? 0 : secondsOf(text.substr(gap + 1));
        if (day && gap == std::string_view::npos) return {Kind::Date, dayText(*day)};
        if (day && seconds) {
            std::string both = dayText(*day);
            both.push_back(' ');
            return {Kind::DateTime, both.append(timeText(*seconds))};
        }
    }
    if (const auto seconds = secondsOf(text)) return {Kind::Time, timeText(*seconds)};
    return {Kind::Text, std::string(text)};
}

SheetCell durationCell(std::string_view text) {
    constexpr std::string_view units = "HMS";
    constexpr std::array<long, 3> secondsOfUnit = {3600, 60, 1};
    std::string_view rest = text;
    long seconds = 0;
    if (!rest.starts_with("PT")) return {Kind::Text, std::string(text)};
    rest.remove_prefix(2);
    while (!rest.empty()) {
        const std::size_t end = rest.find_first_of(units);
        if (end == std::string_view::npos) return {Kind::Text, std::string(text)};
        const auto part = doubleIn(rest.substr(0, end));
        if (!part || *part < 0 || *part >= lastSerial * 24) return {Kind::Text, std::string(text)};
        seconds += std::lround(*part) * secondsOfUnit[units.find(rest[end])];
        rest.remove_prefix(end + 1);
    }
    return {Kind::Time, timeText(seconds)};
}

} // namespace exchange
