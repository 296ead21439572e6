#include "core/translate.h"

#include "core/text.h"

#include <utility>

namespace core {

namespace {

Catalogue& catalogue() {
    static Catalogue theCatalogue;
    return theCatalogue;
}

} // namespace

std::string tr(std::string_view text) {
    if (!catalogue() || text.empty()) return std::string(text);
    std::string found = catalogue()(std::string(text), {}, -1);
    return found.empty() ? std::string(text) : found;
}

std::string tr(const char* one, const char* many, int n) {
    std::string pattern;
    if (catalogue()) pattern = catalogue()(one, many, n);
    if (pattern.empty()) pattern = n == 1 ? one : many;
    return replaceAll(pattern, "%n", std::to_string(n));
}

std::string fill(std::string_view pattern, std::initializer_list<std::string_view> values) {
    std::string out;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const std::size_t place = at + 1 < pattern.size() && pattern[at] == '%'
                                      ? static_cast<std::size_t>(pattern[at + 1]) - '1'
                                      : values.size();
        if (place < values.size()) {
            out += values.begin()[place];
            ++at;
        } else {
            out += pattern[at];
        }
    }
    return out;
}

void setCatalogue(Catalogue newCatalogue) {
    catalogue() = std::move(newCatalogue);
}

} // namespace core
