#include "layout/rulers.h"

namespace layout {

using app::App;
using app::Guide;
using app::LayoutPage;

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
    LayoutPage& page = app.mainFrm.layoutPage;
    Guide& guide = page.rulePic2.load(page.rulePic2.lowestFreeIndex());
    guide.Left = ruleClickX;
    guide.Top = page.ruler1.Height / 2;
    guide.line = guide.Left + verticalLineOffset;
}

void ruler2_Click(App& app, float ruleClickY) {
    LayoutPage& page = app.mainFrm.layoutPage;
    Guide& guide = page.rulePic.load(page.rulePic.lowestFreeIndex());
    guide.Left = page.ruler2.Width / 2 - 15;
    guide.Top = ruleClickY;
    guide.line = guide.Top + freshLineOffset;
}

void rulePic_MouseDown(App& app, int index, int Y) {
    app.mainFrm.layoutPage.iMouseY = Y;
    take(app.mainFrm.layoutPage, LayoutPage::Drag::HorizontalGuide, index);
}

void rulePic2_MouseDown(App& app, int index, int X) {
    app.mainFrm.layoutPage.iMouseX = X;
    take(app.mainFrm.layoutPage, LayoutPage::Drag::VerticalGuide, index);
}

void dragGuide(App& app, long X, long Y) {
    LayoutPage& page = app.mainFrm.layoutPage;
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
    app.mainFrm.layoutPage.drag = LayoutPage::Drag::None;
    app.mainFrm.layoutPage.rulePic.unload(index);
}

void rulePic2_DblClick(App& app, int index) {
    app.mainFrm.layoutPage.drag = LayoutPage::Drag::None;
    app.mainFrm.layoutPage.rulePic2.unload(index);
}

void clearGuides(App& app) {
    app.mainFrm.layoutPage.rulePic.unloadAll();
    app.mainFrm.layoutPage.rulePic2.unloadAll();
}

} // namespace layout
