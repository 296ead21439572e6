#pragma once

#include "app/app.h"

#include <optional>
#include <string>

namespace app {

// What an invoice database does in its own way and other subsystems need. They are declared here and
// defined in invoice/, so that calc/, which invoice/ builds on, does not include it.

// Rebuilds the list of the view on show; nothing in a standard database.
void rebuildInvoiceView(App& app);

// Works out all formulas of one invoice, item rows included. Sets bCalcError when one failed.
void calculateInvoice(App& app, core::RecordsList& list, int rowIndex);
// The same without the message: answers what went wrong first.
std::optional<std::string> tryCalculateInvoice(App& app, core::RecordsList& list, int rowIndex);

} // namespace app
