#include "print/paperChoice.h"

#include "core/pageSettings.h"
#include "drawing/papers.h"

#include <algorithm>

namespace print {

using platform::PaperName;
using platform::Platform;

namespace {

bool has(const std::vector<PaperName>& papers, int code) {
    return std::ranges::find(papers, code, &PaperName::code) != papers.end();
}

bool hasName(const std::vector<PaperName>& papers, std::string_view name) {
    return std::ranges::find(papers, name, &PaperName::name) != papers.end();
}

void addCommonPapers(std::vector<PaperName>& papers) {
    for (const int code : drawing::commonPapers) {
        const std::string_view name = drawing::findPaper(code)->name;
        // Names may not come twice, and a printer may call something else so.
        if (!has(papers, code) && !hasName(papers, name)) papers.push_back({std::string(name), code});
    }
}

bool isOption(int code) {
    return code == core::letterPaper || code == core::legalPaper;
}

// The report keeps no lengths, so that a custom size can only stay what it is.
std::string nameOfOther(Platform& platform, int code) {
    if (const drawing::PaperSize* paper = drawing::findPaper(code)) return std::string(paper->name);
    std::string name = code == core::customPaper ? "Custom" : "Code " + std::to_string(code);
    if (!platform.paperExtent(code)) name += " (prints on Letter)";
    return name;
}

} // namespace

std::optional<int> PaperChoice::code() const {
    if (!chosen || *chosen >= papers.size()) return std::nullopt;
    return papers[*chosen].code;
}

PaperChoice papersBesideTheOptions(Platform& platform, int present) {
    std::vector<PaperName> all;
    addCommonPapers(all);
    for (PaperName& paper : platform.printerPapers())
        if (!has(all, paper.code)) all.push_back(std::move(paper));
    PaperChoice choice;
    for (PaperName& paper : all)
        if (!isOption(paper.code) && paper.code != core::customPaper)
            choice.papers.push_back(std::move(paper));
    if (present == 0 || isOption(present)) return choice;
    if (!has(choice.papers, present)) choice.papers.push_back({nameOfOther(platform, present), present});
    const auto chosen = std::ranges::find(choice.papers, present, &PaperName::code);
    choice.chosen = static_cast<std::size_t>(chosen - choice.papers.begin());
    return choice;
}

std::vector<PaperName> allPapers(Platform& platform) {
    std::vector<PaperName> papers = platform.printerPapers();
    addCommonPapers(papers);
    return papers;
}

std::string paperNotice(Platform& platform, int code) {
    if (code == core::customPaper || platform.paperExtent(code)) return {};
    std::string text = "The paper of the database, code ";
    text.append(std::to_string(code)).append(", is not known here: it prints on Letter.");
    return text;
}

} // namespace print
