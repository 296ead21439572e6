#include "search/searchEngine.h"

#include "calc/selectedTotals.h"
#include "core/totalsRow.h"

#include <algorithm>
#include <vector>

namespace search {

using app::App;
using core::Document;
using core::Item;
using core::RecordsList;

namespace {

void showEmptyResults(App& app) {
    RecordsList& results = app.document.searchLV;
    app.mainFrm.control("Formulas").Enabled = false;
    results.Visible = true;
    results.clear();
    app.mainFrm.theListView = &results;
    app.mainFrm.listScroll = app::ListScroll::ToTop;
    core::addTotalsRow(results);
}

std::vector<Criterion> chain(App& app, const RecordsList& source, const Groups& groups) {
    std::vector<Criterion> criteria;
    for (const Group& group : groups) {
        if (group.isBlank() || group.column.empty()) break;
        criteria.emplace_back(app.document, source, group, app.platform.today());
    }
    return criteria;
}

// What ties a result to its record is the Key and the Tag, or, since rows of invoices have no keys,
// the Text and the Tag.
Item& addCopy(const Document& document, RecordsList& results, const Item& record) {
    const core::CellText& itemKey = document.bInvoiceStyle ? record.Text : record.Key;
    Item& copy = document.bInvoiceStyle ? results.add({}, itemKey) : results.add(itemKey);
    copy.Tag = itemKey;
    std::copy_n(record.cells.begin(), std::min(record.cells.size(), copy.cells.size()), copy.cells.begin());
    return copy;
}

bool isMatch(std::vector<Criterion>& criteria, const Item& record) {
    return std::ranges::all_of(criteria, [&](Criterion& criterion) { return criterion.matches(record); });
}

} // namespace

RecordsList& sourceList(Document& document) {
    return document.bInvoiceStyle ? document.iLV : document.LV;
}

namespace {

void putInOrder(App& app) {
    RecordsList& results = app.document.searchLV;
    if (results.count() < 2) return;
    core::moveTotals(results);
    calc::list_Click(app, results);
    app::showRecordCount(app, results);
}

void fillResults(App& app, const Groups& groups) {
    const RecordsList& source = sourceList(app.document);
    RecordsList& results = app.document.searchLV;
    showEmptyResults(app);
    std::vector<Criterion> criteria = chain(app, source, groups);
    if (criteria.empty()) return;
    const core::TotalsRowUpdater totals(app.document, results);
    source.forEach([&](const Item& record) {
        if (record.isTotals() || !isMatch(criteria, record)) return;
        totals.update(core::TotalsMode::Add, addCopy(app.document, results, record));
    });
    putInOrder(app);
}

} // namespace

void findRecords(App& app, const Groups& groups) {
    fillResults(app, groups);
    app.changes.announce(app, app::Change::CurrentRecord);
}

void showRows(App& app, const std::vector<const Item*>& rows) {
    RecordsList& results = app.document.searchLV;
    showEmptyResults(app);
    const core::TotalsRowUpdater totals(app.document, results);
    for (const Item* row : rows) totals.update(core::TotalsMode::Add, addCopy(app.document, results, *row));
    putInOrder(app);
    app.changes.announce(app, app::Change::CurrentRecord);
}

} // namespace search
