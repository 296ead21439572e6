#include "gui/frame/runProgram.h"

#include "app/fileSettings.h"
#include "gui/frame/commandLine.h"
#include "gui/frame/mainFrmView.h"
#include "gui/frame/picture.h"
#include "gui/machine/endSignals.h"
#include "gui/machine/language.h"
#include "gui/machine/localeForm.h"
#include "gui/machine/recentList.h"
#include "gui/widgets/accessibleRoles.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/programStyle.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/theme.h"
#include "qtprint/hiddenApplication.h"
#include "shell/commands.h"
#include "shell/mainWindow.h"
#include "shell/program.h"
#include "shell/recentlyUsed.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdlib>
#include <iostream>
#include <optional>

namespace gui {

namespace {

int showWindow(const CommandLine& line) {
    QtPlatform platform;
    shell::Program app(platform);
    app::keepFileSettings(app, platform::FileSettings::defaultFile());
    app::appearance(app).localeForm = formOf(QLocale::system());
    if (line.dark) app::appearance(app).themeOfRun = app::Theme::Dark;
    MainFrmView window(app, platform);
    // Not with the last window: the disclaimer of the first start closes before the window opens.
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&window, &MainFrmView::closed, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    const EndSignals signalled([&](int number) {
        window.endAtOnce();
        std::_Exit(128 + number); // dialogs further up would take their end for an answer
    });
    keepRecentList(app);
    window.load(shell::commandLineFor(line.isLast ? shell::lastFile(app) : fromQt(line.file)));
    if (line.isNew)
        QMetaObject::invokeMethod(
            &window, [&] { window.events().run([&] { shell::runCommand(app, "mnuNew"); }); },
            Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace

int runProgram(int argc, char* argv[]) {
    const CommandLine line = parseCommandLine(argc, argv);
    const QString program = argc > 0 ? QFileInfo(QString::fromLocal8Bit(argv[0])).fileName() : QString();
    if (line.help || line.version) {
        std::cout << fromQt(line.help ? helpText(program) : versionText());
        return 0;
    }
    if (!line.error.isEmpty()) {
        std::cerr << "ferrowick: " << fromQt(line.error) << "\nTry " << fromQt(program) << " --help.\n";
        return 2;
    }
    const bool picture = !line.picture.isEmpty();
    std::optional<qtprint::RuntimeFolder> runtimeFolder;
    if (picture) {
        runtimeFolder.emplace();
        // Both are read when the application object is made. What Qt has to say about the missing display
        // would only stand among the lines of a script.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_SCALE_FACTOR", QByteArray::number(line.scale));
    }
    const QApplication application(argc, argv);
    // No display name beside it: Qt would add that to captions that begin with the title already.
    QCoreApplication::setApplicationName(QStringLiteral("ferrowick"));
    QCoreApplication::setApplicationVersion(QStringLiteral(FERROWICK_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.ferrowick.ferrowick"));
    QApplication::setWindowIcon(programIcon());
    useLanguageOfUser();
    tellRoles();
    QApplication::setStyle(new ProgramStyle);
    if (line.dark) showTheme(app::Theme::Dark);
    return picture ? drawPicture(line) : showWindow(line);
}

} // namespace gui
