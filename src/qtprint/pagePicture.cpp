#include "qtprint/pagePicture.h"

#include "core/runTimeError.h"
#include "drawing/recordedPage.h"
#include "file/atomicFile.h"
#include "qtprint/hiddenApplication.h"
#include "qtprint/pagePainter.h"
#include "qtprint/pictureFile.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>

namespace qtprint {

namespace {

constexpr qreal roomAround = 120; // twips

// Where something stands, as far as it is on the page.
class Covered {
public:
    Covered(float pageWidth, float pageHeight)
        : page_(0, 0, static_cast<qreal>(pageWidth), static_cast<qreal>(pageHeight)) {}

    void add(float left, float top, float width, float height) {
        for (const float number : {left, top, width, height})
            if (!std::isfinite(number)) return;
        // A line has no height.
        const QRectF place(static_cast<qreal>(left), static_cast<qreal>(top), static_cast<qreal>(width),
                           static_cast<qreal>(height));
        area_ |= page_ & place.normalized().adjusted(0, 0, 1, 1);
    }
    bool isEmpty() const { return area_.isEmpty(); }
    // Not so narrow that nothing could be seen of it.
    QRectF withRoom() const {
        QRectF area = area_.adjusted(-roomAround, -roomAround, roomAround, roomAround);
        const qreal shortest = std::max(area.width(), area.height()) / 4;
        const qreal wider = std::max(shortest - area.width(), 0.0) / 2;
        const qreal higher = std::max(shortest - area.height(), 0.0) / 2;
        return area.adjusted(-wider, -higher, wider, higher);
    }

private:
    QRectF page_, area_;
};

class PictureTarget : public drawing::RecordedPage {
public:
    PictureTarget(std::filesystem::path file, std::filesystem::path database, int pixels,
                  drawing::TextMetrics& metrics)
        : path_(std::move(file)), database_(std::move(database)), pixels_(pixels), metrics_(metrics) {
        bOneSheet = true;
        measureWith(metrics);
    }

    bool isPrinter() const override { return true; }
    std::string failure() const override { return failure_; }
    bool close() override {
        const Covered covered = measure();
        if (covered.isEmpty()) {
            failure_ = "nothing stands on its layout";
            return false;
        }
        const QImage image = paint(covered.withRoom());
        QByteArray bytes;
        QBuffer buffer(&bytes);
        if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
            failure_ = "out of memory";
            return false;
        }
        try {
            file::replaceFile(path_, {bytes.data(), static_cast<std::size_t>(bytes.size())}, database_);
        } catch (const core::RunTimeError& error) {
            failure_ = error.what();
            return false;
        }
        return true;
    }

private:
    Covered measure() const {
        Covered covered(Width, Height);
        for (const drawing::Drawn& each : drawn()) {
            if (const auto* text = std::get_if<drawing::DrawnText>(&each)) {
                covered.add(text->Left, text->Top, metrics_.textWidth(text->font, text->text),
                            metrics_.textHeight(text->font));
            } else if (const auto* line = std::get_if<drawing::DrawnLine>(&each)) {
                covered.add(line->x1, line->y1, line->x2 - line->x1, line->y2 - line->y1);
            } else if (const auto* box = std::get_if<drawing::DrawnRectangle>(&each)) {
                covered.add(box->Left, box->Top, box->Width, box->Height);
            } else if (const auto* picture = std::get_if<drawing::DrawnPicture>(&each)) {
                covered.add(picture->Left, picture->Top, picture->Width, picture->Height);
            }
        }
        return covered;
    }
    QImage paint(QRectF area) const {
        const qreal scale = pixels_ / std::max(area.width(), area.height());
        QImage image((area.size() * scale).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
        if (image.isNull()) return image;
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                               QPainter::SmoothPixmapTransform);
        painter.scale(scale, scale);
        painter.translate(-area.topLeft());
        PagePainter().draw(painter, drawn());
        return image;
    }

    std::filesystem::path path_, database_;
    int pixels_;
    drawing::TextMetrics& metrics_;
    std::string failure_;
};

class PicturePrinter : public drawing::Printer {
public:
    PicturePrinter(std::filesystem::path file, std::filesystem::path database, int pixels)
        : file_(std::move(file)), database_(std::move(database)), pixels_(pixels) {}

    std::string DeviceName() const override { return "Picture"; }
    drawing::TextMetrics& textMetrics() override { return metrics_; }
    std::unique_ptr<drawing::DrawTarget> open(const std::string&) override {
        return std::make_unique<PictureTarget>(file_, database_, pixels_, metrics_);
    }
    std::optional<drawing::Extent> pictureExtent(const std::filesystem::path& picture) override {
        return qtprint::pictureExtent(picture);
    }

private:
    HiddenApplication application_;
    std::filesystem::path file_, database_;
    int pixels_;
    QtTextMetrics metrics_;
};

} // namespace

std::unique_ptr<drawing::Printer> makePicturePrinter(const std::filesystem::path& file,
                                                     const std::filesystem::path& database, int pixels) {
    return std::make_unique<PicturePrinter>(file, database, pixels);
}

} // namespace qtprint
