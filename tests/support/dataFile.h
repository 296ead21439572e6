#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

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
        for (const std::string& column : pieces(columns, ' ')) {
            const std::size_t colon = std::min(column.find(':'), column.size());
            names += column.substr(0, colon) + "|";
            types += std::string(1, colon < column.size() ? column[colon + 1] : '3') + "|";
            widths += "1440|";
            spots += std::to_string(std::ranges::count(types, '|') + 1) + "|";
        }
        for (const std::string& record : pieces(records, ';')) rows += record + "|\r\n";
        for (std::size_t column = pieces(types, '|').size(); column > 0; --column) rows += "------|";
        rows += "\r\n";
    }
    DataFile& section(std::string name, const std::string& line) {
        name.resize(14, ' ');
        more += "[" + name + "]" + line + "\r\n";
        return *this;
    }
    // Several, "Totaled Cols=Qty|;Locks=pBox,1|".
    DataFile& sections(std::string_view lines) {
        for (const std::string& line : pieces(lines, ';'))
            section(line.substr(0, line.find('=')), line.substr(line.find('=') + 1));
        return *this;
    }
    DataFile& objects(std::string_view lines) {
        for (const std::string& line : pieces(lines, ';')) {
            const bool isShort = std::ranges::count(line, '|') == 5 && (line[0] == 'F' || line[0] == 'L');
            layout += line + (isShort ? "|False|False|False|Arial|10|0|" : "");
            layout += isShort && line[0] == 'L' ? "|0|\r\n" : "\r\n";
        }
        return *this;
    }
    std::string text() const {
        return "[LayoutStart]\r\n" + layout + "[LayoutEnd]\r\n[Layout Options]4|6|1|1|1|1|1|1|0.15|\r\n" +
               "[Column Names  ]" + names + "\r\n[Column Types  ]" + types + "\r\n[Column Widths ]" + widths +
               "\r\n[Column Spots  ]" + spots + "\r\n" + more + "[Begin Data    ]\r\n" + rows;
    }

private:
    static std::vector<std::string> pieces(std::string_view text, char end) {
        std::istringstream stream{std::string(text)};
        std::vector<std::string> all;
        for (std::string piece; std::getline(stream, piece, end);) all.push_back(piece);
        return all;
    }
};
