#pragma once

#include "app/app.h"

namespace app {

enum class Fit { None, Page, Width };

// How the window shows what is open, kept in the user's settings: nothing of it is in the database.
struct Looks {
    int listZoom = 100, layoutZoom = 100, previewZoom = 100; // per cent
    Fit previewFit = Fit::None; // while it fits, the preview keeps previewZoom up to date
    bool bOpenPdf = false;      // a PDF is opened when it has been made
    bool bFreezeColumn = false; // the first column stays where it is when the list scrolls sideways
};

inline Looks& looks(app::App& app) {
    return app.rooms.of<Looks>();
}
inline const Looks& looks(const app::App& app) {
    return app.rooms.of<Looks>();
}

} // namespace app
