#pragma once

#include "core/layoutObjects.h"
#include "core/namedCollection.h"
#include "core/pageSettings.h"
#include "core/recordsList.h"

#include <cstdint>
#include <string>

namespace core {

// The one open database: what is read from the archive, worked on, and saved.
struct Document {
    RecordsList LV{"LV"};               // the records; its column table defines the columns
    RecordsList iLV{"iLV"};             // the invoices or their items, built from LV
    RecordsList searchLV{"searchLV"};   // the records found
    RecordsList LV3{"LV3"};             // sums of the selected records; one row per numeric column
    RecordsList SerialsLV{"SerialsLV"}; // serial counters; sub-item 1 is the counter
    RecordsList scratchLV{"scratchLV"};

    // Each is a line of the file.
    NamedCollection formulas;       // "Name,Expression", in the order of evaluation
    NamedCollection printedCols;    // report columns in force
    NamedCollection prnInvoiceCols; // report columns of the invoice view
    NamedCollection prnItemCols;    // report columns of the item view
    NamedCollection invoiceCols;    // positions of iLV's columns in the invoice view
    NamedCollection itemLevelCols;  // positions of iLV's columns in the item view
    NamedCollection totaledCols;
    NamedCollection optionedCols; // columns with auto-date or serial number
    NamedCollection locks;        // "pBox,3"

    LayoutObjects layout;
    LayoutOptions layoutOptions;
    ReportData reportData;

    bool bInvoiceStyle = false;
    bool bInvoiceView = false; // True shows the items, False the invoices: the file has it this way round
    std::string lockPassword;  // scrambled; empty when the design is open
    std::string currentFile;   // full path; empty when none is open
    bool bModified = false;    // written by app::setDocumentModified alone
    std::int16_t iLastKey = 0;

    Document();

    // Empties everything that belongs to a database but the page settings, which an open leaves as
    // they are, and puts the hidden column back.
    void clear();
    // "i" and the raised counter. Raises overflow when the 16-bit counter is used up, and leaves it
    // as it was.
    std::string nextKey();

    // Raise elementNotFound for a name that LV does not hold.
    bool isNumericColumn(std::string_view name) const { return LV.columns[name].isNumeric(); }
    bool isDateColumn(std::string_view name) const { return LV.columns[name].isType(ColumnType::Date); }
};

} // namespace core
