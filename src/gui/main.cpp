#include "gui/frame/runProgram.h"

int main(int argc, char* argv[]) {
    return gui::runProgram(argc, argv);
}
