#pragma once

#include "calc/invoiceCalculation.h"
#include "databases.h"
#include "invoice/records.h"
#include "invoice/repeatFrm.h"
#include "invoice/views.h"

#include <gtest/gtest.h>

// An invoice database of header and item columns; layoutWith() says how many fields the item columns have.
struct InvoiceTest : testing::Test, Program {
    Program& program = *this;

    InvoiceTest()
        : Program(DataFile("No:4 Customer Item Qty:4 Price:2 Line:5 Subtotal:5 Tax:5")
                      .section("DatabaseStyle", "True")) {}
    void layoutWith(int rows) {
        app.document.layout.unloadAll();
        for (const char* name : {"No", "Customer", "Subtotal", "Tax"})
            invoice::repeatItemRows(app, 1, {name});
        invoice::repeatItemRows(app, rows, {"Item", "Qty", "Price", "Line"});
    }
    core::Item& record(std::initializer_list<std::pair<const char*, const char*>> cells) {
        core::Item& added = program.record({});
        for (const auto& [name, text] : cells) cell(added, name) = text;
        return added;
    }
    core::CellText& cell(core::Item& item, const char* name) {
        return core::RecordsList::cell(item, app.document.LV.columns[name]);
    }
    // The rows of iLV in the order of its columns' places, "Text: a|b; ".
    std::string view() {
        std::string text;
        const core::ColumnHeaders& columns = app.document.iLV.columns;
        for (const int index : columns.displayOrder())
            if (index != 1) text += columns.at(index).Text + "|";
        app.document.iLV.forEach([&](const core::Item& item) {
            text += "; " + item.Text.str() + ": ";
            for (const int index : columns.displayOrder())
                if (index != 1) text += core::RecordsList::cell(item, columns.at(index)).str() + "|";
        });
        return text;
    }
};
