#include "gui/pictures.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QPixmapCache>

namespace gui {

namespace {

constexpr qint64 mostPixels = 64'000'000; // 256 MB while it is read
constexpr qint64 mostFileBytes = 64'000'000;
constexpr int largestShownSide = 4096;

// A few bytes of a GIF can stand for any number of pixels, and all of them are unpacked.
constexpr qint64 mostGifPixels = 16'000'000;

bool isWithinBounds(QSize size, const QByteArray& format) {
    return size.isValid() && !size.isEmpty() &&
           static_cast<qint64>(size.width()) * static_cast<qint64>(size.height()) <=
               (format == "gif" ? mostGifPixels : mostPixels);
}

// Only what may be chosen is read, whatever else Qt has decoders for.
bool isAllowedFormat(const QByteArray& format) {
    return format == "jpeg" || format == "jpg" || format == "gif" || format == "bmp";
}

} // namespace

std::optional<QSize> pictureSize(const QString& path) {
    if (QFileInfo(path).size() > mostFileBytes) return std::nullopt;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead() || !isAllowedFormat(reader.format())) return std::nullopt;
    const QSize size = reader.size();
    if (!isWithinBounds(size, reader.format())) return std::nullopt;
    return size;
}

qint64 pictureStamp(const QString& path) {
    const QFileInfo file(path);
    return file.lastModified().toMSecsSinceEpoch() ^ file.size() << 42;
}

QPixmap scaledPicture(const QString& path, QSize size) {
    size = size.boundedTo({largestShownSide, largestShownSide});
    if (path.isEmpty() || size.isEmpty()) return {};
    const QString key =
        QStringLiteral("%1|%2|%3x%4").arg(path).arg(pictureStamp(path)).arg(size.width()).arg(size.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    if (!pictureSize(path)) return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    // A JPEG is read at half, quarter, ... its size; twice the size that is wanted keeps it sharp.
    const QSize natural = reader.size();
    if (natural.width() > size.width() * 2 && natural.height() > size.height() * 2)
        reader.setScaledSize(size * 2);
    const QImage image = reader.read();
    if (image.isNull()) return {};
    pixmap = QPixmap::fromImage(
        image.size() == size ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace gui
