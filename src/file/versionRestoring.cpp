#include "file/versions.h"

#include "core/runTimeError.h"
#include "file/archive/packedArchive.h"
#include "file/archive/zip.h"
#include "file/atomicFile.h"
#include "file/versionNames.h"

#include <algorithm>

namespace file {

namespace fs = std::filesystem;

namespace {

std::optional<PackedArchive> openIfThere(const fs::path& database) {
    try {
        return std::optional<PackedArchive>(std::in_place, database);
    } catch (const core::RunTimeError&) {
        return std::nullopt; // moved, removed or damaged, which is what versions are for
    }
}

bool isSame(const PackedEntry& a, const PackedEntry& b) {
    return a.checksum == b.checksum && a.size == b.size && a.packedSize == b.packedSize &&
           a.method == b.method;
}

// Adds a picture from wherever it is; false when it is nowhere any more.
bool addPicture(PackedWriter& made, const PackedEntry& picture, const fs::path& folder,
                const std::optional<PackedArchive>& database) {
    const fs::path stored = folder / pictureFolder / pictureName(picture);
    if (hasBytes(stored, picture.packedSize)) {
        made.add(picture, stored);
        return true;
    }
    if (!database) return false;
    const auto found = std::ranges::find_if(database->entries(),
                                            [&](const PackedEntry& entry) { return isSame(entry, picture); });
    if (found == database->entries().end()) return false;
    PackedEntry renamed = picture;
    renamed.place = found->place;
    made.add(*database, renamed);
    return true;
}

void replace(PackedWriter& made, const fs::path& target, const fs::path& like,
             const std::function<void()>& beforeReplacing) {
    AtomicFile result(target, like);
    made.finish(result.fd(), target);
    if (beforeReplacing) beforeReplacing();
    result.commit();
}

} // namespace

std::string VersionStore::textOf(const Version& version) {
    Zip archive;
    archive.OpenArchive(version.file);
    std::optional<std::string> text = archive.readEntry(textEntry, Zip::maxFileBytes);
    if (!text) core::raise(core::errors::badFileFormat, version.file.string());
    return *std::move(text);
}

std::vector<std::string> VersionStore::write(const Version& version, const fs::path& database,
                                             const fs::path& target,
                                             const std::function<void()>& beforeReplacing) const {
    const PackedArchive kept(version.file);
    const PackedEntry* text = kept.find(textEntry);
    if (text == nullptr) core::raise(core::errors::badFileFormat, version.file.string());
    const std::optional<PackedArchive> present = openIfThere(database);
    PackedWriter made;
    made.add(kept, *text);
    std::vector<std::string> missing;
    for (const PackedEntry& picture : picturesListed(version))
        if (!addPicture(made, picture, folderOf(database), present)) missing.push_back(picture.name);
    // Of a database that is gone nobody knows how private it was.
    replace(made, target, present ? database : version.file, beforeReplacing);
    return missing;
}

std::vector<std::string> VersionStore::putPicturesBack(const Version& version, const fs::path& database,
                                                       const std::function<void()>& beforeReplacing) const {
    std::vector<PackedEntry> wanted = picturesListed(version);
    if (wanted.empty()) return {};
    const std::optional<PackedArchive> present(std::in_place, database);
    std::erase_if(wanted, [&](const PackedEntry& picture) {
        const PackedEntry* entry = present->find(picture.name);
        return entry != nullptr && isSame(*entry, picture);
    });
    PackedWriter made;
    std::set<std::string> putBack;
    std::vector<std::string> missing;
    for (const PackedEntry& picture : wanted) {
        if (addPicture(made, picture, folderOf(database), present))
            putBack.insert(picture.name);
        else
            missing.push_back(picture.name);
    }
    if (putBack.empty()) return missing;
    for (const PackedEntry& entry : present->entries())
        if (!putBack.contains(entry.name)) made.add(*present, entry);
    replace(made, database, database, beforeReplacing);
    return missing;
}

} // namespace file
