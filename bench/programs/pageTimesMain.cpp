#include "file/archive/zip.h"
#include "gui/frame/mainFrmView.h"
#include "shell/mainWindow.h"
#include "shell/program.h"
#include "times.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <string>

// The layout page of a database with many fields and pictures, under somebody who leafs through it.

namespace {

constexpr int records = 20, columns = 44, fields = 60, photos = 4;

std::string picture(int seed) {
    QRandomGenerator random(static_cast<quint32>(seed));
    QImage image(80, 60, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, random.generate());
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    image.scaled(640, 480, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(&bytes, "JPEG", 80);
    return bytes.data().toStdString();
}

void makeDatabase(const std::string& file) {
    const auto number = [](int value) { return std::to_string(value); };
    std::string layout, names, types, widths, spots = "1|", rows, totals;
    for (int i = 0; i < columns + photos; ++i) {
        names += (i < columns ? "Col" + number(i) : "Photo" + number(i - columns)) + "|";
        types += i < columns ? number(1 + i % 3) + "|" : "7|";
        widths += "1440|";
        spots += number(i + 2) + "|";
        totals += "------|";
    }
    for (int i = 0; i < fields; ++i)
        layout += "F|Col" + number(i % columns) + "|" + number(600 + i % 4 * 2000) + "|" +
                  number(300 + i / 4 * 400) + "|1815|285|False|False|False|Arial|8.25|0|\r\n";
    for (int i = 0; i < photos; ++i)
        layout += "P|Photo" + number(i) + "|" + number(600 + i * 2600) + "|6500|2500|2500|\r\n";
    file::Zip zip;
    zip.CreateArchive(file);
    for (int record = 0; record < records; ++record, rows += "\r\n") {
        for (int i = 0; i < columns; ++i) rows += "cell " + number(record * i) + "|";
        for (int i = 0; i < photos; ++i) {
            const std::string name = "p" + number(record) + "-" + number(i) + ".jpg";
            rows += name + "|";
            zip.addBuffer(name, picture(i + 1), "");
        }
    }
    zip.addBuffer("data.dat",
                  "[LayoutStart]\r\n" + layout + "[LayoutEnd]\r\n[Layout Options]4|6|1|1|1|1|1|1|0.15|\r\n" +
                      "[Column Names  ]" + names + "\r\n[Column Types  ]" + types + "\r\n[Column Widths ]" +
                      widths + "\r\n[Column Spots  ]" + spots + "\r\n[Begin Data    ]\r\n" + rows + totals +
                      "\r\n",
                  "Main Data File");
    zip.CloseArchive();
}

} // namespace

// page_times: how long the next record and the move of an object take; 1 when one is beyond its limit.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
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
    const auto press = [&](const char* key) { window.findChild<QAction*>(QLatin1String(key))->trigger(); };
    bool within = isWithin("next record, pictures to unpack", records - 1, 20,
                           [&](int) { press("layoutNavBar.Next"); });
    within &= isWithin("record before it", records - 1, 20, [&](int) { press("layoutNavBar.Back"); });
    press("Design");
    while (app.document.layout.count() < 200)
        for (const char* key : {"Box", "Line", "Label", "ClipArt"})
            press(qPrintable(QStringLiteral("layoutToolbar.") + QLatin1String(key)));
    auto* box = window.findChild<QWidget*>(QStringLiteral("pBox1"));
    const QPoint start = box->mapToGlobal(QPoint(5, 5));
    const auto send = [&](QEvent::Type type, QPoint to, Qt::MouseButton button) {
        QMouseEvent event(type, box->mapFromGlobal(to), to, button, Qt::LeftButton, {});
        QApplication::sendEvent(box, &event);
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    within &= isWithin("a move among 200 objects", 60, 8, [&](int step) {
        send(QEvent::MouseMove, start + QPoint(step * 5, step * 3), Qt::NoButton);
    });
    send(QEvent::MouseButtonRelease, start, Qt::LeftButton);
    return within ? 0 : 1;
}
