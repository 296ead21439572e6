#pragma once

#include "app/app.h"
#include "file/archive/zip.h"
#include "file/versions.h"

#include <optional>
#include <string>

namespace storage {

// Each save keeps the state that it replaces, unless the user has switched that off.

struct VersionSettings {
    static constexpr int usualMegabytes = 200;
    static constexpr int mostMegabytes = 1'000'000;

    bool keep = true;
    int megabytes = usualMegabytes; // of all databases together
};
[[nodiscard]] VersionSettings versionSettings(app::App& app);
// Written at once, so that the other programs of the user follow them.
void storeVersionSettings(app::App& app, const VersionSettings& settings);

// The versions of this user; nothing where there is no place for them.
[[nodiscard]] std::optional<file::VersionStore> versionStore(app::App& app);

// For Zip::CloseArchive: keeps what stands under that name, before it is replaced. Nothing that goes wrong
// there keeps the save from being done; it is shown in the status bar, once.
[[nodiscard]] file::Zip::BeforeReplacing keepingVersion(app::App& app, const std::string& target);
// The document is what the file has now, in a text of that checksum: the next save need not count its
// records.
void noteRecords(app::App& app, std::uint32_t textChecksum);
// Shows in the status bar that the archive is in its place, but not for certain after a loss of power, when
// it is so.
void noteUnsynced(app::App& app, const file::Zip& Zip, const std::string& file);
// What was noted since the last call, for who has no status bar: why no version could be kept, or this.
[[nodiscard]] std::string takeNoted(app::App& app);

} // namespace storage
