#include "print/paperChoice.h"

#include "core/pageSettings.h"
#include "core/translate.h"
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
    if (const drawing::PaperSize* paper = drawing::findPaper(code)) return core::tr(paper->name);
    const std::string name = code == core::customPaper
                                 ? core::tr("Custom")
                                 : core::fill(core::tr("Code %1"), {std::to_string(code)});
    return platform.paperExtent(code) ? name : core::fill(core::tr("%1 (prints on Letter)"), {name});
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
    for (const PaperName& paper : all)
        if (!isOption(paper.code) && paper.code != core::customPaper)
            choice.papers.push_back({core::tr(paper.name), paper.code, paper.size});
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
    return core::fill(core::tr("The paper of the database, code %1, is not known here: it prints on Letter."),
                      {std::to_string(code)});
}

} // namespace print
