#pragma once

#include <array>
#include <string>
#include <string_view>

namespace exchange {

// Writes a table as CsvTable reads it, line by line, behind what `out` holds. A cell with one of `quoted` in
// it is put into quotes; by default the other separators are among them, so that no reader takes them for the
// table's own.
class CsvWriter {
public:
    explicit CsvWriter(std::string& out, std::string_view quoted = ",;\t\"\r\n", char separator = ',')
        : out_(out), separator_(separator) {
        for (const char c : quoted) quoted_.at(static_cast<unsigned char>(c)) = true;
    }

    void cell(std::string_view text);
    void endLine();

private:
    std::string& out_;
    char separator_;
    std::array<bool, 256> quoted_{}; // by character: a search for each of several takes twice the time
    int cells_ = 0;                  // in the line so far
    bool isEmpty_ = true;
};

} // namespace exchange
