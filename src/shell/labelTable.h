#pragma once

#include "app/app.h"
#include "labels/labelStocks.h"

namespace shell {

// The stocks of the table that the program comes with. None when it is not there, as when only the program
// itself was copied. Raises when it cannot be read.
std::vector<labels::LabelStock> installedLabelStocks();

// "Label Wizard", and the preview of what it has made.
void labelWizard(app::App& app);

} // namespace shell
