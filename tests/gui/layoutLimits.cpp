#include "layoutPage.h"

#include "gui/layout/pictures.h"
#include "layout/images.h"

#include <QBuffer>
#include <QRandomGenerator>

#include <ctime>
#include <sys/resource.h>

// What a sheet does with pictures that are none, and how long it takes with many objects.
class LayoutLimits : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    QString write(const char* name, const QByteArray& bytes) const {
        QFile file(folders_.path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                    : QString();
    }
    static QByteArray jpeg(QSize size, int seed = 1) {
        QRandomGenerator random(static_cast<quint32>(seed));
        QImage image(size / 8, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, random.generate());
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(&bytes, "JPEG", 80);
        return bytes.data();
    }
    static QByteArray word(int value) {
        return QByteArray(1, static_cast<char>(value & 0xFF)) + QByteArray(1, static_cast<char>(value >> 8));
    }
    // One image of a single colour, on a screen of another size.
    static QByteArray gif(QSize screen, QSize image) {
        return "GIF89a" + word(screen.width()) + word(screen.height()) +
               QByteArray::fromHex("800000ff0000ffffff2c00000000") + word(image.width()) +
               word(image.height()) + QByteArray::fromHex("0002024401003b");
    }
    static double milliseconds(const std::function<void()>& act) {
        const std::clock_t start = std::clock();
        act();
        return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    }
    static double median(std::vector<double> times) {
        std::ranges::sort(times);
        return times[times.size() / 2];
    }
    // Processor time, so that other programs count little; the median, so that a single delay does not.
    static void report(const char* what, const std::vector<double>& times, double limit) {
        qInfo("%s: median %.2f ms, longest %.2f ms", what, median(times), *std::ranges::max_element(times));
#ifdef NDEBUG
        QVERIFY2(median(times) < limit, what);
#else
        Q_UNUSED(limit)
#endif
    }

private slots:
    void init() {
        Folders::forgetSettings();
    }
    void picturesThatCannotBeShown_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("shown");
        // The header says what size the picture has; everything behind it stays as it was.
        QByteArray large = jpeg({64, 64});
        const auto frame = large.indexOf(QByteArray::fromHex("ffc0"));
        QVERIFY(frame > 0);
        large.replace(frame + 5, 4, QByteArray::fromHex("4e204e20")); // 20,000 x 20,000
        QTest::newRow("JPEG of 20,000 x 20,000") << large << false;
        QTest::newRow("JPEG") << jpeg({64, 64}) << true;
        QTest::newRow("half a JPEG") << jpeg({640, 640}).left(9000) << true; // as far as it goes
        QTest::newRow("a JPEG's first bytes") << jpeg({64, 64}).left(20) << false;
        QTest::newRow("GIF") << gif({20, 20}, {20, 20}) << true;
        QTest::newRow("GIF of 65,535 x 65,535") << gif({65535, 65535}, {65535, 65535}) << false;
        QTest::newRow("GIF of 7,000 x 9,000") << gif({7000, 9000}, {7000, 9000}) << false;
        QTest::newRow("GIF with an image beyond its screen") << gif({10, 10}, {65535, 65535}) << true;
        QTest::newRow("GIF without a screen") << gif({0, 0}, {65535, 65535}) << false;
        QTest::newRow("PNG") << QByteArray::fromHex(
                                    "89504e470d0a1a0a0000000d4948445200000001000000010802000000")
                             << false;
        QTest::newRow("SVG") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>")
                             << false;
        QTest::newRow("text") << QByteArray("no picture") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void picturesThatCannotBeShown() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const bool, shown);
        // Files of one name, one size and one moment would count as the same picture.
        static int number = 0;
        const QString file = write(qPrintable(u"picture%1.jpg"_s.arg(++number)), bytes);
        rusage before{}, after{};
        getrusage(RUSAGE_SELF, &before);
        QCOMPARE(gui::pictureSize(file).has_value(), shown);
        QCOMPARE(!gui::scaledPicture(file, {100, 100}).isNull(), shown);
        getrusage(RUSAGE_SELF, &after);
        constexpr long mostKilobytes = 80'000;
        QVERIFY2(after.ru_maxrss - before.ru_maxrss < mostKilobytes,
                 qPrintable(u"%1 KB"_s.arg(after.ru_maxrss - before.ru_maxrss)));
    }

    void damagedPicturesLeaveTheirHoldersEmpty() {
        const QString file = folders_.sample("books.fwk");
        {
            file::Zip zip;
            zip.OpenArchive(gui::fromQt(file));
            zip.addBuffer("cover1.jpg", "no picture any more", "");
            zip.addBuffer("logo.gif", gif({65535, 65535}, {65535, 65535}).toStdString(), "Clip Art");
            zip.DeleteFile("cover2.jpg");
            zip.CloseArchive();
        }
        LayoutSession run(file);
        run.showLayout();
        const auto isEmpty = [&](const char* name) {
            const QImage image = run.find<QWidget>(name)->grab().toImage();
            for (int y = 3; y < image.height() - 3; ++y)
                for (int x = 3; x < image.width() - 3; ++x)
                    if (image.pixelColor(x, y) != QColor(Qt::white)) return false;
            return true;
        };
        QVERIFY(isEmpty("clipPic1"));
        QVERIFY(isEmpty("imgHolder1")); // damaged
        run.navigate("Next");
        QVERIFY(isEmpty("imgHolder1")); // absent
        run.navigate("Next");
        QVERIFY(!isEmpty("imgHolder1"));
        QVERIFY(run.platform.messages.empty());
    }

    void fontsThatAreNotThereFallBack() {
        LayoutSession run(folders_.sample("books.fwk"));
        for (const char* family : {"No Such Font At All", "", "MS Sans Serif"}) {
            for (const float size : {8.25F, 0.0F, -3.0F, 1e9F}) {
                run.objects.layoutField[2].FontName = family;
                run.objects.layoutField[2].FontSize = size;
                run.showLayout();
                layout::InitLayout(run.app, false);
                run.window.refresh();
                QVERIFY(!run.field(2)->grab().isNull());
                QVERIFY(QFontMetrics(run.field(2)->font()).height() > 0);
            }
        }
    }

    void theNextRecordIsThereAtOnce() {
        constexpr int records = 20;
        DataFile data({});
        const auto number = [](int value) { return std::to_string(value); };
        for (int column = 0; column < 44; ++column) data.addColumn("Col" + number(column), 1 + column % 3);
        for (int i = 0; i < 60; ++i)
            data.layout += "F|Col" + number(i % 44) + "|" + number(600 + i % 4 * 2000) + "|" +
                           number(300 + i / 4 * 400) + "|1815|285|False|False|False|Arial|8.25|0|\r\n";
        for (int i = 0; i < 4; ++i) {
            data.addColumn("Photo" + number(i), 7);
            data.layout += "P|Photo" + number(i) + "|" + number(600 + i * 2600) + "|6500|2500|2500|\r\n";
        }
        const QString file = folders_.path("large.fwk");
        file::Zip zip;
        zip.CreateArchive(gui::fromQt(file));
        std::vector<std::string> pictures;
        for (int seed = 1; seed <= 4; ++seed) pictures.push_back(jpeg({640, 480}, seed).toStdString());
        for (int record = 0; record < records; ++record, data.rows += "\r\n") {
            for (int column = 0; column < 44; ++column) data.rows += "cell " + number(record * column) + "|";
            for (std::size_t picture = 0; picture < 4; ++picture) {
                const std::string name = "p" + number(record) + "-" + std::to_string(picture) + ".jpg";
                data.rows += name + "|";
                zip.addBuffer(name, pictures.at(picture), "");
            }
        }
        data.addTotals();
        zip.addBuffer("data.dat", data.text(), "Main Data File");
        zip.CloseArchive();
        LayoutSession run(file);
        run.showLayout();
        QVERIFY(run.objects.layoutField.count() == 60 && run.objects.imgHolder.count() == 4);
        run.settle();
        std::vector<double> unpacking, unpacked;
        const auto walk = [&](const char* key, std::vector<double>& times) {
            for (int i = 1; i < records; ++i)
                times.push_back(milliseconds([&] {
                    run.navigate(key);
                    run.settle();
                }));
        };
        walk("Next", unpacking);
        QCOMPARE(run.LV().indexOf(*run.LV().selectedItem()), records);
        walk("Back", unpacked);
        report("next record, 60 fields, 4 pictures to unpack", unpacking, 20);
        report("the same with pictures that are unpacked", unpacked, 20);
    }

    void movingStaysSmoothAmongManyObjects() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.window.resize(1100, 720);
        run.pressDesign();
        for (int i = 0; run.objects.count() < 200; ++i) {
            run.click(i % 4 == 0 ? "Box" : i % 4 == 1 ? "Line" : i % 4 == 2 ? "Label" : "ClipArt");
            core::LayoutObject& added = objectAt(run.objects, run.page.selectedObject);
            added.Left = static_cast<float>(200 + i % 14 * 800);
            added.Top = static_cast<float>(200 + i / 14 * 600);
            added.Width = added.Height = 500;
        }
        run.click("Snap");
        run.window.refresh();
        run.settle();
        for (const char* name : {"layoutField2", "pBox2", "imgHolder1"}) {
            QWidget* widget = run.object(name);
            const QPoint start = widget->mapToGlobal(QPoint(5, 5));
            QTest::mousePress(widget, Qt::LeftButton, {}, {5, 5});
            std::vector<double> times;
            for (int step = 1; step <= 60; ++step)
                times.push_back(milliseconds([&] {
                    const QPoint to = start + QPoint(step * 5, step * 3);
                    QMouseEvent move(QEvent::MouseMove, widget->mapFromGlobal(to), to, Qt::NoButton,
                                     Qt::LeftButton, {});
                    QApplication::sendEvent(widget, &move);
                    run.settle();
                }));
            QTest::mouseRelease(widget, Qt::LeftButton);
            report(name, times, 8);
        }
    }
};

QTEST_MAIN(LayoutLimits)
#include "layoutLimits.moc"
