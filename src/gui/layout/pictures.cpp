#include "gui/layout/pictures.h"

#include <QPixmapCache>

namespace gui {

namespace {

constexpr int largestShownSide = 4096;

} // namespace

QPixmap scaledPicture(const QString& path, QSize size) {
    size = size.boundedTo({largestShownSide, largestShownSide});
    if (path.isEmpty() || size.isEmpty()) return {};
    const QString key =
        QStringLiteral("%1|%2|%3x%4").arg(path).arg(pictureStamp(path)).arg(size.width()).arg(size.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    const QImage image = qtprint::readPicture(path, size);
    if (image.isNull()) return {};
    pixmap = QPixmap::fromImage(
        image.size() == size ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace gui
