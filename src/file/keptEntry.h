#pragma once

#include "file/archive/zip.h"

#include <optional>
#include <string>

namespace file {

// An entry of an archive, to be put back one day; without bytes where there is none of that name.
struct KeptEntry {
    std::string name, comment;
    std::optional<std::string> bytes;
};

// Unpacked. Raises as Zip::readEntry does.
[[nodiscard]] KeptEntry keepEntry(const Zip& archive, const std::string& name);
void putBack(Zip& archive, const KeptEntry& entry);

} // namespace file
