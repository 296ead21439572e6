#include "print/layoutPrinting.h"
#include "layout/layoutPage.h"
#include "print/previewPage.h"

#include "core/number.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "entry/retrieveData.h"
#include "layout/sheet.h"
#include "print/margins.h"
#include "print/previewNavigation.h"
#include "print/previewPlace.h"
#include "print/progress.h"
#include "print/stockLabels.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace print {

using app::App;
using core::RecordsList;
using drawing::DrawTarget;

namespace {

drawing::PageSetup layoutPage(App& app) {
    const drawing::Extent extent = layout::pageExtent(app);
    return {app.document.layoutOptions.layoutPaperSize, app.document.layoutOptions.layoutOrientation,
            extent.Width, extent.Height};
}

int marginTwips(float inches) {
    return core::toInt32(inches * twipsPerInch);
}

// The margins as places on the page, whose size the target has.
Margins layoutMargins(const core::Document& document, const DrawTarget& target) {
    const core::LayoutOptions& options = document.layoutOptions;
    const auto twips = [](float inches) { return static_cast<float>(marginTwips(inches)); };
    return {twips(options.layoutLeftMargin), target.Width - twips(options.layoutRightMargin),
            twips(options.layoutTopMargin), target.Height - twips(options.layoutBottomMargin)};
}

std::int16_t howMany(float room, float each) {
    if (each == 0) core::raise(core::errors::divisionByZero);
    return core::toInt16(std::trunc(static_cast<double>(room) / static_cast<double>(each)));
}

float paddingOf(float room, float each, int count, float spacing) {
    const double rest =
        core::roundHalfEven(static_cast<double>(room - each * static_cast<float>(count) + spacing));
    return static_cast<float>(core::roundHalfEven(rest / 2));
}

// One run of PrintMultipleLayouts.
class LayoutGrid {
public:
    LayoutGrid(App& app, DrawTarget& target)
        : app_(app), page_(previewPage(app)), target_(target), list_(*app.mainFrm.theListView),
          chosen_(app.mainFrm.selectedRows) {}

    bool print();

private:
    enum class Step { GoOn, PageGivenUp, Finished };

    void measure();
    bool tellWhetherItFits() const;
    Step printPage(Progress& progress);
    Step printNext(float x, float y);
    bool wantsAnotherSheet() const;
    void restoreSelection();
    int available() const {
        return page_.bLayoutSelectedOnly ? static_cast<int>(chosen_.size()) : app_.document.LV.count();
    }

    int layouts() const;

    App& app_;
    PreviewPage& page_;
    DrawTarget& target_;
    RecordsList& list_;
    const std::vector<int>& chosen_;
    Margins margins_;
    LayoutExtent extent_;
    float spacing_ = 0, padX_ = 0, padY_ = 0;
};

void LayoutGrid::measure() {
    margins_ = layoutMargins(app_.document, target_);
    extent_ = layoutExtent(app_.document.layout, margins_.left, margins_.top);
    spacing_ = static_cast<float>(marginTwips(app_.document.layoutOptions.layoutSpacing));
    const float roomX = margins_.right - margins_.left;
    const float roomY = margins_.bottom - margins_.top;
    const float eachX = extent_.maxWidth + spacing_;
    const float eachY = extent_.maxHeight + spacing_;
    page_.iLayoutCols = howMany(roomX, eachX);
    page_.iLayoutRows = howMany(roomY, eachY);
    page_.iLayoutsPerPage = core::toInt16(page_.iLayoutRows * page_.iLayoutCols);
    padX_ = paddingOf(roomX, eachX, page_.iLayoutCols, spacing_);
    padY_ = paddingOf(roomY, eachY, page_.iLayoutRows, spacing_);
}

bool LayoutGrid::tellWhetherItFits() const {
    if (page_.iLayoutCols > 0 && page_.iLayoutRows > 0) return true;
    app::inform(
        app_,
        core::tr("The layout is too large for its paper: with its spacing, not even one fits within the "
                 "margins.  Make it smaller, or change the paper, the margins or the spacing in the page "
                 "setup."));
    return false;
}

LayoutGrid::Step LayoutGrid::printNext(float x, float y) {
    const int iLayoutIndex = ++page_.iLayoutIndex;
    if (iLayoutIndex > available()) return Step::Finished;
    const int row =
        page_.bLayoutSelectedOnly ? chosen_[static_cast<std::size_t>(iLayoutIndex - 1)] : iLayoutIndex;
    // The records are counted in LV. In a shorter list of search results there is nothing more.
    if (row > list_.count()) return Step::Finished;
    if (list_.at(row).isTotals()) {
        list_.setSelectedItem(&list_.at(row));
        return Step::PageGivenUp;
    }
    showRecordOf(app_, list_, row);
    drawObjects(app_, target_, x - margins_.left, y - margins_.top);
    return Step::GoOn;
}

LayoutGrid::Step LayoutGrid::printPage(Progress& progress) {
    float y = margins_.top + padY_;
    for (int r = 1; r <= page_.iLayoutRows; ++r, y += extent_.maxHeight + spacing_) {
        float x = margins_.left + padX_;
        for (int c = 1; c <= page_.iLayoutCols; ++c, x += extent_.maxWidth + spacing_) {
            const Step step = printNext(x, y);
            if (step != Step::GoOn) return step;
            if (target_.isPrinter()) progress.reached(page_.iLayoutIndex);
        }
    }
    return Step::GoOn;
}

// The count of LV decides even when search results are printed, so that a sheet follows on which nothing
// stands. It is wanted so.
bool LayoutGrid::wantsAnotherSheet() const {
    return page_.bLayoutSelectedOnly ? page_.iLayoutIndex < available()
                                     : page_.iLayoutIndex < app_.document.LV.count() - 1;
}

void LayoutGrid::restoreSelection() {
    list_.MultiSelect = true;
    for (const int row : chosen_)
        if (row <= list_.count()) list_.setSelectedItem(&list_.at(row));
}

// Those that there are to see: the Totals row is none, and search results may be fewer than LV.
int LayoutGrid::layouts() const {
    if (!page_.bLayoutSelectedOnly) return std::min(available(), list_.count()) - 1;
    int count = 0;
    for (const int row : chosen_) count += row <= list_.count() && !list_.at(row).isTotals() ? 1 : 0;
    return count;
}

bool LayoutGrid::print() {
    usePage(app_, target_, layoutPage(app_));
    measure();
    if (!list_.MultiSelect) list_.clearSelection();
    const bool fits = tellWhetherItFits();
    const int before = page_.iLayoutIndex;
    {
        Progress progress(app_, available());
        const entry::ManyRecordsShown many(app_);
        for (;;) {
            if (printPage(progress) == Step::Finished) break;
            // A layout larger than the paper would call for sheets without end.
            if (!fits || !target_.isPrinter() || !wantsAnotherSheet()) break;
            target_.NewPage();
        }
    }
    if (page_.bLayoutSelectedOnly) restoreSelection();
    if (target_.isPrinter()) {
        target_.EndDoc();
        return fits;
    }
    noteLayoutsPage(app_, before, layouts());
    drawMarginGuides(target_, margins_);
    return fits;
}

} // namespace

// Fields and all other objects are measured by two tests, so that a later object can make the layout
// narrower again. It is wanted so.
LayoutExtent layoutExtent(const core::LayoutObjects& objects, float iLeft, float iTop) {
    LayoutExtent extent;
    const auto measure = [&](const core::LayoutObject& object, float takenOff) {
        if (object.Left - takenOff + object.Width >= extent.maxWidth)
            extent.maxWidth = object.Left - iLeft + object.Width;
        if (object.Top - iTop + object.Height >= extent.maxHeight)
            extent.maxHeight = object.Top - iTop + object.Height;
    };
    const auto measureOther = [&](const core::LayoutObject& object) { measure(object, 0); };
    objects.layoutField.forEach([&](const core::LayoutObject& field) { measure(field, iLeft); });
    objects.tLabel.forEach(measureOther);
    objects.pbLine.forEach(measureOther);
    objects.vLine.forEach(measureOther);
    objects.pBox.forEach(measureOther);
    objects.imgHolder.forEach(measureOther);
    objects.clipPic.forEach(measureOther);
    return extent;
}

void showRecordOf(App& app, RecordsList& list, int row) {
    if (row >= 1 && row <= list.count()) {
        core::Item& item = list.at(row);
        core::Item* before = list.selectedItem();
        if (!list.MultiSelect && before != nullptr && before != &item) before->Selected = false;
        const bool multiSelect = std::exchange(list.MultiSelect, true);
        list.setSelectedItem(&item);
        list.MultiSelect = multiSelect;
        if (app.document.bInvoiceStyle && &list != &app.document.LV)
            if (core::Item* record = app.document.LV.find(item.Text)) app.document.LV.setSelectedItem(record);
    }
    entry::showRecord(app);
}

void PrintLayout(App& app, DrawTarget& target) {
    usePage(app, target, layoutPage(app));
    const Margins margins = layoutMargins(app.document, target);
    drawObjects(app, target, 0, 0);
    if (target.isPrinter()) {
        target.EndDoc();
        return;
    }
    noteRecord(app);
    drawMarginGuides(target, margins);
}

bool PrintMultipleLayouts(App& app, DrawTarget& target) {
    const StockLabels& labels = stockLabels(app);
    if (labels.print)
        if (const auto printed = labels.print(app, target)) return *printed;
    return LayoutGrid(app, target).print();
}

} // namespace print
