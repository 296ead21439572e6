#include "gui/frame/picture.h"

#include "app/appearance.h"
#include "gui/frame/mainFrmView.h"
#include "gui/widgets/qtText.h"
#include "shell/mainWindow.h"
#include "shell/program.h"

#include <QApplication>
#include <QPixmap>

#include <iostream>
#include <sys/stat.h>

namespace gui {

namespace {

// Nobody is there to answer, and nothing is to be remembered.
class PicturePlatform final : public QtPlatform {
public:
    PicturePlatform()
        : QtPlatform(platform::WorkFolder::scratch(), platform::SettingsFile(std::filesystem::path())) {}

    platform::Answer msgBox(const std::string& text, platform::Icon, const std::string&,
                            platform::Buttons buttons) override {
        std::cerr << "ferrowick: " << text << '\n';
        return buttons == platform::Buttons::Ok ? platform::Answer::Ok : platform::Answer::No;
    }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::optional<std::string> showOpen(const platform::FileDialog&) override { return std::nullopt; }
    std::optional<std::string> showSave(const platform::FileDialog&) override { return std::nullopt; }
    std::optional<std::string> showNew(const platform::FileDialog&) override { return std::nullopt; }
    void showForm(std::string_view) override {}
    std::string getSetting(const std::string&, const std::string& byDefault) override { return byDefault; }
    void saveSetting(const std::string&, const std::string&) override {}
    void flushSettings() override {}
};

} // namespace

int drawPicture(const CommandLine& line) {
    PicturePlatform platform;
    shell::Program app(platform);
    if (line.dark) app::appearance(app).themeOfRun = app::Theme::Dark;
    MainFrmView window(app, platform);
    window.resize(line.size);
    window.load(shell::commandLineFor(fromQt(line.file)));
    if (!line.file.isEmpty() && app.document.currentFile.empty()) {
        std::cerr << "ferrowick: " << fromQt(line.file) << " cannot be opened\n";
        return 1;
    }
    QApplication::processEvents();
    // It shows records, so that a new file is as private as their database.
    struct stat status {};
    if (::stat(app.document.currentFile.c_str(), &status) == 0)
        ::umask(::umask(0777) | (~status.st_mode & 0777));
    if (window.grab().save(line.picture, "PNG")) return 0;
    std::cerr << "ferrowick: " << fromQt(line.picture) << " cannot be written\n";
    return 1;
}

} // namespace gui
