#pragma once

#include "file/packedArchive.h"
#include "file/versions.h"

namespace file {

// What stands in the name of a version's archive, and back; nothing for the name of another file.
[[nodiscard]] std::string nameOf(const Version& version);
[[nodiscard]] std::optional<Version> versionNamed(const std::string& name);

// A picture of the store by what it is: its packed bytes are in the file of that name.
[[nodiscard]] std::string pictureName(const PackedEntry& picture);
// What such a file takes, as its name tells; nothing for the name of another file.
[[nodiscard]] std::optional<std::uint64_t> pictureBytes(const std::string& name);

// The pictures of an archive as a text, and back.
[[nodiscard]] std::string listOf(const std::vector<PackedEntry>& pictures);
[[nodiscard]] std::vector<PackedEntry> picturesIn(std::string_view list);

} // namespace file
