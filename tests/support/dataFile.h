#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

// A document in a few lines, as the text of a data.dat. The columns are names with the digits of their types,
// 3 (Text) where none is told: 1 Date, 2 Currency, 4 Number, 5 Calculation, 7 Picture. Records end in ";" and
// cells in "|"; a Totals row follows them by itself. Objects are layout lines that end in ";", fields and
// labels without what stands behind their sizes.
//
//     DataFile("Name Qty:4 Price:2", "Bolt|12|$1.50;Nut|7|$.25")
//         .section("Totaled Cols", "Qty|").section("Formulas", "Price,Qty * 2|")
//         .objects("F|Name|1440|1440|2000|1000;LN|1440|4000|5000|75|0|")
struct DataFile {
    std::string layout;
    std::string names = "Name|Qty|Price|";
    std::string types = "3|4|2|";
    std::string widths = "1440|1440|1440|";
    std::string spots = "1|2|3|4|";
    std::string more; // further sections
    std::string rows = "Bolt|12|$1.50|\r\nNut|7|$.25|\r\n------|------|------|\r\n";

    DataFile() = default;
    explicit DataFile(std::string_view columns, std::string_view records = {})
        : names(), types(), widths(), spots("1|"), rows() {
        each(columns, ' ', [&](std::string_view column) {
            const std::size_t colon = std::min(column.find(':'), column.size());
            addColumn(std::string(column.substr(0, colon)),
                      colon < column.size() ? column[colon + 1] - '0' : 3);
        });
        each(records, ';', [&](std::string_view record) { rows.append(record).append("|\r\n"); });
        addTotals();
    }
    // Columns with the digits of their types, each as wide as the next, and without rows.
    explicit DataFile(std::initializer_list<std::pair<const char*, int>> columns)
        : names(), types(), widths(), spots("1|"), rows() {
        for (const auto& [name, type] : columns) addColumn(name, type);
    }
    DataFile& section(std::string name, const std::string& line) {
        name.resize(14, ' ');
        more += "[" + name + "]" + line + "\r\n";
        return *this;
    }
    // Several, "Totaled Cols=Qty|;Locks=pBox,1|".
    DataFile& sections(std::string_view lines) {
        each(lines, ';', [&](std::string_view line) {
            const std::size_t end = line.find('=');
            section(std::string(line.substr(0, end)), std::string(line.substr(end + 1)));
        });
        return *this;
    }
    DataFile& objects(std::string_view lines) {
        each(lines, ';', [&](std::string_view line) {
            layout.append(line);
            if (std::ranges::count(line, '|') == 5 && (line.starts_with("F|") || line.starts_with("L|")))
                layout.append(line.starts_with("F|") ? "|False|False|False|Arial|10|0|"
                                                     : "|False|False|False|Arial|10|0||0|");
            layout.append("\r\n");
        });
        return *this;
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

private:
    template <typename Take>
    static void each(std::string_view text, char end, Take&& take) {
        while (!text.empty()) {
            const std::size_t length = std::min(text.find(end), text.size());
            take(text.substr(0, length));
            text.remove_prefix(std::min(length + 1, text.size()));
        }
    }
};
