#pragma once

#include "app/app.h"

#include <QWidget>

namespace gui {

// The sheet itself, layoutPic2: white, with the grid dots, the margin lines and the guides. The objects are
// its children.
class SheetPaper : public QWidget {
    Q_OBJECT

public:
    SheetPaper(app::App& app, QWidget* parent);

    void show(qreal pixelsPerTwip);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintGrid(QPainter& painter, const QRect& part) const;
    void paintMargins(QPainter& painter) const;
    void paintGuides(QPainter& painter) const;

    app::App& app_;
    qreal pixelsPerTwip_ = 1;
    QString shown_; // what is drawn beside the objects, to see a change
};

} // namespace gui
