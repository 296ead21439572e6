#include "storage/versions.h"

#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <utility>

namespace storage {

namespace {

using app::App;

constexpr const char* keepKey = "KeepVersions";
constexpr const char* budgetKey = "VersionsMegabytes";

struct VersionState {
    std::optional<file::KnownText> known;
    std::string noted;
    bool isToldAlready = false;
};

void note(App& app, std::string text) {
    app.mainFrm.panels[app::documentPanel] = text;
    app.rooms.of<VersionState>().noted = std::move(text);
}

void noteFailure(App& app, const std::string& reason) {
    if (std::exchange(app.rooms.of<VersionState>().isToldAlready, true)) return;
    note(app, core::fill(core::tr("No version kept: %1"), {reason}));
}

} // namespace

VersionSettings versionSettings(App& app) {
    VersionSettings settings;
    settings.keep = !core::equalsNoCase(app.platform.getSetting(keepKey, "True"), "False");
    const std::string megabytes =
        app.platform.getSetting(budgetKey, std::to_string(VersionSettings::usualMegabytes));
    if (core::isNumeric(megabytes))
        settings.megabytes = static_cast<int>(
            std::clamp(core::val(megabytes), 0.0, static_cast<double>(VersionSettings::mostMegabytes)));
    return settings;
}

void storeVersionSettings(App& app, const VersionSettings& settings) {
    app.platform.saveSetting(keepKey, settings.keep ? "True" : "False");
    app.platform.saveSetting(budgetKey, std::to_string(settings.megabytes));
    app.platform.flushSettings();
}

std::optional<file::VersionStore> versionStore(App& app) {
    const std::filesystem::path folder = app.platform.versionsFolder();
    if (folder.empty()) return std::nullopt;
    constexpr std::uint64_t megabyte = 1'000'000;
    const auto megabytes = static_cast<std::uint64_t>(versionSettings(app).megabytes);
    return file::VersionStore(folder, megabytes * megabyte);
}

file::Zip::BeforeReplacing keepingVersion(App& app, const std::string& target) {
    if (app.platform.versionsFolder().empty() || !versionSettings(app).keep) return {};
    return [&app, target](const std::set<std::string>& staying) {
        std::error_code error;
        if (!std::filesystem::exists(target, error) && !error) return;
        try {
            versionStore(app)->keep(target, app.rooms.of<VersionState>().known, staying);
        } catch (const core::RunTimeError& failure) {
            // What is no archive is no state of a database.
            if (failure.number != core::errors::badFileFormat) noteFailure(app, failure.what());
        } catch (const std::exception& failure) {
            noteFailure(app, failure.what());
        }
    };
}

void noteRecords(App& app, std::uint32_t textChecksum) {
    app.rooms.of<VersionState>().known = file::KnownText{textChecksum, app.document.LV.count() - 1};
}

void noteUnsynced(App& app, const file::Zip& Zip, const std::string& file) {
    if (Zip.folderError() == 0) return;
    note(app, core::fill(core::tr("Written, but the folder of %1 could not be synced to the disk: %2"),
                         {file, std::strerror(Zip.folderError())}));
}

std::string takeNoted(App& app) {
    return std::exchange(app.rooms.of<VersionState>().noted, {});
}

} // namespace storage
