#pragma once

#include <QTreeView>

namespace gui {

// The look that the lists of the window share: rows of one height with some air, whole rows in focus,
// every other row shaded. Needs the header that the view is to keep.
void useListLook(QTreeView& view);

} // namespace gui
