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

signals:
    void resized();
    void scrolled(int horizontal, int vertical); // twips

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF pageRect() const;

    app::App& app_;
    qtprint::PagePainter painter_;
};

} // namespace gui
