#pragma once

#include "core/document.h"
#include "search/filter/filter.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace search {

// A folded copy of a list's texts, column by column, each text behind the other, so that a word is looked for
// in one go. It takes about as much memory as the texts themselves.
class FoldedTexts {
public:
    // Makes the copy what the list is now. What has not changed is not folded again; True when something has.
    bool follow(const core::RecordsList& list, const FilterColumns& columns);

    std::size_t rows() const { return items_.size(); }
    // The item that a row was copied from, which is there as long as the list's arrangement is the same.
    const core::Item& item(std::size_t row) const { return *items_[row]; }
    std::size_t columns() const { return columns_.size(); }

    // Between two texts stands a separator, which no folded text holds.
    static constexpr char separator = '\n';
    struct Column {
        std::string texts;
        std::vector<std::uint32_t> from; // of each row, and behind the last one
        std::string_view text(std::size_t row) const {
            return std::string_view(texts).substr(from[row], from[row + 1] - from[row] - 1);
        }
    };
    const Column& column(std::size_t place) const { return columns_[place]; }

    // The texts as ten-thousandths or as days, worked out when they are first asked for.
    static constexpr std::int64_t none = std::numeric_limits<std::int64_t>::min();
    const std::vector<std::int64_t>& numbers(std::size_t place) const;
    const std::vector<std::int64_t>& days(std::size_t place, std::chrono::year_month_day today) const;

private:
    struct Read {
        std::vector<std::int64_t> numbers, days;
        std::chrono::year_month_day today{};
    };

    void fold(std::size_t row, std::size_t end, const std::vector<int>& subItems,
              std::vector<Column>& copies) const;
    std::vector<Column> copied(const std::vector<int>& subItems, const std::vector<char>& isChanged) const;

    std::vector<const core::Item*> items_;
    std::vector<std::size_t> hashes_; // of the texts that were folded
    std::vector<int> subItems_;
    std::vector<Column> columns_;
    mutable std::vector<Read> read_;
};

} // namespace search
