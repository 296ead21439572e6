#include "file/archive/zip.h"
#include "gui/frame/mainFrmView.h"
#include "gui/widgets/textBox.h"
#include "shell/mainWindow.h"
#include "shell/program.h"
#include "storage/recoveryCopies.h"
#include "times.h"

#include <QApplication>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int records = 32'000, columns = 25;

void makeDatabase(const std::string& file) {
    std::string names, types, widths, spots = "1|", row, rows, totals;
    for (int i = 0; i < columns; ++i) {
        names += "Col" + std::to_string(i) + "|";
        types += "3|";
        widths += "1440|";
        spots += std::to_string(i + 2) + "|";
        row += "cell " + std::to_string(i * i) + "|";
        totals += "------|";
    }
    for (int record = 0; record < records; ++record) rows += row + "\r\n";
    file::Zip zip;
    zip.CreateArchive(file);
    zip.addBuffer(
        "data.dat",
        "[LayoutStart]\r\nF|Col0|600|300|1815|285|False|False|False|Arial|8.25|0|\r\n[LayoutEnd]\r\n"
        "[Layout Options]4|6|1|1|1|1|1|1|0.15|\r\n[Column Names  ]" +
            names + "\r\n[Column Types  ]" + types + "\r\n[Column Widths ]" + widths +
            "\r\n[Column Spots  ]" + spots + "\r\n[Begin Data    ]\r\n" + rows + totals + "\r\n",
        "Main Data File");
    zip.CloseArchive();
}

} // namespace

// copy_times: how long the window is kept by a copy of unsaved work of 32,000 records: when it is begun, and
// a key while it is written; 1 when one is beyond its limit.
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
    makeDatabase(file);
    gui::QtPlatform platform;
    shell::Program app(platform);
    gui::MainFrmView window(app, platform);
    window.load(shell::commandLineFor(file));
    window.findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(app::layoutTab);
    auto* field = window.findChild<gui::TextBox*>();
    auto& work = storage::unsavedWork(app);
    const auto begin = [&](int) {
        storage::tendUnsavedWork(app, storage::UnsavedWork::Clock::now() + std::chrono::seconds(3));
    };
    bool within = true;
    for (int round = 0; round < 5; ++round) {
        app::setDocumentModified(app, true);
        QCoreApplication::processEvents(); // what the window paints is not the copy's
        within &= isWithin("a copy is begun", 1, 8, begin);
        if (!work.writer.isRunning()) std::cout << "It is written in this process.\n";
        within &= isWithin("a key meanwhile", 20, 8, [&](int) { QTest::keyClick(field, Qt::Key_X); });
        while (work.writer.isRunning()) QTest::qWait(5);
    }
    storage::removeUnsavedWork(app);
    return within ? 0 : 1;
}
