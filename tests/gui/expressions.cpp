#include "formActs.h"

#include <set>

// What a user has worked out: expressions, sums, serial numbers.
class Expressions : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }
    void theKeyboardPressesTheKeypad() {
        Session run(folders_.sample("books.fwk"));
        run.platform.scripts[u"formulateFrm"_s] = [](QDialog& form) {
            // Without the mouse: down to the column, along to the list, and what the keys say.
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            QCOMPARE(expression(form), u"Price * Copies"_s);
            click(form, "clearBtn");
            doubleClickRow(form, "fieldList", "Price"); // one column, though it was pressed twice
            QCOMPARE(expression(form), u"Price"_s);
            click(form, "backBtn");
            QCOMPARE(expression(form), QString());
            auto* fields = in<QTreeWidget>(form, "fieldList");
            fields->setFocus();
            QTest::keyClick(fields, Qt::Key_End);
            QTest::keyClick(fields, Qt::Key_Up);
            QTest::keyClick(fields, Qt::Key_Space);
            QCOMPARE(expression(form), u"Copies"_s);
            QTest::keyClicks(fields, u"*2"_s); // the list does not search for them
            in(form, "NumKey7")->setFocus();
            QTest::keyClicks(in(form, "NumKey7"), u"0.5/(3-1)+4x"_s);
            QTest::keyClick(in(form, "NumKey7"), Qt::Key_Backspace);
            QCOMPARE(expression(form), u"Copies * 20.5 /  ( 3 - 1 )  + "_s);
            QTest::keyClick(in(form, "NumKey7"), Qt::Key_Space); // presses the key that has the focus
            QTest::keyClick(in(form, "NumKey7"), Qt::Key_Comma, Qt::KeypadModifier);
            QTest::keyClick(in<QWidget>(form, "expTxt"), Qt::Key_9);
            QCOMPARE(expression(form), u"Copies * 20.5 /  ( 3 - 1 )  + 7.9"_s);
            QTest::keyClick(in(form, "NumKey7"), Qt::Key_Return); // Apply
            QCOMPARE(rows(form, "colList"), QStringList{u"Value Copies * 20.5 /  ( 3 - 1 )  + 7.9"_s});
            QTest::keyClick(&form, Qt::Key_D, Qt::AltModifier);
            QTRY_VERIFY(!form.isVisible()); // the button is seen to go down first
        };
        run.action("Formulas")->trigger();
        QVERIFY(run.platform.messages.empty());
        QCOMPARE(run.cell(0, "Value"), u"$18.15"_s);
        QCOMPARE(run.panel(3), u"Done."_s);
        QCOMPARE(run.panel(5), u"Document Modified"_s);
    }

    void expressionErrors() {
        Session run(folders_.sample("books.fwk"));
        run.platform.scripts[u"formulateFrm"_s] = [](QDialog& form) {
            clickRow(form, "colList", "Value");
            for (const char* key :
                 {"clearBtn", "NumKey1", "operatorBtn0", "operatorBtn2", "addCalcBtn", "donebtn"})
                click(form, key);
        };
        run.action("Formulas")->trigger();
        QCOMPARE(run.platform.messages.size(), 2U);
        QCOMPARE(run.cell(0, "Value"), u"$8.49"_s);
        QCOMPARE(run.panel(3), u"Recalculating... 2 percent."_s);
        QVERIFY(QApplication::overrideCursor() == nullptr);

        Session none;
        none.platform.scripts[u"formulateFrm"_s] = [](QDialog&) { QFAIL("the form came up"); };
        none.window.events().run([&] { none.app.platform.showForm("formulateFrm"); });
        QCOMPARE(none.platform.messages.size(), 1U);
    }

    void totalsByMouseAndKeyboard() {
        Session run(folders_.sample("books.fwk"));
        run.platform.scripts[u"TotalsFrm"_s] = [](QDialog& form) {
            auto* list = in<QTreeWidget>(form, "LV");
            QCOMPARE(rows(form, "LV"), (QStringList{u"No"_s, u"Price"_s, u"Copies"_s, u"Value"_s}));
            QCOMPARE(rowOf(list, "Copies")->checkState(0), Qt::Checked);
            const QRect price = list->visualItemRect(rowOf(list, "Price"));
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {price.left() + 12, price.center().y()});
            QTest::keyClick(list, Qt::Key_End);
            QTest::keyClick(list, Qt::Key_Space);
            QTest::keyClick(list, Qt::Key_Return);
        };
        run.action("mnuTotalColumns")->trigger();
        QCOMPARE(run.app.document.totaledCols.items(), (std::vector<std::string>{"Price", "Copies"}));
        QCOMPARE(run.cell(42, "Value"), u"------"_s);
        run.platform.scripts[u"TotalsFrm"_s] = [](QDialog& form) {
            rowOf(in<QTreeWidget>(form, "LV"), "Price")->setCheckState(0, Qt::Unchecked);
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.action("mnuTotalColumns")->trigger();
        QVERIFY(run.app.document.totaledCols.contains("Price"));
    }

    void aTotaledColumnThatIsGoneEndsTheProgram() {
        Session run(folders_.sample("books.fwk"));
        int ended = 0;
        run.window.events().endProgram = [&] { ++ended; };
        run.app.document.totaledCols.add("Gone", "Gone");
        run.platform.scripts[u"TotalsFrm"_s] = [](QDialog&) { QFAIL("the form came up"); };
        run.action("mnuTotalColumns")->trigger();
        QCOMPARE(ended, 1);
        QVERIFY(run.platform.messages.front().text.contains("Error 35601"_L1));
        QVERIFY(QFile::exists(copyTold(run)));
    }

    void serialNumbers() {
        Session run(folders_.sample("books.fwk"));
        run.platform.scripts[u"serialFrm"_s] = [&](QDialog& form) {
            auto* value = in<QLineEdit>(form, "Text1");
            QTest::keyClick(in<QTreeWidget>(form, "List1"), Qt::Key_Down);
            QCOMPARE(value->text(), u"42"_s);
            value->clear();
            QTest::keyClicks(value, u"  100 "_s);
            QTest::keyClick(value, Qt::Key_Return);
            QCOMPARE(value->text(), u"100"_s);
            QCOMPARE(QApplication::focusWidget(), value);
            click(form, "CancelButton"); // does not undo it
        };
        run.action("mnuSerialAdjust")->trigger();
        QCOMPARE(run.platform.messages.size(), 1U);
        QCOMPARE(run.app.document.SerialsLV.at(1).subItem(1), "100");
    }

    void theProgressIsPainted() {
        // The texts that the panel has painted.
        struct Painted : QObject {
            QStringList texts;
            bool eventFilter(QObject* watched, QEvent* event) override {
                if (event->type() == QEvent::Paint) texts << static_cast<QLabel*>(watched)->text();
                return false;
            }
        } painted;
        Session run(folders_.sample("packages-32000.fwk"));
        run.find<QLabel>("SB1_3")->installEventFilter(&painted);
        run.platform.scripts[u"TotalsFrm"_s] = [&](QDialog& form) {
            painted.texts.clear();
            click(form, "OKButton");
        };
        run.action("mnuTotalColumns")->trigger();
        const QStringList progress = painted.texts.filter(u"Recalculating... "_s);
        const std::set<QString> different(progress.begin(), progress.end());
        QVERIFY2(different.size() > 10, qPrintable(painted.texts.join(u'\n')));
        QVERIFY2(painted.texts.size() < 40, qPrintable(painted.texts.join(u'\n')));
        QCOMPARE(run.panel(3), u"Done."_s);
    }
};

QTEST_MAIN(Expressions)
#include "expressions.moc"
