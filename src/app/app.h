#pragma once

#include "app/changes.h"
#include "app/mainFrm.h"
#include "app/roomStates.h"
#include "core/document.h"
#include "platform/platform.h"

namespace app {

constexpr const char* title = "Ferrowick";

// What every handler works on: what is open, what the window shows, and what the machine offers.
struct App {
    explicit App(platform::Platform& platformToUse) : platform(platformToUse) {}
    App(const App&) = delete;
    App& operator=(const App&) = delete;

    core::Document document;
    MainFrm mainFrm{document.LV};
    platform::Platform& platform;
    RoomStates rooms;
    Changes changes; // whoever follows a change is told of it here
};

// The only writer of bModified.
void setDocumentModified(App& app, bool modified);
// The record count of a list in the status bar: the Totals row is not counted.
void showRecordCount(App& app, const core::RecordsList& list);
// Message boxes under the program's title.
void inform(App& app, const std::string& text);
void warn(App& app, const std::string& text);
bool askYesNo(App& app, const std::string& text, platform::Icon icon);

} // namespace app
