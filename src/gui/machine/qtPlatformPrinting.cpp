#include "core/runTimeError.h"
#include "core/translate.h"
#include "gui/frame/statusPanels.h"
#include "gui/machine/qtPlatform.h"
#include "gui/widgets/modalScope.h"
#include "gui/widgets/qtText.h"
#include "qtprint/pdfFile.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QUrl>

#include <filesystem>

// What a print asks of the window's machine.

namespace gui {

std::vector<platform::PaperName> QtPlatform::printerPapers() {
    return printer_.isPdf() ? Platform::printerPapers() : printer_.papers();
}

std::optional<platform::PrintChoice> QtPlatform::showPrinterDialog(const platform::PrintChoice& present) {
    const ModalScope scope(*this);
    const QString current = window_.currentFile ? toQt(window_.currentFile()) : QString();
    const QString name = QFileInfo(current).completeBaseName() + QStringLiteral(".pdf");
    return printer_.showDialog(present, QDir(startFolder()).filePath(name), dialogParent());
}

// The name that the dialog was given has been asked about there. Neither may be another name of the open
// database, which the print would take the place of.
std::optional<std::string> QtPlatform::askForPdfFile(const std::string& documentName) {
    const QString named = printer_.takeFileName();
    std::optional<std::string> file;
    if (named.isEmpty())
        file = showSave({core::tr("Print to PDF"), documentName + ".pdf",
                         core::tr("PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*")});
    else
        file = fromQt(named);
    std::error_code none;
    if (file && window_.currentFile && std::filesystem::equivalent(*file, window_.currentFile(), none)) {
        msgBox(core::fill(core::tr("%1 is the open database, and cannot be printed into."), {*file}),
               platform::Icon::Exclamation, core::tr("Print to PDF"), platform::Buttons::Ok);
        return std::nullopt;
    }
    if (named.isEmpty() && file && QFileInfo::exists(toQt(*file)) &&
        msgBox(core::tr("A file with that name exists. Overwrite it?"), platform::Icon::Question,
               core::tr("Print to PDF"), platform::Buttons::YesNo) == platform::Answer::No)
        return std::nullopt;
    return file;
}

namespace {

// Nothing else on the screen tells that there is a file now.
void tellMade(QWidget* window, const std::string& file) {
    auto* frame = qobject_cast<QMainWindow*>(window);
    auto* panels = frame == nullptr ? nullptr : qobject_cast<StatusPanels*>(frame->statusBar());
    const std::string name = std::filesystem::path(file).filename().string();
    if (panels != nullptr) panels->note(toQt(core::fill(core::tr("%1 was made."), {name})));
}

} // namespace

// After the print has ended, whose hourglass would stay over the message.
void QtPlatform::openPdfIfWanted(const std::string& file) {
    tellMade(window_.widget, file);
    if (getSetting("OpenPdf", "False") != "True") return;
    QObject* const owner = window_.widget != nullptr ? static_cast<QObject*>(window_.widget) : qApp;
    QMetaObject::invokeMethod(
        owner,
        [this, file] {
            const QString path = QFileInfo(toQt(file)).absoluteFilePath();
            if (QDesktopServices::openUrl(QUrl::fromLocalFile(path))) return;
            msgBox(core::fill(core::tr("%1 was made, but there is no program that opens it."), {file}),
                   platform::Icon::Exclamation, core::tr("Print to PDF"));
        },
        Qt::QueuedConnection);
}

std::unique_ptr<drawing::DrawTarget> QtPlatform::openPrinter(const std::string& documentName) {
    if (!printer_.isPdf()) return printer_.open(documentName, textMetrics_);
    const std::optional<std::string> file = askForPdfFile(documentName);
    if (!file) return nullptr;
    try {
        const std::string database = window_.currentFile ? window_.currentFile() : std::string();
        return qtprint::openPdfFile(*file, documentName, textMetrics_, database,
                                    [this, name = *file] { openPdfIfWanted(name); });
    } catch (const core::RunTimeError& error) {
        msgBox(core::fill(core::tr("%1 could not be written.\n%2"), {*file, error.what()}),
               platform::Icon::Exclamation, core::tr("Print to PDF"));
        return nullptr;
    }
}

} // namespace gui
