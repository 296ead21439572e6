#include "print/reportSheets.h"

#include "core/dates.h"
#include "core/number.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "print/margins.h"
#include "print/previewNavigation.h"
#include "print/previewPage.h"
#include "print/previewPlace.h"
#include "print/progress.h"
#include "print/reportPlan.h"

#include <algorithm>
#include <utility>

namespace print {

namespace {

using core::RecordsList;
using drawing::DrawTarget;
using Entry = ReportPlan::Entry;
using Kind = ReportPlan::Kind;

class SheetsOfReport {
public:
    SheetsOfReport(app::App& app, DrawTarget& target, RecordsList& theList, const ReportChoices& choices)
        : app_(app), document_(app.document), target_(target), theList_(theList), choices_(choices),
          columns_(reportColumns(app.document, theList)) {}

    void draw();

private:
    void measure();
    void measureColumns();
    void drawSheet(std::size_t number);
    void drawTop(std::size_t number);
    void drawFoot(std::size_t number);
    void drawEntry(std::size_t sheet, Entry entry, bool isFirst);
    void drawHeading(const std::string& heading, bool isContinued, bool isFirst);
    void drawSums(const ReportPlan::Sums& sums, bool isRuled);
    void drawTotals();
    void drawRow(const core::Item& item) {
        printReportLine(document_, target_, columns_, [&](const ReportColumn& column) {
            return fittingText(column, RecordsList::cell(item, *column.column).view());
        });
    }
    void drawRule();
    void goTo(float y) {
        target_.CurrentX = left_;
        target_.CurrentY = y;
    }
    // The totals of all sheets up to this one.
    ReportPlan::Sums soFar(const char* label, std::size_t sheet) const {
        return {core::tr(label), measures_.sumsLabel > measures_.labelRoom, plan_.sheets[sheet].carried};
    }
    const core::ReportData& settings() const { return document_.reportData; }

    app::App& app_;
    core::Document& document_;
    DrawTarget& target_;
    RecordsList& theList_;
    const ReportChoices& choices_;
    std::vector<ReportColumn> columns_;
    std::vector<float> starts_; // X of each column
    SheetMeasures measures_;
    ReportPlan plan_;
    float left_ = 0, right_ = 0, top_ = 0, bottom_ = 0, foot_ = 0;
};

// The foot stands in the lower margin, or above what a printer leaves free where that is too narrow.
void SheetsOfReport::measure() {
    const auto twips = [](float inches) { return static_cast<float>(inches * twipsPerInch); };
    target_.FontSize = 10;
    target_.FontName = "Courier New";
    const float line = target_.TextHeight("NULL");
    left_ = twips(settings().reportLeftMargin);
    right_ = target_.Width - twips(settings().reportRightMargin);
    top_ = twips(settings().reportTopMargin);
    if (!settings().reportTitle.empty()) top_ = std::max(top_, top_ / 2 + line);
    bottom_ = target_.Height - twips(settings().reportBottomMargin);
    if (choices_.pageNumbers || choices_.date) {
        foot_ = std::min(bottom_ + line,
                         target_.Height - std::max(target_.unprintable().bottom, customaryEdge) - line);
        bottom_ = std::min(bottom_, foot_ - line / 2);
    }
    measures_.line = line;
    measures_.headings = line + 2 * ruleGap;
    measures_.room = bottom_ - top_;
    measureColumns();
}

void SheetsOfReport::measureColumns() {
    measures_.character = target_.TextWidth("0");
    const std::size_t longest =
        std::max(core::length(core::tr(carriedLabel)), core::length(core::tr(broughtLabel)));
    measures_.sumsLabel = static_cast<float>(longest) * measures_.character;
    float x = left_;
    measures_.labelRoom = 0;
    bool isBeforeSums = true;
    for (const ReportColumn& entry : columns_) {
        if (entry.isPrinted) x += columnGap;
        starts_.push_back(x);
        if (!entry.isPrinted) continue;
        const bool isSum = entry.isNumeric && core::isTotaledColumn(document_, entry.column->Text);
        isBeforeSums = isBeforeSums && !isSum;
        x += entry.isNumeric ? static_cast<float>(entry.width)
                             : static_cast<float>(entry.characters) * measures_.character;
        if (isBeforeSums) measures_.labelRoom = x - left_ - columnGap;
    }
}

void SheetsOfReport::drawTop(std::size_t number) {
    if (number > 0 && !choices_.heads) return goTo(top_);
    const int width = core::toInt16(static_cast<double>(right_) - static_cast<double>(left_));
    target_.CurrentY = static_cast<float>(settings().reportTopMargin * twipsPerInch) / 2;
    printTitleCentred(target_, left_, width, settings().reportTitle);
    goTo(top_);
    target_.FontBold = settings().bReportBoldHeaders;
    printReportLine(document_, target_, columns_,
                    [](const ReportColumn& column) { return fittingText(column, column.column->Text); });
    target_.FontBold = false;
    drawRule();
}

void SheetsOfReport::drawRule() {
    target_.CurrentY += ruleGap;
    target_.Line(0, target_.CurrentY, target_.Width, target_.CurrentY);
    goTo(target_.CurrentY + ruleGap);
}

void SheetsOfReport::drawFoot(std::size_t number) {
    if (choices_.date) {
        const std::chrono::year_month_day today = app_.platform.today();
        goTo(foot_);
        target_.Print(core::formatDate(static_cast<int>(today.year()), static_cast<unsigned>(today.month()),
                                       static_cast<unsigned>(today.day())),
                      false);
    }
    if (!choices_.pageNumbers) return;
    const std::string text =
        core::fill(core::tr("%1 of %2"), {std::to_string(number + 1), std::to_string(plan_.sheets.size())});
    target_.CurrentX = std::max(right_ - target_.TextWidth(text), left_);
    target_.CurrentY = foot_;
    target_.Print(text, false);
}

// One that is too long for the sheet is cut, as the texts of columns are.
void SheetsOfReport::drawHeading(const std::string& heading, bool isContinued, bool isFirst) {
    const std::string text = isContinued ? core::fill(core::tr("%1 (continued)"), {heading}) : heading;
    const float most = std::max((target_.Width - left_) / std::max(measures_.character, 1.0F), 0.0F);
    goTo(target_.CurrentY + (isFirst ? 0 : measures_.line / 2));
    target_.FontBold = true;
    target_.Print(core::left(text, static_cast<std::size_t>(most)), true);
    target_.FontBold = false;
    goTo(target_.CurrentY);
}

// A line over each sum says what it is the sum of.
void SheetsOfReport::drawSums(const ReportPlan::Sums& sums, bool isRuled) {
    if (sums.ownLine) {
        goTo(target_.CurrentY);
        target_.CurrentX += columnGap;
        target_.Print(sums.label, true);
    }
    const float rule = target_.CurrentY + ruleGap;
    target_.CurrentY = rule + ruleGap;
    if (!sums.ownLine) {
        target_.CurrentX = left_ + columnGap;
        target_.Print(sums.label, false);
    }
    for (std::size_t place = 0; place < sums.texts.size(); ++place) {
        const std::string& text = sums.texts[place];
        if (text.empty()) continue;
        const float width = std::max(static_cast<float>(columns_[place].width), target_.TextWidth(text));
        const float y = target_.CurrentY;
        if (isRuled) target_.Line(starts_[place], rule, starts_[place] + width, rule);
        target_.CurrentX = starts_[place] + width - target_.TextWidth(text);
        target_.CurrentY = y;
        target_.Print(text, false);
    }
    target_.Print({}, true);
    goTo(target_.CurrentY);
}

void SheetsOfReport::drawTotals() {
    if (previewPage(app_).bReportSelectedOnly) {
        printSelectedTotals(document_, target_, theList_);
    } else if (const core::Item* totals = theList_.totals()) {
        drawRule();
        drawRow(*totals);
    }
}

void SheetsOfReport::drawEntry(std::size_t sheet, Entry entry, bool isFirst) {
    const auto number = static_cast<std::size_t>(entry.number);
    switch (entry.kind) {
    case Kind::Row:
        return drawRow(theList_.at(entry.number));
    case Kind::Heading:
    case Kind::Continued:
        return drawHeading(plan_.groups[number].heading, entry.kind == Kind::Continued, isFirst);
    case Kind::Subtotal:
        return drawSums(plan_.groups[number].subtotal, true);
    case Kind::Brought:
        return drawSums(soFar(broughtLabel, sheet - 1), false);
    case Kind::Carried:
        return drawSums(soFar(carriedLabel, sheet), true);
    case Kind::Totals:
        return drawTotals();
    }
}

void SheetsOfReport::drawSheet(std::size_t number) {
    drawTop(number);
    bool isFirst = true;
    for (const Entry entry : plan_.sheets[number].entries)
        drawEntry(number, entry, std::exchange(isFirst, false));
    drawFoot(number);
}

void SheetsOfReport::draw() {
    app_.platform.printerDeviceName(); // raises without a printer, for a preview too
    usePage(app_, target_, reportPage(app_));
    measure();
    plan_ = planReport(app_, theList_, columns_, choices_, measures_);
    target_.bOneSheet = true; // the plan says where a sheet ends
    PreviewPage& page = previewPage(app_);
    const int sheets = static_cast<int>(plan_.sheets.size());
    if (!target_.isPrinter()) {
        page.iReportLinesPerPage = 1;
        page.iReportPageStart = std::clamp(page.iReportStartRow, 1, sheets);
        drawSheet(static_cast<std::size_t>(page.iReportPageStart) - 1);
        page.iReportStartRow = page.iReportPageStart == sheets ? 1 : page.iReportPageStart + 1;
        notePage(app_, page.iReportPageStart, sheets);
        drawMarginGuides(target_,
                         {left_, right_, static_cast<float>(settings().reportTopMargin * twipsPerInch),
                          target_.Height - static_cast<float>(settings().reportBottomMargin * twipsPerInch)});
        target_.bOneSheet = false;
        return;
    }
    Progress progress(app_, theList_.count());
    int drawn = 0;
    for (std::size_t number = 0; number < plan_.sheets.size(); ++number) {
        if (number > 0) target_.NewPage();
        drawSheet(number);
        drawn += static_cast<int>(plan_.sheets[number].entries.size());
        progress.reached(std::min(drawn, theList_.count()));
    }
    page.iReportStartRow = 1;
    target_.EndDoc();
    target_.bOneSheet = false;
}

} // namespace

ReportChoices reportChoices(const app::App& app, const RecordsList& theList) {
    ReportChoices choices = reportChoices(app);
    const core::Column* by = theList.columns.find(choices.groupColumn);
    if (by == nullptr || by->Index == 1) choices.groupColumn.clear();
    return choices;
}

void drawReportSheets(app::App& app, DrawTarget& target, RecordsList& theList, const ReportChoices& choices) {
    SheetsOfReport(app, target, theList, choices).draw();
}

} // namespace print
