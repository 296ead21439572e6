#pragma once

#include "app/app.h"
#include "exchange/sheetCollector.h"
#include "exchange/textRows.h"
#include "tables/newRecords.h"
#include "tables/recognition.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tables {

// A table of another program on its way into a database, new or open: how each of its columns is read, and
// which of its cells cannot be stored so. Rows without a text are left out. Copies share the cells.
class ImportTable {
public:
    struct Column {
        std::string heading; // empty without one
        bool bImport = true;
        std::string name; // in a new database
        Recognized how;
        const core::Column* target = nullptr; // in the open database; nullptr for none, and for a new one
    };
    struct Refusal {
        std::size_t row;    // of the table, from 1
        std::size_t column; // from 0
        std::string_view value;
        std::string reason;
    };

    // With `bLenient` see recognize. Raises TableError for more rows than a database holds, or no row at all,
    // and cancelled.
    ImportTable(exchange::Sheet sheet, const Hints& hints, bool bLenient, std::chrono::year_month_day today,
                const exchange::Progress& progress = {});

    // Whether the first row has the names of the columns; recognised at first. Recognises the columns anew.
    // Raises cancelled, and the table is of no more use then.
    void setHeadings(bool hasHeadings, const exchange::Progress& progress = {});
    bool hasHeadings() const { return hasHeadings_; }
    const std::vector<Column>& columns() const { return columns_; }

    void setImport(std::size_t column, bool bImport);
    void setName(std::size_t column, const std::string& name) { columns_.at(column).name = name; }
    void setReadAs(std::size_t column, const ReadAs& as);
    // Reads the column as numbers with that sign, in the way that fits best.
    void setSign(std::size_t column, const CurrencySign& sign);
    // Reads the column as a type in the way that fits best.
    void setType(std::size_t column, core::ColumnType type);
    // Into a column of the open database, which says the type, or into none.
    void setTarget(std::size_t column, const core::Column* target);
    // The columns that have refused cells become texts.
    void keepAsText();

    std::size_t count() const { return rows_->size() - (hasHeadings_ ? 1 : 0); } // of the records
    std::size_t rowNumber(std::size_t record) const { return rowOf(record).number; }
    CheckedCell cell(std::size_t record, std::size_t column) const;
    std::string_view written(std::size_t record, std::size_t column) const { // as it is in the table
        return sheetCell(record, column).text;
    }
    // Of the columns that are imported.
    std::size_t refusedCount() const;
    std::vector<Refusal> refusals(std::size_t most) const; // row by row
    // Why a new database cannot have these columns; empty when it can.
    std::string whyNoDatabase(bool bInvoiceStyle = false) const;
    // The columns that go into one of the open database's, each with what its box would be given; what is
    // refused is empty. In the order of columns(), the others without a cell.
    exchange::TextRows rowsForTargets(const exchange::Progress& progress = {}) const;
    exchange::TextRow headingRow() const;
    // Gives up the cells of a record that nobody asks for again; not where a copy shares them.
    void forget(std::size_t record);

private:
    struct Row {
        std::size_t number;
        exchange::SheetRow cells;
    };
    struct RefusedCell {
        std::size_t record;
        std::string reason;
    };
    const Row& rowOf(std::size_t record) const { return (*rows_)[record + (hasHeadings_ ? 1 : 0)]; }
    const exchange::SheetCell& sheetCell(std::size_t record, std::size_t column) const;
    bool firstRowIsHeadings() const;
    bool takeToldTypes();
    void recognizeAll(const exchange::Progress& progress);
    Recognized recognized(std::size_t column, const Hints& hints,
                          std::optional<core::ColumnType> type = std::nullopt) const;
    void check(std::size_t column);

    std::shared_ptr<std::vector<Row>> rows_; // changed by forget() alone
    bool bTyped_, bLenient_, hasHeadings_ = false;
    Hints hints_;
    std::chrono::year_month_day today_;
    std::vector<Column> columns_;
    std::vector<std::vector<RefusedCell>> refused_; // by column
};

// The columns of an open database that the table may go into.
struct Targets {
    std::vector<const core::Column*> choices;
    std::vector<std::string> whyLeftOut; // by column of the table; empty where nothing has to be said
};
// Sets the targets of all columns by their headings, or without such by the places of the columns on screen.
Targets findTargets(app::App& app, ImportTable& table, const exchange::Progress& progress = {});
// The new records that the open database gets of it. Both raise cancelled.
NewRecords newRecordsOf(app::App& app, const ImportTable& table, const exchange::Progress& progress = {});

// A new database: the columns that are imported, and behind the Totals row's making the records, refused
// cells empty. Raises cancelled.
void addImportedColumns(core::Document& document, const ImportTable& table);
void addImportedRecords(app::App& app, core::Document& document, const ImportTable& table);
// The same of a table that is of no more use then: no cell is kept twice, but where a copy shares it.
void takeImportedRecords(app::App& app, core::Document& document, ImportTable& table);
// Both in a file of its own. False when the user keeps it from being written. Raises what writing it raises,
// and cancelled; there is no half database then.
[[nodiscard]] bool writeImported(app::App& app, const std::string& target, const ImportTable& table,
                                 bool bInvoiceStyle);

} // namespace tables
