#pragma once

#include "folderWatch.h"
#include "transcript.h"

#include <ctime>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// How a run ended.
struct Outcome {
    int code;             // as the shell tells it: above 128 for a signal
    std::string out, err; // standard output and standard error
    long maxKilobytes;
};

// Runs lines of the shell, in which `fwk` is the built program, in a folder of their own. The home and the
// folder for temporary files lie beside it, so that whatever is left behind is seen.
class FwkTest : public ::testing::Test {
protected:
    FwkTest() {
        std::filesystem::create_directories(files);
        std::filesystem::create_directories(temporary);
    }
    std::filesystem::path path(const std::string& name) const { return files / name; }
    void copyOf(const std::string& name, const std::string& as) const {
        std::filesystem::rename(program.copyOf(name), path(as));
        std::filesystem::permissions(path(as), std::filesystem::perms(0644));
    }
    void make(const std::string& name, const DataFile& data,
              std::initializer_list<const char*> images = {}) const {
        std::filesystem::rename(program.make(name, data.text(), images), path(name));
    }
    std::string dataFileOf(const std::string& name) const { return Program::dataFileOf(path(name)); }

    pid_t start(const std::string& line) const {
        const pid_t child = ::fork();
        if (child != 0) return child;
        const std::string programs = std::filesystem::path(FWK_PROGRAM).parent_path().string();
        ::setenv("PATH", (programs + ":" + std::getenv("PATH")).c_str(), 1);
        ::setenv("HOME", (world / "home").c_str(), 1);
        ::setenv("TMPDIR", temporary.c_str(), 1);
        ::unsetenv("XDG_CONFIG_HOME");
        ::setenv("LC_ALL", "C.UTF-8", 1);                       // the paper of a new database
        ::setenv("XDG_DATA_HOME", (world / "data").c_str(), 1); // with the versions
        const std::string out = program.path("out");
        const bool ready = ::chdir(files.c_str()) == 0 && std::freopen("/dev/null", "r", stdin) &&
                           std::freopen(out.c_str(), "w", stdout) &&
                           std::freopen((out + ".err").c_str(), "w", stderr);
        if (ready) ::execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
        ::_exit(127);
    }
    Outcome finish(pid_t child) const {
        int status = 0;
        struct rusage usage {};
        ::wait4(child, &status, 0, &usage);
        const std::string out = program.path("out");
        return {WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status),
                ScriptedPlatform::read(out), ScriptedPlatform::read(out + ".err"), usage.ru_maxrss};
    }
    Outcome run(const std::string& line) const { return finish(start(line)); }

    // A transcript of lines of the shell, each with its exit code behind the "$" when that is not 0. Behind
    // it stand the lines of standard output, those of standard error with "! " in front, and what has changed
    // on the disk, as folderWatch.h tells it:
    //
    //     $ fwk add a.fwk Name=Bolt -> i1 // +Bolt|12|
    //     $1 fwk add a.fwk Nme=Bolt -> ! no column "Nme"
    //
    // Left out are "fwk: a.fwk: " in front of an error, the end of messages, the help behind a wrong line,
    // and the blanks that fill the name of a section. "=|" is a cell of the Totals row without a sum.
    void expect(const char* script) const {
        FolderWatch watch(files);
        expectTranscript(script, [&](const std::string& line) { return play(line, watch); });
        EXPECT_TRUE(std::filesystem::is_empty(temporary));
        EXPECT_EQ(run("ls -A $HOME").out, "tmp\n");
    }

    Program program;
    std::filesystem::path world = program.platform.folder / "world", files = world / "files";
    std::filesystem::path temporary = world / "home" / "tmp";

private:
    std::string play(const std::string& line, FolderWatch& watch) const {
        std::istringstream words(line);
        std::string file;
        while (words >> file && !file.ends_with(".fwk")) {
        }
        const std::string day = today();
        const Outcome outcome = run(line);
        std::string all = "$" + (outcome.code == 0 ? "" : std::to_string(outcome.code)) + " " + line + "\n";
        all += outcome.out;
        const bool hasHelp = outcome.err.find("\nUsage: fwk ") != std::string::npos;
        std::istringstream errors(
            outcome.err.substr(0, hasHelp ? outcome.err.find("\n\n") : std::string::npos));
        for (std::string told; std::getline(errors, told);) {
            for (const std::string& known : {std::string("fwk: "), file + ": "})
                if (told.starts_with(known)) told.erase(0, known.size());
            const bool isLong = told.starts_with("Ferrowick: ") && told.size() > 27;
            all += "! " + (isLong ? told.substr(0, 24) + "..." : told) + "\n";
        }
        all += watch.changes(file);
        for (const auto& [what, shorter] : std::map<std::string, std::string>{
                 {day, "TODAY"}, {today(), "TODAY"}, {"------|", "=|"}, {" ]", "]"}})
            for (std::size_t at = 0; (at = all.find(what)) != std::string::npos;)
                all.replace(at, what.size(), shorter);
        return all;
    }
    static std::string today() {
        const std::time_t now = std::time(nullptr);
        char text[16] = {};
        std::strftime(text, sizeof text, "%m/%d/%Y", std::localtime(&now));
        return text;
    }
};
