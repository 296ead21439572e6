#include "core/dates.h"

#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace core {

namespace {

constexpr std::array<std::string_view, 12> monthNames = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                         "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                         "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
constexpr std::size_t shortName = 3;
constexpr std::string_view marks = "/-,:";
constexpr std::size_t mostTokens = 12; // "5 - Jan - 2004 10 : 30 : 15 PM" has eleven
constexpr std::size_t mostNumberDigits = 4;

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

struct Token {
    enum Kind : char { Number, Month, HalfOfDay, Mark } kind = Mark;
    char mark = '\0';
    std::int16_t value = 0;  // of a number, or of the month
    std::int16_t digits = 0; // of a number

    bool isMark(char c) const { return kind == Mark && mark == c; }
    bool isYear() const { return digits > 2; }
};

// Reads the parts of a date into a place of fixed size: a search asks for every cell.
class Tokens {
public:
    // False at the first part that no date has.
    bool read(std::string_view text) {
        for (std::size_t at = 0; at < text.size();) {
            if (text[at] == ' ') {
                ++at;
                continue;
            }
            if (count_ == tokens_.size()) return false;
            const std::string_view rest = text.substr(at);
            const std::size_t size = take(tokens_[count_++], rest);
            if (size == 0) return false;
            at += size;
        }
        return count_ > 0;
    }
    std::size_t size() const { return count_; }
    const Token& operator[](std::size_t index) const { return tokens_[index]; }

private:
    template <typename Is>
    static std::size_t run(std::string_view text, Is is) {
        return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), is) - text.begin());
    }

    static std::size_t take(Token& token, std::string_view text) {
        if (const std::size_t digits = run(text, isDigit)) {
            token.kind = Token::Number;
            if (digits > mostNumberDigits) return 0;
            token.digits = static_cast<std::int16_t>(digits);
            std::from_chars(text.data(), text.data() + digits, token.value);
            return digits;
        }
        if (const std::size_t letters = run(text, isLetter))
            return isWord(token, text.substr(0, letters)) ? letters : 0;
        token.mark = text.front();
        return marks.find(token.mark) == std::string_view::npos ? 0 : 1;
    }

    static bool isWord(Token& token, std::string_view word) {
        if (equalsNoCase(word, "AM") || equalsNoCase(word, "PM")) {
            token.kind = Token::HalfOfDay;
            return true;
        }
        const auto* const month = std::ranges::find_if(monthNames, [&](std::string_view name) {
            return equalsNoCase(word, word.size() == shortName ? name.substr(0, shortName) : name);
        });
        token.kind = Token::Month;
        token.value = static_cast<std::int16_t>(month - monthNames.begin() + 1);
        return month != monthNames.end();
    }

    std::array<Token, mostTokens> tokens_;
    std::size_t count_ = 0;
};

class DateReader {
public:
    DateReader(const Tokens& tokens, std::chrono::year_month_day today) : tokens_(tokens), today_(today) {}

    std::optional<DayValue> read() {
        const std::optional<std::size_t> time = timeStart();
        if (time && !isTime(*time)) return std::nullopt;
        end_ = time.value_or(tokens_.size());
        if (end_ == 0) return 0; // a time alone
        if (!readParts()) return std::nullopt;
        return month_ ? withMonthName() : inNumbers();
    }

private:
    // A time begins with a number that a colon, or AM or PM, follows.
    std::optional<std::size_t> timeStart() const {
        for (std::size_t i = 0; i + 1 < tokens_.size(); ++i) {
            const Token& next = tokens_[i + 1];
            if (tokens_[i].kind == Token::Number && (next.isMark(':') || next.kind == Token::HalfOfDay))
                return i;
        }
        return std::nullopt;
    }

    bool isTime(std::size_t at) const {
        const int hour = tokens_[at++].value;
        for (int parts = 1; at < tokens_.size() && tokens_[at].isMark(':'); ++parts, at += 2) {
            if (parts == 3 || at + 1 == tokens_.size()) return false;
            const Token& part = tokens_[at + 1];
            if (part.kind != Token::Number || part.value > 59) return false;
        }
        const bool half = at < tokens_.size() && tokens_[at].kind == Token::HalfOfDay;
        if (half) ++at;
        return at == tokens_.size() && (half ? hour >= 1 && hour <= 12 : hour <= 23);
    }

    // Takes up to three numbers and one month name, in their order.
    bool readParts() {
        for (std::size_t i = 0; i < end_; ++i) {
            const Token& token = tokens_[i];
            const bool adjoins = i > 0 && tokens_[i - 1].kind == Token::Number;
            if (token.kind == Token::Number) {
                if (count_ == numbers_.size() || (adjoins && !month_)) return false;
                numbers_[count_++] = token;
            } else if (token.kind == Token::Month) {
                if (month_) return false;
                month_ = token.value;
                numbersAheadOfMonth_ = count_;
            } else if (!isSeparator(i)) {
                return false;
            }
        }
        return true;
    }

    // A separator stands between two parts; a comma may do so anywhere but at the ends.
    bool isSeparator(std::size_t at) const {
        if (tokens_[at].kind != Token::Mark || tokens_[at].mark == ':') return false;
        if (at == 0 || at + 1 >= end_) return false;
        return tokens_[at - 1].kind != Token::Mark && tokens_[at + 1].kind != Token::Mark;
    }

    // "Jan 5", "Jan 2004", "Jan 5 2004", "5 Jan 2004", "2004 Jan 5".
    std::optional<DayValue> withMonthName() const {
        const Token& first = numbers_[0];
        if (count_ == 1) {
            if (first.isYear() || first.value > 31) return dayNumber(fullYear(first), *month_, 1);
            return dayNumber(static_cast<int>(today_.year()), *month_, first.value);
        }
        if (count_ != 2 || numbersAheadOfMonth_ == 2) return std::nullopt;
        const Token& second = numbers_[1];
        if (numbersAheadOfMonth_ == 1 && first.isYear())
            return dayNumber(fullYear(first), *month_, second.value);
        return dayNumber(fullYear(second), *month_, first.value);
    }

    std::optional<DayValue> inNumbers() const {
        if (count_ < 2 || !sameSeparators()) return std::nullopt;
        const Token& first = numbers_[0];
        const Token& second = numbers_[1];
        if (count_ == 3) {
            if (first.isYear()) return dayNumber(fullYear(first), second.value, numbers_[2].value);
            return monthFirst(fullYear(numbers_[2]), first.value, second.value);
        }
        if (second.isYear()) return dayNumber(fullYear(second), first.value, 1);
        return monthFirst(static_cast<int>(today_.year()), first.value, second.value);
    }

    bool sameSeparators() const {
        char mark = '\0';
        for (std::size_t i = 0; i < end_; ++i) {
            if (tokens_[i].kind != Token::Mark) continue;
            if (mark != '\0' && mark != tokens_[i].mark) return false;
            mark = tokens_[i].mark;
        }
        return mark == '/' || mark == '-';
    }

    static int fullYear(const Token& token) {
        if (token.isYear()) return token.value;
        return token.value + (token.value < 30 ? 2000 : 1900);
    }

    static std::optional<DayValue> monthFirst(int year, int first, int second) {
        if (first > 12 && second <= 12) return dayNumber(year, second, first);
        return dayNumber(year, first, second);
    }

    static std::optional<DayValue> dayNumber(int year, int month, int day) {
        using namespace std::chrono;
        if (year < 100 || month < 1 || month > 12 || day < 1) return std::nullopt;
        const year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                  std::chrono::day(static_cast<unsigned>(day))};
        if (!date.ok()) return std::nullopt;
        constexpr sys_days dayZero{std::chrono::year(1899) / 12 / 30};
        return (sys_days(date) - dayZero).count();
    }

    const Tokens& tokens_;
    std::chrono::year_month_day today_;
    std::size_t end_ = 0; // of the tokens ahead of the time
    std::array<Token, 3> numbers_;
    std::size_t count_ = 0;
    std::optional<int> month_;
    std::size_t numbersAheadOfMonth_ = 0;
};

} // namespace

std::optional<DayValue> dateValue(std::string_view text, std::chrono::year_month_day today) {
    const std::string_view trimmed = trim(text);
    // Most texts that are asked about are no dates; few of those hold a digit.
    if (trimmed.size() > 40 || std::ranges::none_of(trimmed, isDigit)) return std::nullopt;
    Tokens tokens;
    if (!tokens.read(trimmed)) return std::nullopt;
    return DateReader(tokens, today).read();
}

bool isDate(std::string_view text, std::chrono::year_month_day today) {
    return dateValue(text, today).has_value();
}

DayValue dateValueOrRaise(std::string_view text, std::chrono::year_month_day today) {
    const std::optional<DayValue> day = dateValue(text, today);
    if (!day) raise(errors::typeMismatch, core::fill(core::tr("\"%1\" is no date"), {text}));
    return *day;
}

std::string formatDate(int year, unsigned month, unsigned day) {
    const auto padded = [](unsigned number, std::size_t width) {
        const std::string digits = std::to_string(number);
        return std::string(width - std::min(width, digits.size()), '0') + digits;
    };
    return padded(month, 2) + "/" + padded(day, 2) + "/" + padded(static_cast<unsigned>(year), 4);
}

} // namespace core
