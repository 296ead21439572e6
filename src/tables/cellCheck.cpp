#include "tables/cellCheck.h"

#include "core/dates.h"
#include "core/format.h"
#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <utility>

namespace tables {

namespace {

CheckedCell refused(std::string reason) {
    return {{}, std::move(reason)};
}

CheckedCell checkedText(std::string_view cell) {
    if (cell.find('|') != std::string_view::npos)
        return refused(core::tr("has a \"|\", which divides the cells of a database"));
    const auto isControl = [](char c) {
        return (static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\r' && c != '\t') || c == '\x7f';
    };
    if (std::ranges::any_of(cell, isControl))
        return refused(core::tr("has a character that cannot be shown"));
    return {std::string(cell), {}};
}

CheckedCell checkedNumber(core::ColumnType type, std::string_view cell) {
    if (!core::isNumeric(cell)) return refused(core::tr("is no number"));
    const auto value = core::toDouble(cell);
    if (!value) return refused(core::tr("is too large a number"));
    // An amount with its cents says by itself what typed digits without a point leave open.
    if (type == core::ColumnType::Currency) return {core::format(cell, core::Mask::Money), {}};
    // A sum reads a number up to the first character that is no part of it.
    const bool isPlain = cell.find_first_not_of("0123456789.-") == std::string_view::npos;
    return {isPlain ? std::string(cell) : core::numberText(*value), {}};
}

bool hasTime(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return false;
    const std::size_t blank = text.rfind(' ', colon);
    const std::size_t from = blank == std::string_view::npos ? 0 : blank;
    return text.find_first_of("123456789", from) != std::string_view::npos;
}

CheckedCell checkedDate(std::string_view cell, std::chrono::year_month_day today) {
    using std::chrono::sys_days, std::chrono::year, std::chrono::days;
    constexpr sys_days dayZero = year(1899) / 12 / 30;
    const auto value = core::dateValue(cell, today);
    if (!value) return refused(core::tr("is no date"));
    if (hasTime(cell)) return refused(core::tr("has a time, which a date has no room for"));
    const std::chrono::year_month_day date(dayZero + days(*value));
    return {core::formatDate(static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                             static_cast<unsigned>(date.day())),
            {}};
}

} // namespace

CheckedCell checkedCell(core::ColumnType type, std::string_view cell, std::chrono::year_month_day today) {
    if (type == core::ColumnType::Text) return checkedText(cell);
    const std::string_view trimmed = core::trim(cell);
    if (trimmed.empty()) return {};
    switch (type) {
    case core::ColumnType::Date:
        return checkedDate(trimmed, today);
    case core::ColumnType::Number:
    case core::ColumnType::Currency:
        return checkedNumber(type, trimmed);
    default:
        return checkedText(cell);
    }
}

} // namespace tables
