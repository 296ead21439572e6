#pragma once

#include "databases.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// How a run of the program ended.
struct Outcome {
    int code = -1;   // exit code, or -1 when a signal ended it
    int signal = 0;  // the signal that ended it
    std::string out; // standard output
    std::string err; // standard error
    long maxKilobytes = 0;
};

inline std::string readBytes(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

// Runs the built program in a folder of its own, with a home and a folder for temporary files in which
// whatever it leaves behind can be seen.
class FwkTest : public ::testing::Test {
protected:
    FwkTest() {
        std::filesystem::create_directories(files);
        std::filesystem::create_directories(outside / "tmp");
    }

    std::filesystem::path path(const std::string& name) const { return files / name; }

    std::string copyOf(const std::string& name, const std::string& as = {}) const {
        const std::filesystem::path copy = path(as.empty() ? name : as);
        std::filesystem::copy_file(std::filesystem::path(TEST_DATA_DIR) / name, copy,
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::permissions(copy, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        return copy.filename();
    }
    std::string make(const std::string& name, const std::string& dataFile,
                     std::initializer_list<const char*> images = {}) const {
        std::filesystem::rename(program.make(name, dataFile, images), path(name));
        return name;
    }

    // The started program; its output goes into files.
    pid_t start(const std::vector<std::string>& arguments, const std::string& output = "out") const {
        std::vector<char*> argv{const_cast<char*>(FWK_PROGRAM)};
        for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        const std::filesystem::path out = program.platform.folder / output;
        const std::filesystem::path err = out.string() + ".err";
        const pid_t child = ::fork();
        if (child != 0) return child;
        const bool ready = ::chdir(files.c_str()) == 0 && ::setenv("HOME", outside.c_str(), 1) == 0 &&
                           ::setenv("TMPDIR", (outside / "tmp").c_str(), 1) == 0 &&
                           std::freopen(out.c_str(), "w", stdout) && std::freopen(err.c_str(), "w", stderr);
        for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) ::unsetenv(folder);
        if (ready) ::execv(FWK_PROGRAM, argv.data());
        ::_exit(127);
    }
    Outcome finish(pid_t child, const std::string& output = "out") const {
        int status = 0;
        struct rusage usage {};
        ::wait4(child, &status, 0, &usage);
        Outcome outcome;
        if (WIFEXITED(status)) outcome.code = WEXITSTATUS(status);
        if (WIFSIGNALED(status)) outcome.signal = WTERMSIG(status);
        outcome.out = readBytes(program.platform.folder / output);
        outcome.err = readBytes(program.platform.folder / (output + ".err"));
        outcome.maxKilobytes = usage.ru_maxrss;
        return outcome;
    }
    Outcome run(const std::vector<std::string>& arguments) const { return finish(start(arguments)); }
    // The same with the arguments in one text, divided by blanks.
    Outcome run(const std::string& line) const {
        std::istringstream words(line);
        std::vector<std::string> arguments;
        for (std::string word; words >> word;) arguments.push_back(word);
        return run(arguments);
    }
    std::string outputOf(const std::string& line) const {
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.code, 0) << line << ": " << outcome.err;
        return outcome.out;
    }

    std::string dataFileOf(const std::string& name) const { return Program::dataFileOf(path(name)); }

    // All files of the folder with their bytes: what a command that fails or reads must not change.
    std::map<std::string, std::string> state() const {
        std::map<std::string, std::string> all;
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(program.platform.folder / "world"))
            all[entry.path()] = entry.is_regular_file() ? readBytes(entry.path()) : "";
        return all;
    }

    Program program;
    std::filesystem::path files = program.platform.folder / "world" / "files"; // where the program runs
    std::filesystem::path outside = program.platform.folder / "world" / "home";
};
