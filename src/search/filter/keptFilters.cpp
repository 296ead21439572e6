#include "app/fileSettings.h"
#include "core/text.h"
#include "core/translate.h"
#include "search/columnNames.h"
#include "search/filter/filterMode.h"

#include <algorithm>

namespace search {

using app::App;

namespace {

constexpr char scopeSign = '\n'; // between the text and the scope
constexpr std::size_t longestName = 60;

std::string settingOf(std::string_view name) {
    std::string key(filterSetting);
    key.append(name);
    return key;
}

} // namespace

std::vector<std::string> keptFilters(const App& app) {
    return app::fileSettingNames(app, filterSetting);
}

void keepFilter(App& app) {
    const FilterBarState bar = filterBar(app);
    if (app.document.currentFile.empty()) {
        app::inform(app, core::tr("A filter is kept for a file. Please save the database first."));
        return;
    }
    const std::string typed =
        app.platform.inputBox(core::tr("Name of the filter:"), core::tr("Keep Filter"), bar.text);
    const std::string name(core::trim(core::left(core::trim(typed), longestName)));
    if (name.empty()) return;
    const std::string key = settingOf(name);
    std::string text = bar.text;
    text.push_back(scopeSign);
    text.append(bar.scope);
    const std::string before = withNewNames(app, app::fileSetting(app, key));
    const std::string question =
        core::fill(core::tr("There is a filter \"%1\" already. Do you want to replace it?"), {name});
    if (!before.empty() && before != text && !app::askYesNo(app, question, platform::Icon::Question)) return;
    if (!app::setFileSetting(app, key, text))
        app::inform(app, core::tr("The filter is too long to be kept."));
}

void useKeptFilter(App& app, std::string_view name) {
    const std::string kept = withNewNames(app, app::fileSetting(app, settingOf(name)));
    const std::size_t end = std::min(kept.find(scopeSign), kept.size());
    setFilter(app, kept.substr(0, end), end < kept.size() ? kept.substr(end + 1) : std::string());
}

void removeKeptFilter(App& app, std::string_view name) {
    app::setFileSetting(app, settingOf(name), "");
}

} // namespace search
