#pragma once

#include "labels/labelStocks.h"

#include <QWidget>

#include <optional>

namespace gui {

// A sheet of labels, drawn to scale. Where it has a start, labels before it are drawn as used up, and a click
// or the arrow keys choose another one.
class LabelSheetPicture : public QWidget {
    Q_OBJECT

public:
    explicit LabelSheetPicture(QWidget* parent = nullptr);
    void show(const std::optional<labels::LabelStock>& stock, int start = 0);

signals:
    void startChosen(int place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF paper() const;
    QRectF label(int place) const;

    std::optional<labels::LabelStock> stock_;
    int start_ = 0; // 0: the sheet is only shown
};

} // namespace gui
