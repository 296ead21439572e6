#include "core/dates.h"

#include "core/runTimeError.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace core {

namespace {

constexpr std::array<std::string_view, 12> monthNames = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                         "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                         "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
constexpr std::size_t mostTokens = 16;
constexpr std::size_t mostDigits = 4;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

struct Token {
    enum Kind { Number, Word, Mark } kind = Mark;
    std::string text;
    int value = 0;
    bool afterBlank = false;

    bool isMark(char c) const { return kind == Mark && text[0] == c; }
    bool isWord(std::string_view word) const { return kind == Word && text == word; }
};

std::optional<std::vector<Token>> tokensOf(std::string_view text) {
    std::vector<Token> tokens;
    bool blank = false;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ') {
            blank = true;
            ++at;
            continue;
        }
        if (tokens.size() == mostTokens) return std::nullopt;
        Token token;
        token.afterBlank = blank;
        blank = false;
        const std::size_t from = at;
        if (isDigit(text[at])) {
            token.kind = Token::Number;
            for (; at < text.size() && isDigit(text[at]); ++at) {
                if (at - from >= mostDigits) return std::nullopt;
                token.value = token.value * 10 + (text[at] - '0');
            }
        } else if (isLetter(text[at])) {
            token.kind = Token::Word;
            while (at < text.size() && isLetter(text[at])) ++at;
        } else if (text[at] == '/' || text[at] == '-' || text[at] == ',' || text[at] == ':' ||
                   text[at] == '.') {
            ++at;
        } else {
            return std::nullopt;
        }
        token.text = upper(text.substr(from, at - from));
        tokens.push_back(std::move(token));
    }
    return tokens;
}

std::optional<int> monthOf(const Token& token) {
    if (token.kind != Token::Word || token.text.size() < 3) return std::nullopt;
    for (std::size_t i = 0; i < monthNames.size(); ++i)
        if (token.text == monthNames[i] || token.text == monthNames[i].substr(0, 3))
            return static_cast<int>(i) + 1;
    return std::nullopt;
}

class DateReader {
public:
    DateReader(std::vector<Token> tokens, std::chrono::year_month_day today)
        : tokens_(std::move(tokens)), today_(today) {}

    std::optional<DayValue> read() {
        if (tokens_.empty()) return std::nullopt;
        const std::size_t all = tokens_.size();
        std::optional<std::size_t> time = timeStart();
        if (time && !readTime(*time)) return std::nullopt;
        end_ = time.value_or(all);
        if (end_ == 0) return 0; // a time alone
        return readDay();
    }

private:
    // A time begins with a number that a colon, or AM or PM, follows.
    std::optional<std::size_t> timeStart() const {
        for (std::size_t i = 0; i + 1 < tokens_.size(); ++i) {
            const Token& next = tokens_[i + 1];
            if (tokens_[i].kind == Token::Number &&
                (next.isMark(':') || next.isWord("AM") || next.isWord("PM")))
                return i;
        }
        return std::nullopt;
    }

    bool readTime(std::size_t at) const {
        std::vector<int> parts;
        while (at < tokens_.size() && tokens_[at].kind == Token::Number) {
            parts.push_back(tokens_[at++].value);
            if (at == tokens_.size() || !tokens_[at].isMark(':')) break;
            if (++at == tokens_.size()) return false;
        }
        const bool half = at < tokens_.size() && (tokens_[at].isWord("AM") || tokens_[at].isWord("PM"));
        if (half) ++at;
        if (at != tokens_.size() || parts.empty() || parts.size() > 3) return false;
        if (parts[0] > (half ? 12 : 23) || (half && parts[0] == 0)) return false;
        return std::all_of(parts.begin() + 1, parts.end(), [](int part) { return part < 60; });
    }

    std::optional<DayValue> readDay() {
        std::vector<Token> numbers;
        std::optional<int> month;
        std::size_t monthPlace = 0;
        for (std::size_t i = 0; i < end_; ++i) {
            const Token& token = tokens_[i];
            if (token.kind == Token::Number) {
                if (i > 0 && tokens_[i - 1].kind == Token::Number && !month) return std::nullopt;
                numbers.push_back(token);
            } else if (token.kind == Token::Word) {
                if (month || !(month = monthOf(token))) return std::nullopt;
                monthPlace = numbers.size();
            } else if (!isSeparator(i)) {
                return std::nullopt;
            }
        }
        return month ? withMonthName(*month, monthPlace, numbers) : inNumbers(numbers);
    }

    // A separator stands between two parts; a comma may do so anywhere but at the ends.
    bool isSeparator(std::size_t at) const {
        if (at == 0 || at + 1 >= end_) return false;
        if (tokens_[at].isMark(':') || tokens_[at].isMark('.')) return false;
        return tokens_[at - 1].kind != Token::Mark && tokens_[at + 1].kind != Token::Mark;
    }

    std::optional<DayValue> withMonthName(int month, std::size_t place,
                                          const std::vector<Token>& numbers) const {
        const int thisYear = static_cast<int>(today_.year());
        if (numbers.size() == 2) {
            if (place == 2) return std::nullopt;
            if (isYear(numbers[0]))
                return place == 1 ? std::nullopt : dayNumber(fullYear(numbers[0]), month, numbers[1].value);
            return dayNumber(fullYear(numbers[1]), month, numbers[0].value);
        }
        if (numbers.size() != 1) return std::nullopt;
        if (isYear(numbers[0]) || numbers[0].value > 31) return dayNumber(fullYear(numbers[0]), month, 1);
        return dayNumber(thisYear, month, numbers[0].value);
    }

    std::optional<DayValue> inNumbers(const std::vector<Token>& numbers) const {
        if (numbers.size() < 2 || numbers.size() > 3 || !sameSeparators()) return std::nullopt;
        const int first = numbers[0].value;
        const int second = numbers[1].value;
        if (numbers.size() == 2) {
            if (isYear(numbers[1])) return dayNumber(fullYear(numbers[1]), first, 1);
            return monthFirst(static_cast<int>(today_.year()), first, second);
        }
        if (isYear(numbers[0])) return dayNumber(fullYear(numbers[0]), second, numbers[2].value);
        return monthFirst(fullYear(numbers[2]), first, second);
    }

    bool sameSeparators() const {
        char mark = '\0';
        for (std::size_t i = 0; i < end_; ++i) {
            if (tokens_[i].kind != Token::Mark) continue;
            if (mark != '\0' && mark != tokens_[i].text[0]) return false;
            mark = tokens_[i].text[0];
        }
        return mark == '/' || mark == '-';
    }

    static bool isYear(const Token& token) { return token.text.size() > 2; }

    static int fullYear(const Token& token) {
        if (isYear(token)) return token.value;
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

    std::vector<Token> tokens_;
    std::chrono::year_month_day today_;
    std::size_t end_ = 0; // of the tokens ahead of the time
};

} // namespace

std::optional<DayValue> dateValue(std::string_view text, std::chrono::year_month_day today) {
    const std::string_view trimmed = trim(text);
    // Most texts that are asked about are no dates; few of those hold a digit.
    if (trimmed.size() > 40 || std::ranges::none_of(trimmed, isDigit)) return std::nullopt;
    std::optional<std::vector<Token>> tokens = tokensOf(trimmed);
    if (!tokens) return std::nullopt;
    return DateReader(*std::move(tokens), today).read();
}

bool isDate(std::string_view text, std::chrono::year_month_day today) {
    return dateValue(text, today).has_value();
}

DayValue DateValue(std::string_view text, std::chrono::year_month_day today) {
    const std::optional<DayValue> day = dateValue(text, today);
    if (!day) raise(errors::typeMismatch, "\"" + std::string(text) + "\" is no date");
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
