#pragma once

#include "app/app.h"
#include "core/totalsRow.h"

#include <initializer_list>

// Search results as a search for some records leaves them.
inline void showResults(app::App& app, std::initializer_list<const char*> keys) {
    core::RecordsList& results = app.document.searchLV;
    for (const core::Column& column : app.document.LV.columns)
        results.columns.add(column.Key, column.Text).Tag = column.Tag;
    for (const char* key : keys) results.add(key).cells = app.document.LV.byKey(key).cells;
    core::addTotalsRow(results);
    results.Visible = true;
    results.setSelectedItem(&results.at(1));
    app.mainFrm.theListView = &results;
}
