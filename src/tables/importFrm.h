#pragma once

#include "exchange/delimited.h"
#include "tables/importTable.h"
#include "tables/toldCells.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace tables {

// File > Import...: asks for the table and shows the form.
void mnuImportTable_Click(app::App& app);
// The next run of that command takes this file and does not ask: it was dropped on the window.
void chooseTableToImport(app::App& app, const std::string& file);
// Whether a file is one that the form reads, by its name.
bool isTableFile(std::string_view fileName);

class ImportSteps;

// "Import": the first rows of a table as they would be stored, how each column is read, and the cells that
// cannot be stored. Nothing is written before OK.
class importFrm {
public:
    explicit importFrm(
        app::App& app); // Load; without a table that can be read in any way it unloads itself after a message

    // As typeCbo offers them; the last two come from this program alone.
    static constexpr std::array types = {core::ColumnType::Text,        core::ColumnType::Number,
                                         core::ColumnType::Currency,    core::ColumnType::Date,
                                         core::ColumnType::Calculation, core::ColumnType::Picture};
    struct List {
        std::vector<std::string> entries;
        int ListIndex = 0;
        bool Visible = true, Enabled = true;
    };
    struct Column {
        std::string Name, Type, ReadAs, Note; // the name of the column that it goes into
        bool Checked = true;
    };
    using Refused = ToldCell;
    struct Row {
        std::size_t Number = 0;         // in the table, from 1
        std::vector<std::string> Cells; // refused ones as they are in the table
        std::vector<bool> Refused;
    };

    std::string Label1; // the file and how many records it makes, or why none
    List sheetCbo, encodingCbo, separatorCbo, quoteCbo;
    std::vector<Column> List2;
    std::string Text1;                // the name of the chosen column in a new database
    List targetCbo;                   // its column of the open one
    List typeCbo, readAsCbo, signCbo; // of it, too
    List styleCbo;                    // of a new database
    std::vector<Row> Grid1;           // the first rows, as they would be stored
    std::string Label2;               // what is refused or keeps the table out; empty when nothing is
    std::vector<Refused> List1;
    int Opt1 = 0;        // 0: a new database, 1: the open one
    int List2Index = 0;  // the chosen column
    bool Check1 = false; // the first row has the names of the columns
    bool Check1Enabled = true;
    bool Opt1Enabled = false; // there is an open one that takes records
    bool Text1Visible = true;
    bool Command1Visible = false; // keep the columns with refused cells as texts
    bool Check2 = false;          // leave the refused cells empty
    bool Check2Visible = false, okEnabled = false;
    bool unloaded = false;

    void sheetCbo_Click(int entry);
    void encodingCbo_Click(int entry);
    void separatorCbo_Click(int entry);
    void quoteCbo_Click(int entry);
    void Check1_Click(bool checked);
    void Opt1_Click(int choice);
    void List2_Click(int column);
    void List2_ItemCheck(int column, bool checked);
    void Text1_Change(const std::string& text);
    void targetCbo_Click(int entry);
    void typeCbo_Click(int entry);
    void readAsCbo_Click(int entry);
    void signCbo_Click(int entry);
    void styleCbo_Click(int entry);
    void Command1_Click();
    void Check2_Click(bool checked);
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    void readFile();
    exchange::Sheet readSheet(ImportSteps& steps);
    void readTable(ImportSteps& steps);
    void readAgain(int& choice, int entry);
    bool canBeReadOtherwise() const;
    bool isKnownTable() const;
    void findTargets(ImportSteps& steps);
    void makeRecords(ImportSteps& steps);
    // What takes long. What the user gives up half-way leaves everything as it was.
    void work(const std::function<void(ImportSteps&)>& steps);
    void workOnTable(const std::function<void(ImportSteps&)>& steps);
    auto choices() {
        return std::tie(table_, targets_, records_, problem_, delimiters_, sheetCbo, encodingCbo,
                        separatorCbo, quoteCbo, Opt1, List2Index, Check2);
    }
    void showNoTable();
    void showAll();
    void showColumns();
    void showColumn();
    void showRows();
    void showRefusals();
    void appendToOpen();
    bool makeNew();
    std::size_t column() const { return static_cast<std::size_t>(List2Index); }
    bool isAppending() const { return Opt1 == 1; }

    bool isText_ = false;
    exchange::Delimiters delimiters_;
    exchange::Format format_ = exchange::Format::Csv;
    app::App& app_;
    std::string file_;
    std::string bytes_;                   // of a text file, which may be decoded anew
    std::optional<ImportTable> table_;    // nothing when it cannot be read as chosen
    std::string problem_;                 // why not
    Targets targets_;                     // of the open database
    std::shared_ptr<NewRecords> records_; // for it
};

} // namespace tables
