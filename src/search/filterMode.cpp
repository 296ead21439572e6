#include "search/filterMode.h"

#include "app/fileSettings.h"
#include "calc/selectedTotals.h"
#include "core/totalsRow.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"

#include <algorithm>
#include <memory>

namespace search {

using app::App;
using core::Document;
using core::Item;
using core::RecordsList;

namespace {

constexpr std::string_view settingsName = "filter.";
constexpr char scopeSign = '\n'; // between the text and the scope of a kept filter

struct FilterState {
    FilterBarState bar;
    FoldedTexts texts;
    bool isStale = true; // the records may differ from the texts
    const RecordsList* source = nullptr;
    std::uint64_t sourceArrangement = 0;

    Filter filter; // what the results on show were made with
    Passed passed;
    std::vector<std::uint32_t> shown;   // the rows of the results, in their order
    std::uint64_t shownArrangement = 0; // of the results, when they were made
    const Item* chosen = nullptr;       // the current result, as the filter left it
    std::string choice;                 // the Tag of the result that the user has moved to since
};

FilterState& stateOf(const App& app) {
    return app.rooms.of<FilterState>();
}

int scopeIn(const FilterColumns& columns, std::string_view name) {
    const auto place =
        std::ranges::find_if(columns, [&](const FilterColumn& column) { return column.name == name; });
    return name.empty() || place == columns.end() ? anyColumn : static_cast<int>(place - columns.begin());
}

// True when the texts are others than before.
bool followSource(App& app, FilterState& state, const FilterColumns& columns) {
    const RecordsList& source = sourceList(app.document);
    const bool isOther = state.source != &source || state.sourceArrangement != source.arrangement();
    if (!state.isStale && !isOther) return false;
    state.isStale = false;
    state.source = &source;
    state.sourceArrangement = source.arrangement();
    return state.texts.follow(source, columns) || isOther;
}

std::unique_ptr<Item> copyOf(const Document& document, const Item& record) {
    const core::CellText& itemKey = document.bInvoiceStyle ? record.Text : record.Key;
    auto copy = std::make_unique<Item>();
    (document.bInvoiceStyle ? copy->Text : copy->Key) = itemKey;
    copy->Tag = itemKey;
    copy->cells = record.cells;
    return copy;
}

// Puts the rows into the results. Copies that are there already are used again, so that a key costs what it
// changes.
void fillResults(App& app, FilterState& state, bool isSame) {
    Document& document = app.document;
    RecordsList& results = document.searchLV;
    std::vector<std::uint32_t> rows;
    for (std::size_t row = 0; row < state.passed.size(); ++row)
        if (state.passed[row] != 0) rows.push_back(static_cast<std::uint32_t>(row));
    const bool areOurs =
        isSame && state.shownArrangement == results.arrangement() && results.totals() != nullptr;
    results.rearrange([&](std::vector<std::unique_ptr<Item>>& items) {
        std::vector<std::unique_ptr<Item>> now;
        now.reserve(rows.size() + 1);
        std::size_t old = 0;
        for (const std::uint32_t row : rows) {
            while (areOurs && old < state.shown.size() && state.shown[old] < row) ++old;
            const bool isThere = areOurs && old < state.shown.size() && state.shown[old] == row;
            now.push_back(isThere ? std::move(items[old]) : copyOf(document, state.texts.item(row)));
            now.back()->Selected = false;
        }
        items = std::move(now);
    });
    core::addTotalsRow(results).Text = core::totalsKey;
    results.Sorted = false;
    results.MultiSelect = true;
    const core::TotalsRowUpdater totals(document, results);
    results.forEach([&](const Item& item) {
        if (!item.isTotals()) totals.update(core::TotalsMode::Add, item);
    });
    state.shown = std::move(rows);
    state.shownArrangement = results.arrangement();
}

void noteChoice(const App& app, FilterState& state) {
    if (!state.bar.isOn || !app.document.searchLV.Visible) return;
    const Item* current = app.document.searchLV.selectedItem();
    if (current != nullptr && current != state.chosen && !current->isTotals())
        state.choice = current->Tag.str();
}

// What the user has chosen among the results or else among the records, if it was found; or the first one.
void chooseCurrent(App& app, FilterState& state) {
    RecordsList& results = app.document.searchLV;
    const Item* current = sourceList(app.document).selectedItem();
    std::size_t place = 0;
    app.mainFrm.listScroll = app::ListScroll::ToTop;
    for (std::size_t i = 0; i < state.shown.size(); ++i) {
        const Item& record = state.texts.item(state.shown[i]);
        const std::string_view key = app.document.bInvoiceStyle ? record.Text : record.Key;
        if (state.choice.empty() ? &record != current : key != state.choice) continue;
        place = i;
        app.mainFrm.listScroll = app::ListScroll::ToCurrent;
        break;
    }
    if (state.shown.empty()) {
        results.setSelectedItem(nullptr);
        calc::RefreshSelectedTotals(app.document);
    } else {
        results.setSelectedItem(&results.at(static_cast<int>(place) + 1));
        app.mainFrm.bCtrlDown = false;
        calc::list_Click(app, results);
    }
    state.chosen = results.selectedItem();
    app::showRecordCount(app, results);
}

void beginResults(App& app) {
    app.mainFrm.control("Search").Value = true;
    app.mainFrm.control("Delete").Enabled = false;
    app.mainFrm.control("Formulas").Enabled = false;
    takeOverColumns(app.document);
    app.document.searchLV.Visible = true;
    app.mainFrm.theListView = &app.document.searchLV;
}

void showPassing(App& app, FilterState& state, Filter filter, bool isSame) {
    noteChoice(app, state);
    const bool isOn = state.bar.isOn;
    const bool isWithin =
        isOn && isSame && isNarrower(filter, state.filter) && state.passed.size() == state.texts.rows();
    state.passed = passing(filter, state.texts, app.platform.today(), isWithin ? &state.passed : nullptr);
    state.filter = std::move(filter);
    if (!isOn) beginResults(app);
    fillResults(app, state, isOn && isSame);
    state.bar.isOn = true;
    state.bar.found = static_cast<int>(state.shown.size());
    state.bar.all = static_cast<int>(state.texts.rows());
    chooseCurrent(app, state);
    app.changes.announce(app, app::Change::CurrentRecord);
    state.isStale = false; // nobody has changed a record, but another one is the current one
}

} // namespace

const FilterBarState& filterBar(const App& app) {
    return stateOf(app).bar;
}

Filter parseFilter(const App& app, const RecordsList& list, std::string_view text, std::string_view scope) {
    const FilterColumns columns = filterColumns(app.document, list);
    return parseFilter(text, columns, app.platform.today(), scopeIn(columns, scope));
}

void setFilter(App& app, const std::string& text, const std::string& scope) {
    FilterState& state = stateOf(app);
    if (app.document.LV.columns.count() < 2) return;
    const FilterColumns columns = filterColumns(app.document, sourceList(app.document));
    Filter filter = parseFilter(text, columns, app.platform.today(), scopeIn(columns, scope));
    state.bar.text = text;
    state.bar.scope = scope;
    state.bar.error = filter.error;
    if (filter.error) return;
    if (filter.empty()) {
        if (state.bar.isOn) leaveFilter(app);
        state.bar.text = text; // blanks perhaps
        return;
    }
    const bool isSame = !followSource(app, state, columns);
    showPassing(app, state, std::move(filter), isSame);
}

void leaveFilter(App& app) {
    FilterState& state = stateOf(app);
    const bool wasOn = state.bar.isOn;
    noteChoice(app, state);
    Item* record = state.choice.empty() ? nullptr : app.document.LV.find(state.choice);
    forgetFilter(app);
    if (!wasOn) return;
    if (record != nullptr && !record->isTotals()) {
        app.document.LV.clearSelection();
        app.document.LV.setSelectedItem(record);
    }
    leaveResults(app);
}

void forgetFilter(App& app) {
    FilterState& state = stateOf(app);
    state.bar.isOn = false;
    state.bar.text.clear();
    state.bar.error.reset();
    state.passed.clear();
    state.shown.clear();
    state.chosen = nullptr;
    state.choice.clear();
}

void followResultsForFilter(App& app) {
    if (stateOf(app).bar.isOn && !app.document.searchLV.Visible) forgetFilter(app);
}

void followRecordsForFilter(App& app) {
    stateOf(app).isStale = true;
    followResultsForFilter(app);
}

void prepareFilter(App& app) {
    FilterState& state = stateOf(app);
    // Results that are on show have to be told apart from the records that they were made of.
    if (!state.bar.isOn) followSource(app, state, filterColumns(app.document, sourceList(app.document)));
}

Passed recordsPassing(App& app, const Filter& filter) {
    FoldedTexts texts;
    texts.follow(app.document.LV, filterColumns(app.document, app.document.LV));
    return filter.error ? Passed(texts.rows(), 0) : passing(filter, texts, app.platform.today());
}

std::vector<std::string> keptFilters(const App& app) {
    return app::fileSettingNames(app, settingsName);
}

bool keepFilter(App& app, std::string_view name) {
    const FilterBarState& bar = filterBar(app);
    std::string text = bar.text;
    text.push_back(scopeSign);
    text.append(bar.scope);
    std::string key(settingsName);
    key.append(name);
    return app::setFileSetting(app, key, text);
}

void useKeptFilter(App& app, std::string_view name) {
    std::string key(settingsName);
    key.append(name);
    const std::string kept = app::fileSetting(app, key);
    const std::size_t end = std::min(kept.find(scopeSign), kept.size());
    setFilter(app, kept.substr(0, end), end < kept.size() ? kept.substr(end + 1) : std::string());
}

void removeKeptFilter(App& app, std::string_view name) {
    std::string key(settingsName);
    key.append(name);
    app::setFileSetting(app, key, "");
}

} // namespace search
