#include "shell/start/recentFiles.h"

#include "platform/fileCheck.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace shell {

using app::App;

namespace {

constexpr std::chrono::milliseconds longestLook{150};

constexpr std::array<std::string_view, RecentFiles::most> recentItems = {
    "mnuRecent1", "mnuRecent2", "mnuRecent3", "mnuRecent4", "mnuRecent5",
    "mnuRecent6", "mnuRecent7", "mnuRecent8", "mnuRecent9", "mnuRecent10"};

std::string settingAt(std::size_t place) {
    return "RecentFile" + std::to_string(place + 1);
}

void show(App& app) {
    const std::vector<std::string>& paths = app.rooms.of<RecentFiles>().paths;
    for (std::size_t place = 0; place < recentItems.size(); ++place) {
        app::Control& item = app.mainFrm.control(recentItems[place]);
        item.Caption = place < paths.size() ? paths[place] : "";
        item.Enabled = true;
    }
    for (const char* key : {"mnuOpenRecent", "mnuRecentClear"})
        app.mainFrm.control(key).Enabled = !paths.empty();
}

} // namespace

std::string_view recentItem(std::size_t place) {
    return recentItems[place];
}

void rememberRecentFile(App& app) {
    if (app.document.currentFile.empty()) return;
    std::error_code error;
    const std::string path = std::filesystem::absolute(app.document.currentFile, error).string();
    if (error) return;
    std::vector<std::string>& paths = app.rooms.of<RecentFiles>().paths;
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
    paths.resize(std::min(paths.size(), RecentFiles::most));
    show(app);
}

void clearRecentFiles(App& app) {
    app.rooms.of<RecentFiles>().paths.clear();
    show(app);
}

void checkRecentFiles(App& app) {
    const std::vector<std::string>& paths = app.rooms.of<RecentFiles>().paths;
    const std::vector<bool> present = platform::arePresent(paths, longestLook);
    for (std::size_t place = 0; place < paths.size(); ++place)
        app.mainFrm.control(recentItems[place]).Enabled = present[place];
}

void readRecentFiles(App& app) {
    RecentFiles& files = app.rooms.of<RecentFiles>();
    std::vector<std::string>& paths = files.paths;
    paths.clear();
    for (std::size_t place = 0; place < recentItems.size(); ++place) {
        std::string path = app.platform.getSetting(settingAt(place), "");
        if (!path.empty()) files.kept = place + 1;
        if (!path.empty() && std::ranges::find(paths, path) == paths.end()) paths.push_back(std::move(path));
    }
    show(app);
}

void writeRecentFiles(App& app) {
    RecentFiles& files = app.rooms.of<RecentFiles>();
    const std::size_t count = files.paths.size();
    for (std::size_t place = 0; place < std::max(count, files.kept); ++place)
        app.platform.saveSetting(settingAt(place), place < count ? files.paths[place] : "");
    files.kept = count;
}

} // namespace shell
