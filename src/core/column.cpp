#include "core/column.h"

#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>

namespace core {

std::string_view typeName(ColumnType type) {
    switch (type) {
    case ColumnType::Date:
        return core::marked("Date");
    case ColumnType::Currency:
        return core::marked("Currency");
    case ColumnType::Text:
        return core::marked("Text");
    case ColumnType::Number:
        return core::marked("Number");
    case ColumnType::Calculation:
        return core::marked("Calculation");
    case ColumnType::Picture:
        return core::marked("Picture");
    case ColumnType::None:
        break;
    }
    return {};
}

ColumnType Column::type() const {
    if (Tag.size() != 1) return ColumnType::None;
    switch (Tag.front()) {
    case '1':
        return ColumnType::Date;
    case '2':
        return ColumnType::Currency;
    case '3':
        return ColumnType::Text;
    case '4':
        return ColumnType::Number;
    case '5':
        return ColumnType::Calculation;
    case '7':
        return ColumnType::Picture;
    default:
        return ColumnType::None;
    }
}

bool Column::isNumeric() const {
    const ColumnType code = type();
    return code == ColumnType::Currency || code == ColumnType::Number || code == ColumnType::Calculation;
}

void Column::setTypeFromFile(std::string_view tag) {
    Tag = trim(tag);
    align = isNumeric() || isType(ColumnType::Date) ? Alignment::Right : Alignment::Left;
    Icon = isType(ColumnType::Picture) ? "Picture" : "";
}

Column& ColumnHeaders::add(std::string_view key, std::string_view text, float width) {
    if (find(key) != nullptr) raise(errors::keyNotUnique, std::string(key));
    Column column;
    column.Key = key;
    column.Text = text;
    column.Width = width;
    column.Index = count() + 1;
    column.Position = column.Index;
    byUpperKey_.emplace(upper(key), column.Index);
    columns_.push_back(std::move(column));
    return columns_.back();
}

void ColumnHeaders::remove(int index) {
    const int gone = at(index).Position;
    columns_.erase(columns_.begin() + (index - 1));
    for (Column& column : columns_)
        if (column.Position > gone) --column.Position;
    reindex();
}

void ColumnHeaders::rename(int index, std::string_view newName) {
    Column& column = at(index);
    const Column* other = find(newName);
    if (other != nullptr && other != &column) raise(errors::keyNotUnique, std::string(newName));
    column.Key = newName;
    column.Text = newName;
    reindex();
}

void ColumnHeaders::clear() {
    columns_.clear();
    byUpperKey_.clear();
}

std::size_t ColumnHeaders::placeOf(int index) const {
    if (index < 1 || index > count())
        raise(errors::indexOutOfBounds, core::fill(core::tr("column %1"), {std::to_string(index)}));
    return static_cast<std::size_t>(index - 1);
}

std::size_t ColumnHeaders::placeOf(std::string_view key) const {
    const int index = indexOf(key);
    if (index == 0) raise(errors::elementNotFound, std::string(key));
    return static_cast<std::size_t>(index - 1);
}

int ColumnHeaders::indexOf(std::string_view key) const {
    const auto found = byUpperKey_.find(upper(key));
    return found == byUpperKey_.end() ? 0 : found->second;
}

Column* ColumnHeaders::find(std::string_view key) {
    const int index = indexOf(key);
    return index == 0 ? nullptr : &at(index);
}

const Column* ColumnHeaders::find(std::string_view key) const {
    const int index = indexOf(key);
    return index == 0 ? nullptr : &at(index);
}

void ColumnHeaders::setPosition(int index, int position) {
    Column& moved = at(index);
    const int from = moved.Position;
    const int to = std::clamp(position, 1, count());
    for (Column& column : columns_) {
        if (from < to && column.Position > from && column.Position <= to) --column.Position;
        if (to < from && column.Position >= to && column.Position < from) ++column.Position;
    }
    moved.Position = to;
}

void ColumnHeaders::setPositions(const std::vector<int>& positions) {
    if (positions.size() > columns_.size()) raise(errors::indexOutOfBounds, core::tr("column position"));
    // A whole arrangement is taken over as it stands: moving column by column could not always
    // reach it, as each move shifts those that were placed before.
    std::vector<bool> seen(columns_.size() + 1, false);
    const bool isArrangement =
        positions.size() == columns_.size() && std::ranges::all_of(positions, [&](int position) {
            if (position < 1 || position > count() || seen[static_cast<std::size_t>(position)]) return false;
            seen[static_cast<std::size_t>(position)] = true;
            return true;
        });
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (isArrangement)
            columns_[i].Position = positions[i];
        else
            setPosition(static_cast<int>(i) + 1, positions[i]);
    }
}

std::vector<int> ColumnHeaders::displayOrder() const {
    std::vector<int> order(columns_.size());
    for (const Column& column : columns_) order[static_cast<std::size_t>(column.Position - 1)] = column.Index;
    return order;
}

void ColumnHeaders::reindex() {
    byUpperKey_.clear();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        columns_[i].Index = static_cast<int>(i) + 1;
        byUpperKey_.emplace(upper(columns_[i].Key), columns_[i].Index);
    }
}

} // namespace core
