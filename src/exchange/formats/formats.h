#pragma once

#include "exchange/outCells.h"
#include "exchange/sheetCollector.h"

namespace exchange {

// The formats one by one; sheet.h says what they share. A reader is given a file that is there.

namespace xlsx {
std::vector<std::string> names(const std::filesystem::path& file);
Sheet read(const std::filesystem::path& file, std::size_t sheet, const Progress& progress);
void write(const Target& target, const OutTable& table, const Progress& progress);
} // namespace xlsx

namespace ods {
std::vector<std::string> names(const std::filesystem::path& file);
Sheet read(const std::filesystem::path& file, std::size_t sheet, const Progress& progress);
void write(const Target& target, const OutTable& table, const Progress& progress);
} // namespace ods

namespace sqlite {
std::vector<std::string> names(const std::filesystem::path& file);
Sheet read(const std::filesystem::path& file, std::size_t sheet, const Progress& progress);
void write(const Target& target, const OutTable& table, const Progress& progress);
} // namespace sqlite

// Of the formats that are texts; the text is UTF-8.
Sheet readJsonSheet(const std::string& text, const Progress& progress);
Sheet readVcardSheet(const std::string& text, const Progress& progress);
std::string jsonText(const OutTable& table, const Progress& progress);
std::string vcardText(const OutTable& table, const Progress& progress);
std::string htmlText(const OutTable& table, const Progress& progress);
std::string csvText(const OutTable& table, char separator, const Progress& progress);

// The n-th of the names; raises badFileFormat where there are fewer.
const std::string& sheetAt(const std::vector<std::string>& names, std::size_t sheet);

} // namespace exchange
