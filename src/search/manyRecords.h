#pragma once

#include "app/app.h"

#include <string>
#include <vector>

namespace search {

// Which records a command over many works on; the numbers are the indexes of the option buttons.
enum Scope { selectedRecords = 0, foundRecords, allRecords };

// The option button of a scope.
struct ScopeButton {
    bool Enabled = true;
    std::size_t Records = 0;
};

// The list that stands on the first page: the results, the invoices or the records.
core::RecordsList& listOnShow(core::Document& document);

// The records themselves, also where rows of results or of invoices stand for them; each once, in the order
// of the list.
std::vector<core::Item*> recordsIn(app::App& app, Scope scope);

// Selects the rows that stand for the records in the list on show, and makes the first the current one.
void selectRecords(app::App& app, const std::vector<const core::Item*>& records);

// What a user knows a record by: the first cell, from the left, that is not empty.
std::string nameOf(const core::Document& document, const core::Item& record);

// "1 record", "7 records"; not for texts of the window, which are translated.
std::string counted(std::size_t number, const char* one, const char* many);

} // namespace search
