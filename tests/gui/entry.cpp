#include "session.h"

#include "gui/dialogs/entryFrmView.h"

#include <QLabel>
#include <QTimer>

// Records typed into the Entry Form.
class Entry : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    // Opens the form as the program does, and lets the test work in it until it is closed.
    static void inForm(Session& run, const std::function<void(gui::entryFrmView&)>& act) {
        bool done = false;
        QTimer::singleShot(0, &run.window, [&] {
            auto* form = qobject_cast<gui::entryFrmView*>(QApplication::activeModalWidget());
            if (form != nullptr) form->activateWindow();
            const auto hasFocus = [&] { return form->isAncestorOf(QApplication::focusWidget()); };
            if (form != nullptr && QTest::qWaitFor(hasFocus)) {
                act(*form);
                done = true;
            }
            if (form != nullptr) form->close();
        });
        run.window.events().run([&] { run.platform.QtPlatform::showForm("entryFrm"); });
        QVERIFY(done);
    }
    // As a hand on the keyboard does: whatever has the focus gets it.
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static QString focused() { return QApplication::focusWidget()->objectName(); }
    static QLineEdit* box(gui::entryFrmView& form, int index) {
        return form.findChild<QLineEdit*>(u"FieldBox%1"_s.arg(index));
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void twentyRecordsByKeyboardAlone() {
        DataFile data({{"No", 4}, {"Day", 1}, {"Article", 3}, {"Price", 2}, {"Qty", 4}, {"Sum", 5}});
        data.more = "[Formulas      ]Sum,Price * Qty|\r\n[Totaled Cols  ]Price|Qty|Sum|\r\n"
                    "[Optioned Cols ]No|Day|\r\n[Increments    ]No,100|\r\n";
        data.addTotals();
        const QString file = folders_.database("till.fwk", data);
        const QString today = QDate::currentDate().toString(u"MM/dd/yyyy"_s);
        const auto cents = [](int record) { return 1234 + 101 * record; };
        {
            Session run(file);
            inForm(run, [&](gui::entryFrmView& form) {
                QCOMPARE(focused(), u"FieldBox0"_s);
                for (int record = 0; record < 20; ++record) {
                    press(Qt::Key_N, Qt::ControlModifier);
                    QCOMPARE(box(form, 0)->text(), QString::number(101 + record));
                    QCOMPARE(box(form, 1)->text(), today);
                    press(Qt::Key_Return);
                    press(Qt::Key_Down);
                    type(u"Article %1, small"_s.arg(record));
                    press(Qt::Key_Enter);
                    type(QString::number(cents(record)));
                    press(Qt::Key_Return);
                    QCOMPARE(box(form, 3)->text().right(3),
                             QString::number(cents(record)).right(2).prepend(u'.'));
                    type(QString::number(record % 4 + 1));
                    press(Qt::Key_Return);
                    QCOMPARE(run.LV().count(), record + 2);
                    QCOMPARE(focused(), u"FieldBox0"_s);
                }
                QCOMPARE(run.panel(1), u"20 records."_s);
                QCOMPARE(run.panel(5), u"Document Modified"_s);
                press(Qt::Key_S, Qt::ControlModifier);
                QCOMPARE(run.panel(5), u"Document Saved"_s);
                press(Qt::Key_Escape);
            });
            QVERIFY(run.platform.messages.empty());
            QCOMPARE(run.rows(), 21);
            QVERIFY(run.LV().MultiSelect);
        }
        Session again(file);
        QCOMPARE(again.rows(), 21);
        const auto money = [](int amount) {
            return u"$%1.%2"_s.arg(amount / 100).arg(amount % 100, 2, 10, QChar(u'0'));
        };
        int prices = 0, pieces = 0, sums = 0;
        for (int record = 0; record < 20; ++record) {
            const int quantity = record % 4 + 1;
            prices += cents(record);
            pieces += quantity;
            sums += cents(record) * quantity;
            QCOMPARE(again.cell(record, "No"), QString::number(101 + record));
            QCOMPARE(again.cell(record, "Day"), today);
            QCOMPARE(again.cell(record, "Article"), u"Article %1, small"_s.arg(record));
            QCOMPARE(again.cell(record, "Price"), money(cents(record)));
            QCOMPARE(again.cell(record, "Qty"), QString::number(quantity));
            QCOMPARE(again.cell(record, "Sum"), money(cents(record) * quantity));
        }
        QCOMPARE(again.cell(20, "Price"), money(prices));
        QCOMPARE(again.cell(20, "Qty"), money(pieces * 100)); // behind a Currency column it is money too
        QCOMPARE(again.cell(20, "Sum").remove(u','), money(sums));
        QCOMPARE(again.app.document.SerialsLV.at(1).subItem(1).str(), std::string("120"));
    }

    void keysAndFocus() {
        Session run(folders_.sample("books.fwk"));
        inForm(run, [&](gui::entryFrmView& form) {
            // The boxes stand as the columns do: No, Title, Author, Price, Bought, Copies, Notes.
            QCOMPARE(box(form, 1)->text(), u"The Odyssey"_s);
            QCOMPARE(box(form, 1)->cursorPosition(), 0);
            press(Qt::Key_Down);
            QCOMPARE(box(form, 1)->selectedText(), u"The Odyssey"_s); // typing takes its place
            press(Qt::Key_Up);
            press(Qt::Key_Up);
            QCOMPARE(focused(), u"FieldBox0"_s);
            for (int tab = 0; tab < 4; ++tab) press(Qt::Key_Tab);
            QCOMPARE(focused(), u"FieldBox4"_s);
            type(u"1231"_s);
            QCOMPARE(box(form, 4)->text(), u"12/31/"_s);
            QCOMPARE(box(form, 4)->cursorPosition(), 6);
            press(Qt::Key_Backspace);
            QCOMPARE(box(form, 4)->text(), u"12/31"_s);
            type(u"/2020"_s);
            QCOMPARE(box(form, 4)->text(), u"12/31/2020"_s);

            // A box that is to hold something new is emptied by what is there already.
            auto* check = form.findChild<QCheckBox*>(u"prevChk1"_s);
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
            QVERIFY(check->isChecked());
            QTest::mouseClick(box(form, 1), Qt::LeftButton);
            box(form, 1)->selectAll();
            type(u"EMMA"_s);
            press(Qt::Key_Return);
            QCOMPARE(focused(), u"FieldBox1"_s);
            QCOMPARE(box(form, 1)->text(), QString());
            QVERIFY(!run.app.document.bModified);
        });
        QCOMPARE(run.cell(0, "Title"), u"The Odyssey"_s); // typing alone changes nothing
    }

    void theToolbarAndTheFindBox() {
        Session run(folders_.sample("books.fwk"));
        inForm(run, [&](gui::entryFrmView& form) {
            const auto click = [&](const char* key) {
                form.findChild<QAction*>(QLatin1String(key))->trigger();
            };
            const auto title = [&] { return box(form, 1)->text(); };
            press(Qt::Key_PageDown);
            QCOMPARE(title(), u"Les Misérables"_s);
            QCOMPARE(run.selectedRows(), QList<int>{1}); // the list behind goes along
            click("Last");
            const QString last = title();
            click("Next");
            QCOMPARE(title(), last);
            click("First");
            QCOMPARE(title(), u"The Odyssey"_s);

            press(Qt::Key_F, Qt::ControlModifier);
            QCOMPARE(focused(), u"srchTxt"_s);
            type(u"jane AUSTEN"_s);
            press(Qt::Key_Return);
            QCOMPARE(title(), u"Pride and Prejudice"_s);
            QTest::mouseClick(form.findChild<QPushButton*>(u"againBtn"_s), Qt::LeftButton);
            QCOMPARE(title(), u"Emma"_s);

            box(form, 1)->setFocus();
            box(form, 1)->selectAll();
            type(u"Emma, again"_s);
            press(Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(run.cell(8, "Title"), u"Emma, again"_s);
            press(Qt::Key_Return, Qt::ControlModifier);
            QCOMPARE(run.rows(), 44);
            QCOMPARE(run.cell(42, "Title"), u"Emma, again"_s);
            QCOMPARE(title(), QString());
            QCOMPARE(focused(), u"FieldBox0"_s);
            run.platform.answers = {platform::Answer::Yes};
            press(Qt::Key_D, Qt::ControlModifier);
            QCOMPARE(run.rows(), 43);
            QCOMPARE(title(), last);
        });
    }

    void rowsAreAsHighAsTextBoxes() {
        Session run(folders_.sample("books.fwk"));
        inForm(run, [&](gui::entryFrmView& form) {
            const int natural = box(form, 0)->sizeHint().height();
            const auto* label = form.findChild<QLabel*>(u"editlbl2"_s);
            QVERIFY(std::abs(box(form, 2)->height() - natural) <= 1);
            QVERIFY(label->height() >= label->fontMetrics().ascent());
            QVERIFY(label->geometry().bottom() < box(form, 2)->y());
            QVERIFY(box(form, 1)->geometry().bottom() < label->y());
            QVERIFY(box(form, 1)->x() < box(form, 0)->x()); // a little left of the first row
            const auto* check = form.findChild<QCheckBox*>(u"prevChk2"_s);
            QVERIFY(check->sizeHint().width() <= check->width());
            QVERIFY(!form.findChild<QScrollBar*>(u"VScroll1"_s)->isVisible());
        });
    }

    void thePaneScrollsAndGrows() {
        DataFile data({});
        for (int column = 0; column < 30; ++column) data.addColumn("Column" + std::to_string(column), 3);
        Session run(folders_.database("wide.fwk", data));
        inForm(run, [&](gui::entryFrmView& form) {
            auto* viewport = form.findChild<QWidget*>(u"Picture1"_s);
            auto* bar = form.findChild<QScrollBar*>(u"VScroll1"_s);
            QVERIFY(bar->isVisible());
            const auto isShown = [&](QWidget* control) {
                return viewport->rect().contains(QRect(control->mapTo(viewport, QPoint()), control->size()));
            };
            for (int field = 0; field < 29; ++field) {
                QVERIFY2(isShown(QApplication::focusWidget()), qPrintable(focused()));
                press(field % 2 == 0 ? Qt::Key_Down : Qt::Key_Return);
            }
            QCOMPARE(focused(), u"FieldBox29"_s);
            for (int field = 29; field > 0; --field) press(Qt::Key_Up);
            QVERIFY(isShown(box(form, 0)));
            for (int field = 0; field < 29; ++field) press(Qt::Key_Tab);
            QVERIFY(isShown(box(form, 29)));
            press(Qt::Key_Tab); // to the check box of the first row
            QVERIFY(isShown(form.findChild<QCheckBox*>(u"prevChk0"_s)));
            QTest::mouseClick(bar, Qt::LeftButton, {},
                              QPoint(bar->width() / 2, bar->height() - bar->width() - 4));
            QCOMPARE(bar->value(), 500);

            const int width = box(form, 5)->width();
            form.resize(form.width() + 100, form.height());
            QTRY_VERIFY(std::abs(box(form, 5)->width() - width - 100) <= 1);
        });
    }
};

QTEST_MAIN(Entry)
#include "entry.moc"
