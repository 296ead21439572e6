#include "search/filter/filterMode.h"

#include "app/appearance.h"
#include "app/windowState.h"
#include "calc/selectedTotals.h"
#include "core/totalsRow.h"
#include "search/duplicates.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"

#include <algorithm>
#include <memory>
#include <unordered_set>
#include <utility>

namespace search {

using app::App;
using core::Document;
using core::Item;
using core::RecordsList;

namespace {

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
    bool isShowing = false;             // what is announced meanwhile is our own doing
    const Item* chosen = nullptr;       // the current result, as the filter left it
    std::string choice;                 // the Tag of the result that the user has moved to since
};

FilterState& stateOf(const App& app) {
    return app.rooms.of<FilterState>();
}

int records(const RecordsList& list) {
    return std::max(0, list.count() - 1); // without the Totals row
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

void addUp(Document& document) {
    RecordsList& results = document.searchLV;
    const core::TotalsRowUpdater totals(document, results);
    results.forEach([&](const Item& item) {
        if (!item.isTotals()) totals.update(core::TotalsMode::Add, item);
    });
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
    addUp(document);
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
    const std::unique_ptr<bool, void (*)(bool*)> shown(&state.isShowing, [](bool* flag) { *flag = false; });
    noteChoice(app, state);
    const bool isOn = state.bar.isOn;
    const bool isWithin =
        isOn && isSame && isNarrower(filter, state.filter) && state.passed.size() == state.texts.rows();
    state.passed = passing(filter, state.texts, app.platform.today(), isWithin ? &state.passed : nullptr);
    state.filter = std::move(filter);
    if (!isOn) beginResults(app);
    fillResults(app, state, isOn && isSame);
    state.bar.isOn = true;
    state.bar.words.clear();
    state.bar.doubt = state.shown.empty() ? state.filter.doubt : std::string();
    chooseCurrent(app, state);
    state.isShowing = true;
    app.changes.announce(app, app::Change::CurrentRecord);
    state.isStale = false; // nobody has changed a record, but another one is the current one
}

} // namespace

const FilterBarState& filterBar(const App& app) {
    FilterBarState& bar = stateOf(app).bar;
    if (bar.narrows()) { // some may have been deleted since, and others added
        bar.found = records(app.document.searchLV);
        bar.all = records(app.document.bInvoiceStyle ? app.document.iLV : app.document.LV);
    }
    return bar;
}

namespace {

std::string converted(App& app, std::string_view text, std::string_view scope,
                      std::string (*convert)(const core::LocaleForm&, core::ColumnType, std::string_view)) {
    const core::LocaleForm* form = app::formInUse(app);
    if (form == nullptr) return std::string(text);
    const FilterColumns columns = filterColumns(app.document, sourceList(app.document));
    return parseFilter(
               text, columns, app.platform.today(), scopeIn(columns, scope),
               [&](core::ColumnType type, std::string_view value) { return convert(*form, type, value); })
        .rewritten;
}

} // namespace

std::string filterFromForm(App& app, std::string_view typed, std::string_view scope) {
    return converted(app, typed, scope, core::cellFrom);
}

std::string filterInForm(App& app, std::string_view text, std::string_view scope) {
    return converted(app, text, scope, core::shownIn);
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

// What the filter has found, as far as the list can tell it apart: in a database of invoices, their rows.
bool hasFound(const App& app, const FilterState& state, const std::vector<const Item*>& records) {
    if (!state.bar.isOn || state.bar.error) return false;
    std::unordered_set<std::string_view> keys;
    for (const Item* record : records) keys.insert(record->Key);
    for (std::size_t row = 0; row < state.passed.size(); ++row) {
        const Item& item = state.texts.item(row);
        const std::string_view key = app.document.bInvoiceStyle ? item.Text : item.Key;
        const bool isWanted = keys.contains(key);
        if (isWanted != (state.passed[row] != 0)) return false;
    }
    return true;
}

void showRecordsBy(App& app, const std::vector<const Item*>& records, const std::string& text,
                   const std::string& scope, const std::string& words) {
    FilterState& state = stateOf(app);
    if (!text.empty()) setFilter(app, text, scope);
    if (text.empty() || !hasFound(app, state, records)) {
        showRecords(app, {records});
        state.bar.words = words;
    }
    state.bar.isOpen = true;
}

void filterAnew(App& app) {
    const FilterBarState bar = filterBar(app);
    if (bar.isOn) setFilter(app, bar.text, bar.scope);
}

void leaveFilter(App& app) {
    FilterState& state = stateOf(app);
    const bool wasOn = state.bar.narrows();
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

bool isShowingFound(const App& app) {
    return stateOf(app).isShowing;
}

void mnuFilter_Click(App& app) {
    if (!canFilter(app)) return;
    app::showReportTab(app);
    stateOf(app).bar.isOpen = stateOf(app).bar.wantsKeys = true;
    prepareFilter(app);
}

bool canFilter(const App& app) {
    return app.document.LV.columns.count() > 1;
}

void closeFilterBar(App& app) {
    leaveFilter(app);
    stateOf(app).bar.isOpen = stateOf(app).bar.wantsKeys = false;
}

bool takeFilterKeys(App& app) {
    return std::exchange(stateOf(app).bar.wantsKeys, false);
}

void forgetFilter(App& app) {
    FilterState& state = stateOf(app);
    state.bar.isOn = false;
    state.bar.text.clear();
    state.bar.words.clear();
    state.bar.error.reset();
    state.bar.doubt.clear();
    state.passed.clear();
    state.shown.clear();
    state.chosen = nullptr;
    state.choice.clear();
}

void followResultsForFilter(App& app) {
    if (stateOf(app).bar.narrows() && !app.document.searchLV.Visible) forgetFilter(app);
}

void followRecordsForFilter(App& app) {
    FilterState& state = stateOf(app);
    state.isStale = true;
    followResultsForFilter(app);
    // One of them may have been changed or deleted on the layout page.
    RecordsList& results = app.document.searchLV;
    if (!state.bar.isOn || state.isShowing || results.totals() == nullptr) return;
    core::resetTotalsRow(results);
    addUp(app.document);
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

} // namespace search
