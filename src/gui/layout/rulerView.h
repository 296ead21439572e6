#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "layout/rulers.h"

#include <QWidget>

#include <functional>

namespace gui {

// A ruler of the sheet, in inches, with the markers of its guides. With the keys, which F6 gives it, one of
// them is chosen, and they move it, make one and take it away. Tab goes from guide to guide, and on behind
// the last.
class RulerView : public QWidget {
    Q_OBJECT

public:
    RulerView(app::App& app, EventBoundary& events, Qt::Orientation orientation, QWidget* parent);

    void show(qreal pixelsPerTwip, qreal pixelsPerTwipPlain);
    // Turns a place on the screen into twips on the sheet, for a marker that is dragged.
    std::function<QPoint(QPoint global)> sheetTwips;
    // Scrolls to that place on the ruler.
    std::function<void(QRect place)> showPlace;
    // Esc gives the keys back.
    std::function<void()> leave;

    // What is chosen, for a screen reader: the place of its line, in inches, and the last one there is.
    std::optional<double> chosenInches() const;
    double lastInches() const;
    void moveChosenTo(double inches);
    QString chosenText() const;

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool isHorizontal() const { return orientation_ == Qt::Horizontal; }
    layout::RulerSide side() const {
        return isHorizontal() ? layout::RulerSide::Above : layout::RulerSide::Left;
    }
    const core::ControlArray<layout::Guide>& guides() const { return layout::guidesOn(app_, side()); }
    const layout::Guide* chosenGuide() const { return guides().find(chosen_); }
    bool takesKey(const QKeyEvent& key) const;
    int arrowDirection(int key) const; // 0 for others and for arrows across the ruler
    float middlePlace() const;         // of what is in sight, in twips
    void choose(int index);
    bool chooseNext(int direction);
    void moveChosen(float by);
    void insert();
    void removeChosen();
    void tellChosen();
    void paintFocus(QPainter& painter) const;
    QRectF markerRect(const layout::Guide& guide) const;
    int guideAt(QPointF place) const; // 0 for none

    app::App& app_;
    EventBoundary& events_;
    Qt::Orientation orientation_;
    qreal pixelsPerTwip_ = 1, plain_ = 1; // along the sheet; without its zoom
    bool pressed_ = false;
    QPointF ruleClick_;    // where the bare ruler was pressed
    int pressedGuide_ = 0; // the marker that was pressed; 0 for none
    int chosen_ = 0;       // the guide that the keys work on; 0 for none
};

} // namespace gui
