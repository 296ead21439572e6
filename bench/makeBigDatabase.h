#pragma once

#include <string>

namespace bench {

constexpr int mostRecords = 32767; // the record counter has 16 bits
constexpr int mostColumns = 50;

// A data.dat of that size, in the bytes of the file: the column types take turns, the cells look like
// what people keep, and the same sizes always give the same bytes. The first column is a Number
// column, the second a Text column.
std::string bigDataFile(int records = mostRecords, int columns = mostColumns);

// The same as a database on disk. An existing file is replaced.
void makeBigDatabase(const std::string& path, int records = mostRecords, int columns = mostColumns);

} // namespace bench
