#include "summary/statisticsFrm.h"

#include "app/hourglass.h"
#include "core/translate.h"
#include "exchange/csvWriter.h"
#include "search/manyRecords.h"

#include <algorithm>

namespace summary {

namespace {

struct LastColumn {
    std::string name;
};

} // namespace

void mnuStatistics_Click(app::App& app) {
    if (app.document.LV.columns.count() < 2)
        app::inform(app, core::tr("Your database has no columns."));
    else
        app.platform.showForm("statisticsFrm");
}

void showStatisticsOf(app::App& app, const std::string& column) {
    app.rooms.of<LastColumn>().name = column;
    mnuStatistics_Click(app);
}

statisticsFrm::statisticsFrm(app::App& app) : app_(app) {
    const core::ColumnHeaders& columns = app.document.LV.columns;
    for (const int index : columns.displayOrder())
        if (index > 1) columnCbo.push_back(columns.at(index).Text);
    const auto last = std::ranges::find(columnCbo, app.rooms.of<LastColumn>().name);
    ListIndex = last == columnCbo.end() ? 0 : static_cast<int>(last - columnCbo.begin());
    Check1 = Check1Enabled = app.document.searchLV.Visible;
    count();
}

void statisticsFrm::count() {
    const app::Hourglass hourglass(app_);
    const std::string& name = columnCbo.at(static_cast<std::size_t>(ListIndex));
    app_.rooms.of<LastColumn>().name = name;
    const std::vector<core::Item*> found =
        search::recordsIn(app_, Check1 ? search::foundRecords : search::allRecords);
    const std::vector<const core::Item*> records(found.begin(), found.end());
    constexpr std::size_t shownValues = 50;
    const Statistics statistics =
        statisticsOf(app_.document, name, app_.platform.today(), shownValues, &records);
    List1 = namedFigures(statistics);
    List2 = statistics.mostFrequent;
    mostOfList2 = List2.empty() ? 0 : List2.front().count;
    ++countings;
}

void statisticsFrm::columnCbo_Click(int entry) {
    if (entry < 0 || entry >= static_cast<int>(columnCbo.size())) return;
    ListIndex = entry;
    count();
}

void statisticsFrm::Check1_Click(bool bChecked) {
    Check1 = bChecked && Check1Enabled;
    count();
}

void statisticsFrm::copyBtn_Click() {
    std::string text;
    exchange::CsvWriter table(text, "\t\"\r\n", '\t');
    const auto row = [&](std::string_view name, std::string_view value) {
        table.cell(name);
        table.cell(value);
        table.endLine();
    };
    for (const auto& [name, value] : List1) row(name, value);
    for (const FrequentValue& value : List2) row(value.value, std::to_string(value.count));
    app_.platform.setClipboard({text, {}, {}});
}

} // namespace summary
