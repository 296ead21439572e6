#include "gui/machine/qtPlatform.h"

#include "core/encoding.h"
#include "core/runTimeError.h"
#include "gui/dialogs/dialogFit.h"
#include "gui/dialogs/fontDialog.h"
#include "gui/dialogs/formView.h"
#include "gui/machine/mailProgram.h"
#include "gui/machine/messageBox.h"
#include "gui/widgets/modalScope.h"
#include "gui/widgets/qtText.h"
#include "platform/userFolders.h"
#include "qtprint/pictureFile.h"
#include "qtprint/storablePicture.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QImage>
#include <QInputDialog>
#include <QMimeData>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>

namespace gui {

namespace {

constexpr std::string_view windowSection = "Window";
constexpr std::string_view geometryKey = "Geometry";
constexpr QLatin1String layoutFormat("application/x-ferrowick-layout");

// The file dialog that Qt draws itself comes so narrow that sizes and dates are cut.
void giveRoom(QFileDialog& dialog) {
    auto* details = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (details == nullptr) return; // the desktop's own dialog
    details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    details->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    const int em = dialog.fontMetrics().height();
    dialog.resize(QSize(em * 50, em * 30).boundedTo(roomOnScreen(dialog)));
}

// False when there is no program for it.
bool openTarget(const std::string& target) {
    const QString link = toQt(target);
    const QFileInfo file(link);
    if (file.isAbsolute() && file.exists()) return QDesktopServices::openUrl(QUrl::fromLocalFile(link));
    const QUrl url(link, QUrl::TolerantMode);
    // Neither the folder that the program was started in nor an option of the opening program may be meant.
    return QDesktopServices::openUrl(url.isRelative() ? QUrl::fromLocalFile(QDir::root().filePath(link))
                                                      : url);
}

} // namespace

QtPlatform::QtPlatform(platform::WorkFolder folder, platform::SettingsFile settings)
    : workFolder_(std::move(folder)), settings_(std::move(settings)) {}

QByteArray QtPlatform::windowGeometry() const {
    return QByteArray::fromBase64(
        QByteArray::fromStdString(settings_.GetSetting(windowSection, geometryKey)));
}

void QtPlatform::saveWindowGeometry(const QByteArray& geometry) {
    settings_.SaveSetting(windowSection, geometryKey, geometry.toBase64().toStdString());
    settings_.flush();
}

QWidget* QtPlatform::dialogParent() const {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : window_.widget.data();
}

platform::Answer QtPlatform::msgBox(const std::string& text, platform::Icon icon, const std::string& caption,
                                    platform::Buttons buttons) {
    const ModalScope scope(*this);
    MessageBox box(dialogParent(), text, icon, caption, buttons);
    return box.ask();
}

int QtPlatform::choose(const std::string& text, const std::string& caption,
                       const std::vector<std::string>& buttons) {
    const ModalScope scope(*this);
    MessageBox box(dialogParent(), text, platform::Icon::Question, caption, buttons);
    return box.askPlace();
}

std::string QtPlatform::inputBox(const std::string& prompt, const std::string& title,
                                 const std::string& proposed) {
    const ModalScope scope(*this);
    QInputDialog dialog(dialogParent());
    dialog.setObjectName(QStringLiteral("inputBox"));
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setLabelText(toQt(prompt));
    dialog.setWindowTitle(toQt(title));
    dialog.setTextValue(toQt(proposed));
    fitDialog(dialog);
    return dialog.exec() == QDialog::Accepted ? fromQt(dialog.textValue()) : std::string();
}

QString QtPlatform::startFolder() const {
    const std::string current = window_.currentFile ? window_.currentFile() : std::string();
    if (!current.empty()) {
        const QFileInfo folder(QFileInfo(toQt(current)).absolutePath());
        if (folder.isDir()) return folder.filePath();
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

std::optional<std::string> QtPlatform::showOpen(const platform::FileDialog& dialog) {
    const ModalScope scope(*this);
    QFileDialog files(dialogParent(), toQt(dialog.title), startFolder());
    files.setObjectName(QStringLiteral("CDialog"));
    giveRoom(files);
    // A name that is not there comes back too: what to say about it is for the handler.
    files.setFileMode(QFileDialog::AnyFile);
    files.setAcceptMode(QFileDialog::AcceptOpen);
    files.setNameFilters(nameFilters(dialog.filter));
    if (!dialog.fileName.empty()) files.selectFile(toQt(dialog.fileName));
    if (files.exec() != QDialog::Accepted || files.selectedFiles().isEmpty()) return std::nullopt;
    const QString path = files.selectedFiles().constFirst();
    return fromQt(QFileInfo::exists(path) ? path : withSuffix(path, dialog.filter));
}

std::optional<std::string> QtPlatform::askForNewName(const platform::FileDialog& dialog,
                                                     const QString& acceptLabel) {
    const ModalScope scope(*this);
    QFileDialog files(dialogParent(), toQt(dialog.title), startFolder());
    files.setObjectName(QStringLiteral("CDialog"));
    giveRoom(files);
    files.setFileMode(QFileDialog::AnyFile);
    files.setAcceptMode(QFileDialog::AcceptSave);
    // The handlers ask before they overwrite, and in their own words.
    files.setOption(QFileDialog::DontConfirmOverwrite);
    files.setNameFilters(nameFilters(dialog.filter));
    if (!acceptLabel.isEmpty()) files.setLabelText(QFileDialog::Accept, acceptLabel);
    if (!dialog.fileName.empty()) files.selectFile(toQt(dialog.fileName));
    if (files.exec() != QDialog::Accepted || files.selectedFiles().isEmpty()) return std::nullopt;
    return fromQt(withSuffix(files.selectedFiles().constFirst(), dialog.filter));
}

std::optional<std::string> QtPlatform::showSave(const platform::FileDialog& dialog) {
    return askForNewName(dialog, {});
}

std::optional<std::string> QtPlatform::showNew(const platform::FileDialog& dialog) {
    return askForNewName(dialog, QObject::tr("&Create"));
}

void QtPlatform::showForm(std::string_view name) {
    const auto form = forms_.find(name);
    if (form == forms_.end()) core::raise(core::errors::elementNotFound, std::string(name));
    const ModalScope scope(*this);
    form->second(dialogParent());
}

void QtPlatform::setMousePointer(platform::MousePointer pointer) {
    const bool wanted = pointer == platform::MousePointer::Hourglass;
    if (wanted == hourglass_) return;
    hourglass_ = wanted;
    if (wanted)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtPlatform::paintStatus() {
    if (window_.paintStatus) window_.paintStatus();
}

bool QtPlatform::tellProgress(const std::string& what, int done, int total) {
    constexpr qint64 patience = 1000; // milliseconds
    if (done == 0) workTime_.start();
    if (done >= total) {
        progress_.reset();
        return true;
    }
    // Until then no event comes between the command and its work.
    if (progress_ == nullptr && workTime_.elapsed() < patience) return true;
    if (progress_ == nullptr) {
        progress_ =
            std::make_unique<QProgressDialog>(toQt(what), QObject::tr("Cancel"), 0, total, dialogParent());
        progress_->setObjectName(QStringLiteral("progress"));
        progress_->setWindowTitle(QStringLiteral("Ferrowick"));
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setAutoClose(false);
        progress_->setAutoReset(false);
        progress_->setMinimumDuration(0);
        progress_->show();
    }
    progress_->setValue(done); // lets the events of the dialog through
    return !progress_->wasCanceled();
}

void QtPlatform::openLink(const std::string& target) {
    openTarget(target);
}

platform::MailStart QtPlatform::sendMail(const platform::MailMessage& message,
                                         const std::function<void()>& failed) {
    using platform::MailStart;
    QObject* const owner = window_.widget != nullptr ? static_cast<QObject*>(window_.widget) : qApp;
    if (startMailProgram(message, owner, failed)) return MailStart::WithAttachment;
    return openTarget(platform::mailtoLink(message)) ? MailStart::WithoutAttachment : MailStart::NoProgram;
}

std::optional<platform::FontChoice> QtPlatform::showFont(const platform::FontChoice& present) {
    const ModalScope scope(*this);
    FontDialog dialog(present, dialogParent());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.choice();
}

void QtPlatform::setClipboard(const platform::ClipboardData& data) {
    auto* content = new QMimeData; // the clipboard's own from here on
    if (!data.text.empty()) content->setText(toQt(data.text));
    if (!data.html.empty()) content->setHtml(toQt(data.html));
    if (!data.layout.empty()) content->setData(layoutFormat, QByteArray::fromStdString(data.layout));
    QGuiApplication::clipboard()->setMimeData(content);
}

platform::ClipboardData QtPlatform::clipboard() {
    platform::ClipboardData data;
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    if (content == nullptr) return data;
    if (content->hasText()) data.text = fromQt(content->text());
    if (content->hasHtml()) data.html = fromQt(content->html());
    data.layout = core::sanitizeUtf8(content->data(layoutFormat).toStdString());
    return data;
}

std::optional<drawing::Extent> QtPlatform::pictureExtent(const std::filesystem::path& path) {
    return qtprint::pictureExtent(path);
}

bool QtPlatform::isPictureTooLarge(const std::filesystem::path& path) {
    return qtprint::isPictureTooLarge(toQt(path.string()));
}

bool QtPlatform::saveClipboardPicture(const std::filesystem::path& path) {
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    if (content == nullptr || content->hasText() || content->hasUrls() || !content->hasImage()) return false;
    // Neither bitmaps nor JPEGs have transparency.
    const QImage image = qtprint::onPaper(QGuiApplication::clipboard()->image());
    return !image.isNull() && image.save(toQt(path.string()), "BMP");
}

void QtPlatform::convertToJpeg(const std::filesystem::path& bitmap, const std::filesystem::path& jpeg,
                               int quality) {
    const QImage image = qtprint::onPaper(QImage(toQt(bitmap.string())));
    if (image.isNull() || !image.save(toQt(jpeg.string()), "JPEG", quality))
        core::raise(core::errors::pathAccess, jpeg.string());
}

void QtPlatform::clearWorkFiles() {
    workFolder_.clearTemp();
    workFolder_.removeDataFile();
}

std::filesystem::path QtPlatform::stateFolder() {
    if (!isUsers_) return {};
    std::filesystem::path folder = platform::userFolder("XDG_STATE_HOME", ".local/state");
    return !folder.empty() && platform::makePrivateFolder(folder) ? folder : std::filesystem::path();
}

std::string QtPlatform::getSetting(const std::string& key, const std::string& byDefault) {
    return settings_.GetSetting(platform::settingsSection, key, byDefault);
}

void QtPlatform::saveSetting(const std::string& key, const std::string& value) {
    settings_.SaveSetting(platform::settingsSection, key, value);
}

std::chrono::year_month_day QtPlatform::today() {
    const QDate day = QDate::currentDate();
    return std::chrono::year(day.year()) / day.month() / day.day();
}

QStringList nameFilters(std::string_view filter) {
    QStringList filters;
    const QStringList parts = toQt(filter).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
        // On this system a file without a dot in its name is a file as well.
        const QString patterns = parts[i + 1] == QLatin1String("*.*")
                                     ? QStringLiteral("*")
                                     : QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        filters << QStringLiteral("%1 (%2)").arg(name, patterns);
    }
    return filters;
}

QString withSuffix(const QString& path, std::string_view filter) {
    const QString pattern = toQt(filter).section(QLatin1Char('|'), 1, 1).section(QLatin1Char(';'), 0, 0);
    if (!QFileInfo(path).suffix().isEmpty() || !pattern.startsWith(QLatin1String("*.")) || path.isEmpty())
        return path;
    const QString suffix = pattern.mid(1);
    if (suffix == QLatin1String(".*")) return path;
    return path.endsWith(QLatin1Char('.')) ? path.chopped(1) + suffix : path + suffix;
}

} // namespace gui
