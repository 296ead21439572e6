#pragma once

#include "app/app.h"

#include <string>

namespace app {

// Switches the commands between the two states: no document and a document.
void enableControls(App& app, bool bEnable);

// Writes the size of the archive into the status bar, on a coarse scale: digits are cut, not
// rounded, and 100,000,000 bytes read "10 MB". The scale is wanted as it is.
void showFileSize(App& app);
std::string fileSizeText(unsigned long long bytes);

// Says in the status bar whether the document is as it is stored.
void showModified(App& app);

// The caption with the open file, or the title alone.
void showCaption(App& app);

// Brings the records to the front.
void showReportTab(App& app);
// Several records can be selected again wherever they are on view: a command that has worked on one at a time
// leaves the list so.
void allowManySelected(App& app);
// The list that the report tab shows now.
core::RecordsList& visibleList(core::Document& document);
const core::RecordsList& visibleList(const core::Document& document);
// The buttons that work on the records alone follow the tab.
void enableTabButtons(App& app);

} // namespace app
