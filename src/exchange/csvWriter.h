#pragma once

#include <string>
#include <string_view>

namespace exchange {

// Writes a table as CsvTable reads it, line by line, behind what `out` holds.
class CsvWriter {
public:
    explicit CsvWriter(std::string& out) : out_(out) {}

    void cell(std::string_view text);
    void endLine();

private:
    std::string& out_;
    int cells_ = 0; // in the line so far
    bool isEmpty_ = true;
};

} // namespace exchange
