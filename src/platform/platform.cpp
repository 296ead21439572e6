#include "platform/platform.h"

#include "core/runTimeError.h"
#include "platform/papers.h"

namespace platform {

std::optional<Extent> Platform::paperExtent(int code) {
    const PaperSize* paper = findPaper(code);
    if (paper == nullptr) return std::nullopt;
    return Extent{paper->Width, paper->Height};
}

void Platform::convertToJpeg(const std::filesystem::path&, const std::filesystem::path& jpeg, int) {
    core::raise(core::errors::pathAccess, jpeg.string());
}

} // namespace platform
