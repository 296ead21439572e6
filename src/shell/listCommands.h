#pragma once

#include "app/app.h"

#include <string>
#include <string_view>
#include <vector>

namespace shell {

// What can be done to the records of the list on view, as the keyboard and the right button ask for it.

// The keys of the list's context menu; "-" is a separator.
std::vector<std::string_view> contextMenuKeys(const core::RecordsList& list, const core::Document& document);
// The one among them that a double click is.
std::string_view defaultMenuKey(app::App& app, const core::RecordsList& list);

bool canOpenOnPage(const app::App& app);
void openOnPage(app::App& app);
bool canOpenInForm(const app::App& app);
void openInForm(app::App& app);

// A new record, to be typed where records are opened: in the Entry Form or on the page.
bool canAddRecord(const app::App& app);
void newRecord(app::App& app);

// Sorts as a click on the column's header does, but in the order that is asked for.
enum class Order { Ascending, Descending };
void sortList(app::App& app, core::RecordsList& list, int columnIndex, Order order);

// The first row whose cell begins with what was typed, whatever the case and the accents; 0 for none. One
// letter typed again and again goes from row to row. Rows count from 1.
int rowBeginningWith(const core::RecordsList& list, const core::Column& column, std::string_view typed,
                     int currentRow);

} // namespace shell
