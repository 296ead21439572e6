#pragma once

#include <memory>
#include <sqlite3.h>
#include <string>

namespace exchange::sqlite {

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
struct EndStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;
using Statement = std::unique_ptr<sqlite3_stmt, EndStatement>;

// In the head of a file that is a table of ours.
constexpr int applicationId = 0x46776B54;

// Raise badFileFormat with what SQLite says.
Database openDatabase(const char* address, int flags);
Statement prepare(sqlite3& database, const std::string& question);
[[noreturn]] void refuseDatabase(sqlite3& database);

} // namespace exchange::sqlite
