#include "formActs.h"

#include <QRegularExpression>

// What a user finds, does with what he has found, and keeps of it.
class Search : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    static void choose(QDialog& dialog, const char* option) {
        QTest::keyClick(in<QRadioButton>(dialog, option), Qt::Key_Space);
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void findsSortsAndKeepsRecords() {
        const QString file = folders_.sample("books.fwk");
        Session run(file);
        run.platform.scripts[u"searchFrm"_s] = [&](QDialog& dialog) {
            chooseColumn(dialog, "List1", "Author");
            choose(dialog, "Opt1_3");
            QTest::keyClick(typeIn(dialog, "SearchText_0", "homer"), Qt::Key_Return);
            QVERIFY(dialog.isVisible()); // the results are there behind it
            QVERIFY(run.list("searchLV")->isVisible());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        };
        run.action("Search")->trigger();
        QVERIFY(run.action("Search")->isChecked());
        QVERIFY(!run.action("Formulas")->isEnabled() && !run.action("Delete")->isEnabled());
        QVERIFY(!run.list()->isVisible());
        const int found = run.rows("searchLV") - 1;
        QVERIFY(found > 1);
        QCOMPARE(run.panel(1), u"%1 records."_s.arg(found));
        for (int row = 0; row < found; ++row) QCOMPARE(run.cell(row, "Author", "searchLV"), u"Homer"_s);
        QCOMPARE(run.cell(found, "Author", "searchLV"), u"------"_s);

        const auto numbers = [&](const char* list) {
            QList<int> all;
            for (int row = 0; row + 1 < run.rows(list); ++row) all << run.cell(row, "No", list).toInt();
            return all;
        };
        const QList<int> inFileOrder = numbers("searchLV");
        run.clickHeader("No", "searchLV");
        QList<int> descending = inFileOrder;
        std::ranges::sort(descending, std::greater());
        QCOMPARE(numbers("searchLV"), descending);
        QCOMPARE(numbers("LV").size(), 42); // the records stay as they are
        QCOMPARE(run.cell(0, "No"), u"1"_s);

        run.action("Totals")->trigger();
        run.clickRow(1, {}, "searchLV");
        const core::Item& clicked = run.app.document.searchLV.at(2);
        QCOMPARE(run.app.document.searchLV.selectedItem(), &clicked);
        QCOMPARE(gui::toQt(run.app.document.LV3.at(1).subItem(1).view()), QString::number(descending[1]));

        // One of them is changed through the Entry Form, and the record changes with it.
        const QString number = run.cell(1, "No", "searchLV");
        run.platform.scripts[u"entryFrm"_s] = [&](QDialog& dialog) {
            const auto boxes = dialog.findChildren<QLineEdit*>(QRegularExpression(u"^FieldBox"_s));
            QCOMPARE(boxes.value(0)->text(), number);
            QTest::keyClick(boxes.last(), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(boxes.last(), u"read again"_s);
            dialog.findChild<QAction*>(u"Update"_s)->trigger();
            dialog.close();
        };
        run.window.events().run([&] { run.platform.showForm("entryFrm"); });
        QCOMPARE(run.cell(1, "Notes", "searchLV"), u"read again"_s);
        QCOMPARE(run.cell(number.toInt() - 1, "Notes"), u"read again"_s);

        run.platform.chosenFile = gui::fromQt(folders_.path("homer.fwk"));
        run.action("mnuSaveSearch")->trigger();
        QVERIFY(run.platform.messages.empty());
        QCOMPARE(run.panel(5), u"Document Saved"_s);
        run.action("Search")->trigger(); // up again
        QVERIFY(run.list()->isVisible());
        QCOMPARE(run.panel(1), u"42 records."_s);
        QVERIFY(run.action("Formulas")->isEnabled() && run.action("Delete")->isEnabled());

        run.action("mnuOpen")->trigger();
        QCOMPARE(run.rows(), found + 1);
        QCOMPARE(numbers("LV"), descending);
        QCOMPARE(run.cell(1, "Notes"), u"read again"_s);
    }

    void theDialogChecksWhatIsTyped() {
        Session run(folders_.sample("books.fwk"));
        auto& messages = run.platform.messages;
        run.platform.scripts[u"searchFrm"_s] = [&](QDialog& dialog) {
            dialog.activateWindow();
            QTRY_COMPARE(QApplication::activeWindow(), &dialog); // before that no box gets the focus
            auto* range = in<QRadioButton>(dialog, "Opt2_4");
            QVERIFY(range->isEnabled()); // the first column is a number
            chooseColumn(dialog, "List2", "Title");
            QVERIFY(!range->isEnabled());
            QVERIFY(in<QRadioButton>(dialog, "Opt1_4")->isEnabled());

            chooseColumn(dialog, "List2", "Price");
            QLineEdit* value = typeIn(dialog, "SearchText_2", "1234");
            QTest::keyClick(value, Qt::Key_Tab);
            QTRY_COMPARE(value->text(), u"12.34"_s);

            chooseColumn(dialog, "List2", "Bought");
            QCOMPARE(value->text(), QString()); // what was typed for another column
            typeIn(dialog, "SearchText_2", "12312");
            QCOMPARE(value->text(), u"12/31/2"_s);
            QCOMPARE(value->cursorPosition(), 7);
            typeIn(dialog, "SearchText_2", "13");
            in<QLineEdit>(dialog, "SearchText_3")->setFocus();
            QTRY_COMPARE(messages.size(), 1U);
            QCOMPARE(messages[0].text, u"You entered an invalid date."_s);
            QCOMPARE(value->text(), QString());
            // The check of a box comes ahead of what the button does, also by its shortcut.
            typeIn(dialog, "SearchText_3", "99");
            QTest::keyClick(&dialog, Qt::Key_A, Qt::AltModifier);
            QTRY_COMPARE(messages.size(), 2U);
            // Waving the dialog away asks nothing.
            typeIn(dialog, "SearchText_3", "99");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        };
        run.action("mnuSearch")->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(messages.size(), 2U);
        QVERIFY(!run.action("Search")->isChecked());
        QVERIFY(run.action("Delete")->isEnabled());
        QVERIFY(run.list()->isVisible());
    }

    void threeGroupsAndAllAgain() {
        Session run(folders_.sample("books.fwk"));
        run.window.resize(700, 400);
        run.platform.scripts[u"searchFrm"_s] = [&](QDialog& dialog) {
            typeIn(dialog, "SearchText_0", "1"); // and what is more
            click(dialog, "searchBtn");
            QCOMPARE(run.rows("searchLV"), 43);
            const QScrollBar* scroll = run.list("searchLV")->verticalScrollBar();
            QVERIFY(scroll->maximum() > 0);
            QCOMPARE(scroll->value(), 0); // though the last one is selected
            chooseColumn(dialog, "List1", "Title");
            choose(dialog, "Opt1_3");
            typeIn(dialog, "SearchText_0", "the");
            chooseColumn(dialog, "List2", "Price");
            choose(dialog, "Opt2_4");
            typeIn(dialog, "SearchText_2", "5");
            typeIn(dialog, "SearchText_3", "10");
            chooseColumn(dialog, "List3", "Copies");
            choose(dialog, "Opt3_2");
            typeIn(dialog, "SearchText_4", "2");
            click(dialog, "searchBtn");
            QCOMPARE(run.rows("searchLV"), 3);
            click(dialog, "allBtn");
            QVERIFY(dialog.isVisible() && run.list()->isVisible());
            click(dialog, "closeBtn");
        };
        run.action("Search")->trigger();
        QVERIFY(!run.action("Search")->isChecked());
    }

    void replacesWords() {
        Session run(folders_.sample("books.fwk"));
        const QString title = run.cell(0, "Title");
        run.platform.scripts[u"replaceFrm"_s] = [&](QDialog& dialog) {
            typeIn(dialog, "Text1", "the");
            QTest::keyClick(typeIn(dialog, "Text2", "An"), Qt::Key_Return); // no button is the default one
            auto* columns = in<QTreeWidget>(dialog, "List1");
            columns->findItems(u"Notes"_s, Qt::MatchExactly).value(0)->setSelected(true);
            click(dialog, "Command3");
            QCOMPARE(run.cell(0, "Title"), title);
            click(dialog, "Command1");
            QCOMPARE(run.cell(0, "Title"), u"An "_s + title.mid(4));
            click(dialog, "Command2");
            QVERIFY(!dialog.isVisible());
        };
        run.action("mnuReplace")->trigger();
        QCOMPARE(run.platform.forms, QStringList{u"replaceFrm"_s});
    }
};

QTEST_MAIN(Search)
#include "search.moc"
