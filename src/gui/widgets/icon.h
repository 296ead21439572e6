#pragma once

#include <QIcon>
#include <QString>

namespace gui {

// An icon of the family by its name. It is drawn in the colour of the text around it, so it follows a
// change of the palette, and sharp at every scale. An empty icon for a name that is not in the family.
QIcon familyIcon(const QString& name);

QIcon programIcon();

} // namespace gui
