#include "print/reportFit.h"

#include "core/number.h"
#include "core/translate.h"
#include "print/margins.h"
#include "print/previewPage.h"
#include "print/reportColumns.h"

#include <algorithm>
#include <cmath>

namespace print {

namespace {

using core::RecordsList;

constexpr float widest = 32'000; // a column's width has 16 bits in print

// How many characters the longest text of a column has, if one is longer than the column.
class LongestTexts {
public:
    explicit LongestTexts(const std::vector<ReportColumn>& columns, float character) {
        for (const ReportColumn& entry : columns) {
            if (!entry.isPrinted) continue;
            const auto inWidth = static_cast<std::size_t>(std::max(entry.width, 0) / character);
            columns_.push_back({&entry, entry.isNumeric ? inWidth : entry.characters});
            columns_.back().look(entry.column->Text);
        }
    }

    // That a column has no sum says the cut sign as well.
    void look(const core::Item& item) {
        for (Looked& looked : columns_) {
            const std::string_view text = RecordsList::cell(item, *looked.entry->column).view();
            if (!item.isTotals() || (text != core::noSum && text != core::multiValueSum)) looked.look(text);
        }
    }

    struct Looked {
        const ReportColumn* entry;
        std::size_t room;
        std::size_t longest = 0;

        void look(std::string_view text) {
            if (text.size() <= room || text.size() <= longest) return;
            const std::size_t length = core::length(text);
            if (length > room) longest = std::max(longest, length);
        }
    };
    const std::vector<Looked>& columns() const { return columns_; }

private:
    std::vector<Looked> columns_;
};

std::string listed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        if (!text.empty()) text.append(", ");
        text.append(name);
    }
    return text;
}

} // namespace

bool ReportFit::canWiden() const {
    return std::ranges::any_of(narrow, [](const NarrowColumn& each) { return each.width > each.present; });
}

std::string ReportFit::text() const {
    std::string text;
    std::vector<std::string> names;
    for (const NarrowColumn& each : narrow) {
        names.push_back(core::fill(core::tr("%1 (%2 of %3 characters)"),
                                   {each.name, std::to_string(each.shown), std::to_string(each.longest)}));
    }
    if (!names.empty()) text = core::fill(core::tr("Too narrow for the longest text: %1."), {listed(names)});
    if (beyond.empty()) return text;
    if (!text.empty()) text.append(" ");
    return text.append(core::fill(core::tr("Over the edge of the paper: %1."), {listed(beyond)}));
}

ReportFit fitOf(app::App& app, RecordsList& theList) {
    const std::vector<ReportColumn> columns = reportColumns(app.document, theList);
    drawing::TextFont font;
    font.FontName = "Courier New";
    font.FontSize = 10;
    const float character = std::max(app.platform.textMetrics().textWidth(font, "0"), 1.0F);
    LongestTexts texts(columns, character);
    const bool bSelectedOnly = previewPage(app).bReportSelectedOnly;
    theList.forEach([&](const core::Item& item) {
        if (!bSelectedOnly || item.Selected) texts.look(item);
    });

    const core::ReportData& settings = app.document.reportData;
    const auto paper = static_cast<float>(reportPage(app).Width);
    const auto twips = [](float inches) { return static_cast<float>(inches * twipsPerInch); };
    const float room =
        paper - twips(settings.reportLeftMargin) - twips(settings.reportRightMargin) - columnGap;
    ReportFit fit;
    float x = twips(settings.reportLeftMargin);
    for (const LongestTexts::Looked& looked : texts.columns()) {
        const ReportColumn& entry = *looked.entry;
        x += columnGap + (entry.isNumeric ? static_cast<float>(entry.width)
                                          : static_cast<float>(entry.characters) * character);
        if (x > paper) fit.beyond.push_back(entry.column->Text);
        if (looked.longest == 0) continue;
        const float most = std::max(std::floor(room / character), 1.0F);
        const float wanted = std::min(static_cast<float>(looked.longest), most);
        const float each = entry.isNumeric ? character : static_cast<float>(twipsPerCharacter);
        const float width = std::max(std::min(std::ceil(wanted * each), widest), entry.column->Width);
        fit.narrow.push_back({entry.column->Text, static_cast<int>(looked.room),
                              static_cast<int>(looked.longest), width, entry.column->Width});
    }
    return fit;
}

void widenColumns(app::App& app, RecordsList& theList, const ReportFit& fit) {
    core::Document& document = app.document;
    RecordsList& source = document.bInvoiceStyle ? document.iLV : document.LV;
    for (const NarrowColumn& each : fit.narrow)
        for (RecordsList* list : {&theList, &source})
            if (core::Column* column = list->columns.find(each.name))
                column->Width = std::max(column->Width, each.width);
    if (fit.canWiden()) app::setDocumentModified(app, true);
}

void Widen_Click(app::App& app) {
    widenColumns(app, reportList(app), previewFit(app));
    showReportAnew(app);
}

} // namespace print
