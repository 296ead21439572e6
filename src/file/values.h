#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace file {

// The pieces of a line between its separators. Raises overflow beyond 32,767 of them: no database has
// so many of anything, and each takes far more memory than its byte in the file.
std::vector<std::string_view> splitLine(std::string_view line);

// The fields of one line or section, split at the separator, and their conversions. A field that is
// not there raises subscriptOutOfRange, one that does not convert typeMismatch or overflow.
class Elements {
public:
    explicit Elements(std::string_view line);

    // The same fields with those from `first` to `first + extra` as the one that a separator has torn.
    Elements joined(std::size_t first, std::size_t extra) const;

    std::size_t count() const { return parts_.size(); } // with what stands behind the last separator
    std::string_view text(std::size_t number) const;
    float single(std::size_t number) const;
    std::int16_t integer(std::size_t number) const;
    std::int32_t colour(std::size_t number) const;
    bool boolean(std::size_t number) const;

private:
    std::vector<std::string_view> parts_;
};

bool booleanOf(std::string_view text);
std::string_view booleanText(bool value);

// Bytes of the file as UTF-8: with a byte order mark they are that already, without one they are
// Windows-1252. Malformed UTF-8 is mended, so that all text in memory is well formed.
std::string decodeDataFile(std::string bytes);

} // namespace file
