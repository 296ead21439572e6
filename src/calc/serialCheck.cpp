#include "calc/serialCheck.h"

#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace calc {

using core::Item;
using core::RecordsList;

namespace {

struct Numbered {
    std::int64_t number;
    const Item* record;
};

// Beyond 15 digits a cell holds no exact number.
std::optional<std::int64_t> wholeNumber(std::string_view cell) {
    constexpr double most = 1e15;
    const std::optional<double> number = core::isNumeric(cell) ? core::toDouble(cell) : std::nullopt;
    if (!number || std::trunc(*number) != *number || std::fabs(*number) > most) return std::nullopt;
    return static_cast<std::int64_t>(*number);
}

void take(const Item& record, std::string_view cell, std::vector<Numbered>& numbers,
          std::vector<const Item*>& unnumbered) {
    if (const std::optional<std::int64_t> number = wholeNumber(cell))
        numbers.push_back({*number, &record});
    else
        unnumbered.push_back(&record);
}

} // namespace

std::vector<std::string> serialColumns(const core::Document& document) {
    std::vector<std::string> names;
    document.SerialsLV.forEach([&](const Item& serial) {
        const core::Column* column = document.LV.columns.find(serial.Text);
        if (column != nullptr && column->Index != 1) names.push_back(column->Text);
    });
    return names;
}

SerialFindings checkSerials(const core::Document& document, const core::Column& column) {
    SerialFindings findings;
    std::vector<Numbered> numbers;
    document.LV.forEach([&](const Item& record) {
        if (record.isTotals()) return;
        std::string_view cell = RecordsList::cell(record, column);
        if (document.bInvoiceStyle && cell.ends_with(core::itemSeparator)) {
            cell.remove_suffix(1);
            for (const std::string_view value : core::split(cell, core::itemSeparator))
                take(record, value, numbers, findings.unnumbered);
        } else {
            take(record, cell, numbers, findings.unnumbered);
        }
    });
    std::ranges::stable_sort(numbers, {}, &Numbered::number);
    for (std::size_t i = 1; i < numbers.size(); ++i) {
        const std::int64_t before = numbers[i - 1].number, number = numbers[i].number;
        if (number > before + 1) findings.gaps.push_back({before + 1, number - 1});
        if (number != before) continue;
        if (findings.repeats.empty() || findings.repeats.back().number != number)
            findings.repeats.push_back({number, {numbers[i - 1].record}});
        findings.repeats.back().records.push_back(numbers[i].record);
    }
    return findings;
}

std::string gapText(const SerialFindings::Gap& gap) {
    const std::string first = std::to_string(gap.first);
    if (gap.last == gap.first) return core::fill(core::tr("%1 missing"), {first});
    return core::fill(core::tr("%1 to %2 missing"), {first, std::to_string(gap.last)});
}

std::string repeatText(const SerialFindings::Repeat& repeat) {
    const std::string number = std::to_string(repeat.number);
    if (repeat.records.size() == 2) return core::fill(core::tr("%1 twice"), {number});
    const int times = static_cast<int>(repeat.records.size());
    return core::fill(core::tr("%1 occurs %n time", "%1 occurs %n times", times), {number});
}

} // namespace calc
