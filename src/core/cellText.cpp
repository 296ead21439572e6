#include "core/cellText.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <limits>

namespace core {

void CellText::storeBlock(std::string_view text) {
    raw_[tagAt] = 0;
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        raise(errors::overflow, core::tr("cell text"));
    char* data = new char[text.size()];
    std::memcpy(data, text.data(), text.size());
    const auto size = static_cast<std::uint32_t>(text.size());
    std::memcpy(raw_, &data, sizeof data);
    std::memcpy(raw_ + 8, &size, sizeof size);
    raw_[tagAt] = blockTag;
}

} // namespace core
