#pragma once

#include "databases.h"
#include "raised.h"

// A program whose columns are made in the test, without a file. New tests open a DataFile instead.
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
};
