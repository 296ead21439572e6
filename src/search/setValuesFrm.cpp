#include "search/setValuesFrm.h"

#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>

namespace search {

using core::ColumnType;

namespace {

std::vector<std::string> settableColumns(const core::Document& document) {
    std::vector<std::string> names;
    for (const int index : document.LV.columns.displayOrder()) {
        const core::Column& column = document.LV.columns.at(index);
        if (index != 1 && !whyNotSettable(document, column)) names.push_back(column.Text);
    }
    return names;
}

} // namespace

void mnuSetValues_Click(app::App& app) {
    if (settableColumns(app.document).empty())
        app::inform(
            app,
            core::tr("There is no column to set.  Calculation columns are worked out, and pictures and the "
                     "rows of invoices are entered on the layout page."));
    else if (app.document.LV.count() < 2)
        app::inform(app, core::tr("There are no records to set values in."));
    else
        app.platform.showForm("setValuesFrm");
}

setValuesFrm::setValuesFrm(app::App& app) : List1(settableColumns(app.document)), app_(app) {
    for (const Scope each : {selectedRecords, foundRecords, allRecords}) {
        const auto place = static_cast<std::size_t>(each);
        if (each != foundRecords || app.document.searchLV.Visible) records_.at(place) = recordsIn(app, each);
        Opt1.at(place) = {!records_.at(place).empty(), records_.at(place).size()};
    }
    // The current record is always selected, so one that is selected says little.
    if (Opt1[foundRecords].Enabled && Opt1[selectedRecords].Records < 2)
        scope = foundRecords;
    else if (Opt1[selectedRecords].Enabled)
        scope = selectedRecords;
    if (!List1.empty()) List1_Click(0);
}

bool setValuesFrm::isColumn(ColumnType type) const {
    if (ListIndex < 0) return false;
    return app_.document.LV.columns[List1.at(static_cast<std::size_t>(ListIndex))].isType(type);
}

void setValuesFrm::List1_Click(int entry) {
    ListIndex = entry;
    show();
}

void setValuesFrm::Opt1_Click(int chosen) {
    if (Opt1.at(static_cast<std::size_t>(chosen)).Enabled) scope = chosen;
    show();
}

void setValuesFrm::Opt2_Click(bool expression) {
    bExpression = expression;
    show();
}

void setValuesFrm::Text1_Change(const std::string& text) {
    const bool isErased = text.size() < Text1.Text.size(); // a slash too, which does not come back then
    Text1.Text = text;
    Text1.SelStart = -1;
    if (!isErased && !bExpression && isColumn(ColumnType::Date)) entry::insertDateSlashes(app_, Text1);
    show();
}

// As in an entry box, where the last two digits are cents.
void setValuesFrm::Text1_LostFocus() {
    if (bExpression || !isColumn(ColumnType::Currency) || !core::isNumeric(Text1.Text)) return;
    entry::completeCurrencyText(app_, Text1);
    show();
}

NewValue setValuesFrm::value() const {
    NewValue value{List1.at(static_cast<std::size_t>(ListIndex)), Text1.Text, bExpression};
    if (bExpression || !isColumn(ColumnType::Currency) || !core::isNumeric(Text1.Text)) return value;
    entry::EntryBox box = Text1; // what it will be when the box is left
    entry::completeCurrencyText(app_, box);
    value.text = box.Text;
    return value;
}

void setValuesFrm::show() {
    preview.clear();
    OKButtonEnabled = false;
    Label2.clear();
    const std::vector<core::Item*>& records = records_.at(static_cast<std::size_t>(scope));
    if (ListIndex < 0 || records.empty()) return;
    const NewValue wanted = value();
    Label1 =
        core::fill(core::tr("Set %1 in %n record", "Set %1 in %n records", static_cast<int>(records.size())),
                   {wanted.column});
    ValueMaker maker(app_, wanted);
    // Nobody has to be told that he has typed nothing yet.
    if (maker.fault() && !(bExpression && core::trim(Text1.Text).empty())) Label2 = *maker.fault();
    const std::size_t shown = std::min(records.size(), shownRecords);
    for (std::size_t i = 0; i < shown; ++i) {
        const core::Item& record = *records[i];
        Row row{nameOf(app_.document, record), core::RecordsList::cell(record, maker.column()).str(), {}};
        try {
            if (!maker.fault()) row.After = maker.cellFor(record);
        } catch (const core::RunTimeError& error) {
            if (Label2.empty()) Label2.append(row.Record).append(": ").append(error.what());
        }
        preview.push_back(std::move(row));
    }
    OKButtonEnabled = !maker.fault() && Label2.empty();
}

void setValuesFrm::tellRefused(const SetOutcome& outcome) {
    app::warn(app_, core::fill(core::tr("Nothing has been set.  The record \"%1\" would get no value: %2."),
                               {nameOf(app_.document, *outcome.refused), outcome.reason}));
}

// Enter is quickly pressed, before anything has been typed.
bool setValuesFrm::confirmEmpty(const std::string& column) {
    const std::string question =
        core::tr("Do you want to empty %1 in %n record?", "Do you want to empty %1 in %n records?",
                 static_cast<int>(records_.at(static_cast<std::size_t>(scope)).size()));
    return app_.platform.msgBox(core::fill(question, {column}), platform::Icon::Question,
                                core::tr("Set Values"),
                                platform::Buttons::YesNoDefaultNo) == platform::Answer::Yes;
}

void setValuesFrm::OKButton_Click() {
    Text1_LostFocus();
    if (!OKButtonEnabled) return;
    const NewValue wanted = value();
    if (!wanted.isExpression && wanted.text.empty() && !confirmEmpty(wanted.column)) return;
    ValueMaker maker(app_, wanted);
    const SetOutcome outcome = setValues(app_, maker, records_.at(static_cast<std::size_t>(scope)));
    if (outcome.refused != nullptr) {
        tellRefused(outcome);
        return;
    }
    unloaded = true;
    if (outcome.uncalculated.empty()) return;
    const std::string text = core::tr("The values have been set, but %n record could not be calculated: %1.",
                                      "The values have been set, but %n records could not be calculated: %1.",
                                      static_cast<int>(outcome.uncalculated.size()));
    app::warn(app_, core::fill(text, {outcome.uncalculated.front().reason}));
}

} // namespace search
