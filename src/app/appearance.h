#pragma once

#include "app/app.h"

#include <optional>

namespace app {

enum class Theme { Desktop, Light, Dark };
enum class ToolbarTexts { None, Beside, Under }; // where they stand by their icons

// How the window looks whatever is open, kept in the user's settings.
struct Appearance {
    Theme theme = Theme::Desktop;
    ToolbarTexts toolbarTexts = ToolbarTexts::None;
    // Of this run alone, in place of the kept one until the user chooses another.
    std::optional<Theme> themeOfRun;
};

inline Appearance& appearance(App& app) {
    return app.rooms.of<Appearance>();
}
inline const Appearance& appearance(const App& app) {
    return app.rooms.of<Appearance>();
}

} // namespace app
