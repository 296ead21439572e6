#include "search/suggestions.h"

#include "core/number.h"
#include "core/sorting.h"
#include "core/text.h"
#include "search/filter/folding.h"

#include <algorithm>
#include <charconv>
#include <tuple>

namespace search {

using core::ColumnType;

namespace {

int recordNumber(std::string_view key) {
    int number = 0;
    if (!key.empty()) std::from_chars(key.data() + 1, key.data() + key.size(), number);
    return number;
}

bool isTypedIn(const core::Column& column) {
    return column.Index > 1 && (column.isType(ColumnType::Text) || column.isType(ColumnType::Date) ||
                                column.isType(ColumnType::Number) || column.isType(ColumnType::Currency));
}

} // namespace

ColumnValues::ColumnValues(const core::RecordsList& list, const core::Column& column, bool hasItemRows)
    : type_(column.type()) {
    list.forEach([&](const core::Item& item) {
        if (item.isTotals()) return;
        const std::string_view cell = core::RecordsList::cell(item, column).view();
        const int record = recordNumber(item.Key.view());
        if (!hasItemRows)
            add(cell, record);
        else
            for (const std::string_view value : core::split(cell, '@')) add(value, record);
    });
    known_.clear();
    std::ranges::sort(values_, {}, [](const Value& value) { return std::tie(value.folded, value.text); });
}

void ColumnValues::add(std::string_view text, int record) {
    const std::string_view trimmed = core::trim(text);
    if (type_ != ColumnType::Text) text = trimmed;
    if (trimmed.empty() || text.size() > longest) return;
    const auto [place, isNew] = known_.emplace(text, values_.size());
    if (isNew) values_.push_back({folded(text), std::string(text)});
    Value& value = values_[place->second];
    ++value.records;
    value.newest = std::max(value.newest, record);
}

std::vector<std::string> ColumnValues::beginningWith(std::string_view typed, std::size_t most) const {
    const std::string wanted = folded(typed);
    std::vector<const Value*> found;
    for (auto value = std::ranges::lower_bound(values_, wanted, {}, &Value::folded);
         value != values_.end() && value->folded.starts_with(wanted); ++value)
        found.push_back(&*value);
    const auto shown = static_cast<std::ptrdiff_t>(std::min(most, found.size()));
    std::ranges::partial_sort(found, found.begin() + shown, {}, [](const Value* value) {
        return std::tuple(-value->records, -value->newest, std::string_view(value->folded));
    });
    std::vector<std::string> texts;
    for (std::ptrdiff_t place = 0; place < shown; ++place)
        texts.push_back(found[static_cast<std::size_t>(place)]->text);
    return texts;
}

std::vector<std::string> ColumnValues::all() const {
    std::vector<std::string> texts;
    for (const Value& value : values_) texts.push_back(value.text);
    if (type_ == ColumnType::Date)
        std::ranges::stable_sort(
            texts, {}, [](const std::string& text) { return core::sortKeyOf(text, ColumnType::Date); });
    else if (type_ != ColumnType::Text)
        std::ranges::stable_sort(texts, {},
                                 [](const std::string& text) { return core::toDouble(text).value_or(0); });
    return texts;
}

void forgetSuggestions(app::App& app) {
    app.rooms.of<SuggestionIndex>().clear();
}

std::vector<std::string> suggestions(app::App& app, std::string_view name, std::string_view typed,
                                     Asked asked) {
    const core::RecordsList& list = app.document.LV;
    const core::Column* column = list.columns.find(name);
    if (column == nullptr || !isTypedIn(*column)) return {};
    const bool isTyping = asked == Asked::Typing;
    if (isTyping && (!column->isType(ColumnType::Text) || core::trim(typed).empty())) return {};
    auto& index = app.rooms.of<SuggestionIndex>();
    const ColumnValues& values =
        index.try_emplace(column->Key, list, *column, app.document.bInvoiceStyle).first->second;
    if (!isTyping && values.count() <= fewValues) return values.all();
    std::vector<std::string> texts = values.beginningWith(typed, isTyping ? typingMost : listMost);
    if (isTyping) std::erase(texts, typed);
    return texts;
}

} // namespace search
