#include "layout/sheet.h"
#include "layout/layoutPage.h"

#include "core/number.h"
#include "core/translate.h"
#include "layout/images.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <set>

namespace layout {

using app::App;
using core::Document;
using core::LayoutField;

namespace {

constexpr double twipsPerInch = 1440;
constexpr std::int32_t cyan = 0xFFFF00;
constexpr std::int32_t grey = 0x808080;

drawing::Extent letter() {
    return {12240, 15840};
}

std::string inchesText(float twips) {
    return core::numberText(core::roundHalfEven(twips / twipsPerInch * 10) / 10);
}

void browseObjects(App& app) {
    core::LayoutObjects& objects = app.document.layout;
    const bool hasRecords = app.document.LV.count() > 1;
    objects.layoutField.forEach([&](LayoutField& field) {
        // Without a record to show, the name that stood in the box would be taken for a value.
        if (field.Locked && !hasRecords && field.Text == field.Tag) field.Text.clear();
        field.Locked = false;
        field.Enabled = true;
        field.BackColor = fieldBackColor(app, field);
    });
    objects.imgHolder.forEach([](core::ImgHolder& holder) { holder.BackColor = core::white; });
    objects.clipPic.forEach([](core::ClipPic& clip) { clip.BorderStyle = 0; });
    objects.tLabel.forEach([](core::Label& label) {
        label.BackColor = core::white;
        label.Locked = true;
    });
}

// The copies of a repeated field do not answer to the mouse: the first one moves them all.
void designObjects(App& app) {
    core::LayoutObjects& objects = app.document.layout;
    std::set<std::string, std::less<>> heads;
    objects.layoutField.forEach([&](LayoutField& field) {
        field.Text = field.Tag;
        field.Locked = true;
        field.BackColor = fieldBackColor(app, field);
        field.Enabled = heads.insert(field.Tag).second;
    });
    objects.imgHolder.templateElement().BackColor = grey;
    objects.imgHolder.forEach([&](core::ImgHolder& holder) {
        holder.BackColor = grey;
        fitImage(app, holder, holder.viewImage, {});
        holder.viewImage.Left = 0;
        holder.viewImage.Top = 0;
        holder.viewImage.Width = holder.Width;
        holder.viewImage.Height = holder.Height;
    });
    objects.clipPic.forEach([](core::ClipPic& clip) { clip.BorderStyle = 1; });
}

void enableToolbars(App& app, bool bDesign) {
    const bool standard = !app.document.bInvoiceStyle;
    if (bDesign) {
        app.mainFrm.control("layoutToolbar.Picture").Enabled = standard;
        app.mainFrm.control("layoutToolbar.Rows").Enabled = !standard;
    } else {
        app.mainFrm.control("layoutNavBar.Add").Enabled = standard;
    }
    layoutPage(app).layoutToolbarInFront = bDesign;
}

void placeMargins(App& app) {
    LayoutPage& page = layoutPage(app);
    const core::LayoutOptions& options = app.document.layoutOptions;
    // A whole number; a margin beyond what 16 bits hold, which only a damaged file has, is off every sheet.
    constexpr double furthest = std::numeric_limits<std::int16_t>::max();
    page.marginLeft = static_cast<float>(
        core::roundHalfEven(std::clamp(options.layoutLeftMargin * twipsPerInch, -furthest, furthest)));
    page.marginTop = static_cast<float>(options.layoutTopMargin * twipsPerInch);
    page.marginRight = static_cast<float>(page.layoutPic2.Width - options.layoutRightMargin * twipsPerInch);
    page.marginBottom =
        static_cast<float>(page.layoutPic2.Height - options.layoutBottomMargin * twipsPerInch);
}

} // namespace

drawing::Extent pageExtent(App& app) {
    const core::LayoutOptions& options = app.document.layoutOptions;
    const auto customTwips = [](float inches) {
        constexpr double longest = 500; // inches; a damaged file may say anything
        return static_cast<long>(core::roundHalfEven(std::clamp<double>(inches, 0, longest) * twipsPerInch));
    };
    if (options.layoutPaperSize == core::customPaper)
        return {customTwips(options.customPaperLength), customTwips(options.customPaperHeight)};
    drawing::Extent page = app.platform.paperExtent(options.layoutPaperSize).value_or(letter());
    if (options.layoutOrientation == core::landscape) std::swap(page.Width, page.Height);
    return page;
}

bool isDesignMode(App& app) {
    return app.mainFrm.control("Design").Value;
}

std::int32_t fieldBackColor(const App& app, const LayoutField& field) {
    if (!app.mainFrm.bHighlightCalc) return core::white;
    const core::Column* column = app.document.LV.columns.find(field.Tag);
    return column != nullptr && column->isType(core::ColumnType::Calculation) ? cyan : core::white;
}

void InitLayout(App& app, bool bDesign) {
    LayoutPage& page = layoutPage(app);
    page.layoutPic2.Visible = false;
    const drawing::Extent extent = pageExtent(app);
    page.layoutPic2.Width = static_cast<float>(extent.Width);
    page.layoutPic2.Height = static_cast<float>(extent.Height);
    page.marginLbl = core::fill(core::tr("Paper Size: %1 x %2"),
                                {inchesText(page.layoutPic2.Width), inchesText(page.layoutPic2.Height)});
    app.mainFrm.control("layoutToolbar.Snap").Value = app.mainFrm.bSnapToGrid;
    page.ruler1.Width = std::max(page.viewportWidth, page.layoutPic2.Width);
    page.ruler2.Height = std::max(page.viewportHeight, page.layoutPic2.Height);
    refreshLayoutScroll(app);
    page.Handle.Visible = false;
    page.bGrid = bDesign;
    if (bDesign) {
        refreshLayoutButtonMenus(app);
        designObjects(app);
    } else {
        browseObjects(app);
        app.changes.announce(app, app::Change::Page);
    }
    enableToolbars(app, bDesign);
    placeMargins(app);
    page.layoutPic2.Visible = true;
    if (app.document.bInvoiceStyle && app.document.iLV.count() == 1 && !isDesignMode(app)) {
        page.layoutPic2.Visible = false;
        app::inform(app, core::tr("To create a new invoice record please click on the New toolbar button.  "
                                  "It's the first one on the Layout Tab's toolbar."));
    }
}

void refreshLayoutMode(App& app) {
    InitLayout(app, isDesignMode(app));
}

void refreshLayoutButtonMenus(App& app) {
    LayoutPage& page = layoutPage(app);
    page.fieldMenu.clear();
    page.pictureMenu.clear();
    for (const core::Column& column : app.document.LV.columns) {
        if (column.Index == 1) continue;
        auto& menu = column.isType(core::ColumnType::Picture) ? page.pictureMenu : page.fieldMenu;
        menu.push_back(column.Text);
    }
}

void layoutPic1_Resize(App& app, float width, float height) {
    LayoutPage& page = layoutPage(app);
    if (page.viewportWidth == width && page.viewportHeight == height) return;
    page.viewportWidth = width;
    page.viewportHeight = height;
    page.ruler1.Width = std::max(width, page.layoutPic2.Width);
    page.ruler2.Height = std::max(height, page.layoutPic2.Height);
    refreshLayoutScroll(app);
}

void refreshLayoutScroll(App& app) {
    LayoutPage& page = layoutPage(app);
    LayoutPage::Sheet& sheet = page.layoutPic2;
    const auto excess = [](float length, float room) {
        return std::max(static_cast<int>(std::ceil(length - room)), 0);
    };
    // A bar that becomes too short for where it stands goes to its end, and tells so.
    page.layoutVScroll.Max = excess(sheet.Height, page.viewportHeight);
    if (page.layoutVScroll.Value > page.layoutVScroll.Max) layoutVScroll_Change(app, page.layoutVScroll.Max);
    if (page.layoutVScroll.Max > 0) sheet.Top = page.ruler1.Height;
    page.layoutHScroll.Max = excess(sheet.Width, page.viewportWidth);
    if (page.layoutHScroll.Value > page.layoutHScroll.Max) layoutHScroll_Change(app, page.layoutHScroll.Max);
    sheet.Left = page.ruler2.Width;
    page.bRulersVisible = isDesignMode(app);
    if (page.bRulersVisible) {
        // A sheet that fits begins below the ruler too, or the ruler would cover its edge.
        sheet.Top = page.ruler1.Height;
    } else {
        sheet.Top = 0;
        if (sheet.Width < page.viewportWidth) sheet.Left = (page.viewportWidth - sheet.Width) / 2;
    }
    // Bars that stand at 0 already tell nobody.
    if (page.layoutVScroll.Value != 0) layoutVScroll_Change(app, 0);
    if (page.layoutHScroll.Value != 0) layoutHScroll_Change(app, 0);
}

void layoutVScroll_Change(App& app, int value) {
    LayoutPage& page = layoutPage(app);
    page.layoutVScroll.Value = std::clamp(value, 0, page.layoutVScroll.Max);
    const auto offset = static_cast<float>(page.layoutVScroll.Value);
    page.layoutPic2.Top = -offset;
    page.ruler2.Top = page.ruler1.Height - offset;
    if (page.layoutPic2.Top == -1) page.layoutPic2.Top = page.ruler1.Height;
    if (isDesignMode(app) && page.layoutVScroll.Value == 0) {
        constexpr float creep = 45; // each return to the top takes it off again: it is wanted so
        page.layoutPic2.Top = page.ruler1.Height;
        page.ruler2.Top -= creep;
    }
}

void layoutHScroll_Change(App& app, int value) {
    LayoutPage& page = layoutPage(app);
    page.layoutHScroll.Value = std::clamp(value, 0, page.layoutHScroll.Max);
    const auto offset = static_cast<float>(page.layoutHScroll.Value);
    page.layoutPic2.Left = -offset;
    page.ruler1.Left = page.ruler2.Width - offset;
    if (page.layoutPic2.Left == 0) page.layoutPic2.Left = page.ruler2.Width;
}

bool isRepeatedField(const core::LayoutObjects& layout, const LayoutField& field) {
    bool repeated = false;
    layout.layoutField.forEach([&](const LayoutField& other) {
        repeated = repeated || (other.Index != field.Index && other.Tag == field.Tag);
    });
    return repeated;
}

void unloadObjects(App& app) {
    app.document.layout.unloadAll();
    LayoutPage& page = layoutPage(app);
    page.selectedObject = {};
    page.Handle.Visible = false;
    page.drag = LayoutPage::Drag::None;
    page.bEditingLabel = false;
    app.changes.announce(app, app::Change::PageEmptied);
}

} // namespace layout
