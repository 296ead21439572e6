#pragma once

#include <QRadioButton>

namespace gui {

// A radio button whose label takes as many lines as it needs.
class WrappedRadioButton : public QRadioButton {
    Q_OBJECT

public:
    explicit WrappedRadioButton(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }

private:
    QSize indicatorSize() const;
    int labelLeft() const;
    QRect labelIn(int width) const;
};

} // namespace gui
