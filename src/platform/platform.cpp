#include "platform/platform.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "drawing/papers.h"

namespace platform {

std::optional<drawing::Extent> Platform::paperExtent(int code) {
    const drawing::PaperSize* paper = drawing::findPaper(code);
    if (paper == nullptr) return std::nullopt;
    return drawing::Extent{paper->Width, paper->Height};
}

std::vector<PaperName> Platform::printerPapers() {
    std::vector<PaperName> names;
    for (const drawing::PaperSize& paper : drawing::papers())
        names.push_back({core::tr(paper.name), paper.code});
    names.push_back({core::tr("Custom"), drawing::customPaperCode});
    return names;
}

std::unique_ptr<drawing::DrawTarget> Platform::openPrinter(const std::string&) {
    core::raise(core::errors::deviceIO, core::tr("there is no printer"));
}

drawing::TextMetrics& Platform::textMetrics() {
    core::raise(core::errors::deviceIO, core::tr("there is no printer"));
}

void Platform::convertToJpeg(const std::filesystem::path&, const std::filesystem::path& jpeg, int) {
    core::raise(core::errors::pathAccess, jpeg.string());
}

} // namespace platform
