#include "tables/newRecords.h"

#include "app/longWork.h"
#include "app/windowState.h"
#include "calc/serialNumbers.h"
#include "core/text.h"
#include "core/translate.h"
#include "entry/editRecord.h"
#include "entry/invoiceRecords.h"
#include "exchange/columnTypes.h"
#include "tables/cellCheck.h"

#include <algorithm>
#include <limits>
#include <set>

namespace tables {

namespace {

using core::Column;
using core::ColumnType;
using core::LayoutField;

int fieldsOf(const core::Document& document, const Column& column) {
    int fields = 0;
    document.layout.layoutField.forEach(
        [&](const LayoutField& field) { fields += field.Tag == column.Text; });
    return fields;
}

bool isTypedColumn(const Column& column) {
    return !column.isType(ColumnType::Calculation) && !column.isType(ColumnType::Picture);
}

bool hasFormula(const core::Document& document, const Column& column) {
    return std::ranges::any_of(document.formulas, [&](const auto& entry) {
        const calc::Formula formula(entry.item);
        return !formula.isUndefined() && formula.name == column.Text;
    });
}

// "2@3@" for two rows; what stands behind the last separator is no value.
std::vector<std::string_view> itemValues(std::string_view cell) {
    std::vector<std::string_view> values = core::split(cell, core::itemSeparator);
    if (values.back().empty()) values.pop_back();
    return values;
}

} // namespace

NewRecords::NewRecords(app::App& app, exchange::TextRows rows, Headings headings)
    : app_(app), today_(app.platform.today()), itemColumns_(app.document), rows_(std::move(rows)) {
    findTargets();
    std::size_t width = 0;
    for (const exchange::TextRow& row : rows_) width = std::max(width, row.cells.size());
    sources_.resize(width);
    setHeadings(headings == Headings::Guess ? firstRowNamesColumns() : headings == Headings::Yes);
}

NewRecords::NewRecords(app::App& app, exchange::TextRows rows, std::span<const Column* const> targets,
                       const exchange::Progress& progress)
    : app_(app), today_(app.platform.today()), itemColumns_(app.document), rows_(std::move(rows)) {
    findTargets();
    sources_.resize(targets.size());
    refused_.resize(targets.size());
    for (std::size_t i = 0; i < targets.size(); ++i) {
        exchange::tellProgress(progress, i, targets.size());
        sources_[i].target = targets[i];
        check(i);
    }
}

bool NewRecords::isTypedInto(const Column& column) const {
    if (!isTypedColumn(column)) return false;
    if (!app_.document.bInvoiceStyle) return true;
    return fieldsOf(app_.document, column) > 0 && !hasFormula(app_.document, column);
}

// The list on screen need not have all columns; those of the item rows stand behind the others.
void NewRecords::findTargets() {
    const core::ColumnHeaders& columns = app_.document.LV.columns;
    const core::ColumnHeaders& shown = app::visibleList(app_.document).columns;
    const auto add = [&](const Column* column) {
        if (column == nullptr || column->Index == 1 ||
            std::ranges::find(onScreen_, column) != onScreen_.end())
            return;
        onScreen_.push_back(column);
        if (isTypedInto(*column)) targets_.push_back(column);
    };
    for (const int index : shown.displayOrder())
        if (index > 1) add(columns.find(shown.at(index).Text));
    for (const int index : columns.displayOrder()) add(&columns.at(index));
}

const Column* NewRecords::columnNamed(std::string_view heading) const {
    const core::ColumnHeaders& columns = app_.document.LV.columns;
    const std::string_view name = core::trim(heading);
    const Column* column = columns.find(name);
    if (column == nullptr) column = columns.find(exchange::columnName(name));
    if (column == nullptr)
        if (const auto typed = exchange::typedColumn(name)) column = columns.find(typed->name);
    return column == nullptr || column->Index == 1 ? nullptr : column;
}

// More than half of what stands there, and no column twice.
bool NewRecords::firstRowNamesColumns() const {
    if (rows_.empty()) return false;
    std::set<const Column*> named;
    std::size_t texts = 0;
    for (const std::string& cell : rows_.front().cells) {
        if (core::trim(cell).empty()) continue;
        ++texts;
        const Column* column = columnNamed(cell);
        if (column != nullptr && !named.insert(column).second) return false;
    }
    return named.size() * 2 > texts;
}

void NewRecords::setHeadings(bool hasHeadings) {
    hasHeadings_ = hasHeadings && !rows_.empty();
    refused_.assign(sources_.size(), {});
    std::set<const Column*> taken;
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        Source& source = sources_[i];
        source = {};
        if (hasHeadings_) {
            if (i < rows_.front().cells.size()) source.name = core::trim(rows_.front().cells[i]);
            targetByName(source);
        } else {
            targetByPlace(source, i);
        }
        if (source.target != nullptr && !taken.insert(source.target).second) {
            source.whyLeftOut =
                core::fill(core::tr("the column \"%1\" is there twice"), {source.target->Text});
            source.target = nullptr;
        }
        check(i);
    }
}

void NewRecords::targetByName(Source& source) const {
    const Column* column = columnNamed(source.name);
    if (column == nullptr)
        source.whyLeftOut = source.name.empty() ? core::tr("a column has no heading")
                                                : core::fill(core::tr("no column \"%1\""), {source.name});
    else if (isTypedInto(*column))
        source.target = column;
    else if (isTypedColumn(*column) && !hasFormula(app_.document, *column))
        source.whyLeftOut =
            core::fill(core::tr("the column \"%1\" has no field on the layout"), {column->Text});
}

void NewRecords::targetByPlace(Source& source, std::size_t place) const {
    if (place >= onScreen_.size())
        source.whyLeftOut = core::fill(core::tr("there is no column %1"), {std::to_string(place + 1)});
    else if (isTypedInto(*onScreen_[place]))
        source.target = onScreen_[place];
}

void NewRecords::setTarget(std::size_t column, const Column* target) {
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        if (i != column && (target == nullptr || sources_[i].target != target)) continue;
        sources_[i].target = i == column ? target : nullptr;
        sources_[i].whyLeftOut.clear();
        check(i);
    }
}

std::string_view NewRecords::cell(std::size_t record, std::size_t column) const {
    const std::vector<std::string>& cells = rowOf(record).cells;
    return column < cells.size() ? std::string_view(cells[column]) : std::string_view();
}

// What is typed into the box of the column, or into its boxes with "@" behind each value.
std::string NewRecords::boxText(const Column& column, std::string_view cell, std::string* reason) const {
    if (!app_.document.bInvoiceStyle || !itemColumns_.contains(column.Text)) {
        CheckedCell checked = checkedCell(column.type(), cell, today_);
        if (reason != nullptr) *reason = std::move(checked.reason);
        return std::move(checked.text);
    }
    std::string text;
    const std::vector<std::string_view> values = itemValues(cell);
    const int rows = fieldsOf(app_.document, column);
    if (values.size() > static_cast<std::size_t>(rows)) {
        if (reason != nullptr)
            *reason = core::fill(core::tr("has more values than the %1 rows of the layout"),
                                 {std::to_string(rows)});
        return text;
    }
    for (const std::string_view value : values) {
        const CheckedCell checked = checkedCell(column.type(), value, today_);
        if (!checked.reason.empty()) {
            if (reason != nullptr) *reason = checked.reason;
            return {};
        }
        text.append(checked.text).push_back(core::itemSeparator);
    }
    return text;
}

void NewRecords::check(std::size_t column) {
    std::vector<RefusedCell>& refused = refused_[column];
    refused.clear();
    const Column* target = sources_[column].target;
    if (target == nullptr) return;
    std::string reason;
    for (std::size_t record = 0; record < count(); ++record) {
        const std::string_view text = cell(record, column);
        if (text.empty()) continue;
        reason.clear();
        boxText(*target, text, &reason);
        if (!reason.empty()) refused.push_back({record, reason});
    }
}

std::size_t NewRecords::refusedCount() const {
    std::size_t count = 0;
    for (const auto& column : refused_) count += column.size();
    return count;
}

std::vector<NewRecords::Refusal> NewRecords::refusals(std::size_t most) const {
    std::vector<Refusal> first;
    for (std::size_t column = 0; column < refused_.size(); ++column) {
        const auto& refused = refused_[column];
        for (std::size_t i = 0; i < std::min(most, refused.size()); ++i)
            first.push_back({rowOf(refused[i].record).number, column, cell(refused[i].record, column),
                             refused[i].reason});
    }
    std::ranges::stable_sort(first, {}, &Refusal::row);
    if (first.size() > most) first.erase(first.begin() + static_cast<std::ptrdiff_t>(most), first.end());
    return first;
}

std::size_t NewRecords::room() const {
    constexpr int mostKeys = std::numeric_limits<decltype(app_.document.iLastKey)>::max();
    return static_cast<std::size_t>(std::max(0, mostKeys - app_.document.iLastKey));
}

// --- storing

std::vector<calc::Uncalculated> NewRecords::store() {
    entry::requireKeys(app_.document, static_cast<int>(std::min(count(), room() + 1)));
    std::vector<calc::Uncalculated> failed;
    try {
        failed = app_.document.bInvoiceStyle ? storeInvoices() : storeRecords();
    } catch (const core::RunTimeError&) {
        // The boxes of the page may hold what was on its way into a record.
        app_.changes.announce(app_, app::Change::CurrentRecord);
        throw;
    }
    core::RecordsList& list = app::visibleList(app_.document);
    list.MultiSelect = true;
    list.clearSelection();
    const int last = list.count() - (list.totals() == nullptr ? 0 : 1);
    if (last >= 1) list.setSelectedItem(&list.at(last));
    const int added = static_cast<int>(std::min(count(), static_cast<std::size_t>(last)));
    for (int row = last - added + 1; row <= last; ++row) list.at(row).Selected = true;
    app_.changes.announce(app_, app::Change::CurrentRecord);
    return failed;
}

std::vector<calc::Uncalculated> NewRecords::storeRecords() {
    std::vector<std::pair<std::size_t, const Column*>> filled;
    for (std::size_t i = 0; i < sources_.size(); ++i)
        if (sources_[i].target != nullptr) filled.emplace_back(i, sources_[i].target);
    std::vector<const Column*> others;
    for (const Column* column : targets_)
        if (std::ranges::none_of(filled, [&](const auto& pair) { return pair.second == column; }))
            others.push_back(column);
    app::LongWork work(app_, core::tr("Adding the records"), static_cast<int>(count()));
    return entry::addRecords(
        app_, static_cast<int>(count()), [&](int row, std::vector<entry::BoxText>& boxes) {
            work.reached(row);
            if (row == 0) {
                for (const auto& [source, column] : filled) boxes.push_back({column->Text, {}});
                for (const Column* column : others) boxes.push_back({column->Text, {}});
            }
            auto box = boxes.begin();
            for (const auto& [source, column] : filled)
                (box++)->Text = boxText(*column, cell(static_cast<std::size_t>(row), source), nullptr);
            for (const Column* column : others)
                (box++)->Text = calc::proposedValue(app_, column->Text).value_or("");
        });
}

void NewRecords::fillFields(const Column& column, const std::string& text) const {
    const bool isItem = itemColumns_.contains(column.Text);
    const std::vector<std::string_view> values =
        isItem ? itemValues(text) : std::vector<std::string_view>{std::string_view(text)};
    std::size_t row = 0;
    app_.document.layout.layoutField.forEach([&](LayoutField& field) {
        if (field.Tag != column.Text) return;
        field.Text = row < values.size() ? std::string(values[row]) : std::string();
        ++row;
    });
}

std::vector<calc::Uncalculated> NewRecords::storeInvoices() {
    app::LongWork work(app_, core::tr("Adding the invoices"), static_cast<int>(count()));
    return entry::addInvoices(app_, static_cast<int>(count()), [&](int row) {
        work.reached(row);
        for (std::size_t i = 0; i < sources_.size(); ++i)
            if (const Column* column = sources_[i].target)
                fillFields(*column, boxText(*column, cell(static_cast<std::size_t>(row), i), nullptr));
    });
}

} // namespace tables
