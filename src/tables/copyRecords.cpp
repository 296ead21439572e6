#include "tables/copyRecords.h"

#include "app/hourglass.h"
#include "app/windowState.h"
#include "core/text.h"
#include "exchange/csvWriter.h"
#include "exchange/textRows.h"

#include <algorithm>

namespace tables {

namespace {

using core::Column;
using core::Item;
using core::RecordsList;

// Spreadsheets take a text for a number, a date or an expression where it looks like one, and "00123" would
// come back as 123. Each of them has its own word for "this is text".
constexpr std::string_view asText = R"( sdnum="0;0;@" style="mso-number-format:'\@'")";

class TableCopy {
public:
    explicit TableCopy(const RecordsList& list) {
        html_ = "<meta http-equiv=\"content-type\" content=\"text/html; charset=utf-8\">\n<table>\n";
        for (const int index : list.columns.displayOrder())
            if (index > 1) columns_.push_back(&list.columns.at(index));
    }

    void headings() {
        html_ += "<tr>";
        for (const Column* column : columns_) {
            tabbed_.cell(column->Text);
            html_ += "<th>";
            exchange::appendHtmlText(html_, column->Text);
            html_ += "</th>";
        }
        endRow();
    }

    void row(const Item& item) {
        html_ += "<tr>";
        for (const Column* column : columns_) {
            const std::string_view cell = RecordsList::cell(item, *column);
            tabbed_.cell(cell);
            html_ += "<td";
            if (column->align == core::Alignment::Right) html_ += " align=\"right\"";
            const bool looksOther =
                !cell.empty() && (core::isDigit(cell.front()) ||
                                  std::string_view("+-=.,($").find(cell.front()) != std::string_view::npos);
            if (column->isType(core::ColumnType::Text) && looksOther) html_ += asText;
            html_ += '>';
            exchange::appendHtmlText(html_, cell);
            html_ += "</td>";
        }
        endRow();
    }

    void toClipboard(app::App& app) {
        html_ += "</table>\n";
        app.platform.setClipboard({text_, html_, {}});
    }

private:
    void endRow() {
        tabbed_.endLine();
        html_ += "</tr>\n";
    }

    std::vector<const Column*> columns_; // as they stand on screen
    std::string text_, html_;
    exchange::CsvWriter tabbed_{text_, "\t\"\r\n", '\t'};
};

void copySelected(app::App& app, bool withHeadings) {
    const RecordsList& list = app::visibleList(app.document);
    // The sums come along only when they are meant alone: who takes all records wants to paste them
    // elsewhere.
    bool isAny = false, isRecord = false;
    list.forEach([&](const Item& item) {
        isAny |= item.Selected;
        isRecord |= item.Selected && !item.isTotals();
    });
    if (!isAny) return;
    const app::Hourglass hourglass(app);
    TableCopy copy(list);
    if (withHeadings) copy.headings();
    list.forEach([&](const Item& item) {
        if (item.Selected && !(isRecord && item.isTotals())) copy.row(item);
    });
    copy.toClipboard(app);
}

} // namespace

void mnuCopy_Click(app::App& app) {
    copySelected(app, false);
}

void mnuCopyHeadings_Click(app::App& app) {
    copySelected(app, true);
}

} // namespace tables
