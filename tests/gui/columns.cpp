#include "session.h"

#include "calc/columns.h"
#include "entry/editRecord.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include <set>

using platform::Answer;
using platform::Icon;

namespace {

template <typename Widget = QPushButton>
Widget* in(const QDialog& form, const char* name) {
    auto* found = form.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) qFatal("no %s in %s", name, qPrintable(form.objectName()));
    return found;
}

void click(QWidget* widget) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}
void click(const QDialog& form, const char* name) {
    click(in<QWidget>(form, name));
}

QTreeWidgetItem* rowOf(const QTreeWidget* list, const char* text) {
    const auto rows = list->findItems(QLatin1String(text), Qt::MatchExactly);
    if (rows.size() != 1) qFatal("%d rows %s", static_cast<int>(rows.size()), text);
    return rows.constFirst();
}
void clickRow(const QDialog& form, const char* listName, const char* text) {
    auto* list = in<QTreeWidget>(form, listName);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(rowOf(list, text)).center());
}
void doubleClickRow(const QDialog& form, const char* listName, const char* text) {
    clickRow(form, listName, text);
    auto* list = in<QTreeWidget>(form, listName);
    const QPoint place = list->visualItemRect(rowOf(list, text)).center();
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place);
}

// "Name Type Auto-Date Auto-Serial" of each row.
QStringList rows(const QDialog& form, const char* listName) {
    const auto* list = in<QTreeWidget>(form, listName);
    QStringList all;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        QStringList texts;
        for (int section = 0; section < list->columnCount(); ++section)
            texts << list->topLevelItem(row)->text(section);
        all << texts.join(QLatin1Char(' '));
    }
    return all;
}

QString expression(const QDialog& form) {
    return in<QPlainTextEdit>(form, "expTxt")->toPlainText();
}

void addColumn(const QDialog& form, const char* type, const char* name) {
    click(form, type);
    QTest::keyClicks(QApplication::focusWidget(), QLatin1String(name)); // the focus came back to the name box
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

constexpr auto noSyntax = "An error has occured during one of your calculations.  It appears that an "
                          "expression is incorrectly defined.  Please check your syntax.";

} // namespace

// What a user does with the columns of a database: their definition, expressions, sums and counters.
class Columns : public QObject {
    Q_OBJECT

private:
    Folders folders_;
    // The name of the recovery copy that a message tells.
    static QString copyTold(const Session& run) {
        const QString& text = run.platform.messages.back().text;
        return text.section(QLatin1Char('\n'), -1);
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void aDatabaseFromNothing();
    void cancelledStyleChangesNothing();
    void theNameBoxAndItsFocus();
    void renameAndRemove();
    void theLastColumnThatFits();
    void aNameInAnotherCaseEndsTheProgram_data();
    void aNameInAnotherCaseEndsTheProgram();
    void theKeyboardPressesTheKeypad();
    void backAndClear();
    void expressionErrors();
    void totalsByMouseAndKeyboard();
    void aTotaledColumnThatIsGoneEndsTheProgram();
    void serialNumbers();
    void theProgressIsPainted();
};

void Columns::aDatabaseFromNothing() {
    const QString file = folders_.path("made.fwk");
    const QStringList columns = {QStringLiteral("Item Text NA NA"), QStringLiteral("No Number NA ON"),
                                 QStringLiteral("Day Date ON NA"),
                                 QStringLiteral("Unit_Price Currency NA NA"),
                                 QStringLiteral("Total Calculation NA NA")};
    {
        Session run;
        run.platform.chosenFile = gui::fromQt(file);
        run.platform.scripts[QStringLiteral("databaseTypeFrm")] = [&](QDialog& form) {
            QCOMPARE(form.windowTitle(), QStringLiteral("Choose your database format."));
            QVERIFY(in<QRadioButton>(form, "Option1")->isChecked());
            click(form, "Option2");
            QVERIFY(in<QRadioButton>(form, "Option2")->isChecked());
            click(form, "Option1");
            click(form, "OKButton");
        };
        run.platform.scripts[QStringLiteral("designFrm")] = [&](QDialog& form) {
            addColumn(form, "typeOpt4", "Item");
            addColumn(form, "typeOpt3", "No");
            addColumn(form, "typeOpt0", "Day");
            addColumn(form, "typeOpt1", "Unit Price");
            addColumn(form, "typeOpt2", "Total");
            run.platform.answers = {Answer::Yes, Answer::Yes};
            doubleClickRow(form, "List1", "Day");
            doubleClickRow(form, "List1", "Item"); // has no options, so nobody asks
            doubleClickRow(form, "List1", "No");
            QCOMPARE(rows(form, "List1"), columns);
            click(form, "doneBtn");
        };
        run.action("mnuNew")->trigger();
        QCOMPARE(run.platform.messages.size(), 2U);
        QCOMPARE(run.platform.messages[0].text,
                 QStringLiteral("Auto enter today's date when entering data?"));
        QCOMPARE(run.platform.messages[0].caption, QStringLiteral("Entry Options"));
        QCOMPARE(run.platform.messages[1].text, QStringLiteral("Auto increment value when entering data?"));
        QCOMPARE(run.window.windowTitle(), QStringLiteral("Ferrowick - ") + file);
        QCOMPARE(run.panel(6), QStringLiteral("Database Style: Standard"));
        QCOMPARE(run.rows(), 1); // the Totals row
        QVERIFY(run.action("Formulas")->isEnabled());

        run.platform.scripts[QStringLiteral("formulateFrm")] = [](QDialog& form) {
            QVERIFY(!in<QTreeWidget>(form, "fieldList")->isEnabled());
            QVERIFY(!in(form, "addCalcBtn")->isEnabled());
            QVERIFY(in<QPlainTextEdit>(form, "expTxt")->isReadOnly());
            QCOMPARE(rows(form, "colList"), QStringList{QStringLiteral("Total Undefined")});
            QCOMPARE(rows(form, "fieldList"), (QStringList{QStringLiteral("No"), QStringLiteral("Unit_Price"),
                                                           QStringLiteral("Total")}));
            clickRow(form, "colList", "Total");
            for (const char* key : {"operatorBtn4", "fieldList", "operatorBtn0", "NumKey1", "NumKey10",
                                    "NumKey5", "operatorBtn5", "operatorBtn2", "NumKey2", "NumKey0"}) {
                if (qstrcmp(key, "fieldList") == 0)
                    clickRow(form, key, "Unit_Price");
                else
                    click(form, key);
            }
            QCOMPARE(expression(form), QStringLiteral(" ( Unit_Price + 1.5 )  * 20"));
            click(form, "addCalcBtn");
            QCOMPARE(expression(form), QString());
            click(form, "donebtn");
        };
        run.action("mnuExpressionEditor")->trigger();
        run.platform.scripts[QStringLiteral("TotalsFrm")] = [](QDialog& form) {
            auto* list = in<QTreeWidget>(form, "LV");
            rowOf(list, "Total")->setCheckState(0, Qt::Checked);
            click(form, "OKButton");
        };
        run.action("mnuTotalColumns")->trigger();
        run.window.events().run([&] {
            for (const char* price : {"2", "3.25"})
                entry::EditRecord(run.app, false, {{"Item", "x"}, {"No", "1"}, {"Unit_Price", price}});
            core::moveTotals(run.LV());
        });
        run.action("Save")->trigger();
        QCOMPARE(run.platform.messages.size(), 2U);
    }
    Session again(file);
    QCOMPARE(again.rows(), 3);
    QCOMPARE(again.cell(0, "Total"), QStringLiteral("$70.00"));
    QCOMPARE(again.cell(1, "Total"), QStringLiteral("$95.00"));
    QCOMPARE(again.cell(2, "Total"), QStringLiteral("$165.00"));
    QCOMPARE(again.cell(2, "Item"), QStringLiteral("------"));
    const auto look = [&](const char* name, const char* command, const std::function<void(QDialog&)>& act) {
        again.platform.scripts[QLatin1String(name)] = act;
        again.action(command)->trigger();
    };
    look("designFrm", "mnuDatabaseProperties", [&](QDialog& form) {
        QCOMPARE(rows(form, "List1"), columns);
        form.close();
    });
    look("formulateFrm", "Formulas", [](QDialog& form) {
        QCOMPARE(rows(form, "colList"), QStringList{QStringLiteral("Total  ( Unit_Price + 1.5 )  * 20")});
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    look("serialFrm", "mnuSerialAdjust", [](QDialog& form) {
        clickRow(form, "List1", "No");
        QCOMPARE(in<QLineEdit>(form, "Text1")->text(), QStringLiteral("2"));
        click(form, "CancelButton");
    });
    QCOMPARE(again.platform.forms.size(), 3);
    QVERIFY(again.platform.messages.empty());
}

void Columns::cancelledStyleChangesNothing() {
    Session run(folders_.sample("books.fwk"));
    run.platform.scripts[QStringLiteral("databaseTypeFrm")] = [](QDialog& form) {
        click(form, "Option2");
        QTest::keyClick(&form, Qt::Key_Escape);
    };
    run.platform.chosenFile = gui::fromQt(folders_.path("never.fwk"));
    run.action("mnuNew")->trigger();
    QCOMPARE(run.rows(), 43);
    QVERIFY(!run.app.document.bInvoiceStyle && !QFile::exists(folders_.path("never.fwk")));
    // With OK the open document has the new style even when no name follows.
    run.platform.scripts[QStringLiteral("databaseTypeFrm")] = [](QDialog& form) {
        click(form, "Option2");
        QTest::keyClick(&form, Qt::Key_Return);
    };
    run.platform.chosenFile.reset();
    run.action("mnuNew")->trigger();
    QVERIFY(run.app.document.bInvoiceStyle);
    QCOMPARE(run.LV().count(), 43);
}

void Columns::theNameBoxAndItsFocus() {
    Session run(folders_.sample("invoices.fwk"));
    run.platform.scripts[QStringLiteral("designFrm")] = [&](QDialog& form) {
        auto* name = in<QLineEdit>(form, "fieldTxt");
        QCOMPARE(QApplication::focusWidget(), name);
        QVERIFY(!in<QWidget>(form, "typeOpt5")->isVisible()); // no pictures in an invoice database
        QVERIFY(in<QRadioButton>(form, "typeOpt0")->isChecked());
        QTest::keyClicks(name, QStringLiteral("My "));
        QCOMPARE(name->text(), QStringLiteral("My_"));
        QTest::keyClicks(name, QStringLiteral("Price"));
        name->setCursorPosition(2);
        QTest::keyClick(name, Qt::Key_Space);
        QCOMPARE(name->text(), QStringLiteral("My__Price"));
        name->setCursorPosition(0);
        QTest::keyClick(name, Qt::Key_A);
        QCOMPARE(name->text(), QStringLiteral("aMy__Price"));
        QCOMPARE(name->cursorPosition(), 10); // at the end after every change
        click(form, "typeOpt3");
        QCOMPARE(QApplication::focusWidget(), name);
        click(form, "addBtn");
        QCOMPARE(rows(form, "List1").last(), QStringLiteral("aMy__Price Number NA OFF"));
        QCOMPARE(QApplication::focusWidget(), name);
        QCOMPARE(name->text(), QString());
        QTest::keyClick(name, Qt::Key_Return);
        // The keyboard's double click: the first row is a serial number, and No switches it off.
        auto* list = in<QTreeWidget>(form, "List1");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        run.platform.answers = {Answer::No};
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(rows(form, "List1").first(), QStringLiteral("Invoice_No Number NA OFF"));
        click(form, "doneBtn");
    };
    run.action("Properties")->trigger();
    QCOMPARE(run.platform.messages.size(), 2U);
    QCOMPARE(run.platform.messages[0].text, QStringLiteral("You must enter a column name."));
    QCOMPARE(run.platform.messages[0].icon, Icon::Information);
    QCOMPARE(run.app.document.SerialsLV.count(), 0);
    QCOMPARE(run.panel(5), QStringLiteral("Document Modified"));
    // The column is there in the list that is shown.
    QVERIFY(run.section("aMy__Price", "iLV") > 0);
}

void Columns::renameAndRemove() {
    Session run(folders_.sample("books.fwk"));
    const auto formulas = [&] {
        QStringList all;
        for (const std::string& formula : run.app.document.formulas.items()) all << gui::toQt(formula);
        return all;
    };
    run.platform.scripts[QStringLiteral("designFrm")] = [&](QDialog& form) {
        const auto rename = [&](const char* from, const char* to) {
            clickRow(form, "List1", from);
            in<QLineEdit>(form, "fieldTxt")->clear();
            QTest::keyClicks(in<QLineEdit>(form, "fieldTxt"), QLatin1String(to));
            click(form, "changeBtn");
        };
        click(form, "changeBtn"); // no row is chosen: nothing happens
        rename("Price", "123");
        rename("Price", "Copies");
        QCOMPARE(run.platform.messages.size(), 2U);
        QCOMPARE(run.platform.messages[0].text, QStringLiteral("Column name must not be a number."));
        QCOMPARE(run.platform.messages[1].text, QStringLiteral("Column with that name already exists!"));
        run.platform.answers = {Answer::Yes};
        rename("Price", "Paid");
        QVERIFY(run.platform.messages[2].text.startsWith(
            QLatin1String("Would you like to rename all exact matching labels")));
        QCOMPARE(formulas(), QStringList{QStringLiteral("Value,Paid * Copies")});

        clickRow(form, "List1", "Paid");
        run.platform.answers = {Answer::Yes, Answer::No};
        click(form, "deleteBtn");
        QCOMPARE(rows(form, "List1").size(), 9);
        QVERIFY(run.platform.messages[3].text.startsWith(QLatin1String("A column you intend to delete")));
        QCOMPARE(run.platform.messages[3].icon, Icon::Exclamation);
        QCOMPARE(run.platform.messages[4].text,
                 QStringLiteral("Are you absolutely certain you want to do this?  ALL data in the column "
                                "Paid will be lost!"));
        QCOMPARE(run.platform.messages[4].icon, Icon::Critical);
        run.platform.answers = {Answer::Yes, Answer::Yes};
        click(form, "deleteBtn");
        QCOMPARE(rows(form, "List1").size(), 8);
        QVERIFY(formulas().isEmpty());
        form.close();
    };
    run.action("mnuDatabaseProperties")->trigger();
    QCOMPARE(run.platform.messages.size(), 7U);
    QCOMPARE(run.cell(0, "Value"), QStringLiteral("Undefined"));
    QCOMPARE(run.cell(0, "Copies"), QStringLiteral("1"));
    QCOMPARE(run.panel(5), QStringLiteral("Document Modified"));
}

void Columns::theLastColumnThatFits() {
    Session run(folders_.sample("books.fwk"));
    while (run.LV().columns.count() < 50)
        calc::addColumn(run.app.document, "C" + std::to_string(run.LV().columns.count()), "3");
    run.platform.scripts[QStringLiteral("designFrm")] = [&](QDialog& form) {
        addColumn(form, "typeOpt4", "last");
        QVERIFY(run.platform.messages.empty());
        addColumn(form, "typeOpt4", "more");
        QCOMPARE(rows(form, "List1").size(), 50);
        QCOMPARE(in<QLineEdit>(form, "fieldTxt")->text(), QStringLiteral("more"));
        form.close();
    };
    run.action("Properties")->trigger();
    QCOMPARE(run.platform.messages.size(), 1U);
    QCOMPARE(run.platform.messages[0].text,
             QStringLiteral("You have added the maximum number of columns to the database."));
    QCOMPARE(run.LV().columns.count(), 51);
}

void Columns::aNameInAnotherCaseEndsTheProgram_data() {
    QTest::addColumn<QString>("file"); // empty: a new database
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("columns"); // of the copy
    QTest::newRow("beside Price") << folders_.sample("books.fwk") << QStringLiteral("price") << 9;
    QTest::newRow("like the hidden column") << folders_.sample("books.fwk") << QStringLiteral("index") << 9;
    QTest::newRow("in a new database") << QString() << QStringLiteral("TITLE") << 1;
}

void Columns::aNameInAnotherCaseEndsTheProgram() {
    QFETCH(QString, file);
    QFETCH(QString, name);
    Session run(file);
    int ended = 0;
    run.window.events().endProgram = [&] { ++ended; };
    run.platform.scripts[QStringLiteral("databaseTypeFrm")] = [](QDialog& form) { click(form, "OKButton"); };
    run.platform.scripts[QStringLiteral("designFrm")] = [&](QDialog& form) {
        if (file.isEmpty()) addColumn(form, "typeOpt4", "Title");
        addColumn(form, "typeOpt1", qPrintable(name));
        QCOMPARE(ended, 1); // told at once, while the form is there
        form.close();
    };
    run.platform.chosenFile = gui::fromQt(folders_.path("new.fwk"));
    run.action(file.isEmpty() ? "mnuNew" : "mnuDatabaseProperties")->trigger();
    QCOMPARE(ended, 1);
    QCOMPARE(run.platform.messages.size(), 1U);
    const ScriptedPlatform::Message& message = run.platform.messages.front();
    QCOMPARE(message.icon, Icon::Critical);
    QVERIFY2(message.text.contains(QLatin1String("Error 35602")), qPrintable(message.text));
    Session copy(copyTold(run));
    QTEST(copy.LV().columns.count() - 1, "columns");
}

void Columns::theKeyboardPressesTheKeypad() {
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

void Columns::backAndClear() {
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

void Columns::expressionErrors() {
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

void Columns::totalsByMouseAndKeyboard() {
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

void Columns::aTotaledColumnThatIsGoneEndsTheProgram() {
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

void Columns::serialNumbers() {
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

void Columns::theProgressIsPainted() {
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

QTEST_MAIN(Columns)
#include "columns.moc"
