#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

namespace gui {

// Another number for another content of the file.
qint64 pictureStamp(const QString& path);

// The picture in that size of device pixels; a null pixmap when it cannot be read. Kept for the next time.
QPixmap scaledPicture(const QString& path, QSize size);

} // namespace gui
