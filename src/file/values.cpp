#include "file/values.h"

#include "core/encoding.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace file {

namespace {

double numberOf(std::string_view text) {
    const std::optional<double> number = core::toDouble(text);
    if (!number) core::raise(core::errors::typeMismatch, core::fill(core::tr("\"%1\" is no number"), {text}));
    return *number;
}

} // namespace

std::vector<std::string_view> splitLine(std::string_view line) {
    constexpr std::ptrdiff_t mostElements = std::numeric_limits<std::int16_t>::max();
    if (std::ranges::count(line, '|') > mostElements)
        core::raise(core::errors::overflow, core::tr("elements of a line"));
    return core::split(line, '|');
}

Elements::Elements(std::string_view line) : parts_(splitLine(line)) {}

Elements Elements::joined(std::size_t first, std::size_t extra) const {
    Elements joined = *this;
    const std::string_view head = text(first), tail = text(first + extra);
    joined.parts_[first] = {head.data(), static_cast<std::size_t>(tail.data() + tail.size() - head.data())};
    const auto behind = joined.parts_.begin() + static_cast<std::ptrdiff_t>(first) + 1;
    joined.parts_.erase(behind, behind + static_cast<std::ptrdiff_t>(extra));
    return joined;
}

std::string_view Elements::text(std::size_t number) const {
    if (number >= parts_.size())
        core::raise(core::errors::subscriptOutOfRange,
                    core::fill(core::tr("field %1"), {std::to_string(number)}));
    return parts_[number];
}

float Elements::single(std::size_t number) const {
    const double value = numberOf(text(number));
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max()))
        core::raise(core::errors::overflow, core::fill(core::tr("field %1"), {std::to_string(number)}));
    return static_cast<float>(value);
}

std::int16_t Elements::integer(std::size_t number) const {
    return core::toInt16(numberOf(text(number)));
}

std::int32_t Elements::colour(std::size_t number) const {
    return core::toInt32(numberOf(text(number)));
}

bool Elements::boolean(std::size_t number) const {
    return booleanOf(text(number));
}

bool booleanOf(std::string_view text) {
    const std::string_view word = core::trim(text);
    if (core::equalsNoCase(word, "True")) return true;
    if (core::equalsNoCase(word, "False")) return false;
    return numberOf(word) != 0;
}

std::string_view booleanText(bool value) {
    return value ? "True" : "False";
}

std::string decodeDataFile(std::string bytes) {
    constexpr std::size_t markSize = 3;
    if (core::hasUtf8Mark(bytes)) return core::sanitizeUtf8(std::string_view(bytes).substr(markSize));
    if (core::isAscii(bytes)) return bytes;
    return core::fromWindows1252(bytes);
}

} // namespace file
