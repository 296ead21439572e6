#include "shell/program.h"
#include "layoutPage.h"

#include "calc/columns.h"
#include "storage/newDatabase.h"
#include "storage/saveFile.h"

#include <QTextBlock>
#include <QTimer>

#include <cmath>

namespace {

int nearestStep(double twips) {
    return static_cast<int>(std::nearbyint(twips / 120)) * 120; // half to even
}

QString number(int value) {
    return QString::number(value);
}

// Where the two drags and two sizings of the journey leave an object that was added with that size: 37 x 61
// and 20 x 10 pixels without snapping, then 40 x 40 and 40 x 20 with it. The grip is taken four pixels
// inside.
QString placeAfterDrags(int width, int height, bool sizesWidth = true, bool sizesHeight = true) {
    constexpr int px = 15;
    const int left = nearestStep(1440 + 37 * px + 40 * px);
    const int top = nearestStep(height + 61 * px + 40 * px);
    if (sizesWidth) width = nearestStep(width + (4 + 20) * px + (4 + 40) * px);
    if (sizesHeight) height = nearestStep(height + (4 + 10) * px + (4 + 20) * px);
    return QStringList{number(left), number(top), number(width), number(height)}.join(u'|');
}

void dragAndSize(LayoutSession& run, const char* name) {
    run.drag(name, {37, 61}, {2, 2});
    run.size(name, {20, 10});
    run.click("Snap");
    run.drag(name, {40, 40}, {2, 2}, 4);
    run.select(name);
    run.drag("Handle", {40, 20}, {4, 4}, 4);
    run.click("Snap");
}

} // namespace

// The layout page under the mouse: a page is designed, and records are browsed and typed through it.
class LayoutJourneys : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    // A database without records, whose columns have been defined.
    QString newDatabase() const {
        const QString file = folders_.path("new.fwk");
        QFile::remove(file);
        ScriptedPlatform platform;
        shell::Program app(platform);
        storage::createEmptyArchive(app, gui::fromQt(file));
        calc::addColumn(app.document, "Name", "3");
        calc::addColumn(app.document, "Price", "2");
        calc::addColumn(app.document, "Made", "1");
        calc::addColumn(app.document, "Photo", "7");
        storage::finishNewDatabase(app);
        storage::SaveFile(app, false, false);
        return file;
    }
    static QStringList linesOf(const QString& file) {
        file::Zip zip;
        zip.OpenArchive(gui::fromQt(file));
        return gui::toQt(zip.readEntry("data.dat", 1 << 20).value_or("")).split(u"\r\n"_s);
    }
    static QStringList contentsOf(const QString& file) {
        QStringList names;
        file::Zip zip;
        zip.OpenArchive(gui::fromQt(file));
        for (int i = 0; i < zip.FileCount(); ++i)
            names << gui::toQt(zip.FileNameAt(i) + ":" + zip.commentAt(i));
        return names;
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void aPageIsDesignedAndRecordsAreTyped() {
        const QString file = newDatabase();
        const QString red = makePicture(folders_.path("red.jpg"), {300, 200}, Qt::red);
        const QString blue = makePicture(folders_.path("blue.jpg"), {30, 20}, Qt::blue);
        const QString logo = makePicture(folders_.path("logo.jpg"), {64, 64});
        {
            LayoutSession run(file);
            run.pressDesign();
            QVERIFY(run.sheet()->isVisible());
            QVERIFY(run.find<QWidget>("layoutToolbar")->isVisible());
            run.click("Snap"); // off
            struct Kind {
                const char* button;
                const char* entry; // of the button's menu
                const char* object;
            };
            for (const Kind& kind : {Kind{"Field", "Name", "layoutField1"}, Kind{"Label", nullptr, "tLabel1"},
                                     Kind{"Line", nullptr, "pbLine1"}, Kind{"vLine", nullptr, "vLine1"},
                                     Kind{"Box", nullptr, "pBox1"}, Kind{"Picture", "Photo", "imgHolder1"},
                                     Kind{"ClipArt", nullptr, "clipPic1"}}) {
                kind.entry != nullptr ? run.choose(kind.button, kind.entry) : run.click(kind.button);
                QVERIFY2(run.object(kind.object)->isVisible(), kind.object);
                QVERIFY(run.find<QWidget>("Handle")->isVisible());
                dragAndSize(run, kind.object);
            }

            run.select("pBox1");
            const auto gripColour = [&] {
                return run.find<QWidget>("Handle")->grab().toImage().pixelColor(4, 4);
            };
            QCOMPARE(gripColour(), QColor(Qt::black));
            run.click("Lock");
            QCOMPARE(gripColour(), QColor(Qt::red));
            run.drag("pBox1", {50, 50});
            run.drag("Handle", {50, 50});

            run.choose("Field", "Price");
            run.choose("Label", "AutoLabel");
            run.select("tLabel1");
            run.platform.inputs = {"http://example.org"};
            run.click("Link");
            run.doubleClick("tLabel1");
            QTest::keyClicks(QApplication::focusWidget(), u"My page"_s);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QCOMPARE(run.platform.messages.size(), 1U); // no line breaks
            run.select("layoutField1");
            QVERIFY(run.objects.tLabel[1].Locked);
            run.platform.fonts = {{"Liberation Serif", 11.5F, true, false, true, false, 0x0000FF}};
            run.click("Font");
            run.platform.chosenFile = gui::fromQt(logo);
            run.doubleClick("clipPic1");

            run.click("Label");
            run.drag("tLabel3", {100, 100}, {2, 2});
            QTest::keyClick(run.sheet(), Qt::Key_Delete);
            run.settle();
            QVERIFY(run.objects.tLabel.find(3) == nullptr);
            QVERIFY(run.window.findChild<QWidget*>(u"tLabel3"_s) == nullptr);

            run.pressDesign();
            run.navigate("New");
            const auto typeRecord = [&](const char* name, const char* price, const QString& picture) {
                QTest::mouseClick(run.field(1)->viewport(), Qt::LeftButton, {}, {20, 5});
                QTest::keyClicks(run.field(1), QLatin1String(name));
                QTest::keyClick(run.field(1), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget(), run.field(2));
                QTest::keyClicks(run.field(2), QLatin1String(price));
                run.platform.chosenFile = gui::fromQt(picture);
                QTest::mouseDClick(run.object("imgHolder1"), Qt::LeftButton, {}, {5, 5});
                run.navigate("Add");
            };
            typeRecord("Bolt", "1250", red);
            typeRecord("Nut", "3", blue);
            QCOMPARE(run.LV().count(), 3);
            run.action("Save")->trigger();
            QCOMPARE(run.platform.messages.size(), 1U);
        }
        const QString label = u"False|False|False|MS Sans Serif|8.25|0|"_s;
        const QStringList expected = {
            u"F|Name|"_s + placeAfterDrags(1815, 285) + u"|True|False|True|Liberation Serif|11.5|255|"_s,
            u"F|Price|1440|285|1815|285|"_s + label,
            u"L|My page|"_s + placeAfterDrags(1695, 195) + u'|' + label + u"http://example.org|0|"_s,
            u"L|Price|1440|195|1695|195|True|False|False|MS Sans Serif|8.25|0||0|"_s,
            u"LN|"_s + placeAfterDrags(2910, 75, true, false) + u"|16777215|"_s,
            u"VLN|"_s + placeAfterDrags(75, 3135, false, true) + u"|16777215|"_s,
            u"B|"_s + placeAfterDrags(2295, 1815) + u"|0|1|"_s,
            u"P|Photo|"_s + placeAfterDrags(1815, 1575) + u'|',
            u"C|logo.jpg|"_s + placeAfterDrags(2175, 1815) + u'|'};
        const QStringList lines = linesOf(file);
        QCOMPARE(lines.mid(1, expected.size()), expected);
        QCOMPARE(lines.value(expected.size() + 1), u"[LayoutEnd]"_s);
        QVERIFY(lines.contains(u"[Locks         ]pBox,1|"_s));
        QVERIFY(lines.contains(u"Bolt|$12.50||red.jpg|"_s));
        QVERIFY(lines.contains(u"Nut|$3.00||blue.jpg|"_s));
        QCOMPARE(contentsOf(file), (QStringList{u"data.dat:Main Data File"_s, u"logo.jpg:Clip Art"_s,
                                                u"red.jpg:"_s, u"blue.jpg:"_s}));

        LayoutSession again(file);
        again.showLayout();
        QCOMPARE(again.field(1)->toPlainText(), u"Bolt"_s);
        QCOMPARE(again.field(1)->font().family(), u"Liberation Serif"_s);
        QCOMPARE(again.find<QWidget>("imgHolder1")->toolTip(), u"red.jpg"_s);
        const auto middleOf = [&](const char* name) {
            const QPixmap shown = again.find<QWidget>(name)->grab();
            return shown.toImage().pixelColor(shown.rect().center());
        };
        QVERIFY(middleOf("imgHolder1").red() > 200 && middleOf("imgHolder1").blue() < 60);
        QVERIFY(middleOf("clipPic1").green() > 90);
        again.navigate("Next");
        QCOMPARE(again.field(2)->toPlainText(), u"$3.00"_s);
        QVERIFY(middleOf("imgHolder1").blue() > 200);
        QCOMPARE(again.find<QLabel>("recordPosition")->text(), u"Record 2 of 2"_s);
    }

    void typingInAField() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.showLayout();
        QTextEdit* title = run.field(2);
        QTextEdit* bought = run.field(4);
        QTextEdit* price = run.field(5);
        // A blank that does not break is another character, and stays one.
        run.window.events().run([&] {
            run.LV().at(1).cells[1] = "100\u00a0m";
            layout::InitLayout(run.app, false);
        });
        title->setFocus();
        title->moveCursor(QTextCursor::End);
        QTest::keyClick(title, Qt::Key_X);
        QCOMPARE(run.objects.layoutField[2].Text, std::string("100\u00a0mx"));
        // Paste, with the line break that came along.
        QGuiApplication::clipboard()->setText(u"one\r\ntwo\nthree"_s);
        title->selectAll();
        QTest::keyClick(title, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(title->toPlainText(), u"one two three"_s);
        QTest::keyClick(title, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(run.objects.layoutField[2].Text, std::string("100\u00a0mx"));
        QTest::keyClick(title, Qt::Key_Return);
        QCOMPARE(run.platform.messages.size(), 1U);
        QCOMPARE(run.objects.layoutField[2].Text, std::string("100\u00a0mx"));
        // What an input method commits goes through the same masks.
        price->setFocus();
        price->selectAll();
        QInputMethodEvent commit;
        commit.setCommitString(u"1x2"_s);
        QApplication::sendEvent(price, &commit);
        QCOMPARE(price->toPlainText(), u"12"_s);
        QTest::keyClick(price, Qt::Key_Backspace); // dropped: numbers are erased with Delete
        QCOMPARE(price->toPlainText(), u"12"_s);
        bought->setFocus();
        QCOMPARE(price->toPlainText(), u"12.00"_s);
        bought->selectAll();
        QTest::keyClick(bought, Qt::Key_Delete);
        QTest::keyClicks(bought, u"12252004"_s);
        QCOMPARE(bought->toPlainText(), u"12/25/2004"_s);
        QVERIFY(bought->textCursor().atEnd());
        bought->selectAll();
        QTest::keyClick(bought, Qt::Key_Delete);
        QTest::keyClicks(bought, u"12"_s);
        QTest::keyClick(bought, Qt::Key_Backspace);
        QCOMPARE(bought->toPlainText(), u"12"_s);
        run.navigate("Update");
        QCOMPARE(run.cell(0, "Bought"), u"12"_s);
        QCOMPARE(run.cell(0, "Price"), u"$12.00"_s);
        QCOMPARE(run.LV().at(1).cells[1].str(), std::string("100\u00a0mx"));
        // The slider and the buttons show other records, and undo does not bring the old one back.
        run.find<QSlider>("Slider1")->setValue(7);
        QCOMPARE(title->toPlainText(), u"Pride and Prejudice"_s);
        title->setFocus();
        QTest::keyClick(title, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(title->toPlainText(), u"Pride and Prejudice"_s);
    }

    void aLinkIsFollowedWhereItIsClicked() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.showLayout();
        const char* const link = "tLabel10";
        run.drag(link, {0, 60}); // released elsewhere
        QVERIFY(run.platform.links.isEmpty());
        run.select(link);
        QCOMPARE(run.platform.links, QStringList{u"mailto:library@example.org"_s});
        run.select("tLabel1");
        run.pressDesign();
        run.select(link);
        QCOMPARE(run.platform.links.size(), 1);
    }

    void aPictureFromTheClipboard() {
        const QString file = folders_.sample("books.fwk");
        LayoutSession run(file);
        run.showLayout();
        const auto import = [&] {
            QTimer::singleShot(50, [] {
                auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                QVERIFY(menu != nullptr && menu->actions().size() == 1);
                QCOMPARE(menu->objectName(), u"mnuImport"_s);
                QTest::keyClick(menu, Qt::Key_Down);
                QTest::keyClick(menu, Qt::Key_Return);
            });
            QTest::mouseClick(run.object("imgHolder1"), Qt::RightButton, {}, {9, 9});
        };
        QGuiApplication::clipboard()->setText(u"no picture"_s);
        import();
        QCOMPARE(run.objects.imgHolder[1].ToolTipText, std::string("cover1.jpg"));
        QImage picture(80, 40, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        QGuiApplication::clipboard()->setImage(picture);
        import();
        QCOMPARE(run.objects.imgHolder[1].ToolTipText, std::string("cbHolder"));
        run.navigate("Update");
        const std::string name = run.LV().at(1).cells[7].str();
        file::Zip zip;
        zip.OpenArchive(gui::fromQt(file));
        const std::string bytes = zip.readEntry(name, 1 << 20).value_or("");
        const QImage stored = QImage::fromData(QByteArray::fromStdString(bytes), "JPEG");
        QCOMPARE(stored.size(), QSize(80, 40));
        QVERIFY(stored.pixelColor(40, 20).lightness() > 250); // nothing shines through as white paper
    }

    void guidesFollowTheMouse() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.pressDesign();
        auto* ruler = run.find<QWidget>("ruler1");
        auto* clear = run.find<QPushButton>("clearRulesBtn");
        QVERIFY(!clear->isEnabled());
        QTest::mousePress(ruler, Qt::LeftButton, {}, {96, 4});
        QTest::mouseRelease(ruler, Qt::LeftButton, {}, {120, 4}); // where it was pressed counts
        QCOMPARE(run.page.rulePic2[1].line, 1455.0F);
        const QPoint marker(98, 12);
        QTest::mousePress(ruler, Qt::LeftButton, {}, marker);
        QTest::mouseMove(ruler, marker + QPoint(48, 0));
        QTest::mouseRelease(ruler, Qt::LeftButton, {}, marker + QPoint(48, 0));
        QCOMPARE(run.page.rulePic2[1].line, 1455.0F + 48 * 15 + 3 * 15);
        // A double click on the bare ruler sets one guide; on a marker it takes it away.
        const auto doubleClick = [&](QPoint place) {
            QTest::mouseClick(ruler, Qt::LeftButton, {}, place);
            QMouseEvent event(QEvent::MouseButtonDblClick, place, ruler->mapToGlobal(place), Qt::LeftButton,
                              Qt::LeftButton, {});
            QApplication::sendEvent(ruler, &event);
            QTest::mouseRelease(ruler, Qt::LeftButton, {}, place);
        };
        doubleClick({300, 12});
        QCOMPARE(run.page.rulePic2.count(), 2);
        doubleClick({302, 12});
        QCOMPARE(run.page.rulePic2.count(), 1);
        QTest::mouseClick(run.find<QWidget>("ruler2"), Qt::LeftButton, {}, {4, 96});
        QCOMPARE(run.page.rulePic[1].line, 1430.0F);
        QTest::mouseClick(clear, Qt::LeftButton);
        QCOMPARE(run.page.rulePic.count() + run.page.rulePic2.count(), 0);
    }

    void keysStayWithTheSheet() {
        LayoutSession run(folders_.sample("books.fwk"));
        QVERIFY(QTest::qWaitForWindowActive(&run.window));
        run.pressDesign();
        // Nothing has been clicked on the sheet yet, and its keys work.
        QCOMPARE(QApplication::focusWidget(), run.sheet());
        run.select("layoutField8");
        run.click("Bold");
        QVERIFY(run.objects.layoutField[8].FontBold);
        const float left = run.objects.layoutField[8].Left;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(run.objects.layoutField[8].Left, left + 120);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        QVERIFY(run.objects.layoutField.find(8) == nullptr);
        QCOMPARE(run.LV().count(), 43); // no record has been deleted
        // A label that goes while it is typed in leaves the keys with the sheet, too.
        run.doubleClick("tLabel9");
        QCOMPARE(QApplication::focusWidget(), run.find<QWidget>("tLabel9"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete); // of its text
        QVERIFY(run.objects.tLabel.find(9) != nullptr);
        run.click("Delete");
        run.settle();
        QVERIFY(run.objects.tLabel.find(9) == nullptr);
        QCOMPARE(QApplication::focusWidget(), run.sheet());
        // While browsing, Tab walks the fields in their order.
        run.pressDesign();
        run.field(1)->setFocus();
        for (int index = 2; index <= 7; ++index) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), run.field(index));
        }
        QTest::mouseClick(run.find<QWidget>("layoutPic1"), Qt::LeftButton); // beside the sheet
        QCOMPARE(QApplication::focusWidget(), run.sheet());
    }

    void theWheelAndTheBarsScroll() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.pressDesign();
        auto* bar = run.find<QScrollBar>("layoutVScroll");
        QCOMPARE(bar->maximum(), run.page.layoutVScroll.Max);
        const int top = run.sheet()->y();
        for (QWidget* under : {run.sheet(), run.object("layoutField1"), run.object("pBox1")}) {
            bar->setValue(0);
            QWheelEvent wheel(QPointF(5, 5), under->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                              {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(under, &wheel);
            QCOMPARE(run.page.layoutVScroll.Value, 720);
            QCOMPARE(run.sheet()->y(), -48);
        }
        bar->setValue(0);
        QCOMPARE(run.sheet()->y(), top);
        run.click("Box"); // lands on the visible part
        QCOMPARE(run.objects.pBox[2].Top, 1815.0F);
    }
};

QTEST_MAIN(LayoutJourneys)
#include "layout.moc"
