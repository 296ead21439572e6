#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

namespace exchange {

struct ImageSize {
    std::size_t width = 0, height = 0; // in pixels
};
// Of the kinds that a spreadsheet takes, PNG, JPEG, GIF and BMP; nothing for others and for what is damaged.
std::optional<ImageSize> imageSize(const std::filesystem::path& file);

} // namespace exchange
