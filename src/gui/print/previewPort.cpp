#include "gui/print/previewPort.h"
#include "print/previewPage.h"

#include "gui/widgets/measures.h"
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace gui {

namespace {

constexpr int lineStep = 240; // twips

} // namespace

PreviewPort::PreviewPort(app::App& app, QWidget* parent) : QWidget(parent), app_(app) {
    setObjectName(QStringLiteral("rptPreview2"));
    setAccessibleName(tr("Page"));
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Mid);
}

void PreviewPort::refresh() {
    update();
}

qreal PreviewPort::pixelsPerTwip() const {
    return logicalDpiX() / static_cast<qreal>(twipsPerInch) * zoom_;
}

QRectF PreviewPort::pageRect() const {
    const print::PreviewPage& page = print::previewPage(app_);
    const qreal scale = pixelsPerTwip();
    // On whole pixels, so that moving the page does not make its letters shiver.
    return {std::round(page.Left * scale), std::round(page.Top * scale), page.rptPreview1.Width * scale,
            page.rptPreview1.Height * scale};
}

void PreviewPort::paintEvent(QPaintEvent*) {
    const print::PreviewPage& page = print::previewPage(app_);
    if (!page.Visible) return;
    const QRectF sheet = pageRect();
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.drawRect(sheet.adjusted(-1, -1, 0, 0));
    painter.fillRect(sheet, Qt::white);
    painter.setClipRect(sheet);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.translate(sheet.topLeft());
    painter.scale(pixelsPerTwip(), pixelsPerTwip());
    painter_.draw(painter, page.rptPreview1.drawn());
}

void PreviewPort::resizeEvent(QResizeEvent*) {
    emit resized();
}

void PreviewPort::wheelEvent(QWheelEvent* event) {
    constexpr int perNotch = 120;
    constexpr int linesPerNotch = 3;
    if (event->modifiers() & Qt::ControlModifier) return emit zoomTurned(event);
    const QPoint turned = event->angleDelta();
    emit scrolled(-turned.x() * lineStep * linesPerNotch / perNotch,
                  -turned.y() * lineStep * linesPerNotch / perNotch);
    event->accept();
}

void PreviewPort::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return emit scrolled(-lineStep, 0);
    case Qt::Key_Right:
        return emit scrolled(lineStep, 0);
    case Qt::Key_Up:
        return emit scrolled(0, -lineStep);
    case Qt::Key_Down:
        return emit scrolled(0, lineStep);
    case Qt::Key_PageUp:
        return emit paged(false);
    case Qt::Key_PageDown:
        return emit paged(true);
    case Qt::Key_Home:
        return emit wentToEnd(false);
    case Qt::Key_End:
        return emit wentToEnd(true);
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace gui

#include "moc_previewPort.cpp"
