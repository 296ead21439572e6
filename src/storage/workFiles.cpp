#include "storage/workFiles.h"

#include "core/runTimeError.h"

#include <cerrno>
#include <cstdio>
#include <memory>

namespace storage {

bool fileExists(const std::filesystem::path& path) {
    std::error_code error;
    return !path.empty() && std::filesystem::exists(path, error) &&
           !std::filesystem::is_directory(path, error);
}

void writeWorkFile(const std::filesystem::path& path, std::string_view bytes) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored); // never through a link that lies in its place
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wbxe"), std::fclose);
    if (!file) core::raise(core::errors::pathAccess, path.string());
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    if (!written || std::fflush(file.get()) != 0) core::raise(core::errors::diskFull, path.string());
}

} // namespace storage
