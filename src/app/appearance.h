#pragma once

#include "app/app.h"
#include "core/locale/localeForm.h"

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
    bool bLocaleForm = false; // values are shown and taken in the form of the user's country
    std::optional<core::LocaleForm> localeForm; // handed in by a window; without one there is no choice
};

inline Appearance& appearance(App& app) {
    return app.rooms.of<Appearance>();
}
inline const Appearance& appearance(const App& app) {
    return app.rooms.of<Appearance>();
}

// The form that values are shown in; nullptr while that is the program's own.
inline const core::LocaleForm* formInUse(const App& app) {
    const Appearance& look = appearance(app);
    return look.bLocaleForm && look.localeForm ? &*look.localeForm : nullptr;
}

} // namespace app
