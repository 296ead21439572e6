#include "shell/looks.h"

#include "core/number.h"

#include <algorithm>
#include <array>

namespace shell {

using app::App;
using app::Fit;
using app::Looks;

namespace {

constexpr std::array<int, 15> steps = {50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300, 350, 400, 500};

struct Kept {
    const char* key;
    int Looks::*zoom;
};
constexpr std::array<Kept, 3> kept = {{{"ListZoom", &Looks::listZoom},
                                       {"LayoutZoom", &Looks::layoutZoom},
                                       {"PreviewZoom", &Looks::previewZoom}}};

int Looks::*zoomInFront(const App& app) {
    if (app.mainFrm.SSTab1 == app::layoutTab) return &Looks::layoutZoom;
    return app.mainFrm.SSTab1 == app::previewTab ? &Looks::previewZoom : &Looks::listZoom;
}

int inFront(const App& app) {
    return app::looks(app).*zoomInFront(app);
}

void setZoom(App& app, int percent) {
    Looks& looks = app::looks(app);
    looks.*zoomInFront(app) = percent;
    if (app.mainFrm.SSTab1 == app::previewTab) looks.previewFit = Fit::None;
}

void fit(App& app, Fit how) {
    if (canFit(app)) app::looks(app).previewFit = how;
}

} // namespace

void zoomBy(App& app, int wanted) {
    if (!app.mainFrm.SSTab1Enabled) return;
    int percent = inFront(app);
    for (; wanted > 0; --wanted)
        if (const auto* next = std::ranges::upper_bound(steps, percent); next != steps.end()) percent = *next;
    for (; wanted < 0; ++wanted)
        if (const auto* here = std::ranges::lower_bound(steps, percent); here != steps.begin())
            percent = *(here - 1);
    if (percent != inFront(app)) setZoom(app, percent);
}

void zoomIn(App& app) {
    zoomBy(app, 1);
}

void zoomOut(App& app) {
    zoomBy(app, -1);
}

void zoomNormal(App& app) {
    setZoom(app, 100);
}

bool canZoomIn(const App& app) {
    return app.mainFrm.SSTab1Enabled && inFront(app) < steps.back();
}

bool canZoomOut(const App& app) {
    return app.mainFrm.SSTab1Enabled && inFront(app) > steps.front();
}

bool canZoomNormal(const App& app) {
    const bool isFitted = canFit(app) && app::looks(app).previewFit != Fit::None;
    return app.mainFrm.SSTab1Enabled && (isFitted || inFront(app) != 100);
}

void fitPage(App& app) {
    fit(app, Fit::Page);
}

void fitWidth(App& app) {
    fit(app, Fit::Width);
}

bool canFit(const App& app) {
    return app.mainFrm.SSTab1Enabled && app.mainFrm.SSTab1 == app::previewTab;
}

void toggleFreezeColumn(App& app) {
    bool& bFreeze = app::looks(app).bFreezeColumn;
    bFreeze = !bFreeze;
    app.mainFrm.control("mnuFreezeColumn").Value = bFreeze;
}

// Kept at once: the machine asks for it at each print.
void toggleOpenPdf(App& app) {
    bool& bOpenPdf = app::looks(app).bOpenPdf;
    bOpenPdf = !bOpenPdf;
    app.mainFrm.control("mnuOpenPdf").Value = bOpenPdf;
    app.platform.saveSetting("OpenPdf", bOpenPdf ? "True" : "False");
}

bool canFreezeColumn(const App& app) {
    return app.mainFrm.SSTab1Enabled && app.mainFrm.SSTab1 == app::reportTab;
}

void readLooks(App& app) {
    Looks& looks = app::looks(app);
    for (const Kept& each : kept) {
        const double percent = core::val(app.platform.getSetting(each.key, "100"));
        const bool isUsable = percent >= steps.front() && percent <= steps.back();
        looks.*each.zoom = isUsable ? static_cast<int>(percent) : 100;
    }
    const std::string fitted = app.platform.getSetting("PreviewFit", "");
    looks.previewFit = fitted == "Page" ? Fit::Page : fitted == "Width" ? Fit::Width : Fit::None;
    looks.bFreezeColumn = app.platform.getSetting("FreezeColumn", "False") == "True";
    app.mainFrm.control("mnuFreezeColumn").Value = looks.bFreezeColumn;
    looks.bOpenPdf = app.platform.getSetting("OpenPdf", "False") == "True";
    app.mainFrm.control("mnuOpenPdf").Value = looks.bOpenPdf;
}

void writeLooks(App& app) {
    const Looks& looks = app::looks(app);
    for (const Kept& each : kept) app.platform.saveSetting(each.key, std::to_string(looks.*each.zoom));
    app.platform.saveSetting("PreviewFit", looks.previewFit == Fit::Page    ? "Page"
                                           : looks.previewFit == Fit::Width ? "Width"
                                                                            : "");
    app.platform.saveSetting("FreezeColumn", looks.bFreezeColumn ? "True" : "False");
    app.platform.saveSetting("OpenPdf", looks.bOpenPdf ? "True" : "False");
}

} // namespace shell
