#include "tables/recognition.h"

#include "core/cellText.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tables {

namespace {

using core::ColumnType;
using exchange::SheetCell;

// What the cells of a column fit.
class ColumnLook {
public:
    ColumnLook(bool isTyped, const CurrencySign& sign) : isTyped_(isTyped), told_(sign) {}

    void look(const SheetCell& cell) {
        switch (cell.kind) {
        case SheetCell::Kind::Number:
            ++count_, ++numberCells_;
            moneyCells_ += cell.bMoney;
            return;
        case SheetCell::Kind::Date:
        case SheetCell::Kind::DateTime:
            lookAtDates(cell.text);
            ++count_;
            return;
        default:
            break;
        }
        std::string_view rest = cell.text; // of an invoice's item rows
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find(core::itemSeparator), rest.size());
            lookAtText(core::trim(rest.substr(0, end)));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    Recognized result(const Hints& hints, bool isLenient, std::optional<ColumnType> wanted) const {
        constexpr std::size_t manyCells = 10;
        const std::size_t needed =
            isLenient && count_ >= manyCells ? count_ - count_ / manyCells : std::max<std::size_t>(count_, 1);
        Recognized result;
        const std::size_t dates = chooseOrder(hints, result);
        const std::size_t numbers = chooseDecimal(hints, result) + numberCells_;
        const bool isDate = wanted ? *wanted == ColumnType::Date : dates >= needed;
        const bool isNumber = wanted ? *wanted == ColumnType::Number || *wanted == ColumnType::Currency
                                     : !isDate && numbers >= needed && !hasCode_ && !hasSigns_;
        result.bDatesOpen = result.bDatesOpen && isDate;
        result.bDecimalOpen = result.bDecimalOpen && isNumber;
        if (isDate) result.as.type = ColumnType::Date;
        if (isNumber) result.as.type = isMoney(result.as.decimal) ? ColumnType::Currency : ColumnType::Number;
        if (wanted) result.as.type = *wanted;
        if (isNumber && sign_ != "$") result.sign = sign_;
        if (isNumber) result.as.sign = told_;
        if (result.bDatesOpen) result.example = openDate_;
        if (result.bDecimalOpen) result.example = openNumber_;
        return result;
    }

private:
    static constexpr std::size_t byDay = 0, byMonth = 1, byYear = 2; // as in DateOrder

    struct Marks {
        std::size_t fits = 0, grouped = 0, ofTwoPlaces = 0, ofMorePlaces = 0;
    };

    void lookAtText(std::string_view text) {
        if (text.empty()) return;
        ++count_;
        if (std::ranges::none_of(text, core::isDigit)) return;
        lookAtDates(text);
        if (isTyped_) return;
        hasCode_ = hasCode_ || isCode(text);
        const auto byPoint = lookAtMarks(text, '.', marks_[0]);
        const auto byComma = lookAtMarks(text, ',', marks_[1]);
        if (byPoint && byComma && byPoint->digits != byComma->digits && openNumber_.empty())
            openNumber_ = text;
    }

    std::optional<WrittenNumber> lookAtMarks(std::string_view text, char decimal, Marks& marks) {
        auto number = writtenNumber(text, decimal, told_);
        if (!number) return number;
        ++marks.fits;
        marks.grouped += number->bGrouped;
        marks.ofTwoPlaces += number->places == 2;
        marks.ofMorePlaces += number->places > 2;
        if (!number->sign.empty()) {
            hasSigns_ = hasSigns_ || (!sign_.empty() && sign_ != number->sign);
            sign_ = number->sign;
        }
        return number;
    }

    void lookAtDates(std::string_view text) {
        const auto asDay = writtenDate(text, DateOrder::DayMonthYear);
        const auto asMonth = writtenDate(text, DateOrder::MonthDayYear);
        const auto counts = [](const std::optional<WrittenDate>& date) { return date && !date->bTime; };
        dates_[byDay] += counts(asDay);
        dates_[byMonth] += counts(asMonth);
        if (asDay ? asDay->bFixed : asMonth && asMonth->bFixed)
            dates_[byYear] += counts(asDay);
        else if (asDay && text.find('.') != std::string_view::npos)
            ++dotted_;
        if (asDay && asMonth && asDay->day != asMonth->day && openDate_.empty()) openDate_ = text;
    }

    // Days come first wherever dates have points.
    std::size_t chooseOrder(const Hints& hints, Recognized& result) const {
        std::size_t order = static_cast<std::size_t>(hints.dates);
        if (!hints.bDatesTold) {
            const std::size_t most = std::ranges::max(dates_);
            if (most > 0 && dates_[byYear] == most)
                order = byYear;
            else if (dates_[byDay] != dates_[byMonth])
                order = dates_[byDay] == most ? byDay : byMonth;
            else if (dotted_ > 0)
                order = byDay;
            else
                result.bDatesOpen = !openDate_.empty();
            if (result.bDatesOpen && order == byYear) order = byMonth;
        }
        result.as.dates = static_cast<DateOrder>(order);
        return dates_.at(order);
    }

    std::size_t chooseDecimal(const Hints& hints, Recognized& result) const {
        bool isComma = hints.decimal == ',';
        if (!hints.bDecimalTold) {
            if (marks_[0].fits != marks_[1].fits)
                isComma = marks_[1].fits > marks_[0].fits;
            else
                result.bDecimalOpen = !openNumber_.empty();
        }
        result.as.decimal = isComma ? ',' : '.';
        return marks_.at(isComma ? 1 : 0).fits;
    }

    // Amounts have their sign, or cents throughout behind thousands.
    bool isMoney(char decimal) const {
        if (moneyCells_ > 0 && moneyCells_ == count_) return true;
        const Marks& marks = marks_.at(decimal == ',' ? 1 : 0);
        if (marks.ofMorePlaces > 0) return false;
        return !sign_.empty() || (marks.grouped > 0 && marks.ofTwoPlaces == marks.fits && numberCells_ == 0);
    }

    bool isTyped_;
    const CurrencySign& told_;
    std::size_t count_ = 0, numberCells_ = 0, moneyCells_ = 0, dotted_ = 0;
    std::array<std::size_t, 3> dates_{};
    std::array<Marks, 2> marks_{}; // with a decimal point, with a decimal comma
    bool hasCode_ = false, hasSigns_ = false;
    std::string sign_, openDate_, openNumber_;
};

} // namespace

Recognized recognize(std::span<const SheetCell* const> cells, bool bTyped, const Hints& hints, bool bLenient,
                     std::optional<ColumnType> type) {
    ColumnLook column(bTyped, hints.sign);
    for (const SheetCell* cell : cells) column.look(*cell);
    return column.result(hints, bLenient, type);
}

} // namespace tables
