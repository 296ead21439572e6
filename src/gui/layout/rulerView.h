#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "layout/layoutPage.h"

#include <QWidget>

#include <map>

namespace gui {

// A ruler of the sheet, in inches, with the markers of its guides.
class RulerView : public QWidget {
    Q_OBJECT

public:
    RulerView(app::App& app, EventBoundary& events, Qt::Orientation orientation, QWidget* parent);

    void show(qreal pixelsPerTwip, qreal pixelsPerTwipPlain);
    // Turns a place on the screen into twips on the sheet, for a marker that is dragged.
    std::function<QPoint(QPoint global)> sheetTwips;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool isHorizontal() const { return orientation_ == Qt::Horizontal; }
    const core::ControlArray<layout::Guide>& guides() const;
    QRectF markerRect(const layout::Guide& guide) const;
    int guideAt(QPointF place) const; // 0 for none

    app::App& app_;
    EventBoundary& events_;
    Qt::Orientation orientation_;
    qreal pixelsPerTwip_ = 1, plain_ = 1; // along the sheet; without its zoom
    bool pressed_ = false;
    QPointF ruleClick_;    // where the bare ruler was pressed
    int pressedGuide_ = 0; // the marker that was pressed; 0 for none
};

} // namespace gui
