#pragma once

#include "print/previewPage.h"

#include <string>

namespace print {

// Note which page or record has been drawn on the preview, when it is there.
void noteReportPage(app::App& app, const core::RecordsList& list);
void noteRecord(app::App& app);
void notePage(app::App& app, int number, int of);
// With the layouts drawn before this page, and those there are to draw.
void noteLayoutsPage(app::App& app, int before, int available);

// "Page 3 of 8", "Record 2 of 32"; empty where nothing is shown that could be counted.
std::string previewPlaceText(const app::App& app);

// The next or previous page or record, where there is one: the ends do not meet. False where there is none.
bool turnPreview(app::App& app, bool forward);

} // namespace print
