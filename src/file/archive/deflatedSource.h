#pragma once

#include "file/archive/checksum.h"
#include "file/archive/packedPart.h"

#include <cstdint>
#include <string_view>
#include <zip.h>

namespace file {

// An entry that comes to libzip packed already, by libdeflate: a large text takes a fifth of the time.
// The bytes are packed at once and need not stay. Level from 1 to 12. The source is the caller's until libzip
// takes it. Raises deviceIO; throws std::bad_alloc.
[[nodiscard]] zip_source_t* makeDeflatedSource(zip_t* archive, std::string_view bytes, int level);
[[nodiscard]] zip_source_t* makeDeflatedSource(zip_t* archive, PackedPart part);

} // namespace file
