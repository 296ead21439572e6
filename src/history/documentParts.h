#pragma once

#include "core/document.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace history {

// The parts of a document beside the records, each kept as a whole: they are small, and most commands change
// none of them or one.

// Columns, collections and page settings, as they would be written: what an invoice database shows is what
// counts.
struct Design {
    core::ColumnHeaders columns, shownColumns; // of LV, and of iLV
    // formulas, printedCols, prnInvoiceCols, prnItemCols, invoiceCols, itemLevelCols, totaledCols,
    // optionedCols, locks
    std::vector<core::NamedCollection> collections;
    core::LayoutOptions layoutOptions;
    core::ReportData reportData;
    bool bInvoiceView = false;
    std::string lockPassword;

    enum Collection {
        formulas,
        printedCols,
        prnInvoiceCols,
        prnItemCols,
        invoiceCols,
        itemLevelCols,
        totaledCols,
        optionedCols,
        locks
    };
    static constexpr std::array<std::size_t, 3> collectionsOfViews = {printedCols, invoiceCols,
                                                                      itemLevelCols};

    static Design of(const core::Document& document);
    void putInto(core::Document& document) const;
    bool operator==(const Design&) const = default;
    std::size_t bytes() const; // of memory, about; so for the others
};

// The objects of the layout page. What they show of a record is none of it.
struct Objects {
    std::vector<core::LayoutField> layoutField;
    std::vector<core::Label> tLabel;
    std::vector<core::LineObject> pbLine, vLine;
    std::vector<core::BoxObject> pBox;
    std::vector<core::ImgHolder> imgHolder;
    std::vector<core::ClipPic> clipPic;

    static Objects of(const core::Document& document);
    void putInto(core::Document& document) const;
    bool operator==(const Objects& other) const;
    std::size_t bytes() const;
};

// What counts on with the records.
struct Counters {
    std::int16_t iLastKey = 0;
    std::vector<std::array<std::string, 3>> serials; // key, column and counter
    bool Sorted = false;
    int SortKey = 0, SortOrder = 0;

    static Counters of(const core::Document& document);
    void putInto(core::Document& document) const;
    bool operator==(const Counters&) const = default;
    std::size_t bytes() const { return sizeof *this + serials.size() * sizeof serials[0]; }
};

// Which records are selected, by their places from 0.
struct Selection {
    std::vector<std::uint32_t> places;
    int current = -1; // none
    bool MultiSelect = true;

    static Selection of(const core::RecordsList& list);
    void putInto(core::RecordsList& list) const;
};

} // namespace history
