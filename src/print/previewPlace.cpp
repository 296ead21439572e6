#include "print/previewPlace.h"

#include "core/translate.h"
#include "print/previewNavigation.h"

#include <algorithm>

namespace print {

using app::App;
using core::RecordsList;

namespace {

int divideUp(int count, int each) {
    return count / each + (count % each == 0 ? 0 : 1);
}

// A page that the last one was counted back from begins anywhere; it has the number of the one that it ends
// on.
PreviewPlace pageAt(int before, int records, int each, bool isLast) {
    PreviewPlace place{false, 0, 0, before == 0, isLast};
    if (each < 1) return place;
    place.of = std::max(divideUp(records, each), 1);
    place.number = place.of;
    if (place.isFirst)
        place.number = 1;
    else if (!isLast)
        place.number = std::clamp(divideUp(before, each) + 1, 1, std::max(place.of - 1, 1));
    return place;
}

} // namespace

void noteReportPage(App& app, const RecordsList& list) {
    PreviewPage& page = previewPage(app);
    // The Totals row comes along on the page of the last record, or not at all.
    const auto rowsUpTo = [&](int end) {
        if (!page.bReportSelectedOnly) return std::max(end - 1, 0);
        int rows = 0;
        // A page may begin behind the last record, when records have gone since it was turned to.
        for (int row = 1; row < std::min(end, list.count() + 1); ++row) rows += list.at(row).Selected ? 1 : 0;
        return rows;
    };
    page.place = pageAt(rowsUpTo(page.iReportPageStart), rowsUpTo(list.count()), page.iReportLinesPerPage,
                        page.iReportStartRow == 1);
}

void noteRecord(App& app) {
    const RecordsList& list = *app.mainFrm.theListView;
    PreviewPlace& place = previewPage(app).place;
    place = {true, 0, list.count() - 1, true, true};
    const core::Item* shown = list.selectedItem();
    if (shown == nullptr || shown->isTotals()) return;
    place.number = list.indexOf(*shown);
    place.isFirst = place.number <= 1;
    place.isLast = place.number >= place.of;
}

void noteLayoutsPage(App& app, int before, int available) {
    PreviewPage& page = previewPage(app);
    page.place = pageAt(before, available, page.iLayoutsPerPage, page.iLayoutIndex >= available);
}

void notePage(App& app, int number, int of) {
    previewPage(app).place = {false, number, of, number <= 1, number >= of};
}

std::string previewPlaceText(const App& app) {
    const PreviewPage& page = previewPage(app);
    if (!page.Visible || page.place.number < 1) return {};
    return core::fill(page.place.isRecord ? core::tr("Record %1 of %2") : core::tr("Page %1 of %2"),
                      {std::to_string(page.place.number), std::to_string(page.place.of)});
}

bool turnPreview(App& app, bool forward) {
    const PreviewPage& page = previewPage(app);
    if (!page.Visible || (forward ? page.place.isLast : page.place.isFirst)) return false;
    reportToolbar_ButtonClick(app, forward ? "Next" : "Back");
    return true;
}

} // namespace print
