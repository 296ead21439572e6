#pragma once

#include "summary/summaryTable.h"

#include <QAbstractScrollArea>

namespace gui {

// The groups of a summary as bars, one below the other. The arrows go from bar to bar, Enter or a click
// chooses one; a bar under the pointer tells what it stands for.
class BarChart : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit BarChart(QWidget* parent = nullptr);

    // The summary has to stay as it is until the next call.
    void showSummary(const summary::Summary& summary, int figure, const QString& figureName);
    void setCurrent(int group);
    int current() const { return current_; }

signals:
    void currentChanged(int group);
    void chosen(int group);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    int rowHeight() const;
    int groupAt(int y) const; // -1 for none
    int count() const;
    QString told(int group) const;
    void measure();
    void describe();
    void paintRow(QPainter& painter, int group, const QRect& row) const;

    const summary::Summary* summary_ = nullptr;
    int figure_ = summary::recordsBar;
    QString figureName_;
    std::optional<summary::BarScale> scale_;
    int current_ = -1, pressed_ = -1;
    int nameWidth_ = 0, valueWidth_ = 0;
};

} // namespace gui
