#include "cli/tables/formatOption.h"

#include "cli/session.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

namespace cli {

namespace {

// Each is an ending of a file too.
const std::vector<std::string> formatNames = {"csv", "tsv", "xlsx", "ods", "json", "sqlite", "html", "vcf"};

} // namespace

void addFormatOption(CLI::App& command, std::string& format) {
    command
        .add_option("--format", format, "The kind of table: csv, tsv, xlsx, ods, json, sqlite, html or vcf")
        ->check(CLI::IsMember(formatNames, CLI::ignore_case))
        ->type_name("KIND");
}

std::optional<exchange::Format> formatNamed(const std::string& name) {
    return exchange::formatOf("x." + name);
}

std::size_t sheetNamed(const std::string& table, exchange::Format format, const std::string& sheet) {
    if (sheet.empty()) return 0;
    const std::vector<std::string> names = exchange::sheetNames(table, format);
    const auto named = std::ranges::find(names, sheet);
    if (named != names.end()) return static_cast<std::size_t>(named - names.begin());
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(sheet.data(), sheet.data() + sheet.size(), number);
    if (error == std::errc() && end == sheet.data() + sheet.size() && number >= 1 && number <= names.size())
        return number - 1;
    std::string reason = "no sheet \"";
    reason.append(sheet).append("\"; it has");
    constexpr std::size_t mostNames = 20;
    for (std::size_t i = 0; i < std::min(names.size(), mostNames); ++i)
        reason.append(i == 0 ? " \"" : ", \"").append(names[i]).append("\"");
    throw Failure(table, reason);
}

} // namespace cli
