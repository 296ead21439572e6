#include "core/text.h"
#include "exchange/columnTypes.h"
#include "tables/counted.h"
#include "tables/importFrm.h"
#include "tables/placeIn.h"

#include <algorithm>
#include <filesystem>

// What the form shows of the table.
namespace tables {

namespace {

using core::ColumnType;

constexpr std::size_t previewRows = 20;
constexpr std::size_t shownRefused = 1000;

std::vector<std::string> waysToRead(const ReadAs& as) {
    if (as.bToTheLetter) return {"As it is"};
    if (as.type == ColumnType::Date) return {"Day, month, year", "Month, day, year", "Year, month, day"};
    if (as.type == ColumnType::Number || as.type == ColumnType::Currency) return {"1,234.50", "1.234,50"};
    return {"As it is"};
}

int wayToRead(const ReadAs& as) {
    if (as.bToTheLetter) return 0;
    if (as.type == ColumnType::Date) return static_cast<int>(as.dates);
    const bool isNumber = as.type == ColumnType::Number || as.type == ColumnType::Currency;
    return isNumber && as.decimal == ',' ? 1 : 0;
}

// In "Recognised", "None", and the signs.
int placeOfSign(const CurrencySign& sign) {
    if (!sign) return 0;
    return sign->empty() ? 1 : placeIn(currencySigns(), std::string_view(*sign)) + 2;
}

std::string noteOf(const Recognized& how) {
    std::string note;
    if (how.bDatesOpen || how.bDecimalOpen) {
        note.append("Please check: \"").append(how.example).append("\" can be read in two ways.");
    }
    if (!how.sign.empty()) {
        note.append(note.empty() ? "" : " ").append("The sign ").append(how.sign);
        note.append(" is not kept: amounts are shown with $.");
    }
    return note;
}

// Whether the heading says already where the column goes.
bool namesTarget(const ImportTable::Column& column) {
    return core::equalsNoCase(exchange::columnName(column.heading),
                              exchange::columnName(column.target->Text));
}

} // namespace

// Nothing can be changed but how the file is read.
void importFrm::showNoTable() {
    Label1 = std::filesystem::path(file_).filename().string();
    Label1.append(isText_ ? " cannot be read like this: " : ": this sheet cannot be imported: ");
    Label1.append(problem_).append(".");
    Label2.clear();
    List2.clear();
    Grid1.clear();
    List1.clear();
    Text1.clear();
    for (List* list : {&targetCbo, &typeCbo, &readAsCbo, &signCbo}) {
        list->entries.clear();
        list->Enabled = false;
    }
    Command1Visible = Check2Visible = okEnabled = false;
}

void importFrm::showAll() {
    Check1Enabled = table_.has_value();
    Text1Visible = styleCbo.Visible = !isAppending();
    targetCbo.Visible = isAppending();
    if (!table_) return showNoTable();
    Check1 = table_->hasHeadings();
    Label1 = std::filesystem::path(file_).filename().string();
    Label1.append(": ").append(counted(table_->count(), "record", "records")).append(".");
    showColumns();
    showColumn();
    showRows();
    showRefusals();
}

void importFrm::showColumns() {
    List2.clear();
    for (std::size_t i = 0; i < table_->columns().size(); ++i) {
        const ImportTable::Column& column = table_->columns()[i];
        Column shown;
        shown.Checked = column.bImport;
        shown.Name = column.name;
        if (isAppending()) shown.Name = column.target != nullptr ? column.target->Text : column.heading;
        if (column.bImport) {
            shown.Type = core::typeName(column.how.as.type);
            shown.ReadAs = waysToRead(column.how.as).at(static_cast<std::size_t>(wayToRead(column.how.as)));
            if (!column.how.sign.empty()) shown.ReadAs.append(" ").append(column.how.sign);
            if (isAppending() && !column.heading.empty() && !namesTarget(column))
                shown.Note.append("In the table: \"").append(column.heading).append("\".");
            const std::string note = noteOf(column.how);
            shown.Note.append(shown.Note.empty() || note.empty() ? "" : " ").append(note);
        } else {
            shown.Note = targets_.whyLeftOut[i];
        }
        List2.push_back(std::move(shown));
    }
}

void importFrm::showColumn() {
    const ImportTable::Column& column = table_->columns()[this->column()];
    const ReadAs& as = column.how.as;
    Text1 = column.name;
    targetCbo.Enabled = true;
    targetCbo.entries = {"(leave out)"};
    for (const core::Column* target : targets_.choices) targetCbo.entries.push_back(target->Text);
    targetCbo.ListIndex = placeIn(targets_.choices, column.target) + 1;
    typeCbo.entries.clear();
    // The last two are for columns that have them already.
    const std::size_t offered = placeIn(types, as.type) > 3 ? types.size() : 4;
    for (std::size_t i = 0; i < offered; ++i) typeCbo.entries.emplace_back(core::typeName(types.at(i)));
    typeCbo.ListIndex = placeIn(types, as.type);
    typeCbo.Enabled = column.bImport && !isAppending();
    readAsCbo.entries = waysToRead(as);
    readAsCbo.ListIndex = wayToRead(as);
    readAsCbo.Enabled = column.bImport && readAsCbo.entries.size() > 1;
    signCbo.entries = {"Recognised", "None"};
    for (const std::string_view sign : currencySigns()) signCbo.entries.emplace_back(sign);
    signCbo.ListIndex = placeOfSign(as.sign);
    signCbo.Enabled = readAsCbo.Enabled && as.type != ColumnType::Date;
}

void importFrm::showRows() {
    Grid1.assign(std::min(previewRows, table_->count()), {});
    for (std::size_t row = 0; row < Grid1.size(); ++row) {
        Grid1[row].Number = table_->rowNumber(row);
        for (std::size_t i = 0; i < table_->columns().size(); ++i) {
            CheckedCell cell;
            if (table_->columns()[i].bImport) cell = table_->cell(row, i);
            Grid1[row].Refused.push_back(!cell.reason.empty());
            Grid1[row].Cells.push_back(cell.reason.empty() ? std::move(cell.text)
                                                           : std::string(table_->written(row, i)));
        }
    }
}

void importFrm::showRefusals() {
    List1 = toldCells(*table_, shownRefused, isAppending());
    std::size_t refused = table_->refusedCount();
    if (records_) {
        std::ranges::move(toldCells(*records_, shownRefused), std::back_inserter(List1));
        refused += records_->refusedCount();
    }
    Label2.clear();
    const auto add = [&](const std::string& sentence) {
        Label2.append(Label2.empty() ? "" : "\n").append(sentence);
    };
    std::string why;
    if (!isAppending())
        why = table_->whyNoDatabase(styleCbo.ListIndex == 1);
    else if (std::ranges::none_of(List2, &Column::Checked))
        why = "No column is chosen.";
    else if (table_->count() > records_->room())
        why = "The database has room for " + counted(records_->room(), "more record.", "more records.");
    else if (table_->count() == 0)
        why = "The table has no records.";
    if (refused > 0) add(counted(refused, "cell cannot be stored:", "cells cannot be stored:"));
    if (!why.empty()) add(why);
    const bool canBeText =
        std::ranges::any_of(table_->refusals(shownRefused), [&](const ImportTable::Refusal& refusal) {
            return table_->columns()[refusal.column].how.as.type != ColumnType::Text;
        });
    Command1Visible = !isAppending() && canBeText;
    Check2Visible = refused > 0;
    okEnabled = why.empty() && (refused == 0 || Check2);
}

} // namespace tables
