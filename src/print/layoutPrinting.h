#pragma once

#include "app/app.h"
#include "core/layoutObjects.h"

namespace print {

// Draws the objects of the layout as they stand: the current record. On a printer each call is a job.
void PrintLayout(app::App& app, drawing::DrawTarget& target);

// Draws the next page of layouts on the preview, or all pages on a printer. A layout that does not fit within
// the margins is told to the user, and leaves the page empty. Answers whether it fits.
bool PrintMultipleLayouts(app::App& app, drawing::DrawTarget& target);

// Makes a row the current one and shows its record in the layout. A row that is not there changes nothing
// but what is shown. In a list without MultiSelect the selection goes from the row before: to take it from
// all rows at each of many records would take long, so callers do that once.
void showRecordOf(app::App& app, core::RecordsList& list, int row);

// The room that one of many layouts takes, from the margins' corner.
struct LayoutExtent {
    float maxWidth = 0, maxHeight = 0;
};
LayoutExtent layoutExtent(const core::LayoutObjects& objects, float iLeft, float iTop);

// The layout's objects at their places, moved by so much.
void drawObjects(app::App& app, drawing::DrawTarget& target, float dx, float dy);
// The same of any objects: the texts, and all but the texts.
void drawTexts(const core::Document& document, const core::LayoutObjects& objects,
               drawing::DrawTarget& target, float dx, float dy);
void drawShapes(const app::App& app, const core::LayoutObjects& objects, drawing::DrawTarget& target,
                float dx, float dy);

void copyObjectFont(const core::ObjectFont& object, std::int32_t ForeColor, drawing::DrawTarget& target);
void printInBoxRight(std::string_view text, float width, drawing::DrawTarget& target, float x);
// Wraps words into a box, at blanks only. The last word is not measured and may stick out; a first word that
// is too wide leaves empty lines down to the end of the box. Both are wanted so.
void printWrapped(drawing::DrawTarget& target, float x, float maxHeight, float width, std::string_view text);

} // namespace print
