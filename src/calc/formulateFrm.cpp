#include "calc/formulateFrm.h"

#include "calc/formulas.h"
#include "calc/recalculation.h"
#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <deque>

namespace calc {

formulateFrm::formulateFrm(app::App& app) : app_(app) {
    for (const core::Column& column : app.document.LV.columns) {
        if (column.isType(core::ColumnType::Calculation)) {
            const auto* formula = app.document.formulas.find(column.Text);
            std::string expression(undefined);
            if (formula != nullptr) {
                const std::size_t comma = formula->item.find(',');
                expression = comma == std::string::npos ? std::string() : formula->item.substr(comma + 1);
            }
            colList.push_back({column.Text, expression});
        }
        if (column.Index != 1 && column.isNumeric()) fieldList.push_back(column.Text);
    }
}

void formulateFrm::Form_Activate() {
    if (!colList.empty() || unloaded) return;
    app_.platform.msgBox(core::tr("There are no calculation columns in the current database."),
                         platform::Icon::None, app::title);
    donebtn_Click();
}

void formulateFrm::colList_Click(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= colList.size()) return;
    selectedRow = row;
    fieldListEnabled = true;
    addCalcBtnEnabled = true;
    const std::string& formula = colList[static_cast<std::size_t>(row)].Formula;
    expTxt = formula == undefined ? std::string() : formula;
    expHistory_ = {expTxt};
}

void formulateFrm::fieldList_Click(std::size_t entry) {
    if (!fieldListEnabled || entry >= fieldList.size()) return;
    const std::string& name = fieldList[entry];
    const auto row = std::ranges::find(colList, name, &Row::Name);
    if (row != colList.end() && row->Formula == undefined) {
        app::inform(
            app_,
            core::tr(
                "The column you selected is an undefined calculation column.  Please define an expression "
                "for it first."));
        return;
    }
    edit(expTxt + name);
}

void formulateFrm::NumKey_Click(int index) {
    const std::string digit = index == 10 ? "." : std::to_string(index);
    const std::string_view trimmed = core::rtrim(expTxt);
    // Digits run together across the blank behind a number, but not across an operator's.
    if (!trimmed.empty() && core::isNumeric(trimmed.substr(trimmed.size() - 1)))
        edit(std::string(trimmed) + digit);
    else
        edit(expTxt + digit);
}

void formulateFrm::operatorBtn_Click(std::string_view tag) {
    struct Operator {
        std::string_view tag, text;
    };
    constexpr Operator operators[] = {{"Add", " + "},    {"Subtract", " - "}, {"Multiply", " * "},
                                      {"Divide", " / "}, {"Left", " ( "},     {"Right", " ) "}};
    const auto* found = std::ranges::find(operators, tag, &Operator::tag);
    if (found != std::end(operators)) edit(expTxt + std::string(found->text));
}

void formulateFrm::edit(std::string text) {
    expTxt = std::move(text);
    expHistory_.push_back(expTxt);
}

void formulateFrm::backBtn_Click() {
    expTxt.clear();
    if (expHistory_.size() > 1) expTxt = expHistory_[expHistory_.size() - 2];
    // The only entry goes too, so the next step back ends in the empty box again. It is wanted so.
    if (!expHistory_.empty()) expHistory_.pop_back();
}

void formulateFrm::clearBtn_Click() {
    expTxt.clear();
    expHistory_.clear();
}

void formulateFrm::addCalcBtn_Click() {
    if (!addCalcBtnEnabled || selectedRow < 0) return;
    const std::string expression(core::rtrim(expTxt));
    if (expression.empty())
        undefineWithDependants();
    else
        colList[static_cast<std::size_t>(selectedRow)].Formula = expression;
    clearBtn_Click();
    bApplied_ = true;
}

void formulateFrm::undefineWithDependants() {
    Row& selected = colList[static_cast<std::size_t>(selectedRow)];
    selected.Formula = undefined;
    std::deque<std::string> names = {selected.Name};
    while (!names.empty()) {
        for (Row& row : colList) {
            // A name that is part of the word itself would find the rows marked already for ever, and the
            // program would never come back. Each row is marked once: the outcome is the same.
            if (row.Formula == undefined || row.Formula.find(names.front()) == std::string::npos) continue;
            row.Formula = undefined;
            names.push_back(row.Name);
        }
        names.pop_front();
    }
}

void formulateFrm::donebtn_Click() {
    if (!unloaded) Form_QueryUnload();
}

void formulateFrm::Form_QueryUnload() {
    if (unloaded) return;
    unloaded = true;
    storeFormulas();
    if (!bApplied_) return;
    app::setDocumentModified(app_, true);
    recalculateAfterDialog(app_);
}

void formulateFrm::storeFormulas() {
    std::vector<std::string> entries;
    for (const Row& row : colList) entries.push_back(row.Name + "," + row.Formula);
    SortFormulas(entries);
    core::NamedCollection& formulas = app_.document.formulas;
    formulas.clear();
    for (const std::string& entry : entries) formulas.add(entry, entry.substr(0, entry.find(',')));
}

} // namespace calc
