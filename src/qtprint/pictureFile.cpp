#include "qtprint/pictureFile.h"

#include "qtprint/twipsFont.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>

namespace qtprint {

namespace {

constexpr qint64 mostPixels = 64'000'000; // 256 MB while it is read
constexpr qint64 mostFileBytes = 64'000'000;
// A few bytes of a GIF can stand for any number of pixels, and all of them are unpacked.
constexpr qint64 mostGifPixels = 16'000'000;

// Only what may be chosen is read, whatever else Qt has decoders for.
bool isAllowedFormat(const QByteArray& format) {
    return format == "jpeg" || format == "jpg" || format == "gif" || format == "bmp";
}

struct Measured {
    QSize size; // empty for what is no picture
    bool isTooLarge = false;
};

Measured measure(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead() || !isAllowedFormat(reader.format())) return {};
    if (QFileInfo(path).size() > mostFileBytes) return {{}, true};
    const QSize size = reader.size();
    const qint64 pixels = static_cast<qint64>(size.width()) * static_cast<qint64>(size.height());
    return {size, !size.isEmpty() && pixels > (reader.format() == "gif" ? mostGifPixels : mostPixels)};
}

// A JPEG is quickly read at half, a quarter or an eighth of its size. At any other size it would be scaled by
// the reader and then once more; half as much again as is wanted keeps it sharp.
QSize sizeToRead(QSize natural, QSize bounds) {
    QSize size = natural;
    for (int part = 2; part <= 8; part *= 2) {
        const QSize smaller((natural.width() + part - 1) / part, (natural.height() + part - 1) / part);
        if (smaller.width() * 2 < bounds.width() * 3 || smaller.height() * 2 < bounds.height() * 3) break;
        size = smaller;
    }
    return size;
}

} // namespace

std::optional<QSize> pictureSize(const QString& path) {
    const Measured picture = measure(path);
    if (picture.isTooLarge || picture.size.isEmpty()) return std::nullopt;
    return picture.size;
}

bool isPictureTooLarge(const QString& path) {
    return measure(path).isTooLarge;
}

bool isTooLarge(const QString& path, QSize size) {
    const qint64 pixels = static_cast<qint64>(size.width()) * static_cast<qint64>(size.height());
    return size.isEmpty() || pixels > mostPixels || QFileInfo(path).size() > mostFileBytes;
}

std::optional<drawing::Extent> pictureExtent(const std::filesystem::path& path) {
    constexpr long twipsPerPixel = 15; // of the 96 dots per inch that pictures are measured by
    const std::optional<QSize> size = pictureSize(toQString(path.string()));
    if (!size) return std::nullopt;
    return drawing::Extent{size->width() * twipsPerPixel, size->height() * twipsPerPixel};
}

qint64 pictureStamp(const QString& path) {
    const QFileInfo file(path);
    return file.lastModified().toMSecsSinceEpoch() ^ file.size() << 42;
}

QImage readPicture(const QString& path, QSize bounds) {
    const std::optional<QSize> natural = pictureSize(path);
    if (!natural || bounds.isEmpty()) return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const bool isLarger = natural->width() > bounds.width() && natural->height() > bounds.height();
    const QSize read = sizeToRead(*natural, bounds);
    if (read != *natural) reader.setScaledSize(read);
    const QImage image = reader.read();
    return image.isNull() || !isLarger
               ? image
               : image.scaled(bounds, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace qtprint
