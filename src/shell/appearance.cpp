#include "shell/appearance.h"

#include "core/text.h"

#include <array>

namespace shell {

using app::App;
using app::Theme;
using app::ToolbarTexts;

namespace {

template <typename Value>
struct Choice {
    Value value;
    const char* setting; // as it is kept
    const char* item;    // of the menu
};

constexpr std::array<Choice<Theme>, 3> themeChoices = {{{Theme::Desktop, "Desktop", "mnuThemeDesktop"},
                                                        {Theme::Light, "Light", "mnuThemeLight"},
                                                        {Theme::Dark, "Dark", "mnuThemeDark"}}};
constexpr std::array<Choice<ToolbarTexts>, 3> toolbarChoices = {
    {{ToolbarTexts::None, "None", "mnuTextsNone"},
     {ToolbarTexts::Beside, "Beside", "mnuTextsBeside"},
     {ToolbarTexts::Under, "Under", "mnuTextsUnder"}}};

// The first one is what counts where nothing is kept.
template <typename Value>
Value read(App& app, const char* key, const std::array<Choice<Value>, 3>& choices) {
    const std::string kept = app.platform.getSetting(key, "");
    for (const Choice<Value>& each : choices)
        if (core::equalsNoCase(kept, each.setting)) return each.value;
    return choices.front().value;
}

template <typename Value>
void write(App& app, const char* key, const std::array<Choice<Value>, 3>& choices, Value value) {
    for (const Choice<Value>& each : choices)
        if (each.value == value) app.platform.saveSetting(key, each.setting);
}

template <typename Value>
void mark(App& app, const std::array<Choice<Value>, 3>& choices, Value value) {
    for (const Choice<Value>& each : choices) app.mainFrm.control(each.item).Value = each.value == value;
}

} // namespace

void chooseTheme(App& app, Theme theme) {
    app::Appearance& appearance = app::appearance(app);
    appearance.theme = theme;
    appearance.themeOfRun.reset();
    mark(app, themeChoices, theme);
}

void chooseToolbarTexts(App& app, ToolbarTexts wanted) {
    app::appearance(app).toolbarTexts = wanted;
    mark(app, toolbarChoices, wanted);
}

namespace {

void useLocaleForm(App& app, bool bUse) {
    app::appearance(app).bLocaleForm = bUse;
    app.mainFrm.control("mnuLocaleForm").Value = bUse;
}

} // namespace

void toggleLocaleForm(App& app) {
    useLocaleForm(app, !app::appearance(app).bLocaleForm);
}

bool hasLocaleForm(const App& app) {
    return app::appearance(app).localeForm.has_value();
}

void readAppearance(App& app) {
    app::Appearance& appearance = app::appearance(app);
    useLocaleForm(app, core::equalsNoCase(app.platform.getSetting("LocaleForm", "False"), "True"));
    appearance.theme = appearance.themeOfRun.value_or(read(app, "Theme", themeChoices));
    mark(app, themeChoices, appearance.theme);
    chooseToolbarTexts(app, read(app, "ToolbarTexts", toolbarChoices));
}

void writeAppearance(App& app) {
    const app::Appearance& appearance = app::appearance(app);
    if (!appearance.themeOfRun) write(app, "Theme", themeChoices, appearance.theme);
    write(app, "ToolbarTexts", toolbarChoices, appearance.toolbarTexts);
    app.platform.saveSetting("LocaleForm", appearance.bLocaleForm ? "True" : "False");
}

} // namespace shell
