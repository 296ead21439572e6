#include "file/workFiles.h"

#include "file/fileHandle.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace file {

bool fileExists(const std::filesystem::path& path) {
    std::error_code error;
    return !path.empty() && std::filesystem::exists(path, error) &&
           !std::filesystem::is_directory(path, error);
}

void writeWorkFile(const std::filesystem::path& path, std::string_view bytes) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored); // never through a link that lies in its place
    const file::FileHandle file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.isOpen()) file::raiseSystemError(errno, path.string());
    if (const int failure = file::writeAt(file.get(), bytes.data(), bytes.size(), 0))
        file::raiseSystemError(failure, path.string());
}

int makePrivateFolder(const std::filesystem::path& folder) {
    std::error_code error;
    if (std::filesystem::is_directory(folder, error)) return 0;
    const std::filesystem::path above = folder.parent_path();
    if (above.empty() || above == folder) return ENOENT;
    if (const int failure = makePrivateFolder(above)) return failure;
    if (::mkdir(folder.c_str(), 0700) == 0) return 0;
    const int failure = errno;
    return std::filesystem::is_directory(folder, error) ? 0 : failure;
}

} // namespace file
