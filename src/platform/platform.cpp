#include "platform/platform.h"

#include "core/runTimeError.h"
#include "platform/papers.h"

namespace platform {

std::optional<Extent> Platform::paperExtent(int code) {
    const PaperSize* paper = findPaper(code);
    if (paper == nullptr) return std::nullopt;
    return Extent{paper->Width, paper->Height};
}

std::vector<PaperName> Platform::printerPapers() {
    std::vector<PaperName> names;
    for (const PaperSize& paper : papers()) names.push_back({std::string(paper.name), paper.code});
    names.push_back({"Custom", customPaperCode});
    return names;
}

std::unique_ptr<DrawTarget> Platform::openPrinter(const std::string&) {
    core::raise(core::errors::deviceIO, "there is no printer");
}

TextMetrics& Platform::textMetrics() {
    core::raise(core::errors::deviceIO, "there is no printer");
}

void Platform::convertToJpeg(const std::filesystem::path&, const std::filesystem::path& jpeg, int) {
    core::raise(core::errors::pathAccess, jpeg.string());
}

} // namespace platform
