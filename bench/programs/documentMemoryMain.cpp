#include "platform/headlessPlatform.h"
#include "shell/program.h"
#include "storage/openFile.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <string>

namespace {

// A line of /proc/self/status in kB: VmRSS is what is resident now, VmHWM the most that ever was.
long statusKilobytes(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word != name + ":") continue;
        long value = 0;
        status >> value;
        return value;
    }
    return 0;
}

} // namespace

// document_memory FILE.fwk: prints the bytes that the open document takes, and the most that opening it took.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: document_memory FILE.fwk\n";
        return 2;
    }
    try {
        platform::HeadlessPlatform machine(std::cerr);
        shell::Program app(machine);
        const long before = statusKilobytes("VmRSS");
        storage::readArchive(app, argv[1]);
        const long after = statusKilobytes("VmRSS");
        std::cout << (after - before) * 1024 << ' ' << (statusKilobytes("VmHWM") - before) * 1024 << '\n';
    } catch (const std::exception& error) {
        std::cerr << "document_memory: " << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
