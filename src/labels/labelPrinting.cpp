#include "labels/labelPrinting.h"

#include "app/longWork.h"
#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"
#include "entry/retrieveData.h"
#include "layout/sheet.h"
#include "print/layoutPrinting.h"
#include "print/margins.h"
#include "print/previewNavigation.h"
#include "print/previewPage.h"
#include "print/previewPlace.h"
#include "print/stockLabels.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <numbers>
#include <optional>
#include <vector>

namespace labels {

using app::App;
using drawing::DrawTarget;
using print::PreviewPage;
using print::previewPage;
using print::twipsPerInch;

namespace {

// Nothing for what asks for no label.
int copiesIn(const core::Item& record, const core::Column* column, const LabelChoice& choice, int& cut) {
    if (choice.copiesColumn.empty()) return choice.copies;
    if (column == nullptr) return 0;
    const double wanted = core::val(core::trim(core::RecordsList::cell(record, *column).view()));
    if (!(wanted >= 1)) return 0; // written so that what is no number is none
    if (wanted <= LabelChoice::mostCopies) return static_cast<int>(wanted);
    ++cut;
    return LabelChoice::mostCopies;
}

// One run of printLabels.
class LabelRun {
public:
    LabelRun(App& app, DrawTarget& target, const LabelChoice& choice)
        : app_(app), target_(target), choice_(choice), list_(*app.mainFrm.theListView),
          copies_(countLabels(app, choice, previewPage(app).bLayoutSelectedOnly)) {}

    bool print();

private:
    void usePaper();
    bool tellWhetherPossible();
    void printSheet(app::LongWork* work);
    void printPlace(long label, int place);
    void drawOutlines(drawing::LineStyle style);

    App& app_;
    DrawTarget& target_;
    const LabelChoice& choice_;
    core::RecordsList& list_;
    LabelCopies copies_;
    float left_ = 0, top_ = 0; // the margins' corner, where the designed label has its own
    int shown_ = 0;            // the row whose record the layout holds
};

void LabelRun::usePaper() {
    const core::LayoutOptions& options = app_.document.layoutOptions;
    const drawing::Extent extent = layout::pageExtent(app_);
    print::usePage(app_, target_,
                   {options.layoutPaperSize, options.layoutOrientation, extent.Width, extent.Height});
    left_ = static_cast<float>(core::toInt32(options.layoutLeftMargin * twipsPerInch));
    top_ = static_cast<float>(core::toInt32(options.layoutTopMargin * twipsPerInch));
    PreviewPage& page = previewPage(app_);
    page.iLayoutCols = core::toInt16(choice_.stock.columns);
    page.iLayoutRows = core::toInt16(choice_.stock.rows);
    page.iLayoutsPerPage = core::toInt16(choice_.stock.perSheet());
}

bool LabelRun::tellWhetherPossible() {
    if (copies_.labels() == 0) {
        app::inform(
            app_, choice_.copiesColumn.empty()
                      ? core::tr("There are no records to print on labels.")
                      : core::tr("There is nothing to print: no record has a number of copies above 0 in the "
                                 "column that says how many."));
        return false;
    }
    if (copies_.labels() <= LabelChoice::mostLabels) return true;
    app::inform(
        app_,
        core::fill(
            core::tr("That would be %1 labels.  At most %2 are printed at a time.  Select fewer records."),
            {std::to_string(copies_.labels()), std::to_string(LabelChoice::mostLabels)}));
    return false;
}

void LabelRun::printPlace(long label, int place) {
    const auto at = std::ranges::upper_bound(copies_.ends, label) - copies_.ends.begin();
    const int row = copies_.rows[static_cast<std::size_t>(at)];
    if (row != shown_) print::showRecordOf(app_, list_, row);
    shown_ = row;
    const LabelStock::Position corner = choice_.stock.position(place);
    const float left = static_cast<float>(corner.left), top = static_cast<float>(corner.top);
    drawLabel(app_, app_.document.layout, target_, left - left_, top - top_, choice_.bClosedUp,
              left + static_cast<float>(choice_.stock.width));
}

// The page that iLayoutIndex stands on, and moves it on to the next.
void LabelRun::printSheet(app::LongWork* work) {
    int& iLayoutIndex = previewPage(app_).iLayoutIndex;
    const int perSheet = choice_.stock.perSheet(), used = choice_.start - 1;
    const int all = labelSheets(choice_, copies_) * perSheet;
    const int first = iLayoutIndex >= all ? 0 : std::max(iLayoutIndex, 0) / perSheet * perSheet;
    iLayoutIndex = first + perSheet;
    if (choice_.bOutlines)
        drawOutlines(drawing::LineStyle::Solid);
    else if (!target_.isPrinter())
        drawOutlines(drawing::LineStyle::Dotted); // as the guides of other previews
    for (int place = 1; place <= perSheet; ++place) {
        const long label = static_cast<long>(first) + place - 1 - used; // from 0
        if (label < 0) continue;
        if (label >= copies_.labels()) break;
        printPlace(label, place);
        if (work != nullptr) work->reached(static_cast<int>(label));
    }
}

void LabelRun::drawOutlines(drawing::LineStyle style) {
    for (int place = 1; place <= choice_.stock.perSheet(); ++place) {
        const LabelStock::Position corner = choice_.stock.position(place);
        drawOutline(choice_.stock, target_, static_cast<float>(corner.left), static_cast<float>(corner.top),
                    style);
    }
    target_.DrawStyle = drawing::LineStyle::Solid;
}

// Each label makes its record the current one; the user finds his records selected as they were.
class SelectionKept {
public:
    SelectionKept(App& app, core::RecordsList& list)
        : app_(app), list_(list), current_(list.selectedItem()), isMulti_(list.MultiSelect),
          isCurrentSelected_(current_ != nullptr && current_->Selected) {
        list.forEach([&](core::Item& item) {
            if (item.Selected) selected_.push_back(&item);
        });
    }
    SelectionKept(const SelectionKept&) = delete;
    SelectionKept& operator=(const SelectionKept&) = delete;
    ~SelectionKept() {
        list_.clearSelection();
        list_.MultiSelect = true;
        for (core::Item* item : selected_) list_.setSelectedItem(item);
        list_.setSelectedItem(current_);
        if (current_ != nullptr) current_->Selected = isCurrentSelected_;
        list_.MultiSelect = isMulti_;
        try {
            entry::showRecord(app_);
        } catch (const std::exception&) { // the sheet shows the last label then
            return;
        }
    }

private:
    App& app_;
    core::RecordsList& list_;
    core::Item* current_;
    std::vector<core::Item*> selected_;
    bool isMulti_, isCurrentSelected_;
};

bool LabelRun::print() {
    std::optional<SelectionKept> kept;
    if (target_.isPrinter()) kept.emplace(app_, list_);
    usePaper();
    if (!list_.MultiSelect) list_.clearSelection();
    if (!tellWhetherPossible()) {
        if (!target_.isPrinter()) drawOutlines(drawing::LineStyle::Dotted);
        return false;
    }
    target_.bOneSheet = true;
    const entry::ManyRecordsShown many(app_);
    if (target_.isPrinter()) {
        app::LongWork work(app_, core::tr("Printing labels"), static_cast<int>(copies_.labels()));
        const int sheets = labelSheets(choice_, copies_);
        for (int sheet = 1; sheet <= sheets; ++sheet) {
            if (sheet > 1) target_.NewPage();
            printSheet(&work);
        }
        target_.EndDoc();
    } else {
        printSheet(nullptr);
        print::notePage(app_, previewPage(app_).iLayoutIndex / choice_.stock.perSheet(),
                        labelSheets(choice_, copies_));
    }
    if (previewPage(app_).bLayoutSelectedOnly) {
        list_.MultiSelect = true;
        for (const int row : app_.mainFrm.selectedRows)
            if (row <= list_.count()) list_.setSelectedItem(&list_.at(row));
    }
    return true;
}

} // namespace

LabelCopies countLabels(const App& app, const LabelChoice& choice, bool bSelectedOnly) {
    LabelCopies copies;
    const core::RecordsList& list = *app.mainFrm.theListView;
    const core::Column* column = app.document.LV.columns.find(choice.copiesColumn);
    const auto add = [&](int row, const core::Item& record) {
        if (record.isTotals()) return;
        const int labels = copiesIn(record, column, choice, copies.cut);
        if (labels == 0) {
            ++copies.without;
            return;
        }
        copies.rows.push_back(row);
        copies.ends.push_back(copies.labels() + labels);
    };
    if (bSelectedOnly) {
        for (const int row : app.mainFrm.selectedRows)
            if (row >= 1 && row <= list.count()) add(row, list.at(row));
    } else {
        int row = 0;
        list.forEach([&](const core::Item& record) { add(++row, record); });
    }
    return copies;
}

int labelSheets(const LabelChoice& choice, const LabelCopies& copies) {
    const long perSheet = std::max(choice.stock.perSheet(), 1);
    return static_cast<int>((choice.start - 1 + copies.labels() + perSheet - 1) / perSheet);
}

std::string aboutLabels(const LabelChoice& choice, const LabelCopies& copies) {
    if (copies.labels() > LabelChoice::mostLabels)
        return core::fill(core::tr("%1 labels: too many to print at a time, which are %2 at most."),
                          {std::to_string(copies.labels()), std::to_string(LabelChoice::mostLabels)});
    const int labels = static_cast<int>(copies.labels()), sheets = labelSheets(choice, copies);
    // How many labels on how many sheets.
    std::string text = core::fill(core::tr("%1 on %2."), {core::tr("%n label", "%n labels", labels),
                                                          core::tr("%n sheet", "%n sheets", sheets)});
    if (copies.without > 0)
        text.append("  ").append(core::tr("%n record has no number above 0 there: no label.",
                                          "%n records have no number above 0 there: no label.",
                                          copies.without));
    if (copies.cut > 0)
        text.append("  ").append(
            core::fill(core::tr("%n record asks for more than %1, which is the most.",
                                "%n records ask for more than %1, which is the most.", copies.cut),
                       {std::to_string(LabelChoice::mostCopies)}));
    return text;
}

bool printLabels(App& app, DrawTarget& target, const LabelChoice& choice) {
    return LabelRun(app, target, choice).print();
}

void printOnStocks(App& app) {
    print::StockLabels& labels = print::stockLabels(app);
    labels.print = [](App& each, DrawTarget& target) -> std::optional<bool> {
        const auto choice = labelChoice(each);
        if (!choice) return std::nullopt;
        return printLabels(each, target, *choice);
    };
    labels.place = placeLabels;
}

bool placeLabels(App& app, std::string_view key) {
    const auto choice = labelChoice(app);
    if (!choice) return false;
    PreviewPage& page = previewPage(app);
    const LabelCopies copies = countLabels(app, *choice, page.bLayoutSelectedOnly);
    const int perSheet = choice->stock.perSheet(), all = labelSheets(*choice, copies) * perSheet;
    int& iLayoutIndex = page.iLayoutIndex;
    if (key == "First" || (key == "Next" && iLayoutIndex >= all)) iLayoutIndex = 0;
    if (key == "Back") iLayoutIndex = std::max(iLayoutIndex - 2 * perSheet, 0);
    if (key == "Last") iLayoutIndex = std::max(all - perSheet, 0);
    app.mainFrm.theListView->MultiSelect = false;
    return true;
}

void drawOutline(const LabelStock& stock, DrawTarget& target, float left, float top,
                 drawing::LineStyle style) {
    constexpr std::int32_t grey = 0x808080;
    target.ForeColor = grey;
    target.DrawWidth = 1;
    target.DrawStyle = style;
    const float width = static_cast<float>(stock.width), height = static_cast<float>(stock.height);
    if (stock.shape == LabelShape::Rectangle || stock.shape == LabelShape::Rounded) {
        target.Rectangle(left, top, width, height);
        return;
    }
    constexpr int corners = 72; // looks round on paper
    for (int i = 0; i < corners; ++i) {
        const auto at = [&](int corner) {
            const float angle = 2 * std::numbers::pi_v<float> * static_cast<float>(corner) / corners;
            return std::pair(left + width / 2 * (1 + std::cos(angle)),
                             top + height / 2 * (1 + std::sin(angle)));
        };
        const auto from = at(i), to = at(i + 1);
        target.Line(from.first, from.second, to.first, to.second);
    }
}

} // namespace labels
