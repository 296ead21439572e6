#include "print/reportChoices.h"

#include "app/fileSettings.h"
#include "core/text.h"

#include <algorithm>
#include <array>

namespace print {

namespace {

constexpr std::string_view sheetSetting = "report.sheets", groupSetting = "report.group";
constexpr char fieldEnd = '\t'; // no name of a column has one

struct NamedChoice {
    std::string_view name;
    bool ReportChoices::*member;
};
constexpr std::array<NamedChoice, 4> namedChoices = {{{"heads", &ReportChoices::heads},
                                                      {"pages", &ReportChoices::pageNumbers},
                                                      {"date", &ReportChoices::date},
                                                      {"totals", &ReportChoices::sheetTotals}}};

} // namespace

ReportChoices reportChoices(const app::App& app) {
    ReportChoices choices;
    const std::string kept = app::fileSetting(app, sheetSetting);
    const auto words = core::split(kept, ' ');
    for (const NamedChoice& choice : namedChoices)
        choices.*choice.member = std::ranges::find(words, choice.name) != words.end();
    const std::string group = app::fileSetting(app, groupSetting);
    const std::size_t end = std::min(group.find(fieldEnd), group.size());
    choices.groupColumn = group.substr(0, end);
    if (end < group.size()) choices.groupStep = group.substr(end + 1);
    return choices;
}

void setReportChoices(app::App& app, const ReportChoices& choices) {
    std::string kept;
    for (const NamedChoice& choice : namedChoices) {
        if (!(choices.*choice.member)) continue;
        if (!kept.empty()) kept += ' ';
        kept.append(choice.name);
    }
    app::setFileSetting(app, sheetSetting, kept);
    std::string group = choices.groupColumn;
    if (!group.empty() && !choices.groupStep.empty()) (group += fieldEnd).append(choices.groupStep);
    app::setFileSetting(app, groupSetting, group);
}

} // namespace print
