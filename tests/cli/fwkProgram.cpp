#include "fwkProgram.h"

#include <nlohmann/json.hpp>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using nlohmann::json;

std::string jsonAt(const std::string& text, const std::string& pointer) {
    const json whole = json::parse(text);
    const json::json_pointer place(pointer);
    return whole.contains(place) ? whole[place].dump() : "(none)";
}

std::string jsonWithout(const std::string& text, std::initializer_list<const char*> keys) {
    json whole = json::parse(text);
    for (const char* key : keys) whole.erase(key);
    return whole.dump();
}

FwkTest::FwkTest() {
    fs::create_directories(files);
    fs::create_directories(outside / "tmp");
}

std::string FwkTest::copyOf(const std::string& name, const std::string& as) const {
    const fs::path copy = path(as.empty() ? name : as);
    fs::copy_file(fs::path(TEST_DATA_DIR) / name, copy, fs::copy_options::overwrite_existing);
    fs::permissions(copy, fs::perms::owner_write, fs::perm_options::add);
    return copy.filename();
}

std::string FwkTest::make(const std::string& name, const std::string& dataFile,
                          std::initializer_list<const char*> images) const {
    fs::rename(program.make(name, dataFile, images), path(name));
    return name;
}

pid_t FwkTest::start(const std::vector<std::string>& arguments, const std::string& output) const {
    std::vector<char*> argv{const_cast<char*>(FWK_PROGRAM)};
    for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    const fs::path out = program.platform.folder / output;
    const fs::path err = out.string() + ".err";
    const pid_t child = ::fork();
    if (child != 0) return child;
    const bool ready = ::chdir(files.c_str()) == 0 && ::setenv("HOME", outside.c_str(), 1) == 0 &&
                       ::setenv("TMPDIR", (outside / "tmp").c_str(), 1) == 0 &&
                       std::freopen(out.c_str(), "w", stdout) && std::freopen(err.c_str(), "w", stderr);
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) ::unsetenv(folder);
    if (ready) ::execv(FWK_PROGRAM, argv.data());
    ::_exit(127);
}

Outcome FwkTest::finish(pid_t child, const std::string& output) const {
    int status = 0;
    struct rusage usage {};
    ::wait4(child, &status, 0, &usage);
    Outcome outcome;
    if (WIFEXITED(status)) outcome.code = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) outcome.signal = WTERMSIG(status);
    outcome.out = read(program.platform.folder / output);
    outcome.err = read(program.platform.folder / (output + ".err"));
    outcome.maxKilobytes = usage.ru_maxrss;
    return outcome;
}

Outcome FwkTest::run(const std::string& line) const {
    std::vector<std::string> arguments;
    bool isQuoted = false, isOpen = false;
    for (const char c : line) {
        if (c == '\'') isQuoted = !isQuoted;
        const bool isGap = c == ' ' && !isQuoted;
        if (!isGap && !isOpen) arguments.emplace_back();
        isOpen = !isGap;
        if (isOpen && c != '\'') arguments.back() += c;
    }
    return run(arguments);
}

std::string FwkTest::outputOf(const std::string& line) const {
    const Outcome outcome = run(line);
    EXPECT_EQ(outcome.code, 0) << line << ": " << outcome.err;
    return outcome.out;
}

void FwkTest::expectRefused(const std::vector<Refusal>& refusals) const {
    const auto before = state();
    for (const auto& [line, code, reason] : refusals) {
        const Outcome outcome = run(line);
        const std::string told = "\n" + outcome.err;
        EXPECT_EQ(outcome.code, code) << line << told;
        EXPECT_EQ(outcome.out, "") << line;
        EXPECT_NE(told.find(reason), std::string::npos) << line << told;
        EXPECT_EQ(told.rfind("\nfwk: "), told.find("\nfwk: ")) << line << told;
        EXPECT_TRUE(state() == before) << line << " changed something";
    }
}

std::string FwkTest::rowsOf(const std::string& line) const {
    const json printed = json::parse(outputOf(line + " --json"));
    std::string all;
    const auto add = [&](const std::string& key, const json& cells) {
        all += key + "|";
        for (const json& cell : cells) all += cell.get<std::string>() + "|";
        all += "\n";
    };
    for (const json& record : printed["records"]) add(record["key"], record["cells"]);
    add("Totals", printed["totals"]);
    return all;
}

std::map<std::string, std::string> FwkTest::state() const {
    std::map<std::string, std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(program.platform.folder / "world"))
        all[entry.path()] = entry.is_regular_file() ? read(entry.path()) : "";
    return all;
}
