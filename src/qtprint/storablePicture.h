#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <optional>

namespace qtprint {

// A picture in a form that databases keep: JPEG or GIF, by its content and not by its name. JPEG stands in
// for all others, since they have too many colours for a GIF; what is transparent becomes white, as the page
// is.
struct StorablePicture {
    QString name; // of the file, with the ending that it has in a database
    QByteArray bytes;
    bool isConverted = false, wasTransparent = false;
};

// Whether that may be a picture, by its name.
bool isPictureName(const QString& file);
// Nothing for what is no picture that can be read, or takes too much; see pictureFile.h for the bounds.
std::optional<StorablePicture> storablePicture(const QString& file);
// The same of a picture without a file.
std::optional<StorablePicture> storablePicture(const QImage& image, const QString& name);

// Without transparency: what shines through is the paper.
QImage onPaper(const QImage& image);

} // namespace qtprint
