#include "file/archive/entryName.h"

#include <algorithm>

namespace file {

bool isSafeEntryName(std::string_view name) {
    if (name.empty() || name.size() > 255 || name == "." || name == "..") return false;
    if (name.size() > 1 && name[1] == ':') return false;
    return std::none_of(name.begin(), name.end(), [](char letter) {
        const auto code = static_cast<unsigned char>(letter);
        return letter == '/' || letter == '\\' || code < 0x20 || code == 0x7f;
    });
}

} // namespace file
