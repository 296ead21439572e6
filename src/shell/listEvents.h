#pragma once

#include "app/windowState.h"
#include "calc/selectedTotals.h"
#include "core/sorting.h"

namespace shell {

// The key code of Ctrl in the list's key events.
constexpr int ctrlKey = 17;

// The events of the three lists on the report tab (LV, iLV, searchLV). The view has already put the
// list's Selected flags and SelectedItem right.
using calc::collectSelected;
using calc::list_Click;
void list_ColumnClick(app::App& app, core::RecordsList& list, int columnIndex);
void list_DblClick(app::App& app, core::RecordsList& list);
// The two ways to a record, whichever the double click takes.
void showOnPage(app::App& app, core::RecordsList& list);
void showInForm(app::App& app, core::RecordsList& list);
// Whether the double click shows the page.
bool opensOnPage(app::App& app, const core::RecordsList& list);
void list_KeyDown(app::App& app, int keyCode);
void list_KeyUp(app::App& app);

using app::visibleList;

} // namespace shell
