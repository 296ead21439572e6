#pragma once

#include "app/app.h"

#include <QDateTime>
#include <QString>

namespace gui {

// The desktop's list of what was used lately, recently-used.xbel, in the form of bookmarks that
// freedesktop.org tells. From here on it is told each file that is opened or stored, once the window has been
// painted.
void keepRecentList(app::App& app);

// Puts the file into the list at that path, or notes there that it was used once more. What others keep in
// the list stays; it is replaced in one step, and for its owner alone. A list that is damaged, or larger than
// a list grows, is left as it is. Answers why the file could not be put there; empty when it was.
QString noteRecentFile(const QString& list, const QString& file, const QDateTime& now);

} // namespace gui
