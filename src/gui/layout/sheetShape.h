#pragma once

#include "core/objectRef.h"

#include <QPixmap>
#include <QWidget>

namespace gui {

// A line, a box or a picture of the sheet.
class SheetShape : public QWidget {
    Q_OBJECT

public:
    SheetShape(core::Family family, QWidget* parent);

    struct Look {
        std::int32_t foreColor = 0, backColor = 0xFFFFFF;
        int drawWidth = 1;           // pixels, ahead of the zoom
        int zoom = 100;              // per cent
        float width = 0, height = 0; // twips
        bool frame = false;
        bool outline = true; // the drawn rectangle of a box; off while it is being sized
        core::FittedImage image;
        qreal penWidth() const { return drawWidth * zoom / 100.0; }
        QString hint; // what an empty picture shows while it is designed
        bool operator==(const Look& other) const;
    };
    void show(const Look& look, qreal pixelsPerTwip);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLine(QPainter& painter) const;
    void paintBox(QPainter& painter) const;
    void paintPicture(QPainter& painter);

    core::Family family_;
    Look look_;
    qreal pixelsPerTwip_ = 1;
    QPixmap picture_;   // as it is shown
    QSize pictureSize_; // that was asked for
    qint64 stamp_ = 0;  // of its file
};

} // namespace gui
