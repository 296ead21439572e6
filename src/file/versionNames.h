#pragma once

#include "file/archive/packedArchive.h"
#include "file/versions.h"

namespace file {

// The entries of a version's archive: the text, and a list of the pictures, which are in a folder.
constexpr const char* textEntry = "data.dat";
constexpr const char* pictureList = "pictures";
constexpr const char* pictureFolder = "pictures";

// What stands in the name of a version's archive, and back; nothing for the name of another file.
[[nodiscard]] std::string nameOf(const Version& version);
[[nodiscard]] std::optional<Version> versionNamed(const std::string& name);

// A picture of the store by what it is: its packed bytes are in the file of that name.
[[nodiscard]] std::string pictureName(const PackedEntry& picture);
// What such a file takes, as its name tells; nothing for the name of another file.
[[nodiscard]] std::optional<std::uint64_t> pictureBytes(const std::string& name);

// What all files in a folder of versions take, as their names tell; its subfolder too. Each save asks it of
// every database, so it makes no more of the names than that.
[[nodiscard]] std::uint64_t bytesIn(const std::filesystem::path& folder);

// The pictures of an archive as a text, and back.
[[nodiscard]] std::string listOf(const std::vector<PackedEntry>& pictures);
[[nodiscard]] std::vector<PackedEntry> picturesIn(std::string_view list);

// The pictures that a version has. Raises what Zip raises.
[[nodiscard]] std::vector<PackedEntry> picturesListed(const Version& version);
// Whether that regular file is there and has as many bytes as its name tells.
[[nodiscard]] bool hasBytes(const std::filesystem::path& file, std::uint64_t bytes);

} // namespace file
