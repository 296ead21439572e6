#include "qtprint/pdfFile.h"

#include "core/runTimeError.h"
#include "file/atomicFile.h"
#include "qtprint/hiddenApplication.h"
#include "qtprint/paperTarget.h"
#include "qtprint/pictureFile.h"

#include <QPdfWriter>

namespace qtprint {

namespace {

// What Qt writes a PDF to. Its writer does not ask whether a write has failed, so the first failure is kept
// until the file is to take its place.
class NewFile : public QIODevice {
public:
    NewFile(std::filesystem::path path, const std::filesystem::path& database)
        : path_(std::move(path)), file_(path_, database) {
        open(WriteOnly);
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // Raises what went wrong.
    void commit() {
        flush();
        if (failure_ != 0) file::raiseSystemError(failure_, path_.string());
        file_.commit();
    }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 count) override {
        constexpr std::size_t most = std::size_t{64} * 1024;
        const std::size_t before = buffer_.size();
        buffer_.append(bytes, static_cast<std::size_t>(count));
        if (std::string_view(bytes, static_cast<std::size_t>(count)).find("begincmap") !=
            std::string_view::npos)
            tellBlanks(before);
        if (buffer_.size() >= most) flush();
        return failure_ == 0 ? count : -1;
    }

private:
    // A font's table of characters, which Qt writes in one piece. Qt takes the first character that a shape
    // stands for, so what is copied from the page would have tabs for its blanks.
    void tellBlanks(std::size_t from) {
        constexpr std::string_view tab = "<0009>", blank = "<0020>";
        for (std::size_t at = from; (at = buffer_.find(tab, at)) != std::string::npos; at += blank.size())
            buffer_.replace(at, tab.size(), blank);
    }
    void flush() {
        if (failure_ == 0) failure_ = file::writeAt(file_.fd(), buffer_.data(), buffer_.size(), place_);
        place_ += static_cast<long long>(buffer_.size());
        buffer_.clear();
    }

    std::filesystem::path path_;
    file::AtomicFile file_;
    std::string buffer_;
    long long place_ = 0;
    int failure_ = 0;
};

struct PdfDevice {
    PdfDevice(const std::filesystem::path& path, const std::filesystem::path& database)
        : file(path, database), writer(&file) {}

    NewFile file;
    QPdfWriter writer;
};

class PdfTarget : private PdfDevice, public PaperTarget {
public:
    PdfTarget(const std::filesystem::path& path, const QString& title, drawing::TextMetrics& textMetrics,
              const std::filesystem::path& database, std::function<void()> made)
        : PdfDevice(path, database), PaperTarget(writer, textMetrics, Jobs::InOneFile),
          made_(std::move(made)) {
        constexpr int dotsPerInch = 1440; // a dot is a twip
        writer.setResolution(dotsPerInch);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Ferrowick"));
    }
    ~PdfTarget() override { PaperTarget::close(); } // unless it has been closed, the file stays as it was

    // A print without a sheet is no file: an older one stays.
    bool close() override {
        if (!PaperTarget::close()) return false;
        try {
            if (!hasSheets()) return true;
            file.commit();
        } catch (const core::RunTimeError& error) {
            failure_ = error.what();
            return false;
        }
        if (made_) made_();
        return true;
    }
    std::string failure() const override { return failure_; }

private:
    std::function<void()> made_;
    std::string failure_;
};

class PdfPrinter : public drawing::Printer {
public:
    PdfPrinter(std::filesystem::path file, std::filesystem::path database)
        : file_(std::move(file)), database_(std::move(database)) {}

    std::string DeviceName() const override { return "Print to PDF"; }
    drawing::TextMetrics& textMetrics() override { return metrics_; }
    std::unique_ptr<drawing::DrawTarget> open(const std::string& documentName) override {
        return openPdfFile(file_, documentName, metrics_, database_);
    }
    std::optional<drawing::Extent> pictureExtent(const std::filesystem::path& picture) override {
        return qtprint::pictureExtent(picture);
    }

private:
    HiddenApplication application_;
    std::filesystem::path file_, database_;
    QtTextMetrics metrics_;
};

} // namespace

std::unique_ptr<drawing::DrawTarget>
openPdfFile(const std::filesystem::path& file, const std::string& documentName, drawing::TextMetrics& metrics,
            const std::filesystem::path& database, const std::function<void()>& made) {
    return std::make_unique<PdfTarget>(file, toQString(documentName), metrics, database, made);
}

std::unique_ptr<drawing::Printer> makePdfPrinter(const std::filesystem::path& file,
                                                 const std::filesystem::path& database) {
    return std::make_unique<PdfPrinter>(file, database);
}

} // namespace qtprint
