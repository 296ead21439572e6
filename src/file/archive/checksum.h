#pragma once

#include <cstdint>
#include <string_view>

namespace file {

std::uint32_t checksum(std::string_view bytes); // as an archive has it

} // namespace file
