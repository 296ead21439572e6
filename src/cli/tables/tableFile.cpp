#include "cli/tables/tableFile.h"

#include "cli/session.h"
#include "file/fileHandle.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace cli {

namespace {

constexpr std::size_t mostBytes = std::size_t{256} << 20U;
constexpr std::size_t step = std::size_t{1} << 20U;

std::string bytesOf(const std::string& file, int handle) {
    std::string bytes;
    for (std::size_t size = 0;;) {
        if (size > mostBytes) throw Failure(file, "it is larger than 256 MB");
        bytes.resize(size + step);
        const ssize_t count = ::read(handle, bytes.data() + size, step);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throw Failure(file, std::strerror(errno));
        size += static_cast<std::size_t>(count);
        bytes.resize(size);
        if (count == 0) return bytes;
    }
}

} // namespace

std::string readBytes(const std::string& file) {
    if (file == "-") return standardInput();
    const file::FileHandle handle(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!handle.isOpen()) throw Failure(file, std::strerror(errno));
    return bytesOf(file, handle.get());
}

std::unique_ptr<exchange::CsvTable> readTable(const std::string& file) {
    try {
        return std::make_unique<exchange::CsvTable>(readBytes(file));
    } catch (const exchange::TableError& error) {
        throw Failure(file, error.what());
    }
}

std::string standardInput() {
    return bytesOf(standardInputName, STDIN_FILENO);
}

} // namespace cli
