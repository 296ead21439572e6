#include "formActs.h"

#include "calc/columns.h"
#include "entry/editRecord.h"

using platform::Answer;
using platform::Icon;

// What a user does to define the columns of a database.
class Columns : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }
    void aDatabaseFromNothing();
    void cancelledStyleChangesNothing();
    void theNameBoxAndItsFocus();
    void renameAndRemove();
    void theLastColumnThatFits();
    void aNameInAnotherCaseEndsTheProgram_data();
    void aNameInAnotherCaseEndsTheProgram();
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

QTEST_MAIN(Columns)
#include "columns.moc"
