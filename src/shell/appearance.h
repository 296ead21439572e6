#pragma once

#include "app/appearance.h"

namespace shell {

void chooseTheme(app::App& app, app::Theme theme);
void chooseToolbarTexts(app::App& app, app::ToolbarTexts texts);
void toggleLocaleForm(app::App& app);
bool hasLocaleForm(const app::App& app);

// A setting that somebody else has written counts as none.
void readAppearance(app::App& app);
void writeAppearance(app::App& app);

} // namespace shell
