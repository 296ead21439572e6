#pragma once

#include <QHeaderView>

namespace gui {

// The header of a records list: names that do not fit are cut with dots, at whichever side they stand. With
// the keys, which the list gives it, a column is chosen: the arrows choose, with Ctrl they move it and with
// Ctrl+Shift they size it; Enter and Space are a click, and Esc, Down and Tab give the keys back.
class RecordsHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit RecordsHeader(QWidget* parent = nullptr);

    void takeKeys(int section);
    // What a drag does, one place or one step; left and right are those of the screen. False at the end.
    bool moveColumn(int section, int toRight);
    bool sizeColumn(int section, int wider);
    bool canMove(int section, int toRight) const;

signals:
    void chosen(int section); // to be brought into sight
    void menuWanted(QPoint place);
    void left(); // the keys are for the rows again

protected:
    bool event(QEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;

private:
    int visualStep(int toRight) const { return isRightToLeft() ? -toRight : toRight; }
    void choose(int section);
    void chooseAt(int visual);
    void tellChosen();
    bool arrowKey(const QKeyEvent& key);

    int chosen_ = 0;
};

} // namespace gui
