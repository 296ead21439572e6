#pragma once

#include "app/invoiceRoutines.h"
#include "databases.h"
#include "invoice/calculation.h"
#include "invoice/records.h"
#include "invoice/repeatFrm.h"
#include "invoice/views.h"

#include <gtest/gtest.h>

// An invoice database of header and item columns; rows() says how many fields the item columns have.
class InvoiceTest : public ::testing::Test {
protected:
    InvoiceTest() {
        using core::ColumnType;
        app.document.bInvoiceStyle = true;
        const std::pair<const char*, ColumnType> columns[] = {{"No", ColumnType::Number},
                                                              {"Customer", ColumnType::Text},
                                                              {"Item", ColumnType::Text},
                                                              {"Qty", ColumnType::Number},
                                                              {"Price", ColumnType::Currency},
                                                              {"Line", ColumnType::Calculation},
                                                              {"Subtotal", ColumnType::Calculation},
                                                              {"Tax", ColumnType::Calculation}};
        for (const auto& [name, type] : columns) {
            core::Column& column = app.document.LV.columns.add(name, name, 1440);
            column.setTypeFromFile(std::to_string(static_cast<int>(type)));
        }
        addTotalsRow(app.document.LV);
    }

    void layoutWith(int rows) {
        app.document.layout.unloadAll();
        for (const char* name : {"No", "Customer", "Subtotal", "Tax"})
            invoice::repeatItemRows(app, 1, {name});
        invoice::repeatItemRows(app, rows, {"Item", "Qty", "Price", "Line"});
    }
    void formula(const std::string& name, const std::string& expression) {
        app.document.formulas.add(name + "," + expression, name);
    }
    core::Item& record(std::initializer_list<std::pair<const char*, const char*>> cells) {
        core::Item& added = app.document.LV.add(app.document.nextKey());
        for (const auto& [name, text] : cells) cell(added, name) = text;
        moveTotals(app.document.LV);
        return added;
    }
    core::CellText& cell(core::Item& item, const char* name) {
        return core::RecordsList::cell(item, app.document.LV.columns[name]);
    }
    void calculate(core::Item& item) {
        app::calculateInvoice(app, app.document.LV, app.document.LV.indexOf(item));
    }
    // The rows of iLV in the order of its columns' places, "Text: a|b; ".
    std::string view() {
        std::vector<const core::Column*> shown;
        for (const core::Column& column : app.document.iLV.columns)
            if (column.Index != 1) shown.push_back(&column);
        std::ranges::sort(shown, {}, [](const core::Column* column) { return column->Position; });
        std::string text;
        for (const core::Column* column : shown) text += column->Text + "|";
        app.document.iLV.forEach([&](const core::Item& item) {
            text += "; " + item.Text.str() + ": ";
            for (const core::Column* column : shown)
                text += core::RecordsList::cell(item, *column).str() + "|";
        });
        return text;
    }

    Program program;
    app::App& app = program.app;
};
