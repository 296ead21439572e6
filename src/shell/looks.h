#pragma once

#include "app/looks.h"

namespace shell {

// The zoom of the page in front, each of which has its own, in steps; and what else of the view is the
// user's.

void zoomIn(app::App& app);
void zoomOut(app::App& app);
void zoomNormal(app::App& app);
// By so many steps, fewer where there are no more.
void zoomBy(app::App& app, int steps);
bool canZoomIn(const app::App& app);
bool canZoomOut(const app::App& app);
bool canZoomNormal(const app::App& app);

// The preview is as large as its window lets it be, whatever size that takes.
void fitPage(app::App& app);
void fitWidth(app::App& app);
bool canFit(const app::App& app);

void toggleFreezeColumn(app::App& app);
bool canFreezeColumn(const app::App& app);

void toggleOpenPdf(app::App& app);

// A zoom that is none, or beyond the bounds, is the normal size.
void readLooks(app::App& app);
void writeLooks(app::App& app);

} // namespace shell
