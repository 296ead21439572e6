#pragma once

#include "qtprint/pictureFile.h"

#include <QPixmap>
#include <QSize>
#include <QString>

namespace gui {

using qtprint::pictureSize;
using qtprint::pictureStamp;

// The picture in that size of device pixels; a null pixmap when it cannot be read. Kept for the next time.
QPixmap scaledPicture(const QString& path, QSize size);

} // namespace gui
