#pragma once

#include <QTreeView>

namespace gui {

// The icon that a cell is marked with beside its text.
constexpr int markRole = Qt::UserRole + 1;

// The look that the lists of the window share: rows of one height with some air, whole rows in focus,
// every other row shaded. Needs the header that the view is to keep.
void useListLook(QTreeView& view);

} // namespace gui
