#pragma once

#include "file/archive/entryName.h"
#include "file/fileState.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace file {

class PackedPart;

// A zip archive. It is opened, used and closed within one routine; changes reach the disk with
// CloseArchive() alone, all of them or none, and whoever does not get there leaves the archive as it
// was. Entries that are not touched keep their bytes, order, comments and dates.
// Raises core::RunTimeError: fileNotFound, pathAccess (not a regular file, not readable, or on
// writing not writable), diskFull, badFileFormat (no zip, damaged, encrypted, or larger than it may
// be), badFileName (an entry name that could never be unpacked again), deviceIO.
class Zip {
public:
    // What one entry may unpack to in ExtractFile, and what AddFile takes.
    static constexpr std::uint64_t maxFileBytes = std::uint64_t{256} << 20;

    Zip();
    ~Zip(); // gives up what CloseArchive() has not written
    Zip(const Zip&) = delete;
    Zip& operator=(const Zip&) = delete;

    // The folder that AddFile takes relative names from and that ExtractFile unpacks into.
    void SetBaseFolder(const std::filesystem::path& folder);
    void OpenArchive(const std::filesystem::path& file);
    // An existing file is replaced, on CloseArchive. A new one takes the permissions of "like", if there is
    // such a file.
    void CreateArchive(const std::filesystem::path& file, std::string_view comment = {},
                       const std::filesystem::path& like = {});
    // Of the file that was opened, as it is now; it is still the one that is read when another has taken its
    // place.
    [[nodiscard]] FileState state() const;
    // Called when the file that takes the place of another one is whole, just before it does. What it is told
    // are the names of the entries that stay as they are; none, where another archive is replaced than the
    // opened one.
    using BeforeReplacing = std::function<void(const std::set<std::string>& staying)>;
    // Answers the state of the file that the archive is now.
    FileState CloseArchive(const BeforeReplacing& beforeReplacing = {});
    // Writes the archive with its changes to another place and leaves the opened one as it was. A new file
    // takes the permissions of the opened one.
    FileState CloseArchiveAs(const std::filesystem::path& target,
                             const BeforeReplacing& beforeReplacing = {});
    // Why the folder of what was closed last could not be synced (see AtomicFile::commit), or 0.
    [[nodiscard]] int folderError() const { return folderError_; }

    // Adds a file, or replaces the entry of its name (the last component of the path) in its place.
    // The file is read on closing, so it must stay until then.
    void AddFile(const std::filesystem::path& file, std::string_view comment);
    // The same with bytes from memory, which are copied.
    void addBuffer(const std::string& name, std::string_view bytes, std::string_view comment);
    // Adds a part of another program's kind of file, whose name may have folders; unpacked, where it is to be
    // read without unpacking.
    void addPart(const std::string& name, std::string_view bytes, bool bUnpacked = false);
    void addPart(const std::string& name, PackedPart part);
    // An absent entry passes silently.
    void DeleteFile(const std::string& name);
    // Unpacks an entry into the base folder, over a file of that name. An absent entry passes
    // silently, and so does one whose name is not safe.
    void ExtractFile(const std::string& name);

    // Entries count from 0; deleted ones do not count. An index outside raises subscriptOutOfRange.
    [[nodiscard]] int FileCount() const;
    [[nodiscard]] std::string FileNameAt(int index) const;
    [[nodiscard]] std::string commentAt(int index) const;
    // Unpacked size in bytes, as the archive tells it.
    [[nodiscard]] std::uint64_t sizeAt(int index) const;
    // Of the unpacked bytes, as the archive tells it; 0 for an entry that is not there.
    [[nodiscard]] std::uint32_t checksumOf(const std::string& name) const;
    // Empty for an entry that is not there.
    [[nodiscard]] std::string commentOf(const std::string& name) const;
    [[nodiscard]] bool contains(const std::string& name) const;
    // Unpacks an entry into memory; nothing when it is absent. Of two entries of one name the first
    // counts, here as everywhere. More than maxBytes, told or found, is badFileFormat.
    [[nodiscard]] std::optional<std::string> readEntry(const std::string& name, std::uint64_t maxBytes) const;
    // The same piece by piece, as long as the archive is open.
    struct Unpacking {
        std::uint64_t size = 0; // of all of it
        // Answers how many bytes there were, 0 at the end. Raises what readEntry raises.
        std::function<std::size_t(char* bytes, std::size_t most)> read;
    };
    [[nodiscard]] std::optional<Unpacking> openEntry(const std::string& name, std::uint64_t maxBytes) const;

private:
    struct Archive;
    [[nodiscard]] Archive& open() const;
    void putBytes(const std::string& name, std::string_view bytes, std::string_view comment);
    [[nodiscard]] std::unique_ptr<Archive> takeOpen();
    FileState write(Archive& closing, const std::filesystem::path& target,
                    const BeforeReplacing& beforeReplacing);
    [[nodiscard]] std::uint64_t entryAt(int index) const;
    [[nodiscard]] std::filesystem::path inBaseFolder(const std::filesystem::path& name) const;

    std::unique_ptr<Archive> archive;
    std::filesystem::path baseFolder;
    int folderError_ = 0;
};

} // namespace file
