#pragma once

#include "app/app.h"
#include "calc/formulas.h"
#include "calc/itemColumns.h"
#include "exchange/sheetCollector.h"
#include "exchange/textRows.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tables {

enum class Headings { Guess, Yes, No }; // whether the first row has the names of the columns

// A table of another program on its way into new records of the open database: which column each of its
// columns goes into, which of its cells are refused, and, once that is settled, the records. The columns of
// the database must not change meanwhile.
class NewRecords {
public:
    // A column of the table.
    struct Source {
        std::string name;                     // its heading; empty without one
        const core::Column* target = nullptr; // nullptr: it is left out
        std::string whyLeftOut; // when nobody has chosen that; empty for columns that take nothing typed
    };
    struct Refusal {
        std::size_t row;    // of the table, from 1, with the headings
        std::size_t column; // of the table, from 0
        std::string_view value;
        std::string reason;
    };

    NewRecords(app::App& app, exchange::TextRows rows, Headings headings);
    // Rows without headings, into one target a column, nullptr for none. Raises cancelled.
    NewRecords(app::App& app, exchange::TextRows rows, std::span<const core::Column* const> targets,
               const exchange::Progress& progress);

    // Sets the targets anew: by the headings, or by the places of the columns on screen.
    void setHeadings(bool hasHeadings);
    bool hasHeadings() const { return hasHeadings_; }
    // Each target takes the cells of one column, so that another column that has had it is left out.
    void setTarget(std::size_t column, const core::Column* target);

    const std::vector<Source>& sources() const { return sources_; }
    // The columns that can be typed into, in the order on screen.
    const std::vector<const core::Column*>& targets() const { return targets_; }
    std::size_t count() const { return rows_.size() - (hasHeadings_ ? 1 : 0); } // of the records
    // Of the record, from 0; what a row leaves out at its end is empty.
    std::string_view cell(std::size_t record, std::size_t column) const;
    std::size_t rowNumber(std::size_t record) const { return rowOf(record).number; }
    // How many cells are refused, and the first of them, row by row.
    std::size_t refusedCount() const;
    std::vector<Refusal> refusals(std::size_t most) const;
    // How many more records the database has room for.
    std::size_t room() const;

    // Makes the records, refused cells empty; they are the selected ones then, and the last is the current
    // one. Answers those that could not be calculated; they are stored as well. When the user gives up
    // half-way (errors::cancelled), or keys run out, the document is as it was.
    std::vector<calc::Uncalculated> store();

private:
    const exchange::TextRow& rowOf(std::size_t record) const {
        return rows_[record + (hasHeadings_ ? 1 : 0)];
    }
    void findTargets();
    bool isTypedInto(const core::Column& column) const;
    const core::Column* columnNamed(std::string_view heading) const;
    bool firstRowNamesColumns() const;
    void targetByName(Source& source) const;
    void targetByPlace(Source& source, std::size_t place) const;
    void check(std::size_t column);
    std::string boxText(const core::Column& column, std::string_view cell, std::string* reason) const;
    std::vector<calc::Uncalculated> storeRecords();
    std::vector<calc::Uncalculated> storeInvoices();
    void fillFields(const core::Column& column, const std::string& text) const;

    struct RefusedCell {
        std::size_t record;
        std::string reason;
    };

    app::App& app_;
    std::chrono::year_month_day today_;
    calc::ItemColumns itemColumns_;
    exchange::TextRows rows_;
    bool hasHeadings_ = false;
    std::vector<const core::Column*> onScreen_, targets_;
    std::vector<Source> sources_;
    std::vector<std::vector<RefusedCell>> refused_; // by column of the table
};

} // namespace tables
