#pragma once

#include "app/app.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace search {

// What can be proposed to whoever types into a column: its earlier values. Nothing of it is stored.

// The different values of a column, ordered by their folded texts. Cells longer than this are no values that
// anybody types again.
class ColumnValues {
public:
    static constexpr std::size_t longest = 200; // bytes

    // Of invoices a cell holds a value for each item row.
    ColumnValues(const core::RecordsList& list, const core::Column& column, bool hasItemRows);

    // Those that begin so, whatever the case and the accents: the ones that stand in most records first, and
    // among those the ones of the newest record.
    std::vector<std::string> beginningWith(std::string_view typed, std::size_t most) const;
    // In the order of the alphabet, numbers and dates in their own.
    std::vector<std::string> all() const;
    std::size_t count() const { return values_.size(); }

private:
    void add(std::string_view text, int record);

    struct Value {
        std::string folded, text;
        int records = 0;
        int newest = 0; // the number in its record's key
    };
    std::vector<Value> values_;
    std::unordered_map<std::string_view, std::size_t> known_; // by their texts, while they are collected
    core::ColumnType type_;
};

// Of each column that was asked for, made when it is asked for first.
using SuggestionIndex = std::map<std::string, ColumnValues, std::less<>>;
// Follows whatever changes the records.
void forgetSuggestions(app::App& app);

enum class Asked {
    Typing, // what the user has not asked for must be worth it: texts alone, when something is typed
    ForList // the user wants to see what there is
};
constexpr std::size_t fewValues = 50; // so many are shown all, whatever is typed
constexpr std::size_t typingMost = 8, listMost = 50;

// Values of the records' column of that name. None for a column that takes no typing. A value that is typed
// in full is none.
std::vector<std::string> suggestions(app::App& app, std::string_view column, std::string_view typed,
                                     Asked asked);

} // namespace search
