#include "session.h"

#include <sys/resource.h>

// The layout page under mouse and keys: a page is designed, and records are browsed and typed through it.
class Layout : public GuiTest {
    Q_OBJECT

private:
    QByteArray picture(const char* name, QSize size, QColor colour) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        image.save(path(name), "JPEG");
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void aPageIsDesignedAndRecordsAreTyped() {
        for (const auto& [name, colour] : {std::pair("logo.jpg", Qt::green), std::pair("red.jpg", Qt::red)})
            picture(name, {300, 200}, colour);
        Session run(database("new.fwk", DataFile("Name Price:2 Made:1 Photo:7")));
        run.play("click Design; tool Snap -> ...");
        QString places;
        for (const char* each : {"Field Name; f1", "Label; tLabel1", "Line; pbLine1", "vLine; vLine1",
                                 "Box; pBox1", "Picture Photo; imgHolder1", "ClipArt; clipPic1"}) {
            const QStringList tool = QString::fromLatin1(each).split(u"; "_s);
            run.act(u"tool %1; drag %2 37,61 2,2; click %2; drag Handle 20,10 4,4; tool Snap;"
                    "drag %2 40,40 2,2; click %2; drag Handle 40,20 4,4; tool Snap"_s.arg(tool[0], tool[1]));
            places += run.find<QLabel>(u"selectionPlace"_s)->text().simplified() + u'|';
        }
        QCOMPARE(places, u"At 1.83, 1.25 Size 2 x 0.58 in|At 1.83, 1.17 Size 1.92 x 0.5 in|"
                         "At 1.83, 1.08 Size 2.75 x 0.05 in|At 1.83, 3.25 Size 0.05 x 2.58 in|"
                         "At 1.83, 2.33 Size 2.33 x 1.67 in|At 1.83, 2.17 Size 2 x 1.5 in|"
                         "At 1.83, 2.33 Size 2.25 x 1.67 in|"_s);
        run.platform.inputs = {"http://example.org"};
        run.play(R"(
click pBox1; tool Lock; drag pBox1 50,50; drag Handle 50,50; tool Field Price; tool Label AutoLabel ->
    layoutToolbar.Lock=x sheet=9 at 19,19 selectionPlace=At 1, 0.14 Size 1.18 x 0.14 in
click tLabel1; tool Link; double tLabel1; type My page; press Return; click f1; tool Font; type liberation serif; fill
    sizeTxt 11.5; press Tab 2; press Space; press Tab 2; press Space; press Return -> "Please use separate"
    layoutToolbar.Lock selectionPlace=At 1.83, 1.25 Size 2 x 0.58 in
file logo.jpg; double clipPic1; tool Label; drag tLabel3 100,100 2,2; press Del -> -selectionPlace
click Design; nav New; fill f1 Bolt; press Tab; type 1250; file red.jpg; double imgHolder1; nav Add; look imgHolder1
    70 9; look clipPic1 70 9 -> "0:80868b 1." "0:00ff01" -clearRulesBtn -layoutToolbar Design Slider1=1
    recordPosition=New record sheet=9 at 19,0 f1=|
fill f1 Nut; press Tab; type 3; nav Add; click Save -> Slider1=2 SB1_1=2 records. SB1_5=Document Saved f2=0
nav First; click tLabel1; look imgHolder1 70 9; look clipPic1 70 9 -> "0:80868b 1:fe0000" "0:00ff01" "example.org"
    Slider1=1 recordPosition=Record 1 of 2 layoutPic2=*(cut) f1=Bolt f2=$12.50
nav Next; look imgHolder1 70 9 -> "0:80868b 1." Slider1=2 recordPosition=Record 2 of 2 f1=Nut f2=$3.00
)");
        const QFont font = run.find<QTextEdit>(u"layoutField1"_s)->font();
        QVERIFY(font.family() == "Liberation Serif"_L1 && font.bold() && !font.italic() && font.underline());
    }

    void whatIsPainted() {
        DataFile data("Name Photo:7", "a|");
        data.objects("F|Name|960|960|1500|300;VLN|3000|900|75|3000|255|;LN|600|3000|4800|75|8388608|;"
                     "B|1500|1500|3000|1200|0|1|;P|Photo|4800|900|600|600|;L|Text|960|3600|900|240;"
                     "F|Name|6000|1000|900|300|False|False|False|No Such Font|1e9|0|;"
                     "F|Name|6000|1400|900|300|False|False|False||-3|0|");
        Session run(database("drawn.fwk", data));
        run.play(R"(
tab 1; look layoutPic2 66 480 -> "0. 64:80868b 65. 163:80868b 164. 201! 203. 320:80868b 321. 359:80868b 360." Totals=-
    Properties=- Delete=- page=1 Slider1=1 recordPosition=Record 1 of 1 sheet=8 at 19,0 layoutPic2=*(cut) f1=a
    f2=a(scrolled) f3=a
look layoutPic2 241 130 -> "0."
look layoutPic2 132 400 -> "0. 96:9aa0a6 97. 101! 102. 201! 203. 298! 299."
look layoutPic2 -231 400 -> "0. 96:9aa0a6 97. 101! 102. 178! 179. 201! 203."
click Design; click ruler1 96,4; click ruler2 4,150; click pBox1; look layoutPic2 132 400 -> "0. 96:9aa0a6 97:1e8e3e
    98:308cc6 100. 101! 102. 201! 203. 298! 299. 300:308cc6 302." -Slider1 -imgHolder1 -f1 -f2 -f3 -layoutNavBar
    -recordPosition Design=x layoutToolbar.Snap=x layoutToolbar.Rows=- sheet=8 at 19,19 |1455 |2240 SB1_5=Document
    Modified selectionPlace=At 1.04, 1.04 Size 2.08 x 0.83 in
look layoutPic2 -231 400 -> "0. 96:9aa0a6 97. 98:308cc6 100. 101! 102. 178! 179. 180:308cc6 182. 201! 203."
look layoutPic2 240 20 -> "0. 8:b0b4b9 9. 16:b0b4b9 17."
look Handle 4 9 -> "0!"
tool Lock; look Handle 4 9 -> "0:ff0000" layoutToolbar.Lock=x
look ruler1 2 300 -> "0. 95! 96. 191! 192. 287! 288."
look ruler1 13 110 -> "0. 23! 24. 47! 48. 71! 72. 95! 96:1e8e3e 105."
look ruler2 -18 100 -> "0! 1. 12! 13. 24! 25. 36! 37. 48! 49. 60! 61. 72! 73. 84! 85. 96! 97."
click pbLine1; look layoutPic2 -231 400 -> "0. 96:9aa0a6 97. 101! 102. 178! 179. 198:308cc6 200. 201! 203. 205:308cc6
    207." layoutToolbar.Lock selectionPlace=At 0.42, 2.08 Size 3.33 x 0.05 in
click pBox1; tool Lock; hold Handle 20,10; look pBox1 0 30 -> "0! 4. 6! 10. 12! 16. 18! 22. 24! 28." selectionPlace=At
    1.04, 1.04 Size 2.33 x 1 in
)");
    }

    void designing() {
        Session run(sample("books.fwk"));
        run.window.resize(600, 400);
        run.play(R"(
press Ctrl+L -> Totals=- Properties=- Design=x Delete=- page=1 layoutToolbar.Snap=x clearRulesBtn=- sheet=23 at 19,19
    layoutPic2=*(cut) SB1_5=Document Modified
click f8; tool Bold; press Ctrl+Right -> sheet=23 at 19,-114 layoutVScroll=1710 selectionPlace=At 2.08, 2.83 Size 2.92
    x 0.62 in
press Del; drag ruler1 24,0 96,4 -> -selectionPlace clearRulesBtn sheet=22 at 19,-114 |1455
drag ruler1 48,0 98,12; another ruler1 200,4 -> sheet=22 at 19,-114 |2220
double ruler1 300,12 -> sheet=22 at 19,-114 |2220 |4515
double ruler1 302,12; click ruler2 4,96 -> sheet=22 at 19,-114 |2220 |1430
drag ruler2 0,40 12,98 -> sheet=22 at 19,-114 |2220 |2370
double ruler2 12,138; click ruler2 4,96; click clearRulesBtn -> clearRulesBtn=- sheet=22 at 19,-114
click f7; click ruler1 96,4; focus qt_tabwidget_tabbar; press Ctrl+Left -> page=1* clearRulesBtn sheet=22 at 19,-114
    |1455 selectionPlace=At 1.92, 2.58 Size 1.26 x 0.2 in
press Del -> -selectionPlace sheet=21 at 19,-114 |1455
click f6; focus clearRulesBtn; press Ctrl+Right -> clearRulesBtn=* selectionPlace=At 2.08, 2.33 Size 1.26 x 0.2 in
press Del; double tLabel9; press Del -> sheet=20 at 19,-114 |1455 selectionPlace=At 1, 0.75 Size 2.78 x 0.28 in
    tLabel9=|(cut)
tool Delete; press Tab -> -tLabel9 layoutToolbar.Lock=x sheet=19 at -81,-38 |1455 layoutPic2=*(cut) layoutVScroll=570
    layoutHScroll=1215 selectionPlace=At 0.92, 0.67 Size 6.25 x 3.12 in
press Tab; press Ctrl+Shift+Right -> layoutToolbar.Lock sheet=19 at -94,-38 |1455 layoutHScroll=1410 selectionPlace=At
    6.25, 0.69 Size 0.83 x 0.29 in
press Shift+Tab -> sheet=19 at -70,-38 |1455 layoutHScroll=1050 selectionPlace=At 1, 1 Size 6 x 0.05 in
tool Snap; tool Line; drag layoutPic2 0,40 110,53 -> layoutToolbar.Snap sheet=20 at -70,-38 |1455 selectionPlace=At 1,
    0.86 Size 2.02 x 0.05 in
wheel layoutPic2 -60,-120; wheel f1 0,-120; wheel pBox1 30,120 -> sheet=20 at -82,-86 |1455 layoutVScroll=1290
    layoutHScroll=1230
slide layoutVScroll 720; slide layoutHScroll 240; tool Box -> sheet=21 at -16,-48 |1455 layoutVScroll=720
    layoutHScroll=240 selectionPlace=At 1, 1.76 Size 1.59 x 1.26 in
double imgHolder1; another clipPic1; click tLabel10 -> selectionPlace=At 5.56, 3.61 Size 1.39 x 0.16 in
double clipPic1 -> "You selected a" selectionPlace=At 6.25, 0.69 Size 0.83 x 0.29 in
focus qt_tabwidget_tabbar; press Right; press Del -> page=2*
tab 1; click Design -> Design page=1 Slider1=1 recordPosition=Record 1 of 42 sheet=21 at 19,0 |1455 layoutPic2=*(cut)
    f1=1 f2=The Odyssey f3=Homer f4=05/04/2001 f5=$8.49
)");
    }

    void guidesByTheKeys() {
        Session run(sample("books.fwk"));
        run.play(R"(
press Ctrl+L; press Shift+F6; press Insert; press Shift+Down; press Shift+F6; press Insert 2 -> Totals=- Properties=- Design=x
    Delete=- page=1 layoutToolbar.Snap=x layoutToolbar.Rows=- sheet=23 at 19,19 |5640 |5760 |4100 SB1_5=Document
    Modified
press Right; press PgUp; press Shift+Left; press PgUp; press Ctrl+Right -> sheet=23 at 19,19 |5620
    |5880 |4100
)");
        const QAccessibleInterface* told =
            QAccessible::queryAccessibleInterface(run.find<QWidget>(u"ruler1"_s));
        QCOMPARE(told->text(QAccessible::Value), u"Guide at 3.9 inches"_s);
        run.play(R"(
press Delete; press Escape -> sheet=23 at 19,19 |5880 |4100 layoutPic2=*(cut)
)");
    }

    void browsing() {
        Session run(sample("books.fwk"));
        run.window.resize(run.window.minimumSizeHint().expandedTo({700, 400}));
        QGuiApplication::clipboard()->setText(u"one\r\ntwo\nthree"_s);
        run.app.document.LV.at(1).cells[1] = "100\u00a0m"; // that blank does not break
        run.play(R"(
tab 1; nav New -> Totals=- Properties=- Delete=- page=1 Slider1=1 recordPosition=New record sheet=23 at 19,0 f1=[43]
    f4=TODAY
nav Next -> Slider1=2 recordPosition=Record 2 of 42 f1=|2 f2=Les Misérables f3=Victor Hugo f4=04/04/2001 f5=$28.60
    f6=4 f7=$114.40
nav First; press Tab -> Slider1=1 recordPosition=Record 1 of 42 f1=1 f2=[100~m] f3=Homer f4=05/04/2001 f5=$8.49 f6=1
    f7=$8.49 f8=spine worn
press End; type x -> f2=100~mx|
press Ctrl+A; press Ctrl+V -> f2=one two three|
press Ctrl+Z; press Return -> "Please allow your" f2=100~mx|
press Tab; press Tab; press Ctrl+A; press Del; type 12252004 -> f4=12/25/2004|
press Ctrl+A; press Del; type 12; press Backspace -> f4=12|
press Tab; press Ctrl+A; commit 1x2; press Backspace -> f5=12|
press Tab; press Shift+Tab -> sheet=23 at 19,-6 layoutVScroll=90 f5=[12.00]
nav Update; nav Next; nav First -> SB1_5=Document Modified f5=|$12.00 f7=$12.00
press Tab; press Tab; press Tab -> sheet=23 at 19,-95 layoutVScroll=1425 f8=[spine worn]
press Tab; press Return -> "You selected a" sheet=23 at -13,-95 layoutHScroll=195 imgHolder1=*
another imgHolder1; drag tLabel10 0,60; another tLabel10; click tLabel1; double clipPic1 -> layoutPic2=*(cut)
click tLabel10; double imgHolder1 -> "mailto:library@example.org" "You selected a"
slide Slider1 7; focus f2 -> Slider1=7 recordPosition=Record 7 of 42 f1=7 f2=|Pride and Prejudice
    f3=Jane Austen f4=08/18/1999 f5=$949.97 f6=4 f7=$3,799.88 f8=lent to a friend. lent twice
press End; type andmoreandmoreandmoreandmoreandmoreandmoreandmore -> f2=Pride and
    Prejudiceandmoreandmoreandmoreandmoreandmoreandmoreandmore|(scrolled)
focus f1 -> f1=|7 f2=Pride and Prejudiceandmoreandmoreandmoreandmoreandmoreandmoreandmore
tab 0 -> Totals Properties Delete page LV.rows=43 top 0 at 6 7|Pride and Prejudice selected 6 LV=*
)");
        QImage clear(80, 40, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        QGuiApplication::clipboard()->setImage(clear);
        run.play("tab 1; menu imgHolder1 9,9; press Down; press Return -> ...");
        const QImage stored(gui::toQt(run.app.document.layout.imgHolder[1].viewImage.path));
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
        QByteArrayList pictures;
        pictures << jpeg << jpeg.left(jpeg.size() * 3 / 4) << gif("14001400", "14001400")
                 << gif("0a000a00", "ffffffff") << large << jpeg.left(20) << gif("ffffffff", "ffffffff")
                 << gif("581b2823", "581b2823") << gif("00000000", "ffffffff")
                 << "<svg width='9' height='9'/>";
        DataFile data("Photo:7", "0.jpg;1.jpg;2.jpg;3.jpg;4.jpg;5.jpg;6.jpg;7.jpg;8.jpg;9.jpg;no.jpg");
        Session run(database("pictures.fwk", data.objects("P|Photo|600|600|1500|1500|"), pictures));
        run.act(u"tab 1"_s);
        auto* holder = run.find<QWidget>(u"imgHolder1"_s);
        rusage before{}, after{};
        getrusage(RUSAGE_SELF, &before);
        for (int record = 0; record <= pictures.size(); ++record, run.act(u"nav Next"_s))
            QCOMPARE(holder->grab().toImage().pixelColor(50, 50) == QColor(Qt::white), record >= shown);
        getrusage(RUSAGE_SELF, &after);
        QVERIFY(after.ru_maxrss - before.ru_maxrss < 80'000); // kilobytes
    }
};

GUI_TEST(Layout)
#include "layout.moc"
