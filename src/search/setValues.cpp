#include "search/setValues.h"

#include "app/hourglass.h"
#include "calc/invoiceCalculation.h"
#include "calc/itemColumns.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "entry/editRecord.h"
#include "entry/invoiceRecords.h"
#include "search/searchMode.h"

namespace search {

using app::App;
using core::Column;
using core::ColumnType;
using core::Document;
using core::Item;
using core::RecordsList;

namespace {

[[noreturn]] void refuse(const std::string& reason) {
    throw core::RunTimeError(core::errors::typeMismatch, reason);
}

bool holdsTexts(const Column& column) {
    return column.isType(ColumnType::Text) || column.isType(ColumnType::Date);
}

// What the layout's rows of an invoice type into has no one value that an expression could take.
std::optional<std::string> itemColumnIn(const Document& document, std::string_view expression) {
    if (!document.bInvoiceStyle) return std::nullopt;
    const calc::ItemColumns items(document);
    for (const std::string_view word : core::split(expression, ' ')) {
        const Column* column = document.LV.columns.find(word);
        if (column != nullptr && items.contains(column->Text))
            return core::fill(core::tr("\"%1\" has a value for each item row"), {column->Text});
    }
    return std::nullopt;
}

std::optional<std::string> calculate(App& app, calc::RowCalculator& formulas, Item& record) {
    if (!app.document.bInvoiceStyle) return formulas.tryCalculate(record);
    return calc::tryCalculateInvoice(app.document, app.document.LV, app.document.LV.indexOf(record));
}

} // namespace

std::optional<std::string> whyNotSettable(const Document& document, const Column& column) {
    const std::string& name = column.Text;
    if (column.isType(ColumnType::Calculation))
        return core::fill(core::tr("\"%1\" is calculated and takes no value"), {name});
    if (column.isType(ColumnType::Picture))
        return core::fill(core::tr("\"%1\" holds pictures, which are chosen on the layout page"), {name});
    if (document.bInvoiceStyle && calc::ItemColumns(document).contains(column.Text))
        return core::fill(
            core::tr("\"%1\" has a value for each item row, which are typed on the layout page"), {name});
    return std::nullopt;
}

ValueMaker::ValueMaker(App& app, const NewValue& value) : app_(app), value_(value) {
    column_ = &app.document.LV.columns[value.column];
    fault_ = whyNotSettable(app.document, *column_);
    if (fault_) return;
    if (value.isExpression) {
        prepareExpression();
        return;
    }
    try {
        const std::string text = checked(value.text);
        cell_ = app.document.bInvoiceStyle ? entry::invoiceCell(*column_, text)
                                           : entry::cellText(column_->type(), text);
    } catch (const core::RunTimeError& error) {
        fault_ = error.what();
    }
}

void ValueMaker::prepareExpression() {
    const RecordsList& records = app_.document.LV;
    const std::string_view text = core::trim(value_.text);
    if (text.empty()) {
        fault_ = core::tr("There is no expression");
        return;
    }
    const Column* named = records.columns.find(text);
    if (named != nullptr && named->Index != 1 && holdsTexts(*column_)) {
        copied_ = named;
        fault_ = itemColumnIn(app_.document, text);
    } else if (column_->isType(ColumnType::Date)) {
        fault_ = core::tr("A date is set to a date or to a column of dates, and cannot be worked out");
    } else if ((fault_ = calc::faultOf(value_.text, records)) == std::nullopt) {
        fault_ = itemColumnIn(app_.document, value_.text);
        if (!fault_) expression_.emplace(value_.text, records);
    }
}

// What the boxes of the window ask while one types, where they would keep the text all the same.
std::string ValueMaker::checked(std::string text) const {
    const bool isEmpty = core::trim(text).empty();
    const ColumnType type = column_->type();
    const bool isAmount = type == ColumnType::Currency || type == ColumnType::Number;
    if (isAmount && !isEmpty && !core::isNumeric(text))
        refuse(core::fill(core::tr("\"%1\" is no number"), {text}));
    if (type == ColumnType::Date && !isEmpty && !core::isDate(text, app_.platform.today()))
        refuse(core::fill(core::tr("\"%1\" is no date"), {text}));
    return isEmpty && isAmount ? std::string() : text;
}

std::string ValueMaker::workedOut(const Item& record) {
    expression_->read(record);
    const double result = expression_->value();
    switch (column_->type()) {
    case ColumnType::Currency:
        return core::format(result, core::Mask::Money);
    case ColumnType::Number:
        return core::numberText(result); // with the sign of money the totals would not read it
    default:
        return calc::resultText(result, expression_->isMoney());
    }
}

std::string ValueMaker::cellFor(const Item& record) {
    if (fault_) refuse(*fault_);
    if (copied_ != nullptr) return checked(RecordsList::cell(record, *copied_).str());
    return expression_ ? workedOut(record) : cell_;
}

SetOutcome setValues(App& app, ValueMaker& maker, const std::vector<Item*>& records) {
    SetOutcome outcome;
    const app::Hourglass hourglass(app);
    std::vector<core::CellText> cells; // all of them are made before the first is written
    cells.reserve(records.size());
    for (const Item* record : records) {
        try {
            cells.emplace_back(maker.cellFor(*record));
        } catch (const core::RunTimeError& error) {
            outcome.refused = record;
            outcome.reason = error.what();
            return outcome;
        }
    }
    RecordsList& list = app.document.LV;
    const core::TotalsRowUpdater totals(app.document, list);
    calc::RowCalculator formulas(app, list);
    for (std::size_t i = 0; i < records.size(); ++i) {
        Item& record = *records[i];
        core::CellText& cell = RecordsList::cell(record, maker.column());
        if (cell == cells[i]) continue;
        ++outcome.changed;
        totals.update(core::TotalsMode::Subtract, record);
        cell = std::move(cells[i]);
        if (const auto reason = calculate(app, formulas, record))
            outcome.uncalculated.push_back({record.Key.str(), *reason});
        totals.update(core::TotalsMode::Add, record);
    }
    if (outcome.changed == 0) return outcome;
    app::setDocumentModified(app, true);
    app.changes.announce(app, app::Change::Values);
    refreshResults(app, maker.column().Text);
    return outcome;
}

} // namespace search
