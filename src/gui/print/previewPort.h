#pragma once

#include "app/app.h"
#include "qtprint/pagePainter.h"

#include <QWidget>

namespace gui {

// The port of the preview, rptPreview2, with the page in it.
class PreviewPort : public QWidget {
    Q_OBJECT

public:
    explicit PreviewPort(app::App& app, QWidget* parent = nullptr);

    void refresh();
    qreal pixelsPerTwip() const;
    qreal zoom() const { return zoom_; }
    void setZoom(qreal zoom) { zoom_ = zoom; } // 1 is as large as it is printed

signals:
    void zoomTurned(QWheelEvent* event);
    void resized();
    void scrolled(int horizontal, int vertical); // twips
    void paged(bool forward);                    // within the page, or on to another one
    void wentToEnd(bool last);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF pageRect() const;

    app::App& app_;
    qtprint::PagePainter painter_;
    qreal zoom_ = 1;
};

} // namespace gui
