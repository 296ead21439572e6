#pragma once

#include "cli/session.h"
#include "exchange/sheet.h"
#include "tables/recognition.h"

#include <optional>
#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace cli {

// How a table is written, as far as the user tells it; the rest is recognised.
struct WrittenTable {
    std::string dates, decimal, encoding, separator, quotes;
    bool noHeadings = false;

    // Without any of it a table of comma-separated values is read as it always was.
    bool isTold() const;
    tables::Hints hints() const;
};
void addWrittenTableOptions(CLI::App& command, WrittenTable& written);

// The cells of a text file. Raises Failure.
exchange::Sheet readTextSheet(const std::string& table, const WrittenTable& written);

// What the import of such a table needs beside it.
struct SheetImport {
    std::string file, table; // as the user has named them
    bool invoice = false, yes = false;
};
// Makes the database, or appends to it by the names of the columns; the session has reserved it. Cells that
// cannot be stored, and columns that the database has not, are told, and stop it without the user's consent.
// Answers how many records there are more.
std::size_t importSheet(Session& session, const SheetImport& import, exchange::Sheet sheet,
                        const WrittenTable& written);

} // namespace cli
