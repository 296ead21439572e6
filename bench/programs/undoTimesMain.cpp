#include "gui/frame/mainFrmView.h"
#include "history/undoStack.h"
#include "makeBigDatabase.h"
#include "shell/commands.h"
#include "shell/mainWindow.h"
#include "shell/program.h"
#include "shell/undo.h"
#include "times.h"

#include <QApplication>
#include <QTemporaryDir>

namespace {

constexpr int records = 32'000, columns = 13;

// Steps of single records, as the window would make them, and what they take of memory.
bool areStepsSmall(const core::Document& opened, core::Document& document) {
    constexpr std::size_t most = std::size_t{8} << 20;
    history::UndoStack stack;
    stack.start(opened, true);
    for (int i = 0; i < 100; ++i) {
        stack.noteSelection(document);
        document.LV.at(1 + i * 300).subItem(2) = "changed " + std::to_string(i);
        stack.settle(document, true, [](const history::Step&) { return std::string(); });
    }
    std::cout << "100 steps of single records: " << stack.bytes() << " bytes, at most " << most
              << (stack.bytes() <= most ? " PASS\n" : " FAIL\n");
    return stack.bytes() <= most;
}

} // namespace

// undo_times: how long the window of 32,000 records takes to undo and redo, and how long an event is kept by
// the look at what it has changed; 1 when one is beyond its limit.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(variable, QFile::encodeName(folder.path()));
    QApplication application(argc, argv);
    platform::SettingsFile settings;
    settings.SaveSetting("StartUp", "Disclaimer", "True");
    settings.flush();
    const std::string file = folder.filePath(QStringLiteral("large.fwk")).toStdString();
    bench::makeBigDatabase(file, records, columns);
    gui::QtPlatform platform;
    shell::Program app(platform);
    gui::MainFrmView window(app, platform);
    window.load(shell::commandLineFor(file));
    const auto event = [&](const std::function<void()>& handler) { window.events().run(handler); };
    const auto run = [&](const char* key) { event([&] { shell::runCommand(app, key); }); };

    bool within = isWithin("the copy that is made with the first event", 1, 50, [&](int) { event([] {}); });
    within &= isWithin("the look after an event that changes nothing", 20, 2, [&](int) {
        shell::beforeEvent(app);
        shell::afterEvent(app);
    });
    within &= isWithin("the look at one changed record", 20, 16, [&](int i) {
        app.document.LV.at(1 + i).subItem(2) = "x";
        shell::beforeEvent(app);
        app.changes.announce(app, app::Change::Unsaved);
        shell::afterEvent(app);
    });
    event([&] {
        app.document.LV.forEach(
            [](core::Item& record) { record.subItem(2) = "another text in each record"; });
        app::setDocumentModified(app, true);
    });
    within &= isWithin("a change of all records is undone", 1, 50, [&](int) { run("mnuUndo"); });
    within &= isWithin("a change of all records is done again", 1, 50, [&](int) { run("mnuRedo"); });
    within &= areStepsSmall(app.document, app.document);
    return within ? 0 : 1;
}
