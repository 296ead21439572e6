#include "makeBigDatabase.h"

#include "file/archive/zip.h"

#include <array>
#include <cstdint>
#include <random>
#include <string_view>
#include <vector>

namespace bench {

namespace {

enum class Kind { Number, Text, Currency, Date, Calculation };

constexpr std::array kinds{Kind::Number, Kind::Text, Kind::Currency, Kind::Date, Kind::Calculation};
constexpr std::array<std::string_view, 5> typeCodes{"4", "3", "2", "1", "5"};
constexpr std::array<std::string_view, 12> words{"amber", "bolt",      "copper", "drawer",
                                                 "Ebene", "fern",      "gasket", "hinge",
                                                 "iron",  "J\xF8rgen", "kettle", "lantern"};

std::size_t kindOf(int column) {
    return static_cast<std::size_t>(column) % kinds.size();
}

std::string columnName(int column) {
    return "Col" + std::to_string(column + 1);
}

// The distributions of the standard library differ between libraries; this does not.
class Chance {
public:
    int below(int limit) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(limit)); }

private:
    std::mt19937 engine_{20040301};
};

void appendTwoDigits(std::string& out, int number) {
    if (number < 10) out += '0';
    out += std::to_string(number);
}

void appendMoney(std::string& out, int cents) {
    out += '$';
    if (std::string whole = std::to_string(cents / 100); whole != "0") {
        if (whole.size() > 3) whole.insert(whole.size() - 3, 1, ',');
        out += whole;
    }
    out += '.';
    appendTwoDigits(out, cents % 100);
}

void appendWords(std::string& out, int count, Chance& chance) {
    for (; count > 0; --count) {
        out += words[static_cast<std::size_t>(chance.below(static_cast<int>(words.size())))];
        if (count > 1) out += ' ';
    }
}

void appendCell(std::string& out, Kind kind, Chance& chance) {
    switch (kind) {
    case Kind::Number:
        out += std::to_string(chance.below(1000000));
        break;
    case Kind::Text:
        appendWords(out, 1 + chance.below(3), chance);
        break;
    case Kind::Date:
        appendTwoDigits(out, 1 + chance.below(12));
        out += '/';
        appendTwoDigits(out, 1 + chance.below(28));
        out += '/';
        out += std::to_string(1980 + chance.below(45));
        break;
    case Kind::Currency:
    case Kind::Calculation:
        appendMoney(out, chance.below(500000));
        break;
    }
    out += '|';
}

void appendSections(std::string& out, int columns) {
    const auto list = [&](std::string_view marker, auto&& element) {
        out += marker;
        for (int column = 0; column < columns; ++column) (out += element(column)) += '|';
        out += "\r\n";
    };
    out += "[LayoutStart]\r\n[LayoutEnd]\r\n[Layout Options]4|6|1|1|1|1|1|1|0.15|\r\n";
    list("[Column Names  ]", columnName);
    list("[Column Types  ]", [](int column) { return std::string(typeCodes[kindOf(column)]); });
    list("[Column Widths ]", [](int) { return std::string("1440"); });
    out += "[Column Spots  ]1|";
    for (int column = 0; column < columns; ++column) out += std::to_string(column + 2) + "|";
    out += "\r\n[InvoiceCols   ]\r\n[ItemLevelCols ]\r\n";
    list("[Printed Cols  ]", columnName);
    out +=
        "[PrnInvoiceCols]\r\n[PrnItemCols   ]\r\n[Report Data   ]1|1|1|1|1|1||False|\r\n"
        "[Formulas      ]\r\n[Totaled Cols  ]\r\n[Optioned Cols ]\r\n[Increments    ]\r\n[Locks         ]\r\n"
        "[DatabaseStyle ]False\r\n[InvoiceView   ]False\r\n[Lock          ]\r\n[Begin Data    ]\r\n";
}

} // namespace

std::string bigDataFile(int records, int columns) {
    Chance chance;
    std::string out;
    appendSections(out, columns);
    for (int record = 0; record < records; ++record) {
        for (int column = 0; column < columns; ++column) appendCell(out, kinds[kindOf(column)], chance);
        out += "\r\n";
    }
    for (int column = 0; column < columns; ++column) out += "------|";
    out += "\r\n";
    return out;
}

void makeBigDatabase(const std::string& path, int records, int columns) {
    file::Zip Zip;
    Zip.CreateArchive(path, "");
    Zip.addBuffer("data.dat", bigDataFile(records, columns), "Main Data File");
    Zip.CloseArchive();
}

} // namespace bench
