#include "qtprint/paperTarget.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <QPageLayout>

#include <algorithm>

namespace qtprint {

void PaperTarget::choosePaper(const drawing::PageSetup& setup) {
    constexpr qreal twipsPerPoint = 20;
    constexpr long shortest = 20;
    constexpr long longest = 288'000; // what a PDF can hold
    const QSizeF points(static_cast<qreal>(std::clamp(setup.Width, shortest, longest)) / twipsPerPoint,
                        static_cast<qreal>(std::clamp(setup.Height, shortest, longest)) / twipsPerPoint);
    const QPageSize size(points, QPageSize::Point, QString(), QPageSize::ExactMatch);
    QPageLayout layout(size, QPageLayout::Portrait, {});
    layout.setMode(QPageLayout::FullPageMode);
    device_.setPageLayout(layout);
}

QPainter& PaperTarget::sheet() {
    constexpr qreal twipsPerInch = 1440;
    if (!painter_.isActive()) {
        if (!painter_.begin(&device_))
            core::raise(core::errors::deviceIO, core::tr("the printer does not answer"));
        painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                                QPainter::SmoothPixmapTransform);
        painter_.scale(device_.logicalDpiX() / twipsPerInch, device_.logicalDpiY() / twipsPerInch);
    } else if (!onSheet_ && !device_.newPage()) {
        core::raise(core::errors::deviceIO, core::tr("the printer does not answer"));
    }
    onSheet_ = hasSheets_ = true;
    return painter_;
}

void PaperTarget::drawText(float x, float y, std::string_view text) {
    page_.drawText(sheet(), x, y, text, *this, ForeColor);
}

void PaperTarget::drawLine(float x1, float y1, float x2, float y2) {
    page_.drawLine(sheet(), x1, y1, x2, y2, *this);
}

void PaperTarget::drawRectangle(float left, float top, float width, float height) {
    page_.drawRectangle(sheet(), left, top, width, height, *this);
}

void PaperTarget::drawPicture(const std::filesystem::path& picture, float left, float top, float width,
                              float height) {
    page_.drawPicture(sheet(), picture, left, top, width, height);
}

// The sheet that is left behind comes out, be it empty.
void PaperTarget::startSheet() {
    sheet();
    onSheet_ = false;
}

void PaperTarget::endDocument() {
    sheet();
    onSheet_ = false;
    if (jobs_ == Jobs::EachByItself && !painter_.end()) failed_ = true;
}

bool PaperTarget::close() {
    if (painter_.isActive() && !painter_.end()) failed_ = true;
    onSheet_ = false;
    return !failed_;
}

} // namespace qtprint
