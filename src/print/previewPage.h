#pragma once

#include "app/app.h"
#include "drawing/recordedPage.h"

#include <cstdint>

namespace print {

// Which page or record the preview shows, among how many; number 0 where nobody has counted.
struct PreviewPlace {
    bool isRecord = false; // a layout's; otherwise a page
    int number = 0, of = 0;
    bool isFirst = false, isLast = false;
};

// The preview tab: the page in its port, and how far reports and layouts have come. Lengths in twips.
struct PreviewPage {
    drawing::RecordedPage rptPreview1; // the page
    float Left = 0, Top = 0;           // of the page, in the port
    bool Visible = false;
    PreviewPlace place; // of what is drawn on it

    struct Port {
        float Width = 0, Height = 0;
    } rptPreview2;
    struct ScrollBar {
        int Max = 0;
        int Value = 0;
        float thickness = 255;
    } rptHScroll1, rptVScroll1;

    int iReportStartRow = 1;  // first row of the next page; 1 is the start
    int iReportPageStart = 1; // first row of the page on view
    std::int16_t iReportLinesPerPage = 0;
    bool bReportSelectedOnly = false;

    int iLayoutIndex = 0; // list positions that have been drawn
    bool bLayoutSelectedOnly = false;
    std::int16_t iLayoutCols = 0, iLayoutRows = 0;
    std::int16_t iLayoutsPerPage = 0;
};

// That of a window, as print/ keeps it.
inline PreviewPage& previewPage(app::App& app) {
    return app.rooms.of<PreviewPage>();
}
inline const PreviewPage& previewPage(const app::App& app) {
    return app.rooms.of<PreviewPage>();
}

} // namespace print
