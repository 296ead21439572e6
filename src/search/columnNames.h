#pragma once

#include "app/app.h"

#include <string>
#include <string_view>

namespace search {

// What the user keeps for a file by the names of its columns, which are colours and filters, follows the
// columns: it goes along with a new name, and the colours go with a removed column. The settings take that
// over when the database is stored, since the file has its old names until then.

// Another database is open.
void readColumnNames(app::App& app);
// Columns have changed.
void followColumnNames(app::App& app);
// To be told before the colours hear of it.
void followStoredColumnNames(app::App& app);

// A kept filter, "text\nscope", with the names that the columns have now.
std::string withNewNames(const app::App& app, std::string kept);

} // namespace search
