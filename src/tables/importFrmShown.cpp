#include "core/text.h"
#include "core/translate.h"
#include "exchange/columnTypes.h"
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
    if (as.bToTheLetter) return {core::tr("As it is")};
    if (as.type == ColumnType::Date)
        return {core::tr("Day, month, year"), core::tr("Month, day, year"), core::tr("Year, month, day")};
    if (as.type == ColumnType::Number || as.type == ColumnType::Currency) return {"1,234.50", "1.234,50"};
    return {core::tr("As it is")};
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
    if (how.bDatesOpen || how.bDecimalOpen)
        note = core::fill(core::tr("Please check: \"%1\" can be read in two ways."), {how.example});
    if (!how.sign.empty()) {
        note.append(note.empty() ? "" : " ");
        note.append(core::fill(core::tr("The sign %1 is not kept: amounts are shown with $."), {how.sign}));
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
    Label1 = core::fill(isText_ ? core::tr("%1 cannot be read like this: %2.")
                                : core::tr("%1: this sheet cannot be imported: %2."),
                        {std::filesystem::path(file_).filename().string(), problem_});
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
    Label1 = core::fill(core::tr("%1: %n record.", "%1: %n records.", static_cast<int>(table_->count())),
                        {std::filesystem::path(file_).filename().string()});
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
            shown.Type = core::tr(core::typeName(column.how.as.type));
            shown.ReadAs = waysToRead(column.how.as).at(static_cast<std::size_t>(wayToRead(column.how.as)));
            if (!column.how.sign.empty()) shown.ReadAs.append(" ").append(column.how.sign);
            if (isAppending() && !column.heading.empty() && !namesTarget(column))
                shown.Note = core::fill(core::tr("In the table: \"%1\"."), {column.heading});
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
    targetCbo.entries = {core::tr("(leave out)")};
    for (const core::Column* target : targets_.choices) targetCbo.entries.push_back(target->Text);
    targetCbo.ListIndex = placeIn(targets_.choices, column.target) + 1;
    typeCbo.entries.clear();
    // The last two are for columns that have them already.
    const std::size_t offered = placeIn(types, as.type) > 3 ? types.size() : 4;
    for (std::size_t i = 0; i < offered; ++i)
        typeCbo.entries.push_back(core::tr(core::typeName(types.at(i))));
    typeCbo.ListIndex = placeIn(types, as.type);
    typeCbo.Enabled = column.bImport && !isAppending();
    readAsCbo.entries = waysToRead(as);
    readAsCbo.ListIndex = wayToRead(as);
    readAsCbo.Enabled = column.bImport && readAsCbo.entries.size() > 1;
    signCbo.entries = {core::tr("Recognised"), core::tr("None")};
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
        why = core::tr("No column is chosen.");
    else if (table_->count() > records_->room())
        why = core::tr("The database has room for %n more record.",
                       "The database has room for %n more records.", static_cast<int>(records_->room()));
    else if (table_->count() == 0)
        why = core::tr("The table has no records.");
    if (refused > 0)
        add(core::tr("%n cell cannot be stored:", "%n cells cannot be stored:", static_cast<int>(refused)));
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
