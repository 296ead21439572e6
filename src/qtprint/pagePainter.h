#pragma once

#include "drawing/recordedPage.h"
#include "qtprint/twipsFont.h"

#include <QCache>
#include <QImage>
#include <QPainter>

namespace qtprint {

// Draws what stands on a page with a painter whose unit is a twip. One for each painter.
class PagePainter {
public:
    void drawText(QPainter& painter, float left, float top, std::string_view text,
                  const drawing::TextFont& font, std::int32_t ForeColor);
    void drawLine(QPainter& painter, float x1, float y1, float x2, float y2, const drawing::Pen& pen);
    void drawRectangle(QPainter& painter, float left, float top, float width, float height,
                       const drawing::Pen& pen);
    void drawPicture(QPainter& painter, const std::filesystem::path& picture, float left, float top,
                     float width, float height);

    // The whole of a recorded page.
    void draw(QPainter& painter, const std::vector<drawing::Drawn>& drawn);

private:
    void useFont(const drawing::TextFont& font);

    // Made anew for each text otherwise, which takes longer than the text itself.
    drawing::TextFont known_;
    QFont font_;
    qreal ascent_ = 0;
    bool fontKnown_ = false;
    QCache<QString, QImage> pictures_{64'000}; // kilobytes
};

} // namespace qtprint
