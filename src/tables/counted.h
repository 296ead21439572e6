#pragma once

#include <string>
#include <string_view>

namespace tables {

// "1 record", "7 records".
inline std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    std::string text = std::to_string(count);
    text.append(" ").append(count == 1 ? one : many);
    return text;
}

} // namespace tables
