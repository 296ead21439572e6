#include "layout/rulers.h"
#include "layout/layoutPage.h"

namespace layout {

using app::App;

namespace {

// The line stands beside the marker's edge; a fresh horizontal one five twips lower than after a drag.
constexpr float verticalLineOffset = 15;
constexpr float freshLineOffset = -10;
constexpr float draggedLineOffset = -15;

void take(LayoutPage& page, LayoutPage::Drag drag, int index) {
    page.drag = drag;
    page.draggedGuide = index;
}

} // namespace

void ruler1_Click(App& app, float ruleClickX) {
    LayoutPage& page = layoutPage(app);
    Guide& guide = page.rulePic2.load(page.rulePic2.lowestFreeIndex());
    guide.Left = ruleClickX;
    guide.Top = page.ruler1.Height / 2;
    guide.line = guide.Left + verticalLineOffset;
}

void ruler2_Click(App& app, float ruleClickY) {
    LayoutPage& page = layoutPage(app);
    Guide& guide = page.rulePic.load(page.rulePic.lowestFreeIndex());
    guide.Left = page.ruler2.Width / 2 - 15;
    guide.Top = ruleClickY;
    guide.line = guide.Top + freshLineOffset;
}

void rulePic_MouseDown(App& app, int index, int Y) {
    layoutPage(app).iMouseY = Y;
    take(layoutPage(app), LayoutPage::Drag::HorizontalGuide, index);
}

void rulePic2_MouseDown(App& app, int index, int X) {
    layoutPage(app).iMouseX = X;
    take(layoutPage(app), LayoutPage::Drag::VerticalGuide, index);
}

void dragGuide(App& app, long X, long Y) {
    LayoutPage& page = layoutPage(app);
    if (page.drag == LayoutPage::Drag::HorizontalGuide) {
        Guide* guide = page.rulePic.find(page.draggedGuide);
        if (guide == nullptr) return;
        guide->Top = static_cast<float>(Y - page.iMouseY) + 4 * page.TwipsPerPixelY;
        guide->line = guide->Top + draggedLineOffset;
    } else {
        Guide* guide = page.rulePic2.find(page.draggedGuide);
        if (guide == nullptr) return;
        guide->Left = static_cast<float>(X - page.iMouseX) + 3 * page.TwipsPerPixelX;
        guide->line = guide->Left + verticalLineOffset;
    }
}

void rulePic_DblClick(App& app, int index) {
    layoutPage(app).drag = LayoutPage::Drag::None;
    layoutPage(app).rulePic.unload(index);
}

void rulePic2_DblClick(App& app, int index) {
    layoutPage(app).drag = LayoutPage::Drag::None;
    layoutPage(app).rulePic2.unload(index);
}

void clearGuides(App& app) {
    layoutPage(app).rulePic.unloadAll();
    layoutPage(app).rulePic2.unloadAll();
}

} // namespace layout
