#include "gui/records/listLook.h"

#include "gui/widgets/programStyle.h"

#include <QHeaderView>
#include <QIcon>
#include <QPainter>
#include <QStyledItemDelegate>

namespace gui {

namespace {

class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(),
                option.fontMetrics.height() + option.fontMetrics.height() / 3};
    }
    // A mark stands where the text does not begin and takes no room from it.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const QIcon mark = index.data(markRole).value<QIcon>();
        if (mark.isNull()) return;
        constexpr int edge = 2;
        const bool isLeft = index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
        const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
        const bool isFull = text + option.fontMetrics.height() > option.rect.width();
        const int side = option.fontMetrics.height() * (isFull ? 2 : 3) / 5;
        QRect place(0, 0, side, side);
        place.moveCenter(option.rect.center());
        if (isFull) place.moveTop(option.rect.top());
        isLeft ? place.moveLeft(option.rect.left() + edge) : place.moveRight(option.rect.right() - edge);
        mark.paint(painter, place, Qt::AlignCenter,
                   option.state & QStyle::State_Selected ? QIcon::Selected : QIcon::Normal);
    }
};

// Room at the sides of a cell, so that a number at the right edge of its column does not touch the text
// of the next one.
class CellStyle final : public ProgramStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int plain = ProgramStyle::pixelMetric(metric, option, widget);
        return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? plain + cellMargin : plain;
    }

private:
    static constexpr int cellMargin = 4; // pixels beyond those of the style
};

} // namespace

void useListLook(QTreeView& view) {
    view.setRootIsDecorated(false);
    view.setUniformRowHeights(true);
    view.setAllColumnsShowFocus(true);
    view.setAlternatingRowColors(true);
    view.setItemDelegate(new RowDelegate(&view));
    auto* cells = new CellStyle;
    cells->setParent(&view);
    view.setStyle(cells);
    view.header()->setStyle(cells);
}

} // namespace gui
