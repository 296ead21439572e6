#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "gui/layout/rulerView.h"
#include "gui/layout/sheetMark.h"
#include "gui/layout/sheetObjects.h"
#include "gui/layout/sheetPaper.h"

#include <QScrollBar>
#include <QWidget>

#include <optional>

namespace gui {

// The viewport of the layout page, layoutPic1: the sheet with its objects and the grip, the rulers over its
// edges. It turns the mouse into twips and hands the events over; it decides nothing.
class SheetView : public QWidget {
    Q_OBJECT

public:
    SheetView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void refresh();
    qreal pixelsPerTwip() const;
    // Ahead of the scroll bars, whose lengths it changes.
    void followZoom();
    // The sheet sees the keys of that widget first.
    void takeKeysOf(QWidget& other) { other.installEventFilter(this); }
    void takeFocus() { paper_->setFocus(Qt::OtherFocusReason); }
    void takeFirstField();
    QWidget* keyHolder() const { return paper_; }
    // The picture box at that place of the screen, where nothing lies over it.
    std::optional<int> pictureBoxAt(QPoint global) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

signals:
    void scrolled(int horizontal, int vertical); // by the wheel, in twips

private:
    bool mouseEvent(QObject* watched, QMouseEvent& mouse);
    bool objectEvent(core::ObjectRef object, QEvent* event);
    bool designEvent(core::ObjectRef object, QEvent* event);
    bool browseEvent(core::ObjectRef object, QEvent* event);
    bool gripEvent(QEvent* event);
    bool keyEvent(QObject* watched, QEvent* event);
    bool paperKey(const QKeyEvent& key);
    bool selectNext(int direction);
    void press(core::ObjectRef object, QMouseEvent& mouse);
    void release(core::ObjectRef object, QMouseEvent& mouse);
    void doubleClick(core::ObjectRef object);
    void showImportMenu(QPoint place);
    bool isLabelOpen(core::ObjectRef object) const;
    // A place on the screen, in twips on the sheet.
    QPoint sheetTwips(QPointF global) const;
    qreal pixelsPerTwipPlain() const; // without the zoom
    void tellSize();
    void placeGrip();
    void placeMark();
    // Scrolls as far as it takes to show the object, or the part of a high box that is typed in.
    void bringIntoView(core::ObjectRef object);
    void showOnRuler(const RulerView& ruler, QRect place);
    void bringIntoView(QRect place); // on the sheet's widget

    app::App& app_;
    EventBoundary& events_;
    SheetPaper* paper_;
    SheetObjects* objects_;
    SheetMark* mark_;
    QWidget* grip_;
    RulerView* ruler1_;
    RulerView* ruler2_;
    QWidget* corner_;                   // Shape1
    core::ObjectRef grabbed_;           // has the mouse until the button goes up
    int zoom_ = 100;                    // per cent, that is shown
    std::optional<QPointF> zoomAnchor_; // on the viewport; its centre without one
    bool pressed_ = false;
    bool refreshing_ = false;
};

} // namespace gui
