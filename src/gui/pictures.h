#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

#include <optional>

namespace gui {

// Pictures come out of databases of unknown origin, so what one may take of memory is bounded: a larger one
// counts as damaged. Of an animation the first image counts.

// The size in pixels that the file tells, when it is a picture that can be shown.
std::optional<QSize> pictureSize(const QString& path);

// Another number for another content of the file.
qint64 pictureStamp(const QString& path);

// The picture in that size of device pixels; a null pixmap when it cannot be read. Kept for the next time.
QPixmap scaledPicture(const QString& path, QSize size);

} // namespace gui
