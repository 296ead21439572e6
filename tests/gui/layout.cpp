#include "layoutPage.h"

#include <QClipboard>

#include <sys/resource.h>

// The layout page under mouse and keys: a page is designed, and records are browsed and typed through it.
class Layout : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    // What is painted along the row of pixels that is looked at, or below nought along the column: the places
    // at which another colour begins; a dot is white and ! black.
    static QString painted(LayoutSession& run) {
        QImage image = run.find<QWidget>(qPrintable(run.looked[0]))->grab().toImage();
        const int row = run.looked[1].toInt();
        if (row < 0) image = image.transformed(QTransform(0, 1, 1, 0, 0, 0));
        QString changes, last;
        for (int x = 0; x < std::min(image.width(), run.looked[2].toInt()); ++x) {
            const QString colour = image.pixelColor(x, std::abs(row)).name();
            if (colour != std::exchange(last, colour)) changes += u' ' + QString::number(x) + colour;
        }
        return changes.replace(u"#ffffff"_s, u"."_s).replace(u"#000000"_s, u"!"_s).trimmed();
    }
    static QString middleOf(LayoutSession& run, const char* widget) {
        const QImage image = run.find<QWidget>(widget)->grab().toImage();
        return image.pixelColor(image.rect().center()).name();
    }
    QByteArray picture(const char* name, QSize size, QColor colour) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        image.save(folders_.path(name), "JPEG");
        QFile file(folders_.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init() { Folders::forgetSettings(); }

    void aPageIsDesignedAndRecordsAreTyped() {
        for (const auto& [name, colour] : {std::pair("logo.jpg", Qt::green), std::pair("red.jpg", Qt::red)})
            picture(name, {300, 200}, colour);
        const QString file = folders_.database("new.fwk", DataFile("Name Price:2 Made:1 Photo:7"));
        LayoutSession run(file);
        run.play(u"do Design; tool Snap"_s);
        for (const char* kind :
             {"Field Name; layoutField1", "Label; tLabel1", "Line; pbLine1", "vLine; vLine1", "Box; pBox1",
              "Picture Photo; imgHolder1", "ClipArt; clipPic1"})
            run.play(u"tool %1; drag %2 37,61 2,2; click %2; drag Handle 20,10 4,4; tool Snap;"
                     "drag %2 40,40 2,2; click %2; drag Handle 40,20 4,4; tool Snap"_s.arg(
                         QString::fromLatin1(kind).section(u';', 0, 0),
                         QString::fromLatin1(kind).section(u' ', -1)));
        run.platform.inputs = {"http://example.org"};
        run.platform.fonts = {{"Liberation Serif", 11.5F, true, false, true, false, 0x0000FF}};
        run.play(u"click pBox1; tool Lock; drag pBox1 50,50; drag Handle 50,50;"
                 "tool Field Price; tool Label AutoLabel; click tLabel1; tool Link;"
                 "double tLabel1; type My page; key Return; click layoutField1; tool Font;"
                 "file logo.jpg; double clipPic1; tool Label; drag tLabel3 100,100 2,2; key Del"_s);
        QCOMPARE(run.platform.messages.size(), 1U); // labels have no line breaks
        run.expect(R"(
do Design; nav New; fill Name Bolt; key Tab; type 1250; file red.jpg; double imgHolder1; nav Add -> also Liberation Serif#ffffff#00ff01, keys layoutField1 at 0-0, record New record, sheet 19 0, text ||
fill Name Nut; key Tab; type 3; nav Add; do Save -> status 2 records. Document Saved, text |0|
nav First -> also Liberation Serif#fe0000#00ff01, record Record 1 of 2, text Bolt|$12.50|
nav Next -> also Liberation Serif#ffffff#00ff01, record Record 2 of 2, text Nut|$3.00|)",
                   [&] {
                       return run.field(1)->font().family() + middleOf(run, "imgHolder1") +
                              middleOf(run, "clipPic1");
                   });
        file::Zip zip;
        zip.OpenArchive(gui::fromQt(file));
        const QString text = gui::toQt(zip.readEntry("data.dat", 1 << 20).value_or("")).remove(u'\r');
        QCOMPARE(text.section(u"\n[LayoutEnd]"_s, 0, 0), QLatin1String(R"([LayoutStart]
F|Name|2640|1800|2880|840|True|False|True|Liberation Serif|11.5|255|
F|Price|1440|285|1815|285|False|False|False|MS Sans Serif|8.25|0|
L|My page|2640|1680|2760|720|False|False|False|MS Sans Serif|8.25|0|http://example.org|0|
L|Price|1440|195|1695|195|True|False|False|MS Sans Serif|8.25|0||0|
LN|2640|1560|3960|75|16777215|
VLN|2640|4680|75|3720|16777215|
B|2640|3360|3360|2400|0|1|
P|Photo|2640|3120|2880|2160|
C|logo.jpg|2640|3360|3240|2400|)"));
        QVERIFY(text.contains(u"[Locks         ]pBox,1|\n"_s));
        QVERIFY(text.endsWith(u"\nBolt|$12.50||red.jpg|\nNut|$3.00|||\n------|------|------|------|\n"_s));
        QCOMPARE(zip.FileNameAt(1) + zip.commentAt(1) + zip.FileNameAt(2),
                 std::string("logo.jpgClip Artred.jpg"));
    }

    void whatIsPainted() {
        DataFile data("Name Photo:7", "a|");
        data.objects("F|Name|960|960|1500|300;VLN|3000|900|75|3000|255|;LN|600|3000|4800|75|8388608|;"
                     "B|1500|1500|3000|1200|0|1|;P|Photo|4800|900|600|600|;L|Text|960|3600|900|240;"
                     "F|Name|6000|1000|900|300|False|False|False|No Such Font|1e9|0|;"
                     "F|Name|6000|1400|900|300|False|False|False||-3|0|");
        LayoutSession run(folders_.database("drawn.fwk", data));
        run.play(u"tab 1"_s);
        run.expect(R"(
look layoutPic2 66 480 -> also 0. 64#80868b 65. 163#80868b 164. 201! 203. 320#80868b 321. 359#80868b 360.
look layoutPic2 241 130 -> also 0.
look layoutPic2 132 400 -> also 0. 96#9aa0a6 97. 101! 102. 201! 203. 298! 299.
look layoutPic2 -231 400 -> also 0. 96#9aa0a6 97. 101! 102. 178! 179. 201! 203.
do Design; click ruler1 96,4; click ruler2 4,150; click pBox1; look layoutPic2 132 400 -> also 0. 96#9aa0a6 97#1e8e3e 98#308cc6 100. 101! 102. 201! 203. 298! 299. 300#308cc6 302., guides 1455 2240 to clear, place At 1.04, 1.04 Size 2.08 x 0.83 in, sheet 19 19, status Document Modified, text Name|Name|Name|
look layoutPic2 -231 400 -> also 0. 96#9aa0a6 97. 98#308cc6 100. 101! 102. 178! 179. 180#308cc6 182. 201! 203.
look layoutPic2 240 20 -> also 0. 8#b0b4b9 9. 16#b0b4b9 17.
look Handle 4 9 -> also 0!
tool Lock; look Handle 4 9 -> also 0#ff0000
look ruler1 2 300 -> also 0. 95! 96. 191! 192. 287! 288.
look ruler1 13 110 -> also 0. 23! 24. 47! 48. 71! 72. 95! 96#1e8e3e 105.
look ruler2 -18 100 -> also 0! 1. 12! 13. 24! 25. 36! 37. 48! 49. 60! 61. 72! 73. 84! 85. 96! 97.
click pbLine1; look layoutPic2 -231 400 -> also 0. 96#9aa0a6 97. 101! 102. 178! 179. 198#308cc6 200. 201! 203. 205#308cc6 207., place At 0.42, 2.08 Size 3.33 x 0.05 in)",
                   [&] { return painted(run); });
    }

    void designing() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.window.resize(600, 400);
        run.expect(R"(
do Design -> keys layoutPic2, objects 23, page 1, record Record 1 of 42, sheet 19 19, status 42 records. Document Modified, text No|Title|Author|Bought|Price|Copies|Value|Notes|
click layoutField8; tool Bold; key Ctrl+Right -> place At 2.08, 2.83 Size 2.92 x 0.62 in, sheet 19 -114
key Del; drag ruler1 24,0 96,4 -> guides 1455 to clear, objects 22, place -, text No|Title|Author|Bought|Price|Copies|Value|
drag ruler1 48,0 98,12; another ruler1 200,4 -> guides 2220 to clear
double ruler1 300,12 -> guides 2220 4515 to clear
double ruler1 302,12; click ruler2 4,96 -> guides 2220 1430 to clear
drag ruler2 0,40 12,98 -> guides 2220 2370 to clear
double ruler2 12,138; click ruler2 4,96; click clearRulesBtn -> guides -
click layoutField7; click ruler1 96,4; focus qt_tabwidget_tabbar; key Ctrl+Left -> guides 1455 to clear, keys qt_tabwidget_tabbar, place At 1.92, 2.58 Size 1.26 x 0.2 in
key Del -> objects 21, place -, text No|Title|Author|Bought|Price|Copies|
click layoutField6; focus clearRulesBtn; key Ctrl+Right; key Del; double tLabel9; key Del -> keys tLabel9 at 0-0 unseen, objects 20, place At 1, 0.75 Size 2.78 x 0.28 in, text No|Title|Author|Bought|Price|
tool Delete; key Tab -> keys layoutPic2, objects 19, place At 0.92, 0.67 Size 6.25 x 3.12 in, sheet -81 -38
key Tab; key Ctrl+Shift+Right -> place At 6.25, 0.69 Size 0.83 x 0.29 in, sheet -94 -38
key Shift+Tab -> place At 1, 1 Size 6 x 0.05 in, sheet -70 -38
tool Snap; tool Line; drag layoutPic2 0,40 110,53 -> objects 20, place At 1, 0.86 Size 2.02 x 0.05 in
wheel layoutPic2 -60,-120; wheel layoutField1 0,-120; wheel pBox1 30,120 -> sheet -82 -86
slide layoutVScroll 720; slide layoutHScroll 240; tool Box -> objects 21, place At 1, 1.76 Size 1.59 x 1.26 in, sheet -16 -48
double imgHolder1; another clipPic1; click tLabel10 -> place At 5.56, 3.61 Size 1.39 x 0.16 in
double clipPic1 -> messages 1, place At 6.25, 0.69 Size 0.83 x 0.29 in
focus qt_tabwidget_tabbar; key Right; key Del -> keys qt_tabwidget_tabbar, page 2
tab 1; do Design -> guides 1455 to clear, keys layoutPic2, objects 21, page 1, record Record 1 of 42, sheet 19 0, text 1|The Odyssey|Homer|05/04/2001|$8.49|)");
        QCOMPARE(run.LV().count(), 43); // no record has been deleted
    }

    void browsing() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.window.resize(run.window.minimumSizeHint().expandedTo({700, 400}));
        QGuiApplication::clipboard()->setText(u"one\r\ntwo\nthree"_s);
        run.LV().at(1).cells[1] = "100\u00a0m"; // that blank does not break
        run.expect(R"(
tab 1; nav New -> also 0, keys layoutField1 at 0-2, objects 23, page 1, record New record, sheet 19 0, text 43|||today|||||
nav Next -> keys layoutField1 at 0-0, record Record 2 of 42, text 2|Les Misérables|Victor Hugo|04/04/2001|$28.60|4|$114.40||
nav First; key Tab -> keys layoutField2 at 0-5, record Record 1 of 42, text 1|100~m|Homer|05/04/2001|$8.49|1|$8.49|spine worn|
key End; type x -> keys layoutField2 at 6-6, text 1|100~mx|Homer|05/04/2001|$8.49|1|$8.49|spine worn|
key Ctrl+A; key Ctrl+V -> keys layoutField2 at 13-13, text 1|one two three|Homer|05/04/2001|$8.49|1|$8.49|spine worn|
key Ctrl+Z; key Return -> keys layoutField2 at 6-6, messages 1, text 1|100~mx|Homer|05/04/2001|$8.49|1|$8.49|spine worn|
key Tab; key Tab; key Ctrl+A; key Del; type 12252004 -> keys layoutField4 at 10-10, text 1|100~mx|Homer|12/25/2004|$8.49|1|$8.49|spine worn|
key Ctrl+A; key Del; type 12; key Backspace -> keys layoutField4 at 2-2, text 1|100~mx|Homer|12|$8.49|1|$8.49|spine worn|
key Tab; key Ctrl+A; commit 1x2; key Backspace -> keys layoutField5 at 2-2, text 1|100~mx|Homer|12|12|1|$8.49|spine worn|
key Tab; key Shift+Tab -> keys layoutField5 at 0-5, sheet 19 -6, text 1|100~mx|Homer|12|12.00|1|$8.49|spine worn|
nav Update; nav Next; nav First -> keys layoutField5 at 0-0, status 42 records. Document Modified, text 1|100~mx|Homer|12|$12.00|1|$12.00|spine worn|
key Tab; key Tab; key Tab -> keys layoutField8 at 0-10, sheet 19 -95
key Tab; key Return -> keys imgHolder1, messages 2, sheet -13 -95
another imgHolder1; drag tLabel10 0,60; another tLabel10; click tLabel1; double clipPic1 -> keys layoutPic2
click tLabel10; double imgHolder1 -> links mailto:library@example.org, messages 3
slide Slider1 7; focus layoutField2; key Ctrl+Z -> keys layoutField2 at 0-0, record Record 7 of 42, text 7|Pride and Prejudice|Jane Austen|08/18/1999|$949.97|4|$3,799.88|lent to a friend. lent twice|
key End; type and more and more and more and more and more -> also 14, keys layoutField2 at 63-63, text 7|Pride and Prejudiceand more and more and more and more and more|Jane Austen|08/18/1999|$949.97|4|$3,799.88|lent to a friend. lent twice|
focus layoutField1 -> also 0, keys layoutField1 at 0-0
tab 0 -> arrow -1 0, current 6 7|Pride and Prejudice, keys LV, list LV 43, page 0, rows 6 , top 0)",
                   [&] { return QString::number(run.field(2)->verticalScrollBar()->value()); });
    }

    void aNewInvoiceAndTheNextTab() {
        LayoutSession run(folders_.sample("invoices.fwk"));
        run.play(u"tab 1; nav New"_s);
        QCOMPARE(run.find<QLabel>("recordPosition")->text(), u"New record"_s);
        run.play(u"do Design; focus layoutPic2; key Ctrl+Tab"_s);
        QCOMPARE(run.app.mainFrm.SSTab1, app::previewTab);
    }

    void aPictureFromTheClipboard() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.showLayout();
        QImage picture(80, 40, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        QGuiApplication::clipboard()->setImage(picture);
        QTimer::singleShot(50, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr && menu->objectName() == u"mnuImport"_s);
            for (const auto code : {Qt::Key_Down, Qt::Key_Return}) QTest::keyClick(menu, code);
        });
        auto* holder = run.find<QWidget>("imgHolder1");
        QTest::mouseClick(holder, Qt::RightButton, {}, {9, 9});
        QCOMPARE(holder->toolTip(), u"cbHolder"_s);
        const QImage stored(gui::toQt(run.objects.imgHolder[1].viewImage.path));
        QCOMPARE(stored.size(), QSize(80, 40));
        QVERIFY(stored.pixelColor(40, 20).lightness() > 250); // nothing shines through as white paper
    }

    // They leave their holders empty and take no more room than those that can.
    void picturesThatCannotBeShown() {
        const QByteArray jpeg = picture("whole.jpg", {640, 640}, Qt::red);
        QByteArray large = jpeg; // as the header says; everything behind it stays as it was
        large.replace(large.indexOf(QByteArray::fromHex("ffc0")) + 5, 4, QByteArray::fromHex("4e204e20"));
        // One image of a single colour, on a screen of another size; the low byte comes first.
        const auto gif = [](const QByteArray& screen, const QByteArray& image) {
            return QByteArray::fromHex("474946383961" + screen + "800000ff0000ffffff2c00000000" + image +
                                       "0002024401003b");
        };
        constexpr int shown = 4; // a broken one as far as it goes, and none beyond its screen
        const QByteArray pictures[] = {jpeg,
                                       jpeg.left(jpeg.size() * 3 / 4),
                                       gif("14001400", "14001400"),
                                       gif("0a000a00", "ffffffff"),
                                       large,
                                       jpeg.left(20),
                                       gif("ffffffff", "ffffffff"),
                                       gif("581b2823", "581b2823"),
                                       gif("00000000", "ffffffff"),
                                       "<svg width='9' height='9'/>"};
        DataFile data("Photo:7", "0.jpg;1.jpg;2.jpg;3.jpg;4.jpg;5.jpg;6.jpg;7.jpg;8.jpg;9.jpg;no.jpg");
        const QString file = folders_.database("pictures.fwk", data.objects("P|Photo|600|600|1500|1500|"));
        file::Zip zip;
        zip.OpenArchive(gui::fromQt(file));
        int count = 0;
        for (const QByteArray& each : pictures)
            zip.addBuffer(std::to_string(count++) + ".jpg", each.toStdString(), "");
        zip.CloseArchive();
        LayoutSession run(file);
        run.showLayout();
        rusage before{}, after{};
        getrusage(RUSAGE_SELF, &before);
        for (int record = 0; record <= count; ++record, run.navigate("Next"))
            QCOMPARE(middleOf(run, "imgHolder1") == u"#ffffff"_s, record >= shown);
        getrusage(RUSAGE_SELF, &after);
        QVERIFY(after.ru_maxrss - before.ru_maxrss < 80'000); // kilobytes
    }
};

QTEST_MAIN(Layout)
#include "layout.moc"
