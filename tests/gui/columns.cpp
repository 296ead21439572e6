#include "formActs.h"

#include "entry/editRecord.h"

using platform::Answer;

// What a user does to define the columns of a database.
class Columns : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }
    void aDatabaseFromNothing() {
        const QString file = folders_.path("made.fwk");
        const QStringList columns = {u"Item Text NA NA"_s, u"No Number NA ON"_s, u"Day Date ON NA"_s,
                                     u"Unit_Price Currency NA NA"_s, u"Total Calculation NA NA"_s};
        {
            Session run;
            run.platform.chosenFile = gui::fromQt(file);
            run.platform.scripts[u"databaseTypeFrm"_s] = [](QDialog& form) {
                QTest::keyClick(&form, Qt::Key_Escape);
            };
            run.action("mnuNew")->trigger();
            QVERIFY(!QFile::exists(file));
            run.platform.scripts[u"databaseTypeFrm"_s] = [&](QDialog& form) {
                QCOMPARE(form.windowTitle(), u"Choose your database format."_s);
                QVERIFY(in<QRadioButton>(form, "Option1")->isChecked());
                click(form, "Option2");
                QVERIFY(in<QRadioButton>(form, "Option2")->isChecked());
                click(form, "Option1");
                click(form, "OKButton");
            };
            run.platform.scripts[u"designFrm"_s] = [&](QDialog& form) {
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
            QCOMPARE(run.platform.messages[0].text, u"Auto enter today's date when entering data?"_s);
            QCOMPARE(run.platform.messages[0].caption, u"Entry Options"_s);
            QCOMPARE(run.platform.messages[1].text, u"Auto increment value when entering data?"_s);
            QCOMPARE(run.window.windowTitle(), u"Ferrowick - "_s + file);
            QCOMPARE(run.panel(6), u"Database Style: Standard"_s);
            QCOMPARE(run.rows(), 1); // the Totals row
            QVERIFY(run.action("Formulas")->isEnabled());

            run.platform.scripts[u"formulateFrm"_s] = [](QDialog& form) {
                QVERIFY(!in<QTreeWidget>(form, "fieldList")->isEnabled());
                QVERIFY(!in(form, "addCalcBtn")->isEnabled());
                QVERIFY(in<QPlainTextEdit>(form, "expTxt")->isReadOnly());
                QCOMPARE(rows(form, "colList"), QStringList{u"Total Undefined"_s});
                QCOMPARE(rows(form, "fieldList"), (QStringList{u"No"_s, u"Unit_Price"_s, u"Total"_s}));
                clickRow(form, "colList", "Total");
                for (const char* key : {"operatorBtn4", "fieldList", "operatorBtn0", "NumKey1", "NumKey10",
                                        "NumKey5", "operatorBtn5", "operatorBtn2", "NumKey2", "NumKey0"}) {
                    if (qstrcmp(key, "fieldList") == 0)
                        clickRow(form, key, "Unit_Price");
                    else
                        click(form, key);
                }
                QCOMPARE(expression(form), u" ( Unit_Price + 1.5 )  * 20"_s);
                click(form, "addCalcBtn");
                QCOMPARE(expression(form), QString());
                click(form, "donebtn");
            };
            run.action("mnuExpressionEditor")->trigger();
            run.platform.scripts[u"TotalsFrm"_s] = [](QDialog& form) {
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
        QCOMPARE(again.cell(0, "Total"), u"$70.00"_s);
        QCOMPARE(again.cell(1, "Total"), u"$95.00"_s);
        QCOMPARE(again.cell(2, "Total"), u"$165.00"_s);
        QCOMPARE(again.cell(2, "Item"), u"------"_s);
        const auto look = [&](const char* name, const char* command,
                              const std::function<void(QDialog&)>& act) {
            again.platform.scripts[QLatin1String(name)] = act;
            again.action(command)->trigger();
        };
        look("designFrm", "mnuDatabaseProperties", [&](QDialog& form) {
            QCOMPARE(rows(form, "List1"), columns);
            form.close();
        });
        look("formulateFrm", "Formulas", [](QDialog& form) {
            QCOMPARE(rows(form, "colList"), QStringList{u"Total  ( Unit_Price + 1.5 )  * 20"_s});
            QTest::keyClick(&form, Qt::Key_Escape);
        });
        look("serialFrm", "mnuSerialAdjust", [](QDialog& form) {
            clickRow(form, "List1", "No");
            QCOMPARE(in<QLineEdit>(form, "Text1")->text(), u"2"_s);
            click(form, "CancelButton");
        });
        QCOMPARE(again.platform.forms.size(), 3);
        QVERIFY(again.platform.messages.empty());
    }

    void theNameBoxAndItsFocus() {
        Session run(folders_.sample("invoices.fwk"));
        run.platform.scripts[u"designFrm"_s] = [&](QDialog& form) {
            auto* name = in<QLineEdit>(form, "fieldTxt");
            QCOMPARE(QApplication::focusWidget(), name);
            QVERIFY(!in<QWidget>(form, "typeOpt5")->isVisible()); // no pictures in an invoice database
            QVERIFY(in<QRadioButton>(form, "typeOpt0")->isChecked());
            QTest::keyClicks(name, u"My "_s);
            QCOMPARE(name->text(), u"My_"_s);
            QTest::keyClicks(name, u"Price"_s);
            name->setCursorPosition(0);
            QTest::keyClick(name, Qt::Key_A);
            QCOMPARE(name->text(), u"aMy_Price"_s);
            QCOMPARE(name->cursorPosition(), 9); // at the end after every change
            click(form, "typeOpt3");
            QCOMPARE(QApplication::focusWidget(), name);
            click(form, "addBtn");
            QCOMPARE(rows(form, "List1").last(), u"aMy_Price Number NA OFF"_s);
            QCOMPARE(QApplication::focusWidget(), name);
            QCOMPARE(name->text(), QString());
            QTest::keyClick(name, Qt::Key_Return);
            // The keyboard's double click: the first row is a serial number, and No switches it off.
            auto* list = in<QTreeWidget>(form, "List1");
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Home);
            run.platform.answers = {Answer::No};
            QTest::keyClick(list, Qt::Key_Return);
            QCOMPARE(rows(form, "List1").first(), u"Invoice_No Number NA OFF"_s);
            click(form, "doneBtn");
        };
        run.action("Properties")->trigger();
        QCOMPARE(run.platform.messages.size(), 2U);
        QCOMPARE(run.app.document.SerialsLV.count(), 0);
        // The column is there in the list that is shown.
        QVERIFY(run.section("aMy_Price", "iLV") > 0);
    }

    void renameAndRemove() {
        Session run(folders_.sample("books.fwk"));
        run.platform.scripts[u"designFrm"_s] = [&](QDialog& form) {
            click(form, "changeBtn"); // no row is chosen: nothing happens
            clickRow(form, "List1", "Price");
            in<QLineEdit>(form, "fieldTxt")->clear();
            QTest::keyClicks(in<QLineEdit>(form, "fieldTxt"), u"Paid"_s);
            run.platform.answers = {Answer::Yes, Answer::Yes,
                                    Answer::Yes}; // labels too; twice for what is lost
            click(form, "changeBtn");
            QCOMPARE(run.app.document.formulas.items(), std::vector<std::string>{"Value,Paid * Copies"});
            clickRow(form, "List1", "Paid");
            click(form, "deleteBtn");
            QCOMPARE(rows(form, "List1").size(), 8);
            form.close();
        };
        run.action("mnuDatabaseProperties")->trigger();
        QCOMPARE(run.platform.messages.size(), 3U);
        QCOMPARE(run.cell(0, "Value"), u"Undefined"_s);
    }

    void aNameInAnotherCaseEndsTheProgram() {
        Session run(folders_.sample("books.fwk"));
        int ended = 0;
        run.window.events().endProgram = [&] { ++ended; };
        run.platform.scripts[u"designFrm"_s] = [&](QDialog& form) {
            addColumn(form, "typeOpt1", "price");
            QCOMPARE(ended, 1); // told at once, while the form is there
            form.close();
        };
        run.action("mnuDatabaseProperties")->trigger();
        QCOMPARE(ended, 1);
        QCOMPARE(run.platform.messages.size(), 1U);
        QVERIFY(run.platform.messages.front().text.contains("Error 35602"_L1));
        Session copy(copyTold(run));
        QCOMPARE(copy.LV().columns.count(), 10);
    }
};

QTEST_MAIN(Columns)
#include "columns.moc"
