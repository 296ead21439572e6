#include "cli/documentCheck.h"

#include "calc/formulas.h"
#include "core/number.h"
#include "core/text.h"
#include "entry/invoiceRecords.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace cli {

namespace {

using core::Column;
using core::Document;

std::string inQuotes(std::string_view text) {
    return '"' + std::string(text) + '"';
}

class DocumentCheck {
public:
    DocumentCheck(const Document& document, const std::set<std::string>& images, const Report& report)
        : document_(document), images_(images), report_(report) {}

    void run() {
        checkColumns();
        checkLists();
        checkFormulas();
        checkLayout();
        checkLocks();
        checkCells();
        if (document_.bInvoiceStyle) checkInvoices();
        for (const std::string& image : images_)
            if (!named_.contains(image)) report_("nothing names the image " + inQuotes(image));
    }

private:
    // The hidden column is no column to the user.
    const Column* find(std::string_view name) const {
        const Column* column = document_.LV.columns.find(name);
        return column == nullptr || column->Index == 1 ? nullptr : column;
    }

    void wantColumn(const std::string& what, std::string_view name) const {
        if (find(name) == nullptr) report_(what + " names " + inQuotes(name) + ", which is no column");
    }

    void wantImage(const std::string& what, std::string_view name) {
        const bool isNew = named_.emplace(name).second;
        if (isNew && !images_.contains(std::string(name)))
            report_(what + " names the image " + inQuotes(name) + ", which is not in the archive");
    }

    void checkColumns() const {
        for (const Column& column : document_.LV.columns)
            if (column.Index != 1 && column.isType(core::ColumnType::None))
                report_("column " + inQuotes(column.Text) + " has the unknown type " + inQuotes(column.Tag));
    }

    void checkLists() const {
        const std::pair<const char*, const core::NamedCollection*> lists[] = {
            {"totaledCols", &document_.totaledCols},
            {"optionedCols", &document_.optionedCols},
            {"printedCols", &document_.printedCols},
            {"prnInvoiceCols", &document_.prnInvoiceCols},
            {"prnItemCols", &document_.prnItemCols}};
        for (const auto& [name, list] : lists)
            for (const auto& entry : *list) wantColumn(name, entry.item);
        document_.SerialsLV.forEach(
            [&](const core::Item& serial) { wantColumn("a serial counter", serial.Text); });
    }

    void checkFormulas() const {
        for (const auto& entry : document_.formulas) {
            const calc::Formula formula(entry.item);
            wantColumn("a formula", formula.name);
            if (formula.isUndefined()) continue;
            const std::string what = "the formula of " + inQuotes(formula.name);
            for (const std::string_view token : formula.tokens()) {
                const bool isName = std::ranges::any_of(
                    token, [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; });
                if (isName && !core::isNumeric(token)) wantColumn(what, token);
            }
        }
    }

    void checkLayout() {
        const core::LayoutObjects& layout = document_.layout;
        layout.layoutField.forEach([&](const core::LayoutField& field) {
            wantColumn("layoutField " + std::to_string(field.Index), field.Tag);
        });
        layout.imgHolder.forEach([&](const core::ImgHolder& holder) {
            const std::string what = "imgHolder " + std::to_string(holder.Index);
            wantColumn(what, holder.Tag);
            const Column* column = find(holder.Tag);
            if (column != nullptr && !column->isType(core::ColumnType::Picture))
                report_(what + " names " + inQuotes(holder.Tag) + ", which is no Picture column");
        });
        layout.clipPic.forEach(
            [&](const core::ClipPic& clip) { wantImage("clipPic " + std::to_string(clip.Index), clip.Tag); });
    }

    bool hasObject(std::string_view family, int index) const {
        const core::LayoutObjects& layout = document_.layout;
        if (family == "layoutField") return layout.layoutField.find(index) != nullptr;
        if (family == "tLabel") return layout.tLabel.find(index) != nullptr;
        if (family == "pbLine") return layout.pbLine.find(index) != nullptr;
        if (family == "vLine") return layout.vLine.find(index) != nullptr;
        if (family == "pBox") return layout.pBox.find(index) != nullptr;
        if (family == "imgHolder") return layout.imgHolder.find(index) != nullptr;
        if (family == "clipPic") return layout.clipPic.find(index) != nullptr;
        return false;
    }

    void checkLocks() const {
        for (const auto& lock : document_.locks) {
            const std::string_view entry = lock.item;
            const std::size_t comma = std::min(entry.find(','), entry.size());
            const double index = comma < entry.size() ? core::val(entry.substr(comma + 1)) : 0;
            constexpr double mostObjects = 1e6;
            if (index < 1 || index > mostObjects ||
                !hasObject(entry.substr(0, comma), static_cast<int>(index)))
                report_("a lock names " + inQuotes(entry) + ", which is not on the layout");
        }
    }

    void checkCells() {
        std::vector<const Column*> pictures;
        for (const Column& column : document_.LV.columns)
            if (column.isType(core::ColumnType::Picture)) pictures.push_back(&column);
        document_.LV.forEach([&](const core::Item& item) {
            if (item.isTotals()) {
                checkTotals(item);
                return;
            }
            for (const Column* column : pictures)
                for (const std::string_view name :
                     core::split(core::RecordsList::cell(item, *column), core::itemSeparator))
                    if (!name.empty()) wantImage(item.Key.str() + " in " + inQuotes(column->Text), name);
        });
    }

    // Cells that the layout cannot hold as they are: whoever stores the invoice there changes them.
    void checkInvoices() const {
        std::map<const Column*, std::size_t> rows; // fields of each column
        document_.layout.layoutField.forEach([&](const core::LayoutField& field) {
            const Column* column = find(field.Tag);
            if (column != nullptr && !column->isType(core::ColumnType::Calculation)) ++rows[column];
        });
        for (const Column& column : document_.LV.columns) {
            const auto found = rows.find(&column);
            if (found == rows.end()) continue;
            document_.LV.forEach([&](const core::Item& item) {
                if (item.isTotals()) return;
                const std::string cell = core::RecordsList::cell(item, column).str();
                const std::string becomes = found->second == 1 ? entry::invoiceCell(column, cell)
                                                               : storedItems(column, cell, found->second);
                if (becomes != cell)
                    report_(item.Key.str() + " in " + inQuotes(column.Text) + ": " + inQuotes(cell) +
                            " becomes " + inQuotes(becomes) + " when the layout stores it");
            });
        }
    }

    // What of the values of item rows comes out of so many fields. Slots that nothing stands in do not count.
    static std::string storedItems(const Column& column, const std::string& cell, std::size_t rows) {
        std::vector<std::string_view> values = core::split(cell, core::itemSeparator);
        if (values.size() == 1 || values.back().empty()) values.pop_back(); // no value of a row
        std::string stored;
        for (std::size_t row = 0; row < values.size(); ++row)
            if (row < rows || values[row].empty())
                stored += entry::itemValue(column, std::string(values[row])) + core::itemSeparator;
        return stored;
    }

    // The last row counts as the Totals row whatever it holds, so a file that a simple tool wrote
    // without one has lost its last record. It shows in the columns that are never summed.
    void checkTotals(const core::Item& totals) const {
        for (const Column& column : document_.LV.columns) {
            if (column.Index == 1 || column.isNumeric()) continue;
            const std::string_view cell = core::RecordsList::cell(totals, column);
            if (cell.empty() || cell == core::noSum || cell == core::multiValueSum) continue;
            report_("the last row is no Totals row: it has " + inQuotes(cell) + " in " +
                    inQuotes(column.Text));
            return;
        }
    }

    const Document& document_;
    const std::set<std::string>& images_;
    const Report& report_;
    std::set<std::string> named_; // images that something names
};

} // namespace

void checkDocument(const Document& document, const std::set<std::string>& images, const Report& report) {
    DocumentCheck(document, images, report).run();
}

} // namespace cli
