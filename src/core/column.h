#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace core {

// The type codes are part of the file format; there is no code 6.
enum class ColumnType {
    None = 0,
    Date = 1,
    Currency = 2,
    Text = 3,
    Number = 4,
    Calculation = 5,
    Picture = 7
};

enum class Alignment { Left = 0, Right = 1, Centre = 2 };

// What the dialogs call a type; empty for a code that is none of the six.
std::string_view typeName(ColumnType type); // as files have it; shown by tr()

constexpr float newColumnWidth = 1440; // twips

// One entry of a list's column table.
struct Column {
    std::string Key;              // the name that every look-up uses, without regard to case
    std::string Text;             // the name as the header shows it
    std::string Tag;              // type code as text, as it stands in the file
    float Width = newColumnWidth; // twips
    int Position = 0;             // display position, from 1
    int Index = 0;                // place in the table, from 1
    Alignment align = Alignment::Left;
    std::string Icon; // "Picture" on a Picture column, else empty

    ColumnType type() const;
    bool isType(ColumnType wanted) const { return type() == wanted; }
    bool isNumeric() const; // Currency, Number or Calculation
    bool operator==(const Column&) const = default;
    // Sets Tag, the alignment and the icon that go with it when a database is opened.
    void setTypeFromFile(std::string_view tag);
};

// The column table of a list. Entry 1 of a records list is the hidden column "Index"; table order
// and display order differ, since the user drags columns.
class ColumnHeaders {
public:
    // Raises keyNotUnique when a column with that key, in whatever case, is there.
    Column& add(std::string_view key, std::string_view text, float width = newColumnWidth);
    void remove(int index);
    // Gives the column another name; raises keyNotUnique like add.
    void rename(int index, std::string_view newName);
    void clear();

    int count() const { return static_cast<int>(columns_.size()); }
    // 1-based; raises indexOutOfBounds.
    Column& at(int index) { return columns_[placeOf(index)]; }
    const Column& at(int index) const { return columns_[placeOf(index)]; }
    // Raises elementNotFound.
    Column& operator[](std::string_view key) { return columns_[placeOf(key)]; }
    const Column& operator[](std::string_view key) const { return columns_[placeOf(key)]; }
    Column* find(std::string_view key);
    const Column* find(std::string_view key) const;

    // Moves a column to a display position, the others closing up, as a drag in the header does.
    void setPosition(int index, int position);
    // Takes over display positions for the first columns of the table, one after the other. Raises
    // indexOutOfBounds when there are more positions than columns.
    void setPositions(const std::vector<int>& positions);
    // Table indexes in display order.
    std::vector<int> displayOrder() const;

    bool operator==(const ColumnHeaders& other) const { return columns_ == other.columns_; }

    auto begin() { return columns_.begin(); }
    auto end() { return columns_.end(); }
    auto begin() const { return columns_.begin(); }
    auto end() const { return columns_.end(); }

private:
    void reindex();
    std::size_t placeOf(int index) const;
    std::size_t placeOf(std::string_view key) const;
    int indexOf(std::string_view key) const; // 0 for none

    std::vector<Column> columns_;
    std::unordered_map<std::string, int> byUpperKey_; // to table index, from 1
};

} // namespace core
