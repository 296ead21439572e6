#pragma once

#include "gui/machine/systemPrinter.h"
#include "platform/localePaper.h"
#include "platform/platform.h"
#include "platform/settingsFile.h"
#include "platform/userFolders.h"
#include "platform/workFolder.h"
#include "qtprint/twipsFont.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace gui {

// The machine as the window knows it: dialogs, cursor and links by Qt.
class QtPlatform : public platform::Platform {
public:
    using FormFactory = std::function<void(QWidget* parent)>;

    // The user's own. With other folders nothing is kept beside the files, or for the next start.
    QtPlatform() : QtPlatform(platform::WorkFolder(), platform::SettingsFile()) { isUsers_ = true; }
    QtPlatform(platform::WorkFolder folder, platform::SettingsFile settings);

    // What the main window gives when it is made.
    struct Window {
        QPointer<QWidget> widget;
        std::function<void()> refresh; // shows the state as it is, ahead of a dialog
        std::function<void()> paintStatus;
        std::function<std::string()> currentFile; // its folder is where file dialogs begin
    };
    void attach(Window window) { window_ = std::move(window); }
    void registerForm(const std::string& name, FormFactory factory) { forms_[name] = std::move(factory); }

    QByteArray windowGeometry() const;
    void saveWindowGeometry(const QByteArray& geometry);

    platform::Answer msgBox(const std::string& text, platform::Icon icon, const std::string& caption,
                            platform::Buttons buttons = platform::Buttons::Ok) override;
    int choose(const std::string& text, const std::string& caption,
               const std::vector<std::string>& buttons) override;
    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& proposed) override;
    std::optional<std::string> showOpen(const platform::FileDialog& dialog) override;
    std::optional<std::string> showSave(const platform::FileDialog& dialog) override;
    std::optional<std::string> showNew(const platform::FileDialog& dialog) override;
    void showForm(std::string_view name) override;

    void setMousePointer(platform::MousePointer pointer) override;
    void paintStatus() override;
    bool tellProgress(const std::string& what, int done, int total) override;
    void openLink(const std::string& target) override;
    platform::MailStart sendMail(const platform::MailMessage& message,
                                 const std::function<void()>& failed) override;
    std::optional<platform::FontChoice> showFont(const platform::FontChoice& present) override;

    void setClipboard(const platform::ClipboardData& data) override;
    platform::ClipboardData clipboard() override;

    std::string printerDeviceName() override { return printer_.deviceName(); }
    std::vector<platform::PaperName> printerPapers() override;
    int localePaper() override { return platform::localePaper(); }
    std::optional<platform::PrintChoice> showPrinterDialog(const platform::PrintChoice& present) override;
    std::unique_ptr<drawing::DrawTarget> openPrinter(const std::string& documentName) override;
    drawing::TextMetrics& textMetrics() override { return textMetrics_; }

    std::optional<drawing::Extent> pictureExtent(const std::filesystem::path& path) override;
    bool isPictureTooLarge(const std::filesystem::path& path) override;
    bool saveClipboardPicture(const std::filesystem::path& path) override;
    void convertToJpeg(const std::filesystem::path& bitmap, const std::filesystem::path& jpeg,
                       int quality) override;

    std::filesystem::path workFolder() override { return workFolder_.path(); }
    std::filesystem::path tempFolder() override { return workFolder_.temp(); }
    void clearWorkFiles() override;
    bool keepsDataFile() const override { return true; }
    std::filesystem::path stateFolder() override;
    bool guardsFiles() const override { return isUsers_; }

    std::filesystem::path versionsFolder() override { return platform::versionsFolder(); }
    std::string getSetting(const std::string& key, const std::string& byDefault) override;
    void saveSetting(const std::string& key, const std::string& value) override;
    void flushSettings() override { settings_.flush(); }

    std::chrono::year_month_day today() override;

private:
    class ModalScope;
    QWidget* dialogParent() const;
    QString startFolder() const;
    std::optional<std::string> askForPdfFile(const std::string& documentName);
    void openPdfIfWanted(const std::string& file);
    std::optional<std::string> askForNewName(const platform::FileDialog& dialog, const QString& acceptLabel);

    platform::WorkFolder workFolder_;
    platform::SettingsFile settings_;
    Window window_;
    SystemPrinter printer_;
    qtprint::QtTextMetrics textMetrics_;
    std::map<std::string, FormFactory, std::less<>> forms_;
    QElapsedTimer workTime_; // of the command that tells its progress
    std::unique_ptr<QProgressDialog> progress_;
    bool hourglass_ = false;
    bool isUsers_ = false;
};

// "Database (*.fwk)|*.fwk|All Files (*.*)|*.*" as the names and patterns of Qt's file dialog.
QStringList nameFilters(std::string_view filter);

// The name that was typed, with the suffix of the filter's first pattern when it has none of its own.
QString withSuffix(const QString& path, std::string_view filter);

} // namespace gui
