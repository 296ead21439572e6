#include "calc/designFrm.h"

#include "app/windowState.h"
#include "calc/columns.h"
#include "calc/formulas.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <array>

namespace calc {

namespace {

using core::Column;
using core::ColumnType;

// Shown in the user's language.
constexpr const char *on = core::marked("ON"), *off = core::marked("OFF"), *notThere = core::marked("NA");

constexpr std::array<const char*, 6> typeTags = {"1", "2", "5", "4", "3", "7"};

designFrm::Row rowOf(const Column& column) {
    designFrm::Row row{column.Text, std::string(core::typeName(column.type())), notThere, notThere};
    if (column.isType(ColumnType::Date)) row.AutoDate = off;
    if (column.isType(ColumnType::Number)) row.AutoSerial = off;
    return row;
}

std::string withoutBlanks(std::string_view text) {
    return core::replaceAll(text, " ", "");
}

} // namespace

designFrm::designFrm(app::App& app) : pictureVisible(!app.document.bInvoiceStyle), app_(app) {
    const core::Document& document = app.document;
    for (const Column& column : document.LV.columns) {
        if (column.Index == 1) continue;
        Row row = rowOf(column);
        if (document.optionedCols.contains(column.Text)) {
            if (column.isType(ColumnType::Date)) row.AutoDate = on;
            if (column.isType(ColumnType::Number)) row.AutoSerial = on;
        }
        List1.push_back(std::move(row));
    }
}

std::string designFrm::emptyCalculations() const {
    std::string names;
    for (const Column& column : app_.document.LV.columns) {
        const auto isOfColumn = [&](const auto& entry) {
            const Formula formula(entry.item);
            return core::equalsNoCase(formula.name, column.Text) && !formula.isUndefined();
        };
        if (!column.isType(ColumnType::Calculation) ||
            std::ranges::any_of(app_.document.formulas, isOfColumn))
            continue;
        if (!names.empty()) names.append(", ");
        names.append(column.Text);
    }
    return names.empty()
               ? names
               : core::fill(core::tr("Without an expression: %1. Tools > Expression Editor says how "
                                     "a column is worked out."),
                            {names});
}

void designFrm::typeOpt_Click(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= typeTags.size()) return;
    typeOpt = index;
    sColType = typeTags[static_cast<std::size_t>(index)];
    fieldTxtHasFocus = true;
}

void designFrm::fieldTxt_Change(std::string_view text) {
    fieldTxt = core::replaceAll(text, " ", "_");
}

bool designFrm::isNameTaken(std::string_view name) {
    if (std::ranges::find(List1, name, &Row::Name) == List1.end()) return false;
    app::warn(app_, core::tr("Column with that name already exists!"));
    return true;
}

void designFrm::rebuildAfterChange() {
    app_.changes.announce(app_, app::Change::Columns);
}

void designFrm::addBtn_Click() {
    if (List1.size() >= mostColumns) {
        app::inform(app_, core::tr("You have added the maximum number of columns to the database."));
        return;
    }
    if (core::trim(fieldTxt).empty()) {
        app::inform(app_, core::tr("You must enter a column name."));
        return;
    }
    const std::string name = withoutBlanks(fieldTxt);
    if (isNameTaken(name)) return;
    // A name that differs from another in case alone gets past the check and ends in the column
    // table's own error. It is wanted so.
    List1.push_back(rowOf(addColumn(app_.document, name, sColType)));
    fieldTxt.clear();
    fieldTxtHasFocus = true;
    rebuildAfterChange();
}

void designFrm::changeBtn_Click() {
    fieldTxt = withoutBlanks(fieldTxt);
    if (selectedRow < 0 || static_cast<std::size_t>(selectedRow) >= List1.size() || fieldTxt.empty()) return;
    Row& row = List1[static_cast<std::size_t>(selectedRow)];
    if (core::isNumeric(fieldTxt)) {
        app::inform(app_, core::tr("Column name must not be a number."));
        return;
    }
    if (isNameTaken(fieldTxt)) return;
    const std::string oldName = row.Name;
    renameInLayout(oldName, fieldTxt);
    renameColumn(app_.document, oldName, fieldTxt);
    row.Name = fieldTxt;
    rebuildAfterChange();
}

void designFrm::renameInLayout(const std::string& oldName, const std::string& newName) {
    core::LayoutObjects& layout = app_.document.layout;
    layout.layoutField.forEach([&](core::LayoutField& field) {
        if (field.Tag == oldName) field.Tag = newName;
    });
    const bool labels = app::askYesNo(
        app_,
        core::tr(
            "Would you like to rename all exact matching labels in your layout to the new name as well?"),
        platform::Icon::None);
    if (labels) {
        const std::string wanted = core::upper(core::trim(oldName));
        layout.tLabel.forEach([&](core::Label& label) {
            if (core::upper(core::trim(label.Text)) == wanted) label.Text = newName;
        });
    }
    layout.imgHolder.forEach([&](core::ImgHolder& holder) {
        if (holder.Tag == oldName) holder.Tag = newName;
    });
}

bool designFrm::confirmRemoval(const std::string& name) {
    const std::string wanted = core::upper(name);
    const bool isUsed = std::ranges::any_of(app_.document.formulas, [&](const auto& formula) {
        return core::upper(formula.item).find(wanted) != std::string::npos;
    });
    if (isUsed &&
        !app::askYesNo(
            app_,
            core::tr(
                "A column you intend to delete is either a member of a calculation column expression, or is "
                "a calculation column itself.  You will need to redefine expressions for all affected "
                "calculation columns that referenced this one. Are you sure you want to do this?"),
            platform::Icon::Exclamation))
        return false;
    return app::askYesNo(
        app_,
        core::fill(
            core::tr(
                "Are you absolutely certain you want to do this?  ALL data in the column %1 will be lost!"),
            {name}),
        platform::Icon::Critical);
}

void designFrm::deleteBtn_Click() {
    if (selectedRow < 0 || static_cast<std::size_t>(selectedRow) >= List1.size()) return;
    const std::string name = List1[static_cast<std::size_t>(selectedRow)].Name;
    if (name.empty() || !confirmRemoval(name)) return;
    removeColumn(app_.document, name);
    app_.changes.announce(app_, app::Change::Objects); // it may have been a field of the column
    fieldTxt.clear();
    List1.erase(List1.begin() + selectedRow);
    selectedRow = std::min(selectedRow, static_cast<int>(List1.size()) - 1);
    rebuildAfterChange();
}

void designFrm::List1_DblClick(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= List1.size()) return;
    Row& row = List1[static_cast<std::size_t>(index)];
    const auto ask = [&](const std::string& question) {
        const platform::Answer answer = app_.platform.msgBox(
            question, platform::Icon::None, core::tr("Entry Options"), platform::Buttons::YesNo);
        return answer == platform::Answer::Yes ? on : off;
    };
    const ColumnType type = app_.document.LV.columns[row.Name].type();
    if (type == ColumnType::Date) row.AutoDate = ask(core::tr("Auto enter today's date when entering data?"));
    if (type == ColumnType::Number)
        row.AutoSerial = ask(core::tr("Auto increment value when entering data?"));
}

void designFrm::doneBtn_Click() {
    std::vector<std::string> names;
    for (const Row& row : List1)
        if (row.AutoDate == on || row.AutoSerial == on) names.push_back(row.Name);
    setOptionedColumns(app_.document, names);
    Form_QueryUnload();
}

void designFrm::Form_QueryUnload() {
    if (unloaded) return;
    unloaded = true;
    app::setDocumentModified(app_, true);
}

} // namespace calc
