#pragma once

#include <QCommandLineParser>
#include <QSize>
#include <QString>

namespace gui {

// What the program is asked for on the command line.
struct CommandLine {
    QString file;    // absolute; empty for none
    QString picture; // where to save a picture of the window; empty: show the window
    QSize size{1100, 720};
    double scale = 1;
    bool dark = false;
    bool isNew = false;  // as if File > New were chosen first
    bool isLast = false; // opens the file that was used last

    bool help = false;
    bool version = false;
    QString error; // what is wrong with it; empty for nothing
};

// Can be used ahead of the application object, so that --help needs no display.
CommandLine parseCommandLine(int argc, char* argv[]);

QString versionText();
// Program is the name that it was called by.
QString helpText(const QString& program);

} // namespace gui
