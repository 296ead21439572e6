#include "search/columnNames.h"

#include "app/fileSettings.h"
#include "search/codes/codeRules.h"
#include "search/colourRules.h"
#include "search/filter/filter.h"
#include "search/filter/filterMode.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace search {

using app::App;

namespace {

using Names = std::vector<std::string>;

struct Renaming {
    FilterColumns before; // all of them
    std::string from, to;
};

struct NamesState {
    Names names; // in the order of the table
    std::vector<Renaming> renamings;
    bool isChanged = false; // the settings know other names
};

NamesState& columnNames(const App& app) {
    return app.rooms.of<NamesState>();
}

Names namesOf(const App& app) {
    Names names;
    for (const core::Column& column : app.document.LV.columns)
        if (column.Index != 1) names.push_back(column.Text);
    return names;
}

bool isAmong(const Names& names, const std::string& name) {
    return std::ranges::find(names, name) != names.end();
}

// Whether names were exchanged for new ones, each in its place.
bool isRenamed(const Names& before, const Names& now) {
    if (before.size() != now.size()) return false;
    for (std::size_t i = 0; i < now.size(); ++i)
        if (before[i] != now[i] && (isAmong(before, now[i]) || isAmong(now, before[i]))) return false;
    return true;
}

void rename(App& app, NamesState& state, const std::string& from, const std::string& to) {
    auto& colours = app.rooms.of<ColourBook>().columns;
    if (auto rules = colours.extract(from)) {
        rules.key() = to;
        colours.insert(std::move(rules));
    }
    renameInCodeRules(app, from, to);
    FilterColumns before = filterColumns(app.document, app.document.LV);
    for (FilterColumn& column : before)
        if (column.name == to) column.name = from;
    state.renamings.push_back({std::move(before), from, to});
}

std::string withNewName(const App& app, std::string text, const Renaming& renaming) {
    const Filter filter = parseFilter(text, renaming.before, app.platform.today());
    // From the end, so that the places in front stay.
    for (auto name = filter.names.rbegin(); name != filter.names.rend(); ++name)
        if (renaming.before[static_cast<std::size_t>(name->column)].name == renaming.from)
            text.replace(name->offset, name->size, filterPiece(renaming.to, "", ""));
    return text;
}

} // namespace

void readColumnNames(App& app) {
    columnNames(app) = {namesOf(app), {}, false};
}

void followColumnNames(App& app) {
    NamesState& state = columnNames(app);
    Names now = namesOf(app);
    const Names before = std::exchange(state.names, now);
    if (before == now) return;
    state.isChanged = true;
    if (isRenamed(before, now)) {
        for (std::size_t i = 0; i < now.size(); ++i)
            if (before[i] != now[i]) rename(app, state, before[i], now[i]);
        return;
    }
    for (const std::string& name : before)
        if (!isAmong(now, name)) app.rooms.of<ColourBook>().columns.erase(name);
}

void followStoredColumnNames(App& app) {
    NamesState& state = columnNames(app);
    const ColourBook& book = app.rooms.of<ColourBook>();
    // What was open before keeps its own, with the names that it has.
    const bool isOther = book.file != app.document.currentFile;
    if (isOther) app::copyFileSettings(app, book.file, filterSetting);
    if (!std::exchange(state.isChanged, false)) return;
    const std::string colours(coloursSetting), filters(filterSetting);
    for (const std::string& name : app::fileSettingNames(app, colours))
        if (!book.columns.contains(name)) app::setFileSetting(app, colours + name, "");
    for (const auto& [name, rules] : book.columns)
        app::setFileSetting(app, colours + name, colourText(rules));
    for (const std::string& name : keptFilters(app)) {
        const std::string setting = filters + name;
        app::setFileSetting(app, setting, withNewNames(app, app::fileSetting(app, setting)));
    }
    state.renamings.clear();
}

std::string withNewNames(const App& app, std::string kept) {
    for (const Renaming& renaming : columnNames(app).renamings) {
        const std::size_t end = std::min(kept.find('\n'), kept.size());
        std::string text = kept.substr(0, end), scope = kept.substr(end);
        if (scope == "\n" + renaming.from) scope = "\n" + renaming.to;
        kept = withNewName(app, std::move(text), renaming).append(scope);
    }
    return kept;
}

} // namespace search
