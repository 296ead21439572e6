#include "summary/summaryPanel.h"

#include "app/hourglass.h"
#include "app/windowState.h"
#include "core/runTimeError.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "exchange/csvWriter.h"
#include "print/printCommands.h"
#include "search/filter/filterMode.h"
#include "search/manyRecords.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"
#include "storage/saveSteps.h"
#include "summary/groupFilter.h"
#include "summary/groupOrder.h"
#include "summary/summaryPrinting.h"

#include <algorithm>
#include <filesystem>
#include <unordered_set>

namespace summary {

using core::Column;
using core::ColumnType;
using core::Item;

namespace {

struct ChangeCount {
    std::uint64_t changes = 1;
};

constexpr const char *eachValue = core::marked("Each value"), *eachDay = core::marked("Day");
constexpr std::array<const char*, 4> dateSteps = {core::marked("Year"), core::marked("Quarter"),
                                                  core::marked("Month"), eachDay};

// A step that the box offers in the user's language, by its English name; another one as it was typed.
std::string stepWord(const std::string& shown) {
    if (shown == core::tr(eachValue)) return eachValue;
    for (const char* word : dateSteps)
        if (shown == core::tr(word)) return word;
    return shown;
}

// What is proposed before anybody has chosen: the first column of words that several records share.
int firstGroupColumn(const core::Document& document, const std::vector<std::string>& names) {
    int firstText = -1;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Column& column = document.LV.columns[names[i]];
        if (!column.isType(ColumnType::Text)) continue;
        if (firstText < 0) firstText = static_cast<int>(i);
        std::unordered_set<std::string_view> different;
        document.LV.forEach([&](const Item& record) {
            if (!record.isTotals()) different.insert(core::RecordsList::cell(record, column));
        });
        const auto records = static_cast<std::size_t>(document.LV.count());
        if (different.size() > 1 && different.size() * 2 < records) return static_cast<int>(i);
    }
    return std::max(firstText, 0);
}

} // namespace

void followChanges(app::App& app) {
    // With each key in the filter bar, that would be; see followResults.
    if (!search::isShowingFound(app)) ++app.rooms.of<ChangeCount>().changes;
}

std::uint64_t changesSoFar(const app::App& app) {
    return app.rooms.of<ChangeCount>().changes;
}

void mnuSummary_Click(app::App& app) {
    bool& bShown = app.mainFrm.control("mnuSummary").Value;
    bShown = !bShown;
}

bool SummaryPanel::follow() {
    const std::uint64_t now = changesSoFar(app_);
    if (now != counted_) {
        counted_ = now;
        isStale_ = true;
        takeColumns();
    }
    followResults();
    return isStale_;
}

void SummaryPanel::takeColumns() {
    const core::ColumnHeaders& columns = app_.document.LV.columns;
    std::string shown;
    std::vector<std::string> names;
    for (const int index : columns.displayOrder()) {
        if (index == 1) continue;
        const Column& column = columns.at(index);
        names.push_back(column.Text);
        shown.append(column.Text).append("|").append(column.Tag).append("|");
    }
    if (shown == columnsShown_) return;
    columnsShown_ = shown;
    takeGroupColumns(names);
    takeFigureColumns(names);
}

// What was chosen stays, where it is there still.
void SummaryPanel::takeGroupColumns(const std::vector<std::string>& names) {
    for (std::size_t i = 0; i < by.size(); ++i) {
        Chooser& chooser = by.at(i);
        std::string chosen;
        if (!chooser.columns.empty()) chosen = chooser.columns.at(static_cast<std::size_t>(chooser.column));
        chooser.columns.clear();
        if (i == 1) chooser.columns.push_back(core::tr("(none)"));
        chooser.columns.insert(chooser.columns.end(), names.begin(), names.end());
        const auto found = std::ranges::find(chooser.columns, chosen);
        if (found != chooser.columns.end())
            chooser.column = static_cast<int>(found - chooser.columns.begin());
        else
            chooser.column = i == 0 ? firstGroupColumn(app_.document, names) : 0;
        takeSteps(i);
    }
}

void SummaryPanel::takeFigureColumns(const std::vector<std::string>& names) {
    std::vector<FigureColumn> figures;
    bool isAny = false;
    for (const std::string& name : names) {
        FigureColumn entry{name, app_.document.LV.columns[name].type()};
        if (!isCounted(FigureKind::Least, entry.type)) continue;
        const auto known = std::ranges::find(figureColumns, name, &FigureColumn::name);
        if (known != figureColumns.end() && known->type == entry.type) entry.checked = known->checked;
        isAny |= std::ranges::find(entry.checked, true) != entry.checked.end();
        figures.push_back(entry);
    }
    figureColumns = std::move(figures);
    if (isAny) return;
    // What is totaled is what the user wants to know the sums of.
    for (FigureColumn& column : figureColumns)
        column.checked.front() =
            core::isTotaledColumn(app_.document, column.name) && isCounted(FigureKind::Sum, column.type);
}

// The steps of the column that is chosen.
void SummaryPanel::takeSteps(std::size_t place) {
    Chooser& chooser = by.at(place);
    const bool bNone = chooser.columns.empty() || (place == 1 && chooser.column == 0);
    const Column* column =
        bNone ? nullptr
              : app_.document.LV.columns.find(chooser.columns[static_cast<std::size_t>(chooser.column)]);
    const ColumnType type = column == nullptr ? ColumnType::Text : column->type();
    std::vector<std::string> steps;
    if (type == ColumnType::Date)
        for (const char* word : dateSteps) steps.push_back(core::tr(word));
    else if (isCounted(FigureKind::Sum, type))
        steps = {core::tr(eachValue), "1", "10", "100", "1000"};
    else
        steps = {core::tr(eachValue)};
    if (steps == chooser.steps) return;
    chooser.steps = std::move(steps);
    chooser.step = chooser.steps.front();
    chooser.bFreeSteps = isCounted(FigureKind::Sum, type);
}

// A group that is shown in place of the records found leaves the summary of those as it is; other results,
// and all records, do not.
void SummaryPanel::followResults() {
    const core::RecordsList& results = app_.document.searchLV;
    const bool bResults = results.Visible && app_.document.LV.columns.count() > 1;
    canShowAll = bResults;
    onlyFoundEnabled = bResults;
    if (bNarrowed_ && bResults && results.arrangement() == narrowed_) return;
    if (bResults && onlyFound && found_ != results.arrangement()) isStale_ = true;
    found_ = bResults ? results.arrangement() : 0;
    if (bNarrowed_) isStale_ = true;
    bNarrowed_ = false;
    baseKeys_.clear();
    if (!bResults && onlyFound) {
        onlyFound = false;
        isStale_ = true;
    }
}

std::optional<Request> SummaryPanel::request() {
    Request request;
    for (std::size_t i = 0; i < by.size(); ++i) {
        const Chooser& chooser = by.at(i);
        if (chooser.columns.empty() || (i == 1 && chooser.column == 0)) continue;
        const std::string& name = chooser.columns[static_cast<std::size_t>(chooser.column)];
        const Column* column = app_.document.LV.columns.find(name);
        if (column == nullptr) return std::nullopt;
        GroupBy grouped{name, {}};
        const std::string word = stepWord(chooser.step);
        if (word != eachValue && word != eachDay) {
            const std::optional<Step> step = stepNamed(word, column->type());
            if (!step) {
                note = core::fill(core::tr("\"%1\" is no step: type a number above 0."), {chooser.step});
                return std::nullopt;
            }
            grouped.step = *step;
        }
        request.by.push_back(grouped);
    }
    if (request.by.empty()) return std::nullopt;
    for (const FigureColumn& column : figureColumns)
        for (const FigureKind kind : figureKinds)
            if (column.checked.at(static_cast<std::size_t>(kind)) && isCounted(kind, column.type))
                request.figures.push_back({kind, column.name});
    return request;
}

std::vector<const Item*> SummaryPanel::base() {
    std::vector<const Item*> records;
    if (bNarrowed_) {
        for (const std::string& key : baseKeys_)
            if (const Item* record = app_.document.LV.find(key)) records.push_back(record);
        return records;
    }
    for (const Item* record : search::recordsIn(app_, search::foundRecords)) records.push_back(record);
    return records;
}

void SummaryPanel::recount() {
    if (!isStale_) return;
    isStale_ = false;
    ++countings;
    note.clear();
    const std::string barBefore =
        bars < static_cast<int>(barNames.size()) ? barNames[static_cast<std::size_t>(bars)] : std::string();
    const std::optional<Request> wanted = request();
    const bool isOfSome = wanted && onlyFound;
    const std::vector<const Item*> records = isOfSome ? base() : std::vector<const Item*>();
    summary = wanted ? summarise(app_.document, *wanted, app_.platform.today(), isOfSome ? &records : nullptr)
                     : Summary{};
    sort();
    barNames.assign(1, core::tr(recordsHeading));
    for (const Figure& figure : summary.request.figures) barNames.push_back(headingOf(figure));
    const auto known = std::ranges::find(barNames, barBefore);
    bars = known == barNames.end() ? 0 : static_cast<int>(known - barNames.begin());
    if (wanted) {
        note = core::tr("%n group", "%n groups", static_cast<int>(summary.groups.size()));
        note.append(", ").append(
            core::tr("%n record", "%n records", static_cast<int>(summary.total.records)));
    } else if (note.empty()) {
        note = core::tr("Open a database, or add columns, to see its records in groups.");
    }
}

// By the same column as before, if it is still there.
void SummaryPanel::sort() {
    const std::vector<std::string> all = headings(summary);
    const auto found = std::ranges::find(all, sortHeading_);
    if (found == all.end()) {
        sortHeading_.clear();
        sortColumn = 0;
        bDescending = false;
    } else {
        sortColumn = static_cast<std::size_t>(found - all.begin());
    }
    if (sortColumn > 0 || bDescending) sortGroups(summary, sortColumn, bDescending, app_.platform.today());
}

void SummaryPanel::heading_Click(std::size_t column) {
    const std::vector<std::string> all = headings(summary);
    if (column >= all.size()) return;
    bDescending = column == sortColumn && !bDescending;
    sortHeading_ = all[column];
    sortColumn = column;
    sortGroups(summary, sortColumn, bDescending, app_.platform.today());
    ++countings;
}

void SummaryPanel::column_Click(std::size_t chooser, int entry) {
    Chooser& chosen = by.at(chooser);
    if (entry < 0 || entry >= static_cast<int>(chosen.columns.size())) return;
    chosen.column = entry;
    takeSteps(chooser);
    isStale_ = true;
}

void SummaryPanel::step_Change(std::size_t chooser, const std::string& text) {
    isStale_ |= by.at(chooser).step != text;
    by.at(chooser).step = text;
}

void SummaryPanel::figure_Click(std::size_t column, FigureKind kind, bool bChecked) {
    figureColumns.at(column).checked.at(static_cast<std::size_t>(kind)) = bChecked;
    isStale_ = true;
}

void SummaryPanel::bars_Click(int entry) {
    if (entry >= 0 && entry < static_cast<int>(barNames.size())) bars = entry;
}

void SummaryPanel::onlyFound_Click(bool bChecked) {
    onlyFound = bChecked && onlyFoundEnabled;
    isStale_ = true;
}

// The filter that a group is to be found within: of its text no more than words and conditions can be
// followed by others.
void SummaryPanel::noteBaseFilter() {
    if (onlyFound && bNarrowed_) return;
    baseFilter_.clear();
    baseScope_.clear();
    const search::FilterBarState& bar = search::filterBar(app_);
    if (!onlyFound || !bar.isOn) return;
    const search::Filter filter =
        search::parseFilter(app_, search::sourceList(app_.document), bar.text, bar.scope);
    const auto quotes = std::ranges::count(bar.text, '"');
    if (filter.alternatives.size() != 1 || quotes % 2 != 0) return;
    baseFilter_ = bar.text;
    baseScope_ = bar.scope;
}

void SummaryPanel::showGroup(std::size_t group) {
    if (group >= summary.groups.size()) return;
    // The records that it was counted from may be gone, so it is looked for among those of now.
    const std::vector<GroupKey> keysOfGroup = summary.groups[group].keys;
    isStale_ = true;
    follow();
    recount();
    const auto found = std::ranges::find(summary.groups, keysOfGroup, &Group::keys);
    if (found == summary.groups.end()) return;
    const std::vector<const Item*> records =
        summary.membersOf(static_cast<std::size_t>(found - summary.groups.begin()));
    std::vector<std::string> keys;
    if (onlyFound)
        for (const Item* record : base()) keys.push_back(record->Key.str());
    noteBaseFilter();
    std::string text = filterTextOf(app_.document, summary.request, *found);
    if (!baseFilter_.empty()) text.insert(0, baseFilter_ + " ");
    search::showRecordsBy(app_, records, text, baseScope_, wordsOf(summary.request, *found));
    app::showReportTab(app_);
    if (!onlyFound) return;
    bNarrowed_ = true;
    baseKeys_ = std::move(keys);
    narrowed_ = app_.document.searchLV.arrangement();
}

void SummaryPanel::showAll() {
    if (app_.document.searchLV.Visible) search::leaveResults(app_);
    app::showReportTab(app_);
}

std::string SummaryPanel::title() const {
    std::string title = app_.document.reportData.reportTitle;
    if (title.empty()) title = std::filesystem::path(app_.document.currentFile).stem().string();
    const std::vector<GroupBy>& grouped = summary.request.by;
    if (grouped.empty()) return title;
    const std::string first = headingOf(grouped.front()), second = headingOf(grouped.back());
    if (grouped.size() == 1)
        return title.empty() ? core::fill(core::tr("By %1"), {first})
                             : core::fill(core::tr("%1 by %2"), {title, first});
    return title.empty() ? core::fill(core::tr("By %1 and %2"), {first, second})
                         : core::fill(core::tr("%1 by %2 and %3"), {title, first, second});
}

void SummaryPanel::copy() {
    const exchange::OutTable table = tableOf(summary, title());
    if (table.rows.empty()) return;
    std::string text;
    exchange::CsvWriter tabbed(text, "\t\"\r\n", '\t');
    for (const exchange::OutColumn& column : table.columns) tabbed.cell(column.name);
    tabbed.endLine();
    for (const auto& row : table.rows) {
        for (const core::CellText& cell : row) tabbed.cell(cell);
        tabbed.endLine();
    }
    app_.platform.setClipboard({text, exchange::sheetText(exchange::Format::Html, table), {}});
}

void SummaryPanel::exportTable() {
    using exchange::Format;
    const exchange::OutTable table = tableOf(summary, title());
    if (table.rows.empty()) return;
    auto target = app_.platform.showSave(
        {core::tr("Export Summary"), "Summary.xlsx",
         core::tr("Tables (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|All Files (*.*)|*.*")});
    if (!target) return;
    if (!exchange::formatOf(*target)) target->append(".xlsx");
    const Format format = *exchange::formatOf(*target);
    if (format == Format::Vcard) return app::warn(app_, core::tr("A summary has no place in address cards."));
    if (!storage::mayWriteTo(app_, *target)) return;
    const app::Hourglass hourglass(app_);
    try {
        exchange::writeSheet(*target, format, table);
    } catch (const core::RunTimeError& error) {
        app::warn(app_, core::fill(core::tr("The table could not be written: %1"), {error.what()}));
    }
}

void SummaryPanel::print() {
    if (summary.groups.empty()) return;
    print::printOn(app_, [&](drawing::DrawTarget& printer) {
        drawSummary(app_, printer, summary, title(), barFigure());
    });
}

} // namespace summary
