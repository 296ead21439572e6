#pragma once

#include "tables/newRecords.h"
#include "tables/toldCells.h"

#include <optional>
#include <string>
#include <vector>

namespace tables {

// Edit > Paste: shows the form, or says why there is nothing to paste or no place for it.
void mnuPaste_Click(app::App& app);

// "Paste Records": the first rows of the table on the clipboard, the column that each of its columns goes
// into, and the cells that are refused. Nothing is written before OK.
class pasteFrm {
public:
    explicit pasteFrm(app::App& app); // Load; a form without a table to show unloads itself after a message

    struct Column {
        std::string Heading; // of the table; empty without one
        int ListIndex = 0;   // in columnCbo
    };
    using Refused = ToldCell;

    std::string Label1;                 // how many records it makes
    bool Check1 = false;                // the first row has the names of the columns
    std::vector<std::string> columnCbo; // what each column has to choose from; the first leaves it out
    std::vector<Column> Columns;
    struct Row {
        std::size_t Number = 0; // in the table, from 1
        std::vector<std::string> Cells;
    };
    std::vector<Row> Grid1;     // the first rows
    std::string Label2;         // what is left out, refused or too much; empty when nothing is
    std::vector<Refused> List1; // the first of the refused cells
    bool Check2 = false;        // store the others, and leave the refused cells empty
    bool Check2Visible = false, okEnabled = false;
    bool unloaded = false;

    void Check1_Click(bool checked);
    void columnCbo_Click(std::size_t column, int entry);
    void Check2_Click(bool checked);
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    void showAll();
    void showRefusals();
    void store();

    app::App& app_;
    std::optional<NewRecords> records_;
};

} // namespace tables
