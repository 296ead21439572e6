#pragma once

#include "gui/frame/commandLine.h"

namespace gui {

// Draws the main window with the file of the command line and saves it as a picture. Settings, recent
// files and work folder of the user are left alone. Answers the program's exit code; what goes wrong
// is told on stderr.
int drawPicture(const CommandLine& line);

} // namespace gui
