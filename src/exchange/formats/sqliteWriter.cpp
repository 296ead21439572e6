#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/sqliteHandles.h"

#include <new>

namespace exchange::sqlite {

namespace {

// A name between quotes.
std::string inQuotes(std::string_view name) {
    std::string text = "\"";
    text.append(core::replaceAll(name, "\"", "\"\"")).push_back('"');
    return text;
}

// A calculated column can have amounts and numbers by turns, which only texts tell apart.
const char* calculationIn(const OutTable& table, std::size_t column) {
    bool bMoney = false, bNumbers = false;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        const OutCell cell = outCell(core::ColumnType::Calculation, cellIn(table, row, column));
        bMoney = bMoney || cell.what == OutCell::What::Money;
        bNumbers = bNumbers || cell.what == OutCell::What::Number;
    }
    if (bMoney && bNumbers) return " CALCULATION TEXT";
    return bMoney ? " CALCULATION DECIMAL(18,2)" : " CALCULATION NUMERIC";
}

const char* declaredAs(const OutTable& table, std::size_t column) {
    switch (table.columns[column].type) {
    case core::ColumnType::Date:
        return " DATE";
    case core::ColumnType::Currency:
        return " DECIMAL(18,2)";
    case core::ColumnType::Number:
        return " NUMERIC";
    case core::ColumnType::Calculation:
        return calculationIn(table, column);
    case core::ColumnType::Picture:
        return " PICTURE TEXT";
    default:
        return " TEXT";
    }
}

void run(sqlite3& database, const std::string& command) {
    if (sqlite3_exec(&database, command.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        refuseDatabase(database);
}

void bindCell(sqlite3_stmt* row, int place, const OutCell& cell, std::string_view text) {
    using What = OutCell::What;
    if (cell.what == What::Number || cell.what == What::Money)
        sqlite3_bind_double(row, place, cell.value);
    else if (cell.what == What::Date || !text.empty())
        sqlite3_bind_text64(row, place, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    else
        sqlite3_bind_null(row, place);
}

// One block for the whole file, so that no copy of it is made, neither when it grows nor at its end. What of
// it is not written to takes no memory.
void makeRoom(sqlite3& database, const OutTable& table) {
    constexpr sqlite3_int64 least = 65'536, ofRow = 64, ofCell = 16, ofByte = 2;
    sqlite3_int64 room = least;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        room += ofRow;
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            room += ofCell + ofByte * static_cast<sqlite3_int64>(cellIn(table, row, i).size());
    }
    auto* block = static_cast<unsigned char*>(sqlite3_malloc64(static_cast<sqlite3_uint64>(room)));
    if (block == nullptr) throw std::bad_alloc();
    if (sqlite3_deserialize(&database, "main", block, 0, room,
                            SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE) != SQLITE_OK)
        refuseDatabase(database);               // the block is freed by then
    run(database, "PRAGMA journal_mode = OFF"); // a table that is given up is not looked at again
}

void insertRows(sqlite3& database, const OutTable& table, const std::string& name, const Progress& progress) {
    constexpr std::size_t rowsBetween = 500;
    std::string command = "INSERT INTO ";
    command.append(name).append(" VALUES (?");
    for (std::size_t i = 1; i < table.columns.size(); ++i) command.append(", ?");
    const Statement insert = prepare(database, command.append(")"));
    std::vector<core::ColumnType> types; // that the cells are written in
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        types.push_back(std::string_view(declaredAs(table, i)).ends_with("TEXT") ? core::ColumnType::Text
                                                                                 : table.columns[i].type);
    // The sums are no record, and who has the records can add them up.
    const std::size_t count = table.rows.size() - (table.bLastIsTotals && !table.rows.empty() ? 1 : 0);
    for (std::size_t row = 0; row < count; ++row) {
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            const OutCell cell = outCell(types[i], cellIn(table, row, i));
            const std::string_view text =
                cell.what == OutCell::What::Date ? std::string_view(cell.iso) : cellIn(table, row, i);
            bindCell(insert.get(), static_cast<int>(i) + 1, cell, text);
        }
        if (sqlite3_step(insert.get()) != SQLITE_DONE) refuseDatabase(database);
        sqlite3_reset(insert.get());
        if (row % rowsBetween == 0) tellProgress(progress, row, count);
    }
}

} // namespace

Database openDatabase(const char* address, int flags) {
    sqlite3* raw = nullptr;
    const int result = sqlite3_open_v2(address, &raw, flags, nullptr);
    if (raw == nullptr) throw std::bad_alloc();
    Database database(raw);
    if (result != SQLITE_OK) refuseDatabase(*database);
    return database;
}

Statement prepare(sqlite3& database, const std::string& question) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(&database, question.c_str(), static_cast<int>(question.size()), &raw, nullptr) !=
        SQLITE_OK)
        refuseDatabase(database);
    return Statement(raw);
}

void refuseDatabase(sqlite3& database) {
    refuseSheet(sqlite3_errmsg(&database));
}

void write(const Target& target, const OutTable& table, const Progress& progress) {
    if (table.columns.empty()) refuseSheet(core::tr("it has no columns"));
    sqlite3_hard_heap_limit64(0);
    const Database database = openDatabase(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    makeRoom(*database, table);
    const std::string name = inQuotes(table.title.empty() ? "records" : table.title);
    std::string command = "CREATE TABLE ";
    command.append(name);
    const char* before = " (";
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        command.append(before).append(inQuotes(table.columns[i].name)).append(declaredAs(table, i));
        before = ", ";
    }
    run(*database, command.append(")"));
    std::string mark = "PRAGMA application_id = ";
    run(*database, mark.append(std::to_string(applicationId)));
    run(*database, "BEGIN");
    insertRows(*database, table, name, progress);
    run(*database, "COMMIT");
    sqlite3_int64 size = 0;
    const unsigned char* bytes = sqlite3_serialize(database.get(), "main", &size, SQLITE_SERIALIZE_NOCOPY);
    if (bytes == nullptr) throw std::bad_alloc();
    writeBytes(target, {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)});
}

} // namespace exchange::sqlite
