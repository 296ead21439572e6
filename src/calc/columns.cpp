#include "calc/columns.h"

#include "calc/formulas.h"
#include "core/text.h"

#include <algorithm>
#include <deque>

namespace calc {

namespace {

using core::Column;
using core::ColumnType;
using core::Document;

void renameInCollection(core::NamedCollection& collection, const std::string& oldName,
                        const std::string& newName) {
    const std::vector<std::string> names = collection.items();
    collection.clear();
    for (const std::string& name : names) {
        const std::string& kept = name == oldName ? newName : name;
        // printedCols keeps the names of columns that are gone, and the new name may be one of them. A
        // file with a name twice could not be opened again.
        if (collection.find(kept) == nullptr) collection.add(kept, kept);
    }
}

std::string nameOf(std::string_view formula) {
    return std::string(formula.substr(0, formula.find(',')));
}

void renameInFormulas(Document& document, const std::string& oldName, const std::string& newName) {
    std::vector<std::string> entries = document.formulas.items();
    const std::string oldAhead = oldName + ' ', oldBehind = ' ' + oldName;
    const std::string newAhead = newName + ' ', newBehind = ' ' + newName;
    for (std::string& entry : entries) {
        if (nameOf(entry) == oldName) entry = core::replaceAll(entry, oldName, newName);
        entry = core::replaceAll(entry, oldAhead, newAhead);
        entry = core::replaceAll(entry, oldBehind, newBehind);
    }
    document.formulas.clear();
    for (const std::string& entry : entries) document.formulas.add(entry, nameOf(entry));
}

void writeUndefined(Document& document, const std::string& name) {
    const Column* column = document.LV.columns.find(name);
    if (column == nullptr || column->Index == 1) return;
    document.LV.forEach([&](core::Item& item) { core::RecordsList::cell(item, *column) = undefined; });
}

// One name's part in the cascade: every formula that holds the name with a blank beside it, or in
// front of the comma, goes, and its own column is to be looked at in turn.
void removeFormulasOf(Document& document, const std::string& name, std::deque<std::string>& names) {
    core::NamedCollection& formulas = document.formulas;
    for (std::size_t position = 0; position < formulas.count();) {
        const std::string entry = formulas[position];
        const auto holds = [&](const std::string& text) { return entry.find(text) != std::string::npos; };
        if (!holds(" " + name) && !holds(name + " ") && !holds(name + ",")) {
            ++position;
            continue;
        }
        const std::string target = nameOf(entry);
        if (target != name) writeUndefined(document, target);
        formulas.removeAt(position);
        const bool isKnown = std::ranges::any_of(
            names, [&](const std::string& known) { return core::equalsNoCase(known, target); });
        if (!isKnown) names.push_back(target);
    }
}

template <typename Object>
void unloadByTag(core::ControlArray<Object>& family, const std::string& tag) {
    std::vector<int> indexes;
    family.forEach([&](const Object& object) {
        if (object.Tag == tag) indexes.push_back(object.Index);
    });
    for (const int index : indexes) family.unload(index);
}

} // namespace

Column& addColumn(Document& document, std::string_view name, std::string_view tag) {
    Column& column = document.LV.columns.add(name, name);
    column.Tag = tag;
    // Dates stand left until the database is opened again, pictures right. It is wanted so.
    const bool isLeft = column.isType(ColumnType::Date) || column.isType(ColumnType::Text);
    column.align = isLeft ? core::Alignment::Left : core::Alignment::Right;
    if (column.isType(ColumnType::Picture)) column.Icon = "Picture";
    document.LV.appendCells();
    return column;
}

void renameColumn(Document& document, const std::string& oldName, const std::string& newName) {
    // The column table refuses a name that is there in another case, so it goes first.
    document.LV.columns.rename(document.LV.columns[oldName].Index, newName);
    renameInFormulas(document, oldName, newName);
    for (core::NamedCollection* names :
         {&document.printedCols, &document.prnInvoiceCols, &document.prnItemCols, &document.totaledCols})
        renameInCollection(*names, oldName, newName);
}

void removeColumn(Document& document, const std::string& name) {
    const int index = document.LV.columns[name].Index;
    document.LV.removeCells(index - 1);
    document.LV.columns.remove(index);
    std::deque<std::string> names = {name};
    while (!names.empty()) {
        removeFormulasOf(document, std::string(names.front()), names);
        names.pop_front();
    }
    unloadByTag(document.layout.layoutField, name);
    unloadByTag(document.layout.imgHolder, name);
    document.totaledCols.removeItem(name);
}

void setOptionedColumns(Document& document, const std::vector<std::string>& names) {
    document.optionedCols.clear();
    for (const std::string& name : names) document.optionedCols.add(name, name);
    for (const std::string& name : names) {
        // By the exact name: when the case alone has changed, the old counter goes as with any new name.
        bool hasCounter = false;
        document.SerialsLV.forEach([&](const core::Item& serial) { hasCounter |= serial.Text == name; });
        if (hasCounter) continue;
        if (document.LV.columns[name].isType(ColumnType::Number))
            document.SerialsLV.add(name, name).subItem(1) = "0";
    }
    document.SerialsLV.removeIf(
        [&](const core::Item& serial) { return !document.optionedCols.contains(serial.Text.view()); });
}

} // namespace calc
