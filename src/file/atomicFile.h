#pragma once

#include "file/fileHandle.h"

#include <filesystem>
#include <string_view>
#include <sys/types.h>

namespace file {

// What a symbolic link leads to, and any other file itself. Raises pathAccess for links in a circle, and what
// the system says of a link that cannot be read.
[[nodiscard]] std::filesystem::path resolveLink(std::filesystem::path file);

// A file that takes its place in one step. What is written goes to a hidden file beside the target;
// commit() syncs it and renames it over the target, so that after a crash at any moment the target
// is either the old one or the new one, whole. Without commit() the target stays as it was and the
// hidden file goes. An existing target hands on its permissions and, where the system lets us, its
// owner; a symbolic link stays a link, and what it points to is replaced. A new file is as private as the
// one that it is made from: it takes the permissions of "like", and its owner may write it; without one,
// those that the user's mask leaves.
// Raises pathAccess (folder or file not writable, also a file that merely lacks its write
// permission), diskFull, fileNotFound (no such folder), deviceIO.
class AtomicFile {
public:
    explicit AtomicFile(const std::filesystem::path& file, const std::filesystem::path& like = {});
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    [[nodiscard]] int fd() const { return handle.get(); }
    // Answers 0, or why the system could not sync the folder: the file is in its place, but after a loss of
    // power the old one may stand there again.
    int commit(); // NOLINT(modernize-use-nodiscard): it is done all the same

private:
    void checkTarget();
    void takePermissionsOf(const std::filesystem::path& like);
    void createBeside();
    void takeOverAttributes() const;
    void takeAlikeAttributes() const;

    std::filesystem::path target;
    std::filesystem::path beside;
    FileHandle handle;
    bool replaces = false, isAlike = false;
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
};

// A file of these bytes in the place of the target, as AtomicFile puts it there; raises what that raises.
void replaceFile(const std::filesystem::path& file, std::string_view bytes,
                 const std::filesystem::path& like = {});

} // namespace file
