#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>

// The text of a data.dat with the given lines in place of the usual ones.
struct DataFile {
    std::string layout;
    std::string names = "Name|Qty|Price|";
    std::string types = "3|4|2|";
    std::string widths = "1440|1440|1440|";
    std::string spots = "1|2|3|4|";
    std::string more; // further sections
    std::string rows = "Bolt|12|$1.50|\r\nNut|7|$.25|\r\n------|------|------|\r\n";

    DataFile() = default;
    // Columns with the digits of their types, each as wide as the next, and without rows.
    explicit DataFile(std::initializer_list<std::pair<const char*, int>> columns)
        : names(), types(), widths(), spots("1|"), rows() {
        for (const auto& [name, type] : columns) addColumn(name, type);
    }
    void addColumn(const std::string& name, int type) {
        names += name + "|";
        types += std::to_string(type) + "|";
        widths += "1440|";
        spots += std::to_string(std::ranges::count(types, '|') + 1) + "|";
    }
    // A Totals row without a sum.
    void addTotals() {
        for (auto column = std::ranges::count(types, '|'); column > 0; --column) rows += "------|";
        rows += "\r\n";
    }

    std::string text() const {
        return "[LayoutStart]\r\n" + layout + "[LayoutEnd]\r\n[Layout Options]4|6|1|1|1|1|1|1|0.15|\r\n" +
               "[Column Names  ]" + names + "\r\n[Column Types  ]" + types + "\r\n[Column Widths ]" + widths +
               "\r\n[Column Spots  ]" + spots + "\r\n" + more + "[Begin Data    ]\r\n" + rows;
    }
};
