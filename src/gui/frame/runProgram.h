#pragma once

namespace gui {

// The program from its command line to its end; returns its exit code: 2 for a wrong command line. It makes
// the QApplication, so there is no other.
int runProgram(int argc, char* argv[]);

} // namespace gui
