#include "qtprint/storablePicture.h"

#include "qtprint/pictureFile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace qtprint {

namespace {

constexpr int quality = 90; // out of 100

// What is read to be converted; others that Qt has decoders for are not tried on files of unknown origin.
bool isConvertible(const QByteArray& format) {
    return format == "png" || format == "bmp" || format == "webp";
}

// The ending of what is stored as it is; empty for what is not.
QString endingOf(const QByteArray& format) {
    if (format == "gif") return QStringLiteral(".gif");
    return format == "jpeg" || format == "jpg" ? QStringLiteral(".jpg") : QString();
}

} // namespace

bool isPictureName(const QString& file) {
    const QString ending = QFileInfo(file).suffix().toLower();
    for (const char* known : {"jpg", "jpeg", "gif", "png", "bmp", "webp"})
        if (ending == QLatin1String(known)) return true;
    return false;
}

std::optional<StorablePicture> storablePicture(const QString& file) {
    if (!QFileInfo(file).isFile()) return std::nullopt; // a pipe would be waited for
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    const QString name = QFileInfo(file).completeBaseName(), ending = endingOf(format);
    if (!reader.canRead() || (ending.isEmpty() && !isConvertible(format)) || isTooLarge(file, reader.size()))
        return std::nullopt;
    if (ending.isEmpty()) return storablePicture(reader.read(), name);
    QFile bytes(file);
    if (!bytes.open(QIODevice::ReadOnly)) return std::nullopt;
    StorablePicture picture{name + ending, bytes.readAll()};
    if (bytes.error() != QFileDevice::NoError) return std::nullopt;
    return picture;
}

std::optional<StorablePicture> storablePicture(const QImage& image, const QString& name) {
    if (image.isNull()) return std::nullopt;
    StorablePicture picture;
    picture.name = name + QStringLiteral(".jpg");
    picture.isConverted = true;
    picture.wasTransparent = image.hasAlphaChannel();
    QBuffer buffer(&picture.bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !onPaper(image).save(&buffer, "JPEG", quality))
        return std::nullopt;
    return picture;
}

QImage onPaper(const QImage& image) {
    if (!image.hasAlphaChannel()) return image;
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

} // namespace qtprint
