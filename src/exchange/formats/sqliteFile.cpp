#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/sheetNumbers.h"
#include "exchange/formats/sqliteHandles.h"
#include "exchange/toldTypes.h"
#include "file/fileHandle.h"

#include <chrono>
#include <filesystem>

namespace exchange::sqlite {

namespace {

using Clock = std::chrono::steady_clock;
using std::filesystem::path;

constexpr int mostValueBytes = 16 << 20;
constexpr int heapBytes = 96 << 20;
constexpr int stepsBetween = 20'000;                    // of its machine, between looks at the clock
constexpr std::chrono::milliseconds mostWaiting{1'500}; // for the next row of a view

// Of whoever has the file open, not yet in the file itself; it is read as it stands, and must be whole.
void refuseUnfinished(const path& file) {
    for (const char* ending : {"-wal", "-journal"}) {
        std::error_code error;
        const auto size = std::filesystem::file_size(path(file) += ending, error);
        if (!error && size > 0)
            refuseSheet(
                core::tr("another program has changes for it that are not in it yet; close it there first"));
    }
}

// Neither written nor locked, whatever it holds.
std::string addressOf(const path& file) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string address = "file:";
    for (const char c : std::filesystem::absolute(file).string()) {
        const auto byte = static_cast<unsigned char>(c);
        const bool bPlain = core::isDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '/';
        if (bPlain) {
            address.push_back(c);
            continue;
        }
        address.push_back('%');
        address.push_back(digits[byte >> 4U]);
        address.push_back(digits[byte & 15U]);
    }
    return address.append("?immutable=1");
}

class OpenFile {
public:
    explicit OpenFile(const path& file) {
        (void)file::openRegularFile(file); // tells why it cannot be
        refuseUnfinished(file);
        sqlite3_hard_heap_limit64(heapBytes);
        database_ = openDatabase(addressOf(file).c_str(), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
        sqlite3* raw = database_.get();
        sqlite3_db_config(raw, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
        sqlite3_db_config(raw, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        sqlite3_db_config(raw, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
        sqlite3_limit(raw, SQLITE_LIMIT_LENGTH, mostValueBytes);
        sqlite3_limit(raw, SQLITE_LIMIT_COLUMN, static_cast<int>(SheetBounds::columns));
        sqlite3_limit(raw, SQLITE_LIMIT_ATTACHED, 0);
        sqlite3_progress_handler(raw, stepsBetween, &OpenFile::isLate, this);
    }

    Statement ask(const std::string& question) {
        waitingSince_ = Clock::now();
        return prepare(*database_, question);
    }
    bool step(const Statement& statement) {
        waitingSince_ = Clock::now();
        const int result = sqlite3_step(statement.get());
        if (result == SQLITE_ROW) return true;
        if (result == SQLITE_INTERRUPT) refuseSheet(core::tr("it takes too long to work out"));
        if (result != SQLITE_DONE) refuseDatabase(*database_);
        return false;
    }

    std::vector<std::string> names() {
        std::vector<std::string> names;
        const Statement all = ask("SELECT name FROM sqlite_master WHERE type IN ('table', 'view')"
                                  " AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY type, rowid");
        while (step(all)) {
            if (names.size() >= SheetBounds::columns) refuseSheet(core::tr("it has too many tables"));
            names.push_back(textAt(all, 0));
        }
        if (names.empty()) refuseSheet(core::tr("it has no tables"));
        return names;
    }

    static std::string textAt(const Statement& statement, int column) {
        const void* text = sqlite3_column_text(statement.get(), column);
        const int size = sqlite3_column_bytes(statement.get(), column);
        return text == nullptr ? ""
                               : std::string(static_cast<const char*>(text), static_cast<std::size_t>(size));
    }

private:
    static int isLate(void* self) {
        return Clock::now() - static_cast<OpenFile*>(self)->waitingSince_ > mostWaiting ? 1 : 0;
    }

    Database database_;
    Clock::time_point waitingSince_ = Clock::now();
};

// What tables of ours declare; nothing for other words.
const char* typeOf(std::string_view declared) {
    if (declared.starts_with("CALCULATION")) return ":Calculation";
    if (declared.starts_with("PICTURE")) return ":Picture";
    if (declared == "DECIMAL(18,2)") return ":Currency";
    if (declared == "NUMERIC") return ":Number";
    if (declared == "DATE") return ":Date";
    return declared == "TEXT" ? ":Text" : nullptr;
}

// Only of a file of ours, whose columns all have a type.
std::vector<std::string> toldTypes(OpenFile& open, const Statement& rows) {
    const Statement mark = open.ask("PRAGMA application_id");
    if (!open.step(mark) || sqlite3_column_int(mark.get(), 0) != applicationId) return {};
    std::vector<std::string> headings;
    for (int i = 0; i < sqlite3_column_count(rows.get()); ++i) {
        const char* declared = sqlite3_column_decltype(rows.get(), i);
        const char* type = typeOf(declared == nullptr ? "" : declared);
        if (type == nullptr) return {};
        headings.emplace_back(sqlite3_column_name(rows.get(), i));
        headings.back().append(type);
    }
    return headings;
}

// What a column is declared as; the values themselves are numbers and texts.
enum class Declared : std::uint8_t { Plain, Day, Truth, Money };

Declared declaredOf(const Statement& statement, int column) {
    const char* told = sqlite3_column_decltype(statement.get(), column);
    const std::string type = core::upper(told == nullptr ? "" : told);
    if (type.starts_with("BOOL")) return Declared::Truth;
    if (type.starts_with("MONEY") || type.starts_with("CURRENCY") || type.ends_with(",2)"))
        return Declared::Money;
    const bool bDay = type.starts_with("DATE") || type.starts_with("TIME");
    return bDay ? Declared::Day : Declared::Plain;
}

void readValue(SheetCollector& collector, const Statement& statement, int column, Declared declared) {
    using Kind = SheetCell::Kind;
    switch (sqlite3_column_type(statement.get(), column)) {
    case SQLITE_INTEGER: {
        std::string digits = OpenFile::textAt(statement, column);
        if (declared == Declared::Truth && (digits == "0" || digits == "1"))
            return collector.cell(Kind::Boolean, digits == "1" ? "true" : "false");
        return collector.cell({Kind::Number, std::move(digits), declared == Declared::Money});
    }
    case SQLITE_FLOAT:
        return collector.cell({Kind::Number, numberDigits(sqlite3_column_double(statement.get(), column)),
                               declared == Declared::Money});
    case SQLITE_TEXT: {
        std::string text = OpenFile::textAt(statement, column);
        if (declared != Declared::Day) return collector.text(std::move(text));
        return collector.cell(isoCell(text));
    }
    default: // bytes are no text
        return collector.blanks(1);
    }
}

} // namespace

std::vector<std::string> names(const path& file) {
    return OpenFile(file).names();
}

Sheet read(const path& file, std::size_t sheet, const Progress& progress) {
    constexpr std::size_t rowsBetween = 500;
    OpenFile open(file);
    const std::vector<std::string> tables = open.names();
    const std::string& name = sheetAt(tables, sheet);
    std::string question = "SELECT * FROM \"";
    question.append(core::replaceAll(name, "\"", "\"\"")).push_back('"');
    const Statement rows = open.ask(question);
    SheetCollector collector;
    std::vector<Declared> declared;
    for (int i = 0; i < sqlite3_column_count(rows.get()); ++i) {
        collector.text(sqlite3_column_name(rows.get(), i));
        declared.push_back(declaredOf(rows, i));
    }
    collector.endRow();
    while (open.step(rows)) {
        for (std::size_t i = 0; i < declared.size(); ++i)
            readValue(collector, rows, static_cast<int>(i), declared[i]);
        collector.endRow();
        // How many there are is not known before.
        if (collector.row() % rowsBetween == 0) tellProgress(progress, collector.row(), SheetBounds::rows);
        if (collector.row() > SheetBounds::rows) refuseSheet(core::tr("it has too many rows"));
    }
    Sheet table = collector.take();
    table.name = name;
    table.bTyped = true;
    restoreTypes(table, toldTypes(open, rows));
    return table;
}

} // namespace exchange::sqlite
