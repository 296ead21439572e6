#include "formActs.h"

#include "calc/columns.h"

#include <set>

using platform::Icon;

namespace {

constexpr auto noSyntax = "An error has occured during one of your calculations.  It appears that an "
                          "expression is incorrectly defined.  Please check your syntax.";

} // namespace

// What a user has worked out: expressions, sums, serial numbers.
class Expressions : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }
    void theKeyboardPressesTheKeypad();
    void backAndClear();
    void expressionErrors();
    void totalsByMouseAndKeyboard();
    void aTotaledColumnThatIsGoneEndsTheProgram();
    void serialNumbers();
    void theProgressIsPainted();
};

void Expressions::theKeyboardPressesTheKeypad() {
    Session run(folders_.sample("books.fwk"));
    run.platform.scripts[QStringLiteral("formulateFrm")] = [](QDialog& form) {
        // Without the mouse: down to the column, along to the list, and what the keys say.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(expression(form), QStringLiteral("Price * Copies"));
        click(form, "clearBtn");
        auto* fields = in<QTreeWidget>(form, "fieldList");
        fields->setFocus();
        QTest::keyClick(fields, Qt::Key_End);
        QTest::keyClick(fields, Qt::Key_Up);
        QTest::keyClick(fields, Qt::Key_Space);
        QCOMPARE(expression(form), QStringLiteral("Copies"));
        QTest::keyClicks(fields, QStringLiteral("*2")); // the list does not search for them
        in(form, "NumKey7")->setFocus();
        QTest::keyClicks(in(form, "NumKey7"), QStringLiteral("0.5/(3-1)+4x"));
        QTest::keyClick(in(form, "NumKey7"), Qt::Key_Backspace);
        QCOMPARE(expression(form), QStringLiteral("Copies * 20.5 /  ( 3 - 1 )  + "));
        QTest::keyClick(in(form, "NumKey7"), Qt::Key_Space); // presses the key that has the focus
        QTest::keyClick(in(form, "NumKey7"), Qt::Key_Comma, Qt::KeypadModifier);
        QTest::keyClick(in<QWidget>(form, "expTxt"), Qt::Key_9);
        QCOMPARE(expression(form), QStringLiteral("Copies * 20.5 /  ( 3 - 1 )  + 7.9"));
        QTest::keyClick(in(form, "NumKey7"), Qt::Key_Return); // Apply
        QCOMPARE(rows(form, "colList"),
                 QStringList{QStringLiteral("Value Copies * 20.5 /  ( 3 - 1 )  + 7.9")});
        QTest::keyClick(&form, Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(!form.isVisible()); // the button is seen to go down first
    };
    run.action("Formulas")->trigger();
    QVERIFY(run.platform.messages.empty());
    QCOMPARE(run.cell(0, "Value"), QStringLiteral("$18.15"));
    QCOMPARE(run.panel(3), QStringLiteral("Done."));
    QCOMPARE(run.panel(5), QStringLiteral("Document Modified"));
}

void Expressions::backAndClear() {
    Session run(folders_.sample("books.fwk"));
    run.platform.scripts[QStringLiteral("formulateFrm")] = [](QDialog& form) {
        clickRow(form, "colList", "Value");
        click(form, "operatorBtn0");
        doubleClickRow(form, "fieldList", "Price"); // one column, though it was pressed twice
        QCOMPARE(expression(form), QStringLiteral("Price * Copies + Price"));
        click(form, "operatorBtn0");
        clickRow(form, "fieldList", "Copies");
        for (const char* left : {"Price * Copies + Price + ", "Price * Copies + Price", "Price * Copies + ",
                                 "Price * Copies", "", ""}) {
            click(form, "backBtn");
            QCOMPARE(expression(form), QLatin1String(left));
        }
        // What was there at first went with the last step, and does not come back.
        click(form, "NumKey1");
        click(form, "backBtn");
        QCOMPARE(expression(form), QString());
        clickRow(form, "colList", "Value"); // a click on the same row begins anew
        QCOMPARE(expression(form), QStringLiteral("Price * Copies"));
        click(form, "clearBtn");
        QCOMPARE(expression(form), QString());
        form.close();
    };
    run.action("Formulas")->trigger();
    // Nothing was applied, so nothing was recalculated.
    QCOMPARE(run.app.document.formulas.items(), (std::vector<std::string>{"Value,Price * Copies"}));
    QVERIFY(!run.app.document.bModified);
}

void Expressions::expressionErrors() {
    Session run(folders_.sample("books.fwk"));
    calc::addColumn(run.app.document, "Twice", "5");
    const auto apply = [](QDialog& form, std::initializer_list<const char*> keys) {
        clickRow(form, "colList", "Value");
        click(form, "clearBtn");
        for (const char* key : keys) click(form, key);
        click(form, "addCalcBtn");
    };
    run.platform.scripts[QStringLiteral("formulateFrm")] = [&](QDialog& form) {
        clickRow(form, "colList", "Value");
        clickRow(form, "fieldList", "Twice");
        QCOMPARE(expression(form), QStringLiteral("Price * Copies"));
        QCOMPARE(run.platform.messages.size(), 1U);
        QCOMPARE(run.platform.messages[0].icon, Icon::Information);
        QVERIFY(run.platform.messages[0].text.startsWith(
            QLatin1String("The column you selected is an undefined calculation column.")));
        apply(form, {"NumKey1", "operatorBtn0", "operatorBtn2"});
        click(form, "donebtn");
    };
    run.action("Formulas")->trigger();
    QCOMPARE(run.platform.messages.size(), 3U);
    QCOMPARE(run.platform.messages[1].text, QLatin1String(noSyntax));
    QVERIFY(run.platform.messages[2].text.startsWith(QLatin1String("During a recalculate all rows event")));
    QCOMPARE(run.cell(0, "Value"), QStringLiteral("$8.49"));
    QCOMPARE(run.panel(3), QStringLiteral("Recalculating... 2 percent."));
    QVERIFY(QApplication::overrideCursor() == nullptr);

    run.platform.messages.clear(); // cleared, the column and those that need it are undefined
    run.platform.scripts[QStringLiteral("formulateFrm")] = [&](QDialog& form) {
        apply(form, {});
        form.close();
    };
    run.action("Formulas")->trigger();
    QVERIFY(run.platform.messages.empty());
    QCOMPARE(run.cell(0, "Value"), QLatin1String("Undefined"));

    Session none;
    none.platform.scripts[QStringLiteral("formulateFrm")] = [](QDialog&) { QFAIL("the form came up"); };
    none.window.events().run([&] { none.app.platform.showForm("formulateFrm"); });
    QCOMPARE(none.platform.messages.size(), 1U);
    QCOMPARE(none.platform.messages[0].text,
             QStringLiteral("There are no calculation columns in the current database."));
}

void Expressions::totalsByMouseAndKeyboard() {
    Session run(folders_.sample("books.fwk"));
    run.platform.scripts[QStringLiteral("TotalsFrm")] = [](QDialog& form) {
        auto* list = in<QTreeWidget>(form, "LV");
        QCOMPARE(rows(form, "LV"), (QStringList{QStringLiteral("No"), QStringLiteral("Price"),
                                                QStringLiteral("Copies"), QStringLiteral("Value")}));
        const auto checked = [&](const char* name) {
            return rowOf(list, name)->checkState(0) == Qt::Checked;
        };
        QVERIFY(!checked("Price") && checked("Copies") && checked("Value"));
        const QRect price = list->visualItemRect(rowOf(list, "Price"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          QPoint(price.left() + 12, price.center().y()));
        QVERIFY(checked("Price"));
        QTest::keyClick(list, Qt::Key_End);
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(!checked("Value"));
        QTest::keyClick(list, Qt::Key_Return);
    };
    run.action("mnuTotalColumns")->trigger();
    QCOMPARE(run.app.document.totaledCols.items(), (std::vector<std::string>{"Price", "Copies"}));
    QCOMPARE(run.cell(42, "Value"), QStringLiteral("------"));
    QVERIFY(run.cell(42, "Price").startsWith(QLatin1Char('$')));
    QVERIFY(run.cell(42, "Copies").startsWith(QLatin1Char('$'))); // a number behind a currency is money
    QVERIFY(!run.app.document.bModified);

    run.platform.scripts[QStringLiteral("TotalsFrm")] = [](QDialog& form) {
        rowOf(in<QTreeWidget>(form, "LV"), "Price")->setCheckState(0, Qt::Unchecked);
        QTest::keyClick(&form, Qt::Key_Escape);
    };
    run.action("mnuTotalColumns")->trigger();
    QVERIFY(run.app.document.totaledCols.contains("Price"));
}

void Expressions::aTotaledColumnThatIsGoneEndsTheProgram() {
    Session run(folders_.sample("books.fwk"));
    int ended = 0;
    run.window.events().endProgram = [&] { ++ended; };
    run.app.document.totaledCols.add("Gone", "Gone");
    run.platform.scripts[QStringLiteral("TotalsFrm")] = [](QDialog&) { QFAIL("the form came up"); };
    run.action("mnuTotalColumns")->trigger();
    QCOMPARE(ended, 1);
    QVERIFY(run.platform.messages.front().text.contains(QLatin1String("Error 35601")));
    QVERIFY(QFile::exists(copyTold(run)));
}

void Expressions::serialNumbers() {
    Session run(folders_.sample("books.fwk"));
    run.platform.scripts[QStringLiteral("serialFrm")] = [&](QDialog& form) {
        auto* value = in<QLineEdit>(form, "Text1");
        const auto set = [&](const char* text) {
            value->clear();
            QTest::keyClicks(value, QLatin1String(text));
            QTest::keyClick(value, Qt::Key_Return);
        };
        set("7"); // for no column
        QVERIFY(run.platform.messages.empty());
        QTest::keyClick(in<QTreeWidget>(form, "List1"), Qt::Key_Down);
        QCOMPARE(value->text(), QStringLiteral("42"));
        set("many");
        QCOMPARE(run.platform.messages[0].text, QStringLiteral("You entered a non numeric value."));
        clickRow(form, "List1", "No");
        QCOMPARE(value->text(), QStringLiteral("42"));
        set("  100 ");
        QCOMPARE(run.platform.messages[1].text, QStringLiteral("No's value has been set to 100"));
        QCOMPARE(run.platform.messages[1].icon, Icon::None);
        QCOMPARE(value->text(), QStringLiteral("100"));
        QCOMPARE(QApplication::focusWidget(), value);
        click(form, "CancelButton"); // does not undo it
    };
    run.action("mnuSerialAdjust")->trigger();
    QCOMPARE(run.platform.messages.size(), 2U);
    QCOMPARE(run.app.document.SerialsLV.at(1).subItem(1), "100");
}

void Expressions::theProgressIsPainted() {
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
    run.platform.scripts[QStringLiteral("TotalsFrm")] = [&](QDialog& form) {
        painted.texts.clear();
        click(form, "OKButton");
    };
    run.action("mnuTotalColumns")->trigger();
    const QStringList progress = painted.texts.filter(QStringLiteral("Recalculating... "));
    const std::set<QString> different(progress.begin(), progress.end());
    QVERIFY2(different.size() > 10, qPrintable(painted.texts.join(QLatin1Char('\n'))));
    QVERIFY2(painted.texts.size() < 40, qPrintable(painted.texts.join(QLatin1Char('\n'))));
    QCOMPARE(run.panel(3), QStringLiteral("Done."));
}

QTEST_MAIN(Expressions)
#include "expressions.moc"
