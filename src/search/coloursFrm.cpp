#include "search/coloursFrm.h"

#include "core/translate.h"

#include <algorithm>

namespace search {

using app::App;

namespace {

std::vector<std::string> markedColumns(const App& app) {
    std::vector<std::string> names;
    for (const int index : app.document.LV.columns.displayOrder()) {
        const core::Column& column = app.document.LV.columns.at(index);
        if (index > 1 && !column.isType(core::ColumnType::Picture)) names.push_back(column.Text);
    }
    return names;
}

} // namespace

void showColours(App& app, const std::string& column) {
    if (markedColumns(app).empty()) {
        app::inform(app, core::tr("Your database has no columns that could be coloured."));
        return;
    }
    app.rooms.of<ColoursOpening>().column = column;
    app.platform.showForm("coloursFrm");
}

void mnuColours_Click(App& app) {
    showColours(app, {});
}

coloursFrm::coloursFrm(App& app) : List1(markedColumns(app)), app_(app) {
    const auto wanted = std::ranges::find(List1, app.rooms.of<ColoursOpening>().column);
    ListIndex = wanted == List1.end() ? 0 : static_cast<int>(wanted - List1.begin());
    load();
}

core::ColumnType coloursFrm::type() const {
    return app_.document.LV.columns[List1.at(static_cast<std::size_t>(ListIndex))].type();
}

void coloursFrm::load() {
    const std::string& column = List1.at(static_cast<std::size_t>(ListIndex));
    const auto changed = changed_.find(column);
    const ColumnColours& rules = changed == changed_.end() ? coloursOf(app_, column) : changed->second;
    const std::vector<ColourTest> offered = colourTestsOf(type());
    tests = {core::tr("(no colour)")};
    for (const ColourTest test : offered) tests.push_back(testName(test, type()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows.at(i) = Row{};
        rows.at(i).Combo2 = static_cast<int>(i); // rules that are made one after the other differ
        if (i >= rules.size()) continue;
        const auto place = std::ranges::find(offered, rules[i].test);
        // A rule of the type that the column had before.
        if (place == offered.end()) continue;
        rows.at(i).Text1 = rules[i].value;
        rows.at(i).Text2 = rules[i].upTo;
        rows.at(i).Combo2 = rules[i].colour;
        Combo1_Click(i, static_cast<int>(place - offered.begin()) + 1);
    }
}

void coloursFrm::Combo1_Click(std::size_t row, int entry) {
    Row& shown = rows.at(row);
    shown.Combo1 = entry;
    const int values =
        entry == 0 ? 0 : valuesOf(colourTestsOf(type()).at(static_cast<std::size_t>(entry - 1)));
    shown.bText1 = values > 0;
    shown.bText2 = values > 1;
}

// What stands in the rows becomes the rules of the column; false when something is wrong with them.
bool coloursFrm::take() {
    ColumnColours rules;
    Label1.clear();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows.at(i);
        if (row.Combo1 == 0) continue;
        ColourRule rule;
        rule.test = colourTestsOf(type()).at(static_cast<std::size_t>(row.Combo1 - 1));
        if (row.bText1) rule.value = row.Text1;
        if (row.bText2) rule.upTo = row.Text2;
        rule.colour = row.Combo2;
        Label1 = ruleError(rule, type(), app_.platform.today());
        if (!Label1.empty()) {
            rowToFocus = i;
            return false;
        }
        rules.push_back(std::move(rule));
    }
    changed_[List1.at(static_cast<std::size_t>(ListIndex))] = std::move(rules);
    return true;
}

void coloursFrm::List1_Click(int entry) {
    if (entry < 0 || entry == ListIndex || !take()) return;
    ListIndex = entry;
    load();
}

void coloursFrm::OKButton_Click() {
    if (!take()) return;
    bool isKept = true;
    for (const auto& [column, rules] : changed_)
        if (rules != coloursOf(app_, column)) isKept = setColours(app_, column, rules) && isKept;
    unloaded = true;
    if (!isKept)
        app::inform(
            app_, core::tr("These colours are too long to be kept. They hold until the database is closed."));
}

} // namespace search
