#include "gui/records/listLook.h"

#include "gui/widgets/programStyle.h"

#include <QHeaderView>
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

protected:
    // A mark is as large as the letters beside it, whatever their zoom.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const int side = option->fontMetrics.height();
        option->decorationSize = QSize(side, side);
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
