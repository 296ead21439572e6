#pragma once

#include <QWidget>

namespace gui {

// The frame on the sheet around what is selected while the page is designed, or around the box that has the
// keys. The mouse goes through it.
class SheetMark : public QWidget {
    Q_OBJECT

public:
    explicit SheetMark(QWidget* paper);

    // Around that widget of the sheet; without one there is no frame.
    void surround(const QWidget* object, bool outside);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace gui
