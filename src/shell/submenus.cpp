#include "shell/submenus.h"

#include "core/translate.h"
#include "shell/appearance.h"
#include "shell/menuCommands.h"
#include "shell/start/recentFiles.h"
#include "shell/start/templates.h"
#include "storage/newDatabase.h"

namespace shell {

using app::App;
using app::Theme;
using app::ToolbarTexts;
using core::marked;

namespace {

std::vector<std::string_view> templateItems() {
    std::vector<std::string_view> keys;
    for (const Template& each : templates()) keys.emplace_back(each.item);
    return keys;
}

std::vector<std::string_view> recentKeys() {
    std::vector<std::string_view> keys;
    for (std::size_t place = 0; place < RecentFiles::most; ++place) keys.push_back(recentItem(place));
    keys.insert(keys.end(), {"-", "mnuRecentClear"});
    return keys;
}

std::function<void(App&)> themed(Theme theme) {
    return [theme](App& app) { chooseTheme(app, theme); };
}
std::function<void(App&)> withTexts(ToolbarTexts wanted) {
    return [wanted](App& app) { chooseToolbarTexts(app, wanted); };
}

} // namespace

std::span<const Submenu> submenus() {
    static const std::vector<Submenu> all = {
        {"mnuTemplates", templateItems()},
        {"mnuOpenRecent", recentKeys(), false, checkRecentFiles},
        {"mnuTheme", {"mnuThemeLight", "mnuThemeDark", "mnuThemeDesktop"}, true},
        {"mnuToolbarTexts", {"mnuTextsNone", "mnuTextsBeside", "mnuTextsUnder"}, true},
    };
    return all;
}

const Submenu* findSubmenu(std::string_view key) {
    for (const Submenu& each : submenus())
        if (each.key == key) return &each;
    return nullptr;
}

std::vector<Command> submenuCommands() {
    const auto opens = [](App&) {}; // the view opens the menu
    std::vector<Command> all = {
        {"mnuTemplates", marked("New From Te&mplate"), "", "new", false, opens},
        {"mnuOpenRecent", marked("Open Recent &Files"), "", "recent", false, opens},
        {"mnuRecentClear", marked("&Clear List"), "", "", false, clearRecentFiles},
        {"mnuTheme", marked("&Theme"), "", "", false, opens},
        {"mnuThemeLight", marked("&Light"), "", "", true, themed(Theme::Light)},
        {"mnuThemeDark", marked("&Dark"), "", "", true, themed(Theme::Dark)},
        {"mnuThemeDesktop", marked("&As The Desktop"), "", "", true, themed(Theme::Desktop)},
        {"mnuToolbarTexts", marked("Toolbar Te&xts"), "", "", false, opens},
        {"mnuTextsNone", marked("&None"), "", "", true, withTexts(ToolbarTexts::None)},
        {"mnuTextsBeside", marked("&Beside The Icons"), "", "", true, withTexts(ToolbarTexts::Beside)},
        {"mnuTextsUnder", marked("&Under The Icons"), "", "", true, withTexts(ToolbarTexts::Under)},
    };
    for (const Template& each : templates())
        all.push_back({each.item, each.caption, "", each.picture, false, [each](App& app) {
                           if (const auto folder = templateFolder()) newFromTemplate(app, each, *folder);
                       }});
    for (std::size_t place = 0; place < RecentFiles::most; ++place)
        all.push_back({recentItem(place), "", "", "recent", false, [key = recentItem(place)](App& app) {
                           // A save in between puts another file into this place.
                           const std::string path = app.mainFrm.control(key).Caption;
                           if (path.empty()) return;
                           storage::offerToSave(app);
                           openNamedFile(app, path);
                       }});
    return all;
}

} // namespace shell
