#include "file/versionNames.h"

#include "file/archive/zip.h"

#include <charconv>
#include <cstdio>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>

namespace file {

namespace {

constexpr std::string_view archiveEnding = ".fwk";
constexpr std::string_view unknown = "x";
constexpr int hexadecimal = 16;
constexpr std::size_t mostListBytes = std::size_t{64} << 20U;
// Where the packed size stands among the pieces of a name.
constexpr std::size_t packedPiece = 4, packedPieceOfPicture = 2;

std::vector<std::string_view> pieces(std::string_view text, char separator) {
    std::vector<std::string_view> found;
    for (;;) {
        const std::size_t end = text.find(separator);
        found.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return found;
        text.remove_prefix(end + 1);
    }
}

template <typename Number>
bool read(std::string_view text, Number& number, int base = 10) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, base);
    return result.ec == std::errc() && result.ptr == end;
}

std::string checksumText(std::uint32_t number) {
    char text[9] = {};
    std::snprintf(text, sizeof text, "%08x", number);
    return text;
}

} // namespace

std::string nameOf(const Version& version) {
    char number[16] = {};
    std::snprintf(number, sizeof number, "%06d", version.number);
    std::string name = number;
    const auto add = [&](const std::string& piece) { name += "-" + piece; };
    add(std::to_string(version.kept));
    add(std::to_string(version.saved));
    add(std::to_string(version.bytes));
    add(std::to_string(version.packedBytes));
    add(version.records ? std::to_string(*version.records) : std::string(unknown));
    add(checksumText(version.text));
    add(checksumText(version.pictures));
    return name + std::string(archiveEnding);
}

std::optional<Version> versionNamed(const std::string& name) {
    if (!name.ends_with(archiveEnding)) return std::nullopt;
    const auto all = pieces(std::string_view(name).substr(0, name.size() - archiveEnding.size()), '-');
    Version version;
    int records = 0;
    if (all.size() != 8 || !read(all[0], version.number) || !read(all[1], version.kept) ||
        !read(all[2], version.saved) || !read(all[3], version.bytes) || !read(all[4], version.packedBytes) ||
        !read(all[6], version.text, hexadecimal) || !read(all[7], version.pictures, hexadecimal))
        return std::nullopt;
    if (all[5] != unknown) {
        if (!read(all[5], records)) return std::nullopt;
        version.records = records;
    }
    return version;
}

std::string pictureName(const PackedEntry& picture) {
    return checksumText(picture.checksum) + "-" + std::to_string(picture.size) + "-" +
           std::to_string(picture.packedSize) + "-" + std::to_string(picture.method);
}

std::optional<std::uint64_t> pictureBytes(const std::string& name) {
    const auto all = pieces(name, '-');
    PackedEntry picture;
    if (all.size() != 4 || !read(all[0], picture.checksum, hexadecimal) || !read(all[1], picture.size) ||
        !read(all[2], picture.packedSize) || !read(all[3], picture.method))
        return std::nullopt;
    return picture.packedSize;
}

std::uint64_t bytesIn(const std::filesystem::path& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.c_str()), &::closedir);
    std::uint64_t bytes = 0;
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name == pictureFolder) {
            bytes += bytesIn(folder / name);
            continue;
        }
        const std::size_t piece = name.ends_with(archiveEnding) ? packedPiece : packedPieceOfPicture;
        std::size_t from = 0;
        for (std::size_t i = 0; i < piece && from != std::string_view::npos; ++i)
            from = name.find('-', from + 1);
        if (from == std::string_view::npos) continue;
        std::uint64_t size = 0;
        std::from_chars(name.data() + from + 1, name.data() + name.size(), size);
        bytes += size;
    }
    return bytes;
}

// Names and comments can hold anything but a zero byte.
std::string listOf(const std::vector<PackedEntry>& pictures) {
    std::string list;
    for (const PackedEntry& picture : pictures)
        for (const std::string& piece : {checksumText(picture.checksum), std::to_string(picture.size),
                                         std::to_string(picture.packedSize), std::to_string(picture.method),
                                         picture.name, picture.comment})
            list.append(piece).push_back('\0');
    return list;
}

std::vector<PackedEntry> picturesIn(std::string_view list) {
    std::vector<PackedEntry> pictures;
    const auto all = pieces(list, '\0');
    for (std::size_t i = 0; i + 6 < all.size(); i += 6) {
        PackedEntry& picture = pictures.emplace_back();
        if (!read(all[i], picture.checksum, hexadecimal) || !read(all[i + 1], picture.size) ||
            !read(all[i + 2], picture.packedSize) || !read(all[i + 3], picture.method))
            return {};
        picture.name = all[i + 4];
        picture.comment = std::string(all[i + 5].substr(0, all[i + 5].find('\0')));
    }
    return pictures;
}

std::vector<PackedEntry> picturesListed(const Version& version) {
    Zip archive;
    archive.OpenArchive(version.file);
    return picturesIn(archive.readEntry(pictureList, mostListBytes).value_or(std::string()));
}

bool hasBytes(const std::filesystem::path& file, std::uint64_t bytes) {
    struct stat status {};
    return ::lstat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           static_cast<std::uint64_t>(status.st_size) == bytes;
}

} // namespace file
