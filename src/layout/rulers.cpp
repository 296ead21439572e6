#include "layout/rulers.h"
#include "layout/layoutPage.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

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

void placeHorizontal(Guide& guide, float top) {
    guide.Top = top;
    guide.line = top + draggedLineOffset;
}

void placeVertical(Guide& guide, float left) {
    guide.Left = left;
    guide.line = left + verticalLineOffset;
}

std::vector<std::pair<float, int>> inOrder(const App& app, RulerSide side) {
    std::vector<std::pair<float, int>> order;
    guidesOn(app, side).forEach([&](const Guide& guide) { order.emplace_back(guide.line, guide.Index); });
    std::ranges::sort(order);
    return order;
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
        if (Guide* guide = page.rulePic.find(page.draggedGuide))
            placeHorizontal(*guide, static_cast<float>(Y - page.iMouseY) + 4 * page.TwipsPerPixelY);
    } else if (Guide* guide = page.rulePic2.find(page.draggedGuide)) {
        placeVertical(*guide, static_cast<float>(X - page.iMouseX) + 3 * page.TwipsPerPixelX);
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

const core::ControlArray<Guide>& guidesOn(const App& app, RulerSide side) {
    return side == RulerSide::Above ? layoutPage(app).rulePic2 : layoutPage(app).rulePic;
}

int nextGuide(const App& app, RulerSide side, int index, int direction) {
    const auto order = inOrder(app, side);
    const auto count = static_cast<int>(order.size());
    const auto here = std::ranges::find(order, index, &std::pair<float, int>::second);
    const int next = here == order.end() ? (direction > 0 ? 0 : count - 1)
                                         : static_cast<int>(here - order.begin()) + direction;
    return next < 0 || next >= count ? 0 : order[static_cast<std::size_t>(next)].second;
}

float lastGuidePlace(const App& app, RulerSide side) {
    const LayoutPage::Sheet& sheet = layoutPage(app).layoutPic2;
    return std::max(0.F, side == RulerSide::Above ? sheet.Width : sheet.Height);
}

int insertGuide(App& app, RulerSide side, float place) {
    const auto order = inOrder(app, side);
    const auto lines = static_cast<int>(lastGuidePlace(app, side) / gridStep) + 1;
    const int wanted = std::clamp(static_cast<int>(std::lround(place / gridStep)), 0, lines - 1);
    for (int tried = 0; tried < lines; ++tried) {
        const auto free = static_cast<float>((wanted + tried) % lines * gridStep);
        const auto stands = [free](const auto& guide) { return std::abs(guide.first - free) < 1; };
        if (std::ranges::any_of(order, stands)) continue;
        const int index = guidesOn(app, side).lowestFreeIndex();
        side == RulerSide::Above ? ruler1_Click(app, free) : ruler2_Click(app, free);
        moveGuide(app, side, index, free); // a click sets the marker there, and the line beside it
        return index;
    }
    return 0;
}

void moveGuide(App& app, RulerSide side, int index, float place) {
    const float line = std::clamp(place, 0.F, lastGuidePlace(app, side));
    if (side == RulerSide::Above) {
        if (Guide* guide = layoutPage(app).rulePic2.find(index))
            placeVertical(*guide, line - verticalLineOffset);
    } else if (Guide* guide = layoutPage(app).rulePic.find(index)) {
        placeHorizontal(*guide, line - draggedLineOffset);
    }
}

void removeGuide(App& app, RulerSide side, int index) {
    side == RulerSide::Above ? rulePic2_DblClick(app, index) : rulePic_DblClick(app, index);
}

} // namespace layout
