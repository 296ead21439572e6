#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "file/dataReader.h"
#include "file/workFiles.h"
#include "storage/versions.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ctime>
#include <nlohmann/json.hpp>

namespace cli {

namespace {

struct VersionOptions {
    std::string file, target;
    int number = 0;
    double wait = usualWait;
    bool json = false, yes = false;
};

constexpr const char* aboutVersions =
    "Each save keeps the state that it replaces: the last ten, and one a day for thirty days. A version "
    "keeps\n"
    "its number. Records are counted without the Totals row. As JSON, times are UTC.";

file::VersionStore storeOf(const Session& session) {
    auto store = storage::versionStore(session.app);
    if (!store) throw Failure(session.file, "there is no folder for versions without a home folder");
    return *std::move(store);
}

std::string timeText(std::int64_t seconds, bool asUtc) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm parts{};
    asUtc ? ::gmtime_r(&time, &parts) : ::localtime_r(&time, &parts);
    char text[32] = {};
    std::strftime(text, sizeof text, asUtc ? "%Y-%m-%dT%H:%M:%SZ" : "%Y-%m-%d %H:%M:%S", &parts);
    return text;
}

// Nothing for one that cannot be read.
std::optional<int> recordsOf(const file::Version& version) {
    if (version.records) return version.records;
    try {
        core::Document document;
        file::readDataFile(file::VersionStore::textOf(version), document);
        return std::max(document.LV.count() - 1, 0);
    } catch (const core::RunTimeError&) {
        return std::nullopt;
    }
}

std::string asJson(const std::vector<file::Version>& versions) {
    auto list = nlohmann::ordered_json::array();
    for (const file::Version& version : versions) {
        auto& entry = list.emplace_back(nlohmann::ordered_json{{"number", version.number},
                                                               {"saved", timeText(version.saved, true)},
                                                               {"replaced", timeText(version.kept, true)},
                                                               {"bytes", version.bytes},
                                                               {"records", nullptr}});
        if (const auto records = recordsOf(version)) entry["records"] = *records;
    }
    constexpr int indentation = 2;
    return list.dump(indentation) + "\n";
}

std::string asTable(const std::vector<file::Version>& versions) {
    TextTable table({{"Version", true}, {"Saved"}, {"Bytes", true}, {"Records", true}});
    for (const file::Version& version : versions) {
        const auto records = recordsOf(version);
        table.row({std::to_string(version.number), timeText(version.saved, false),
                   std::to_string(version.bytes), records ? std::to_string(*records) : "?"});
    }
    std::string out;
    table.appendTo(out);
    return out;
}

// The database itself may be gone.
int list(const VersionOptions& options) {
    const Session session(options.file);
    const std::vector<file::Version> versions = storeOf(session).versionsOf(options.file);
    if (versions.empty() && !file::fileExists(options.file))
        throw Failure(options.file, "there is no such file, and no version of it");
    writeOut(options.json ? asJson(versions) : asTable(versions));
    return done;
}

int restore(const VersionOptions& options) {
    Session session(options.file, options.wait);
    session.platform.setAnswersYes(options.yes);
    const file::VersionStore store = storeOf(session);
    const std::vector<file::Version> versions = store.versionsOf(options.file);
    const auto version = std::ranges::find(versions, options.number, &file::Version::number);
    if (version == versions.end())
        throw Failure(options.file, "no version " + std::to_string(options.number));
    session.lockTarget(options.target); // so that nobody makes it after it was looked for
    if (file::fileExists(options.target) && !options.yes)
        throw Failure(options.target, "it exists already, --yes overwrites it");
    std::vector<std::string> told;
    try {
        const auto keep = storage::keepingVersion(session.app, options.target);
        const auto beforeReplacing = [&] {
            if (keep) keep({});
        };
        for (const std::string& picture :
             store.write(*version, options.file, options.target, beforeReplacing))
            told.push_back("the picture " + picture + " is no longer there");
    } catch (const core::RunTimeError& error) {
        throw Failure(options.target,
                      "could not be written: " + Session::whyNotWritten(options.target, error));
    }
    session.tellNoted();
    tellRows(options.target, told);
    return done;
}

} // namespace

Run setUpVersions(CLI::App& command) {
    const auto options = std::make_shared<VersionOptions>();
    addFileArgument(command, options->file);
    command.add_flag("--json", options->json, "As JSON");
    command.footer(aboutVersions);
    return [options] { return list(*options); };
}

Run setUpRestore(CLI::App& command) {
    const auto options = std::make_shared<VersionOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("N", options->number, "The version, by its number in the list of versions")
        ->required();
    command.add_option("-o,--output", options->target, "The file to make")->required()->type_name("NEW.fwk");
    addYesFlag(command, options->yes, "Overwrite a file of that name");
    return [options] { return restore(*options); };
}

} // namespace cli
