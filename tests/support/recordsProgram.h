#pragma once

#include "databases.h"
#include "raised.h"

#include <initializer_list>
#include <string>

// A program with a database made in the test: columns, records, the Totals row.
struct RecordsProgram : Program {
    struct Column {
        const char* name;
        const char* tag;
    };

    explicit RecordsProgram(std::initializer_list<Column> columns) {
        for (const Column& column : columns)
            LV.columns.add(column.name, column.name).setTypeFromFile(column.tag);
        core::addTotalsRow(LV);
    }

    core::Document& document = app.document;
    core::RecordsList& LV = app.document.LV;

    core::Item& record(std::initializer_list<const char*> cells) {
        const std::string key = document.nextKey();
        core::Item& item = LV.add(key);
        std::size_t place = 0;
        for (const char* cell : cells) item.cells.at(place++) = cell;
        core::moveTotals(LV);
        return LV.byKey(key);
    }
    void formula(const std::string& name, const std::string& expression) {
        document.formulas.add(name + "," + expression, name);
    }
    void total(std::initializer_list<const char*> columns) {
        for (const char* column : columns) document.totaledCols.add(column, column);
    }

    std::string cell(int row, const char* column) {
        return core::RecordsList::cell(LV.at(row), LV.columns[column]).str();
    }
    std::string totals() {
        std::string all;
        for (const core::CellText& cell : LV.totals()->cells) all += cell.str() + "|";
        return all;
    }
    // "a|b|" of the items of a collection.
    static std::string text(const core::NamedCollection& collection) {
        std::string all;
        for (const auto& entry : collection) all += entry.item + "|";
        return all;
    }
    std::string panel(int number) { return app.mainFrm.panels.at(static_cast<std::size_t>(number)); }
};
