#include "qtprint/pdfFile.h"

#include "core/runTimeError.h"
#include "qtprint/paperTarget.h"
#include "qtprint/pictureFile.h"

#include <QGuiApplication>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTemporaryDir>

#include <optional>

namespace qtprint {

namespace {

struct PdfDevice {
    explicit PdfDevice(const QString& path) : file(path), writer(&file) {}

    QSaveFile file;
    QPdfWriter writer;
};

class PdfTarget : private PdfDevice, public PaperTarget {
public:
    PdfTarget(const QString& path, const QString& title, platform::TextMetrics& textMetrics)
        : PdfDevice(path), PaperTarget(writer, textMetrics, Jobs::InOneFile) {
        constexpr int dotsPerInch = 1440; // a dot is a twip
        if (!file.open(QIODevice::WriteOnly))
            core::raise(core::errors::pathAccess, file.errorString().toStdString());
        writer.setResolution(dotsPerInch);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Ferrowick"));
    }
    ~PdfTarget() override { PaperTarget::close(); } // unless it has been closed, the file stays as it was

    // A print without a sheet is no file: an older one stays.
    bool close() override { return PaperTarget::close() && (!hasSheets() || file.commit()); }
    std::string failure() const override {
        return file.error() == QFileDevice::NoError ? std::string() : file.errorString().toStdString();
    }
};

// Qt measures and draws texts for an application object only; this one shows nothing.
class HiddenApplication {
public:
    HiddenApplication() {
        if (QCoreApplication::instance() != nullptr) return;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Qt would make one itself otherwise, and leave it behind.
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder_.emplace().path()));
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        application_ = std::make_unique<QGuiApplication>(argc_, argv_);
    }

private:
    char name_[4] = "fwk";
    char* argv_[2] = {name_, nullptr};
    int argc_ = 1;
    std::optional<QTemporaryDir> runtimeFolder_;
    std::unique_ptr<QGuiApplication> application_;
};

class PdfPrinter : public platform::Printer {
public:
    explicit PdfPrinter(std::filesystem::path file) : file_(std::move(file)) {}

    std::string DeviceName() const override { return "Print to PDF"; }
    platform::TextMetrics& textMetrics() override { return metrics_; }
    std::unique_ptr<platform::DrawTarget> open(const std::string& documentName) override {
        return openPdfFile(file_, documentName, metrics_);
    }
    std::optional<platform::Extent> pictureExtent(const std::filesystem::path& picture) override {
        return qtprint::pictureExtent(picture);
    }

private:
    HiddenApplication application_;
    std::filesystem::path file_;
    QtTextMetrics metrics_;
};

} // namespace

std::unique_ptr<platform::DrawTarget> openPdfFile(const std::filesystem::path& file,
                                                  const std::string& documentName,
                                                  platform::TextMetrics& metrics) {
    return std::make_unique<PdfTarget>(toQString(file.string()), toQString(documentName), metrics);
}

std::unique_ptr<platform::Printer> makePdfPrinter(const std::filesystem::path& file) {
    return std::make_unique<PdfPrinter>(file);
}

} // namespace qtprint
