#pragma once

#include <string_view>

namespace file {

// Whether an archive entry of that name may be unpacked: a bare file name, at most 255 bytes, without
// a separator of either kind, a drive, a control character, and neither "." nor "..".
[[nodiscard]] bool isSafeEntryName(std::string_view name);

} // namespace file
