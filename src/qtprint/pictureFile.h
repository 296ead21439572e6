#pragma once

#include "platform/platform.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace qtprint {

// Pictures come out of databases of unknown origin, so what one may take of memory is bounded: a larger one
// counts as damaged. Of an animation the first image counts.

// The size in pixels that the file tells, when it is a picture that can be shown.
std::optional<QSize> pictureSize(const QString& path);
// Whether it is a picture that takes too much to be shown.
bool isPictureTooLarge(const QString& path);
// The same of a size that a file tells.
bool isTooLarge(const QString& path, QSize size);
// The size in twips.
std::optional<drawing::Extent> pictureExtent(const std::filesystem::path& path);

// Another number for another content of the file.
qint64 pictureStamp(const QString& path);

// The picture, made smaller when it is larger than the bounds; a null image when it cannot be read.
QImage readPicture(const QString& path, QSize bounds);

} // namespace qtprint
