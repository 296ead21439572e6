#include "summary/counter.h"

#include "core/dates.h"

#include <algorithm>
#include <cmath>

namespace summary {

using core::ColumnType;

namespace {

constexpr int meanMoneyPlaces = 2, leastMeanPlaces = 4, mostMeanPlaces = 9;

} // namespace

std::optional<Amount> Counter::read(std::string_view value) const {
    if (value.empty()) return std::nullopt;
    if (type_ != ColumnType::Date) return amountIn(value, type_);
    const auto day = dayIn(value, today_);
    return day ? std::optional(Amount::ofWhole(day->time_since_epoch().count())) : std::nullopt;
}

void Counter::add(std::string_view value) {
    const std::optional<Amount> amount = read(value);
    if (!amount) return;
    if (count_ == 0 || *amount < least_) least_ = *amount;
    if (count_ == 0 || greatest_ < *amount) greatest_ = *amount;
    sum_ += *amount;
    ++count_;
    const std::size_t point = value.find('.');
    if (isMoney(value, type_))
        bMoney_ = true;
    else if (point != std::string_view::npos)
        places_ = std::max(places_,
                           static_cast<int>(std::min<std::size_t>(value.size() - point - 1, mostMeanPlaces)));
}

Amount Counter::meanOf(const Amount& sum, std::size_t count) const {
    const Amount mean = sum.dividedBy(static_cast<std::int64_t>(count));
    return mean.rounded(bMoney_ ? meanMoneyPlaces : std::clamp(places_ + 2, leastMeanPlaces, mostMeanPlaces));
}

Value Counter::shown(const Amount& amount) const {
    if (type_ != ColumnType::Date) return {bMoney_ ? amount.money() : amount.text(), amount};
    const std::chrono::sys_days day{std::chrono::days(std::lround(amount.toDouble()))};
    const std::chrono::year_month_day date(day);
    return {core::formatDate(static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                             static_cast<unsigned>(date.day())),
            std::nullopt};
}

Value Counter::value(FigureKind kind) const {
    if (count_ == 0) return {};
    switch (kind) {
    case FigureKind::Sum:
        return shown(sum_);
    case FigureKind::Mean:
        return shown(meanOf(sum_, count_));
    case FigureKind::Least:
        return shown(least_);
    case FigureKind::Greatest:
        return shown(greatest_);
    }
    return {};
}

ColumnType Counter::shownType() const {
    if (type_ == ColumnType::Date) return ColumnType::Date;
    return bMoney_ || type_ == ColumnType::Currency ? ColumnType::Currency : ColumnType::Number;
}

} // namespace summary
