#include "search/criterion.h"

#include "core/format.h"
#include "core/number.h"
#include "core/text.h"

namespace search {

using core::DayValue;
using core::Item;

namespace {

bool contains(std::string_view text, std::string_view what) {
    return text.find(what) != std::string_view::npos;
}

double roundedNumber(std::string_view text) {
    return core::val(core::format(text, core::Mask::TwoDecimals));
}

// Only a cell with a point passes through the rounding. Without one a comma or a dollar sign ends the
// number, so "1,234" counts as 1. It is wanted so.
double numberOf(std::string_view cell) {
    return contains(cell, ".") ? roundedNumber(cell) : core::val(cell);
}

} // namespace

bool Group::isBlank() const {
    return core::trim(value).empty();
}

Criterion::Criterion(const core::Document& document, const core::RecordsList& source, const Group& group,
                     std::chrono::year_month_day today)
    : comparison_(group.comparison), today_(today), isNumeric_(document.isNumericColumn(group.column)),
      subItem_(source.columns[group.column].Index - 1),
      // The place is that of the records list, also where the list of invoices is searched, whose columns
      // are others. It is wanted so.
      upperSubItem_(document.LV.columns[group.column].Index - 1),
      needle_(core::upper(core::trim(group.value))), upper_(core::upper(core::trim(group.to))) {
    if (isNumeric_) {
        needleNumber_ = roundedNumber(needle_);
        needleNumberText_ = core::numberText(needleNumber_);
        upperNumber_ = core::val(core::numberText(roundedNumber(upper_)));
    } else {
        needleDay_ = core::dateValue(needle_, today);
        upperDay_ = core::dateValue(upper_, today);
    }
}

bool Criterion::matches(const Item& record) {
    const std::string_view cell = record.subItem(subItem_);
    if (isNumeric_) return matchesNumber(cell);
    // The cell decides what is compared, not the column: a text that reads like a date is one.
    if (const std::optional<DayValue> day = core::dateValue(cell, today_))
        return matchesDate(record, cell, *day);
    return matchesText(record, cell);
}

bool Criterion::matchesNumber(std::string_view cell) const {
    switch (comparison_) {
    case greaterOrEqual:
        return numberOf(cell) >= needleNumber_;
    case lessOrEqual:
        return numberOf(cell) <= needleNumber_;
    case exact:
        return numberOf(cell) == needleNumber_;
    case within: // the number is sought, not what was typed: 12.50 finds 12.5
        return contains(cell, needleNumberText_);
    case range: {
        const double number = numberOf(cell);
        return number >= needleNumber_ && number <= upperNumber_;
    }
    default:
        return false;
    }
}

bool Criterion::matchesDate(const Item& record, std::string_view cell, DayValue day) const {
    switch (comparison_) {
    case greaterOrEqual:
        return day >= dayOf(needleDay_, needle_);
    case lessOrEqual:
        return day <= dayOf(needleDay_, needle_);
    case exact:
        return day == dayOf(needleDay_, needle_);
    case within: // in upper case within the cell as it stands: "JAN" is not in "Jan 5 2004"
        return contains(cell, needle_);
    case range: {
        // Both sides are worked out, so that a bound that is no date is an error for every record.
        const bool isAbove = day >= dayOf(needleDay_, needle_);
        const DayValue other = core::dateValueOrRaise(record.subItem(upperSubItem_), today_);
        const bool isBelow = other <= dayOf(upperDay_, upper_);
        return isAbove && isBelow;
    }
    default:
        return false;
    }
}

bool Criterion::matchesText(const Item& record, std::string_view cell) {
    // The bounds of a range are in upper case, the cell is not.
    if (comparison_ == range) {
        const std::string_view other = record.subItem(upperSubItem_);
        return cell >= needle_ && other <= upper_;
    }
    core::upperInto(folded_, core::trim(cell));
    switch (comparison_) {
    case greaterOrEqual:
        return folded_ >= needle_;
    case lessOrEqual:
        return folded_ <= needle_;
    case exact:
        return folded_ == needle_;
    case within:
        return contains(folded_, needle_);
    default:
        return false;
    }
}

DayValue Criterion::dayOf(const std::optional<DayValue>& day, const std::string& typed) const {
    return day ? *day : core::dateValueOrRaise(typed, today_);
}

} // namespace search
