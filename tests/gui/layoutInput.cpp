#include "layoutPage.h"

// Which keys and buttons reach the layout's sheet, and where the rulers count from.
class LayoutInput : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }
    void theSheetSeesTheKeysOfItsPageFirst();
    void onlyTheLeftButtonDoubleClicks();
    void theHorizontalRulerBeginsAPixelAhead();
    void whatHasTheKeysIsSeen();
    void aSelectedLineIsSeenAndGrabbedBesideIt();
};

void LayoutInput::theSheetSeesTheKeysOfItsPageFirst() {
    LayoutSession run(folders_.sample("books.fwk"));
    QVERIFY(QTest::qWaitForWindowActive(&run.window));
    run.pressDesign();
    QTest::mouseClick(run.find<QWidget>("ruler1"), Qt::LeftButton, {}, {96, 4});
    QTabBar* tabs = run.find<QTabWidget>("SSTab1")->tabBar();
    int object = 6;
    for (QWidget* focus : {static_cast<QWidget*>(tabs), run.find<QWidget>("clearRulesBtn")}) {
        run.select(qPrintable(QStringLiteral("layoutField%1").arg(++object)));
        focus->setFocus();
        QCOMPARE(QApplication::focusWidget(), focus);
        const float left = run.objects.layoutField[object].Left;
        QTest::keyClick(focus, Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(run.objects.layoutField[object].Left, left + 120);
        QCOMPARE(QApplication::focusWidget(), focus);
        QTest::keyClick(focus, Qt::Key_Delete);
        QVERIFY(run.objects.layoutField.find(object) == nullptr);
    }
    QCOMPARE(run.LV().count(), 43);
    QCOMPARE(run.app.mainFrm.SSTab1, int(app::layoutTab));
    // Without Ctrl the arrows are the tabs', and on another tab all keys.
    tabs->setFocus();
    QTest::keyClick(tabs, Qt::Key_Right);
    QCOMPARE(run.app.mainFrm.SSTab1, int(app::previewTab));
    QTest::keyClick(tabs, Qt::Key_Delete);
    QCOMPARE(run.LV().count(), 43);
}

void LayoutInput::onlyTheLeftButtonDoubleClicks() {
    LayoutSession run(folders_.sample("books.fwk"));
    run.showLayout();
    const auto asks = [&](const char* name, Qt::MouseButton button) {
        QWidget* widget = run.object(name);
        QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)),
                          button, button, {});
        QApplication::sendEvent(widget, &event);
        run.app.mainFrm.layoutPage.drag = app::LayoutPage::Drag::None;
        return !std::exchange(run.platform.messages, {}).empty(); // the cancelled file dialog is told
    };
    for (const char* name : {"imgHolder1", "clipPic1"}) {
        QVERIFY(!asks(name, Qt::RightButton));
        QVERIFY(!asks(name, Qt::MiddleButton));
        QVERIFY(asks(name, Qt::LeftButton));
        run.pressDesign(); // clip art is chosen there
    }
}

void LayoutInput::theHorizontalRulerBeginsAPixelAhead() {
    LayoutSession run(folders_.sample("books.fwk"));
    run.pressDesign();
    const QImage across = run.find<QWidget>("ruler1")->grab().toImage();
    const QImage down = run.find<QWidget>("ruler2")->grab().toImage();
    const auto dark = [](QColor colour) { return colour.lightness() < 128; };
    // The marks of an inch go through to the edge, which no other does.
    QVERIFY(dark(across.pixelColor(95, 2)) && !dark(across.pixelColor(96, 2)));
    QVERIFY(dark(down.pixelColor(2, 96)) && !dark(down.pixelColor(2, 95)));
}

// Tab goes down a page that is higher than the window; what it reaches is in view, framed and selected.
void LayoutInput::whatHasTheKeysIsSeen() {
    LayoutSession run(folders_.sample("books.fwk"));
    QVERIFY(QTest::qWaitForWindowActive(&run.window));
    run.window.resize(run.window.minimumSizeHint().expandedTo({700, 400}));
    run.showLayout();
    run.navigate("New");
    QCOMPARE(run.find<QLabel>("recordPosition")->text(), u"New record"_s);
    QVERIFY(run.field(1)->hasFocus());
    run.navigate("First");
    QVERIFY(run.find<QLabel>("recordPosition")->text() != u"New record"_s);
    const auto* viewport = run.find<QWidget>("layoutPic1");
    for (int i = 0; i < run.objects.layoutField.count() * 2; ++i) {
        const auto* box = qobject_cast<QTextEdit*>(QApplication::focusWidget());
        if (box != nullptr) {
            const QRect shown(box->mapTo(viewport, QPoint()), box->size());
            QVERIFY2(viewport->rect().contains(shown), qPrintable(box->objectName()));
            QVERIFY(run.find<QWidget>("sheetMark")->geometry().contains(box->geometry()));
            QVERIFY(i == 0 || box->textCursor().selectedText() == box->toPlainText());
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    // A long text shows its beginning once it has been left.
    QTextEdit* title = run.field(2);
    title->setFocus();
    title->moveCursor(QTextCursor::End);
    QTest::keyClicks(title, u" and more and more and more and more and more and more and more"_s);
    QVERIFY(title->verticalScrollBar()->value() > 0);
    run.field(1)->setFocus();
    QCOMPARE(title->verticalScrollBar()->value(), 0);
}

void LayoutInput::aSelectedLineIsSeenAndGrabbedBesideIt() {
    LayoutSession run(folders_.sample("books.fwk"));
    run.pressDesign();
    run.click("Snap"); // off
    run.click("Line");
    core::LineObject& line = run.objects.pbLine[run.objects.pbLine.lowestFreeIndex() - 1];
    const float top = line.Top = 60;
    line.Left = 15;
    const QWidget* mark = run.find<QWidget>("sheetMark");
    QTest::mousePress(run.sheet(), Qt::LeftButton, {}, {3, 14}); // five pixels below
    QTest::mouseMove(run.sheet(), {3, 54});
    QTest::mouseRelease(run.sheet(), Qt::LeftButton, {}, {3, 54});
    QCOMPARE(line.Top, top + 600);
    QVERIFY(mark->isVisible());
    QCOMPARE(run.find<QLabel>("selectionPlace")->text(), u"At 0.01, 0.46   Size 2.02 x 0.05 in"_s);
    run.pressDesign();
    QVERIFY(mark->isHidden() && run.find<QLabel>("selectionPlace")->isHidden());
}

QTEST_MAIN(LayoutInput)
#include "layoutInput.moc"
