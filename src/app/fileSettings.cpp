#include "app/fileSettings.h"

namespace app {

using platform::FileSettings;

std::string fileSetting(const App& app, std::string_view name) {
    return app.rooms.of<FileSettings>().get(app.document.currentFile, name);
}

bool setFileSetting(App& app, std::string_view name, std::string_view text) {
    return app.rooms.of<FileSettings>().set(app.document.currentFile, name, text);
}

std::vector<std::string> fileSettingNames(const App& app, std::string_view beginning) {
    std::vector<std::string> names;
    for (const std::string& name : app.rooms.of<FileSettings>().names(app.document.currentFile))
        if (name.starts_with(beginning)) names.push_back(name.substr(beginning.size()));
    return names;
}

void copyFileSettings(App& app, std::string_view file, std::string_view beginning) {
    const FileSettings& settings = app.rooms.of<FileSettings>();
    for (const std::string& name : settings.names(file))
        if (name.starts_with(beginning)) setFileSetting(app, name, settings.get(file, name));
}

void keepFileSettings(App& app, std::filesystem::path file) {
    app.rooms.of<FileSettings>() = FileSettings(std::move(file));
}

} // namespace app
