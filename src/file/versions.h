#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace file {

class PackedArchive;

// A state of a database that a save has replaced.
struct Version {
    int number = 0;                   // from 1, in the order in which they were kept; never given again
    std::int64_t kept = 0, saved = 0; // when it was replaced, and when it was written, in seconds since 1970
    std::uint64_t bytes = 0;          // of the file as it was
    std::uint64_t packedBytes = 0;    // that it takes here, without pictures
    std::optional<int> records;       // where the writer knew
    std::uint32_t text = 0, pictures = 0; // checksums of what is in it
    std::filesystem::path file;
};

// How many records a text of that checksum has, for a writer that knows it without unpacking.
struct KnownText {
    std::uint32_t checksum = 0;
    int records = 0;
};

// The versions of all databases: a folder each, named by the checksum of the database's path and its name.
// In it lies an archive for each version, with the text as it was packed and a list of the pictures; the
// pictures, packed too, are there once, by checksum and sizes. The names of the archives hold all that there
// is to know of them, so that to list and to thin them out reads nothing but names. Folders are 0700, files
// 0600.
//
// Nothing here is synced: what a loss of power cuts short has another size than its name tells, and does not
// count.
class VersionStore {
public:
    static constexpr std::size_t newestKept = 10; // of a database, whatever their age
    static constexpr int daysKept = 30;           // in which the last version of each day is kept

    VersionStore(std::filesystem::path folder, std::uint64_t budget)
        : folder_(std::move(folder)), budget_(budget) {}

    // Keeps the file as it is, unless the version kept last is the same, and removes what is too much. What
    // is no database is passed over. Where the pictures would take more than a quarter of the budget, those
    // of the given names are left to the database, which goes on having them. Raises what the system says.
    void keep(const std::filesystem::path& database, std::optional<KnownText> known,
              const std::set<std::string>& staying, std::time_t now = std::time(nullptr));

    // The newest first.
    [[nodiscard]] std::vector<Version> versionsOf(const std::filesystem::path& database) const;
    // Its data.dat. Raises badFileFormat, fileNotFound, deviceIO.
    [[nodiscard]] static std::string textOf(const Version& version);
    // Makes the database anew as it was, in one step, and answers the names of the pictures that neither the
    // store nor the database has any more. Before it replaces a file, the function is called.
    std::vector<std::string> write(const Version& version, const std::filesystem::path& database,
                                   const std::filesystem::path& target,
                                   const std::function<void()>& beforeReplacing = {}) const;
    // Puts those pictures of the version into the database that it has not, or not as they were, and leaves
    // all else of it. Answers as write() does.
    std::vector<std::string> putPicturesBack(const Version& version, const std::filesystem::path& database,
                                             const std::function<void()>& beforeReplacing = {}) const;

    // Where the versions of a database lie.
    [[nodiscard]] std::filesystem::path folderOf(const std::filesystem::path& database) const;

private:
    void keep(const PackedArchive& archive, const std::filesystem::path& folder,
              std::optional<KnownText> known, const std::set<std::string>& staying, std::time_t now) const;
    void storePictures(const PackedArchive& archive, const std::filesystem::path& folder,
                       const std::set<std::string>& staying) const;
    void thinOut(const std::filesystem::path& folder, std::time_t now) const;
    // The folder is locked already.
    void fitBudget(const std::filesystem::path& locked) const;
    void dropOldest(const std::filesystem::path& locked) const;

    std::filesystem::path folder_;
    std::uint64_t budget_;
};

} // namespace file
