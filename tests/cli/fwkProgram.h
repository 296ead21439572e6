#pragma once

#include "programTest.h"

#include <sys/types.h>

// How a run of the program ended.
struct Outcome {
    int code = -1;   // exit code, or -1 when a signal ended it
    int signal = 0;  // the signal that ended it
    std::string out; // standard output
    std::string err; // standard error
    long maxKilobytes = 0;
};

// A command that fails, and a part of what it says.
struct Refusal {
    std::string line;
    int code;
    std::string reason;
};

// What a JSON pointer finds in a JSON text, as the shortest text with sorted keys; "(none)" for nothing.
std::string jsonAt(const std::string& text, const std::string& pointer = "");
std::string jsonWithout(const std::string& text, std::initializer_list<const char*> keys);

// Runs the built program in a folder of its own, with a home and a folder for temporary files in which
// whatever it leaves behind can be seen.
class FwkTest : public ::testing::Test {
protected:
    FwkTest();

    std::filesystem::path path(const std::string& name) const { return files / name; }
    static std::string read(const std::filesystem::path& file) { return ScriptedPlatform::read(file); }
    void write(const std::string& name, std::string_view bytes) const {
        ScriptedPlatform::write(path(name), bytes);
    }
    std::string copyOf(const std::string& name, const std::string& as = {}) const;
    std::string make(const std::string& name, const std::string& dataFile,
                     std::initializer_list<const char*> images = {}) const;

    // The started program; its output goes into files.
    pid_t start(const std::vector<std::string>& arguments, const std::string& output = "out") const;
    Outcome finish(pid_t child, const std::string& output = "out") const;
    Outcome run(const std::vector<std::string>& arguments) const { return finish(start(arguments)); }
    // The same with the arguments in one text, divided by blanks; what stands in '' is one argument.
    Outcome run(const std::string& line) const;
    std::string outputOf(const std::string& line) const; // of a command that works
    void runAll(std::initializer_list<const char*> lines) const {
        for (const char* line : lines) (void)outputOf(line);
    }

    // Each fails with its reason and nothing else of the program's own, and changes nothing on the disk.
    void expectRefused(const std::vector<Refusal>& refusals) const;

    std::string dataFileOf(const std::string& name) const { return Program::dataFileOf(path(name)); }
    std::string info(const std::string& name, const std::string& pointer) const {
        return jsonAt(outputOf("info " + name + " --json"), pointer);
    }
    // The records and the sums, a line each: "i1|a|b|". A command that prints them can be told.
    std::string rows(const std::string& name) const { return rowsOf("records " + name); }
    std::string rowsOf(const std::string& line) const;

    // All files of the folder with their bytes: what a command that fails or reads must not change.
    std::map<std::string, std::string> state() const;

    Program program;
    std::filesystem::path files = program.platform.folder / "world" / "files"; // where the program runs
    std::filesystem::path outside = program.platform.folder / "world" / "home";
};
