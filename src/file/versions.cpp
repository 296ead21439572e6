#include "file/versions.h"

#include "core/runTimeError.h"
#include "file/archive/checksum.h"
#include "file/archive/packedArchive.h"
#include "file/versionNames.h"
#include "file/workFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace file {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view unfinished = ".new-";
constexpr std::size_t longestStem = 100;

void makeFolder(const fs::path& folder) {
    if (const int failure = makePrivateFolder(folder)) raiseSystemError(failure, folder.string());
}

// Two that save one file at the same time would give one number twice. Nobody waits long for it: the save
// goes on, and at worst two versions bear the number.
FileHandle lockFolder(const fs::path& folder) {
    FileHandle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (int i = 0; i < 50 && handle.isOpen() && ::flock(handle.get(), LOCK_EX | LOCK_NB) != 0; ++i) {
        constexpr useconds_t aMoment = 2000;
        ::usleep(aMoment);
    }
    return handle;
}

// A file of the store while it is written; it has its name only when it is whole.
class NewFile {
public:
    explicit NewFile(const fs::path& folder)
        : path_(folder / (std::string(unfinished) + std::to_string(::getpid()))) {
        ::unlink(path_.c_str());
        handle_.reset(::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!handle_.isOpen()) raiseSystemError(errno, path_.string());
    }
    ~NewFile() {
        if (!isNamed_) ::unlink(path_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    [[nodiscard]] int fd() const { return handle_.get(); }
    [[nodiscard]] const fs::path& path() const { return path_; }
    [[nodiscard]] std::uint64_t bytes() const {
        struct stat status {};
        if (::fstat(fd(), &status) != 0) raiseSystemError(errno, path_.string());
        return static_cast<std::uint64_t>(status.st_size);
    }
    void rename(const fs::path& name) {
        if (::rename(path_.c_str(), name.c_str()) != 0) raiseSystemError(errno, name.string());
        isNamed_ = true;
    }

private:
    fs::path path_;
    FileHandle handle_;
    bool isNamed_ = false;
};

std::vector<PackedEntry> picturesOf(const PackedArchive& archive) {
    std::vector<PackedEntry> pictures = archive.entries();
    std::erase_if(pictures, [](const PackedEntry& entry) { return entry.name == textEntry; });
    return pictures;
}

// All that the names in a folder tell, in the order of the numbers.
struct Listing {
    explicit Listing(const fs::path& folder) {
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            const std::string name = entry->path().filename().string();
            if (auto version = versionNamed(name)) {
                version->file = entry->path();
                versions.push_back(*std::move(version));
            } else if (name.starts_with(unfinished) &&
                       name != unfinished.data() + std::to_string(::getpid())) {
                leftOver.push_back(entry->path());
            }
        }
        std::ranges::sort(versions, [](const Version& a, const Version& b) {
            return std::tie(a.number, a.kept, a.file) < std::tie(b.number, b.kept, b.file);
        });
    }
    std::vector<Version> versions;
    std::vector<fs::path> leftOver;
};

std::map<std::string, std::uint64_t> storedPictures(const fs::path& folder) {
    std::map<std::string, std::uint64_t> stored;
    std::error_code error;
    for (fs::directory_iterator entry(folder / pictureFolder, error), end; !error && entry != end;
         entry.increment(error))
        if (const auto bytes = pictureBytes(entry->path().filename().string()))
            stored.emplace(entry->path().filename().string(), *bytes);
    return stored;
}

// Removes the pictures that no version has any more. Of versions with the same pictures one is read.
void dropPictures(const fs::path& folder, const std::vector<Version>& versions) {
    std::map<std::string, std::uint64_t> stored = storedPictures(folder);
    if (stored.empty()) return;
    std::set<std::uint32_t> read;
    for (const Version& version : versions) {
        if (!read.insert(version.pictures).second) continue;
        try {
            for (const PackedEntry& picture : picturesListed(version)) stored.erase(pictureName(picture));
        } catch (const core::RunTimeError&) {
            read.erase(version.pictures); // cut short; another one may have the list
        }
    }
    for (const auto& [name, bytes] : stored) ::unlink((folder / pictureFolder / name).c_str());
}

int dayOf(std::int64_t seconds) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm local{};
    ::localtime_r(&time, &local);
    constexpr int mostDaysOfYear = 400;
    return local.tm_year * mostDaysOfYear + local.tm_yday;
}

} // namespace

fs::path VersionStore::folderOf(const fs::path& database) const {
    std::error_code error;
    fs::path whole = fs::weakly_canonical(fs::absolute(database, error), error);
    if (error) whole = database;
    // 64 bits, so that no two databases of one user meet.
    std::uint64_t sum = 14695981039346656037U;
    for (const char letter : whole.string())
        sum = (sum ^ static_cast<unsigned char>(letter)) * 1099511628211U;
    char text[17] = {};
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(sum));
    return folder_ / (std::string(text) + "-" + whole.stem().string().substr(0, longestStem));
}

void VersionStore::keep(const fs::path& database, std::optional<KnownText> known,
                        const std::set<std::string>& staying, std::time_t now) {
    const PackedArchive archive(database);
    try {
        keep(archive, folderOf(database), known, staying, now);
    } catch (const core::RunTimeError&) {
        // libzip takes what it cannot read for damaged.
        if (archive.failure() != 0) raiseSystemError(archive.failure(), database.string());
        throw;
    }
}

void VersionStore::keep(const PackedArchive& archive, const fs::path& folder, std::optional<KnownText> known,
                        const std::set<std::string>& staying, std::time_t now) const {
    const PackedEntry* text = archive.find(textEntry);
    if (text == nullptr || budget_ == 0) return;
    makeFolder(folder);
    const FileHandle lock = lockFolder(folder);
    const Listing present(folder);
    const std::string list = listOf(picturesOf(archive));
    Version version;
    version.text = text->checksum;
    version.pictures = checksum(list);
    version.bytes = archive.bytes();
    if (known && known->checksum == text->checksum) version.records = known->records;
    version.saved = std::max<std::int64_t>(archive.modified(), 0);
    version.kept = now;
    version.number = 1;
    if (!present.versions.empty()) {
        const Version& last = present.versions.back();
        if (last.text == version.text && last.pictures == version.pictures && last.bytes == version.bytes &&
            hasBytes(last.file, last.packedBytes))
            return;
        version.number = last.number + 1;
    }
    storePictures(archive, folder, staying);
    NewFile file(folder);
    PackedWriter made;
    made.add(archive, *text);
    if (!list.empty()) made.add(pictureList, list);
    made.finish(file.fd(), file.path());
    version.packedBytes = file.bytes();
    file.rename(folder / nameOf(version));
    for (const fs::path& left : present.leftOver) ::unlink(left.c_str());
    thinOut(folder, now);
    fitBudget(folder);
}

void VersionStore::storePictures(const PackedArchive& archive, const fs::path& folder,
                                 const std::set<std::string>& staying) const {
    const std::vector<PackedEntry> pictures = picturesOf(archive);
    if (pictures.empty()) return;
    std::uint64_t bytes = 0;
    for (const PackedEntry& picture : pictures) bytes += picture.packedSize;
    const bool isTooMuch = bytes > budget_ / 4;
    const fs::path place = folder / pictureFolder;
    makeFolder(place);
    for (const PackedEntry& picture : pictures) {
        const fs::path stored = place / pictureName(picture);
        if ((isTooMuch && staying.contains(picture.name)) || hasBytes(stored, picture.packedSize)) continue;
        NewFile file(place);
        archive.copy(picture, file.fd(), file.path());
        file.rename(stored);
    }
}

void VersionStore::thinOut(const fs::path& folder, std::time_t now) const {
    Listing listing(folder);
    std::vector<Version>& versions = listing.versions;
    std::vector<Version> kept;
    std::set<int> days;
    bool isPictureFree = false; // some picture may be nobody's any more
    constexpr std::int64_t secondsOfDay = std::int64_t{24} * 60 * 60;
    for (auto version = versions.rbegin(); version != versions.rend(); ++version) {
        const bool isNewest = kept.size() < newestKept;
        const bool isOfDays = version->kept > now - daysKept * secondsOfDay;
        if ((days.insert(dayOf(version->kept)).second && isOfDays) || isNewest) {
            kept.push_back(*version);
            continue;
        }
        ::unlink(version->file.c_str());
        isPictureFree |= std::ranges::none_of(
            kept, [&](const Version& newer) { return newer.pictures == version->pictures; });
    }
    if (isPictureFree) dropPictures(folder, kept);
}

void VersionStore::fitBudget(const fs::path& locked) const {
    std::uint64_t total = 0;
    std::error_code error;
    for (fs::directory_iterator entry(folder_, error), end; !error && entry != end; entry.increment(error))
        total += bytesIn(entry->path());
    if (total > budget_) dropOldest(locked);
}

void VersionStore::dropOldest(const fs::path& locked) const {
    struct Database {
        std::vector<Version> versions; // the oldest first
        std::uint64_t pictures = 0;
    };
    std::map<fs::path, Database> all;
    std::uint64_t total = 0;
    const auto countPictures = [](const fs::path& folder) {
        std::uint64_t bytes = 0;
        for (const auto& [name, size] : storedPictures(folder)) bytes += size;
        return bytes;
    };
    std::error_code error;
    for (fs::directory_iterator entry(folder_, error), end; !error && entry != end; entry.increment(error)) {
        Database& database = all[entry->path()];
        database.versions = Listing(entry->path()).versions;
        database.pictures = countPictures(entry->path());
        total += database.pictures;
        for (const Version& version : database.versions) total += version.packedBytes;
    }
    while (total > budget_) {
        // The oldest of those that are not the last of their database; when there are no others, the oldest.
        const auto rank = [](const Database& database) {
            return std::pair(database.versions.size() == 1, database.versions.front().kept);
        };
        auto oldest = all.end();
        for (auto each = all.begin(); each != all.end(); ++each)
            if (!each->second.versions.empty() &&
                (oldest == all.end() || rank(each->second) < rank(oldest->second)))
                oldest = each;
        if (oldest == all.end()) return;
        Database& database = oldest->second;
        // Somebody may be keeping a version of that one, whose pictures come first.
        const FileHandle lock = oldest->first == locked ? FileHandle() : lockFolder(oldest->first);
        ::unlink(database.versions.front().file.c_str());
        total -= database.versions.front().packedBytes + database.pictures;
        database.versions.erase(database.versions.begin());
        dropPictures(oldest->first, Listing(oldest->first).versions);
        database.pictures = countPictures(oldest->first);
        total += database.pictures;
    }
}

std::vector<Version> VersionStore::versionsOf(const fs::path& database) const {
    std::vector<Version> versions = Listing(folderOf(database)).versions;
    std::erase_if(versions,
                  [](const Version& version) { return !hasBytes(version.file, version.packedBytes); });
    std::ranges::reverse(versions);
    return versions;
}

} // namespace file
