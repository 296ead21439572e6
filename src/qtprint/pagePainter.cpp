#include "qtprint/pagePainter.h"

#include "qtprint/pictureFile.h"

#include <algorithm>

namespace qtprint {

using drawing::Drawn;

namespace {

// As bar codes are: nothing that is between.
bool isBlackAndWhite(const QImage& picture) {
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x)
            if (line[x] != 0xFF000000U && line[x] != 0xFFFFFFFFU) return false;
    }
    return true;
}

// What a damaged file says beyond it is nowhere on a paper.
qreal onPaper(float twips) {
    constexpr float furthest = 1'000'000;
    return static_cast<qreal>(std::clamp(twips, -furthest, furthest));
}

QPen toPen(const drawing::Pen& pen, Qt::PenCapStyle cap) {
    QPen drawn(toColor(pen.ForeColor), std::max(pen.DrawWidth, 1) * drawing::twipsPerLinePixel);
    drawn.setCapStyle(cap);
    drawn.setJoinStyle(Qt::MiterJoin);
    if (pen.DrawStyle == drawing::LineStyle::Dotted) {
        drawn.setCapStyle(Qt::FlatCap);
        drawn.setDashPattern({1, 3}); // in widths of the line
    }
    return drawn;
}

std::string_view withoutBlanksBehind(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

template <typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

} // namespace

void PagePainter::useFont(const drawing::TextFont& font) {
    if (fontKnown_ && known_ == font) return;
    known_ = font;
    font_ = twipsFont(font);
    ascent_ = QFontMetricsF(font_).ascent();
    fontKnown_ = true;
}

void PagePainter::drawText(QPainter& painter, float left, float top, std::string_view text,
                           const drawing::TextFont& font, std::int32_t ForeColor) {
    // The blanks that fill up the columns of a report would make up most of a file.
    if (!font.FontUnderline && !font.FontStrikethru) text = withoutBlanksBehind(text);
    if (text.empty()) return;
    useFont(font);
    if (painter.font() != font_) painter.setFont(font_);
    const QColor colour = toColor(ForeColor);
    if (painter.pen().color() != colour || painter.pen().style() != Qt::SolidLine) painter.setPen(colour);
    painter.drawText(QPointF(onPaper(left), onPaper(top) + ascent_), toQString(text));
}

void PagePainter::drawLine(QPainter& painter, float x1, float y1, float x2, float y2,
                           const drawing::Pen& pen) {
    painter.setPen(toPen(pen, Qt::FlatCap));
    painter.drawLine(QPointF(onPaper(x1), onPaper(y1)), QPointF(onPaper(x2), onPaper(y2)));
}

void PagePainter::drawRectangle(QPainter& painter, float left, float top, float width, float height,
                                const drawing::Pen& pen) {
    painter.setPen(toPen(pen, Qt::SquareCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(onPaper(left), onPaper(top), onPaper(width), onPaper(height)));
}

void PagePainter::drawPicture(QPainter& painter, const std::filesystem::path& picture, float left, float top,
                              float width, float height) {
    // More dots than a printer puts there would only make files large.
    constexpr qreal dotsPerTwip = 300.0 / 1440;
    constexpr int mostDots = 5000;
    const QRectF place(onPaper(left), onPaper(top), onPaper(width), onPaper(height));
    const QSize dots =
        (place.size() * dotsPerTwip).toSize().expandedTo({1, 1}).boundedTo({mostDots, mostDots});
    const QString path = toQString(picture.string());
    const QString key =
        QStringLiteral("%1|%2|%3x%4").arg(path).arg(pictureStamp(path)).arg(dots.width()).arg(dots.height());
    QImage* image = pictures_.object(key);
    QImage read;
    if (image == nullptr) {
        read = readPicture(path, dots);
        if (read.isNull()) return;
        if (isBlackAndWhite(read)) read = read.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
        image = &read;
        pictures_.insert(key, new QImage(read), std::max<qsizetype>(read.sizeInBytes() / 1000, 1));
    }
    // The edges of a bar code stay sharp.
    const bool isSmooth = painter.renderHints().testFlag(QPainter::SmoothPixmapTransform);
    if (image->depth() == 1) painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(place, *image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, isSmooth);
}

void PagePainter::draw(QPainter& painter, const std::vector<Drawn>& drawn) {
    for (const Drawn& each : drawn)
        std::visit(Overloaded{[&](const drawing::DrawnText& text) {
                                  drawText(painter, text.Left, text.Top, text.text, text.font,
                                           text.ForeColor);
                              },
                              [&](const drawing::DrawnLine& line) {
                                  drawLine(painter, line.x1, line.y1, line.x2, line.y2, line.pen);
                              },
                              [&](const drawing::DrawnRectangle& box) {
                                  drawRectangle(painter, box.Left, box.Top, box.Width, box.Height, box.pen);
                              },
                              [&](const drawing::DrawnPicture& image) {
                                  drawPicture(painter, image.picture, image.Left, image.Top, image.Width,
                                              image.Height);
                              }},
                   each);
}

} // namespace qtprint
