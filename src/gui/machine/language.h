#pragma once

#include <QString>

namespace gui {

// Installs the catalogues of the user's language, as the environment names it, for our texts and for Qt's
// own; English where there is none. Call it once there is an application object, before the first window.
void useLanguageOfUser();

// Does so from the folder that holds ferrowick_<code>.qm and Qt's own; False when there is none of the kind.
bool useLanguage(const QString& folder, const QString& code);

} // namespace gui
