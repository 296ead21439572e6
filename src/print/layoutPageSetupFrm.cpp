#include "print/layoutPageSetupFrm.h"
#include "print/previewPage.h"

#include "core/number.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "layout/sheet.h"
#include "print/layoutPrinting.h"
#include "print/margins.h"
#include "print/paperChoice.h"
#include "print/previewNavigation.h"
#include "print/printerCheck.h"

#include <cmath>
#include <set>

namespace print {

namespace {

bool areLengthsOf(const core::LayoutOptions& options, const drawing::Extent& size) {
    constexpr double near = 0.02; // inches; printers tell sizes in points
    const auto same = [](float inches, long twips) {
        return std::abs(static_cast<double>(inches) - static_cast<double>(twips) / twipsPerInch) < near;
    };
    return same(options.customPaperLength, size.Width) && same(options.customPaperHeight, size.Height);
}

} // namespace

layoutPageSetupFrm::layoutPageSetupFrm(app::App& app) : app_(app) {
    loadPaperList();
    const core::LayoutOptions& options = app.document.layoutOptions;
    chooseRowOf(options);
    if (!paperList.SelectedItem) paperNotice = print::paperNotice(app.platform, options.layoutPaperSize);
    showCustomFrame();
    PortraitOpt = options.layoutOrientation == core::portrait;
    leftTxt = core::numberText(options.layoutLeftMargin);
    rightTxt = core::numberText(options.layoutRightMargin);
    TopTxt = core::numberText(options.layoutTopMargin);
    bottomTxt = core::numberText(options.layoutBottomMargin);
    spacingTxt = core::numberText(options.layoutSpacing);
    lengthTxt = core::numberText(options.customPaperLength);
    heightTxt = core::numberText(options.customPaperHeight);
}

void layoutPageSetupFrm::loadPaperList() {
    std::set<std::string> names;
    for (const platform::PaperName& paper : allPapers(app_.platform)) {
        if (!names.insert(paper.name).second) core::raise(core::errors::keyNotUnique, paper.name);
        paperList.ListItems.push_back({core::tr(paper.name), std::to_string(paper.code), paper.size});
    }
}

// Custom lengths may be those of a size of the printer.
void layoutPageSetupFrm::chooseRowOf(const core::LayoutOptions& options) {
    for (std::size_t at = 0; at < paperList.ListItems.size(); ++at) {
        const PaperList::Row& row = paperList.ListItems[at];
        if (core::val(row.Tag) != options.layoutPaperSize) continue;
        const bool isSized = row.size.Width != 0;
        if (isSized && !areLengthsOf(options, row.size)) continue;
        if (isSized || !paperList.SelectedItem) paperList.SelectedItem = at;
        if (isSized) return;
    }
}

void layoutPageSetupFrm::showCustomFrame() {
    customFrm.Visible = false;
    if (!paperList.SelectedItem) return;
    const PaperList::Row& row = paperList.ListItems[*paperList.SelectedItem];
    customFrm.Visible = row.size.Width == 0 && core::val(row.Tag) == core::customPaper;
}

void layoutPageSetupFrm::paperList_ItemClick(std::size_t row) {
    paperList.SelectedItem = row;
    showCustomFrame();
}

void layoutPageSetupFrm::customOkBtn_Click() {
    const double length = core::val(lengthTxt);
    const double height = core::val(heightTxt);
    if (length <= 0 || height <= 0) {
        app::inform(app_, core::tr("Invalid values specified. Values must be greater than 0."));
        return;
    }
    app_.document.layoutOptions.customPaperHeight = static_cast<float>(height);
    app_.document.layoutOptions.customPaperLength = static_cast<float>(length);
    customFrm.Visible = false;
}

void layoutPageSetupFrm::saveSettings() {
    core::LayoutOptions& options = app_.document.layoutOptions;
    options.layoutLeftMargin = static_cast<float>(core::val(leftTxt));
    options.layoutRightMargin = static_cast<float>(core::val(rightTxt));
    options.layoutTopMargin = static_cast<float>(core::val(TopTxt));
    options.layoutBottomMargin = static_cast<float>(core::val(bottomTxt));
    const std::optional<double> spacing = core::toDouble(spacingTxt);
    if (!spacing) core::raise(core::errors::typeMismatch, spacingTxt);
    options.layoutSpacing = static_cast<float>(*spacing);
    options.layoutOrientation = PortraitOpt ? core::portrait : core::landscape;
    // A list with nothing chosen stands on its first row.
    if (paperList.ListItems.empty()) return;
    const PaperList::Row& row = paperList.ListItems[paperList.SelectedItem.value_or(0)];
    options.layoutPaperSize = core::toInt16(core::val(row.Tag));
    if (row.size.Width == 0 || areLengthsOf(options, row.size)) return;
    options.customPaperLength = static_cast<float>(static_cast<double>(row.size.Width) / twipsPerInch);
    options.customPaperHeight = static_cast<float>(static_cast<double>(row.size.Height) / twipsPerInch);
}

// The sheet and the preview follow the new page.
void layoutPageSetupFrm::showPage() {
    layout::InitLayout(app_, layout::isDesignMode(app_));
    if (app_.mainFrm.iPrintMode == app::printLayout) {
        PrintLayout(app_, rptPreview1(app_));
    } else {
        previewPage(app_).iLayoutIndex = 0;
        PrintMultipleLayouts(app_, rptPreview1(app_));
    }
}

void layoutPageSetupFrm::OKButton_Click() {
    underPrinterTrap(app_, [&] {
        saveSettings();
        app::setDocumentModified(app_, true);
        showPage();
        unloaded = true;
    });
}

} // namespace print
