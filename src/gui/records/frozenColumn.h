#pragma once

#include "gui/records/recordsHeader.h"

#include <QTreeView>

namespace gui {

// The first column of a list over its left edge, while the list scrolls sideways beneath it. Its rows are
// painted only: the mouse goes through to the list, which knows whose column it has hit (see column()). Its
// heading is worked like any other.
class FrozenColumn : public QObject {
    Q_OBJECT

public:
    // The list has its model and its look already.
    explicit FrozenColumn(QTreeView& list);

    // The column that is to stay; -1 for none.
    void setSection(int section);
    // With each change of the list's columns, its places or its scroll bars.
    void place();
    // What a place on the list's viewport is in: the frozen column, or -1 where it is not.
    int column(QPoint place) const;
    bool isOver(int section) const { return section == section_ && !rows_->isHidden(); }
    // How many pixels of such a place it hides.
    int hidden(const QRect& cell) const { return rows_->isHidden() ? 0 : rows_->width() - cell.left(); }
    int width() const { return rows_->isHidden() ? 0 : rows_->width(); }
    QHeaderView* header() const { return header_; }

private:
    bool fits() const;

    QTreeView& list_;
    RecordsHeader* header_;
    QTreeView* rows_;
    QWidget* edge_;
    int section_ = -1;
};

} // namespace gui
