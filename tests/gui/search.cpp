#include "session.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTreeWidget>

// What a user finds, does with what he has found, and keeps of it.
class Search : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    template <typename Widget>
    static Widget* find(QDialog& dialog, const char* name) {
        auto* found = dialog.findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) qFatal("no %s", name);
        return found;
    }
    static void chooseColumn(QDialog& dialog, const char* list, const char* column) {
        auto* columns = find<QListWidget>(dialog, list);
        QListWidgetItem* item = columns->findItems(QLatin1String(column), Qt::MatchExactly).value(0);
        if (item == nullptr) qFatal("no column %s", column);
        columns->scrollToItem(item);
        QTest::mouseClick(columns->viewport(), Qt::LeftButton, {}, columns->visualItemRect(item).center());
    }
    static void click(QDialog& dialog, const char* button) {
        QTest::mouseClick(find<QAbstractButton>(dialog, button), Qt::LeftButton);
    }
    static void choose(QDialog& dialog, const char* option) {
        QTest::keyClick(find<QRadioButton>(dialog, option), Qt::Key_Space);
    }
    static void clickHeader(gui::RecordsView& list, int section) {
        const QHeaderView* header = list.header();
        const QPoint place(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                           header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }
    static QLineEdit* type(QDialog& dialog, const char* name, const char* text) {
        auto* box = find<QLineEdit>(dialog, name);
        box->setFocus();
        box->clear();
        QTest::keyClicks(box, QLatin1String(text));
        return box;
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void findsSortsAndKeepsRecords();
    void theDialogChecksWhatIsTyped();
    void threeGroupsAndAllAgain();
    void aDateThatCannotBeReadEndsTheProgramWithACopy();
    void replacesWords();
};

void Search::findsSortsAndKeepsRecords() {
    const QString file = folders_.sample("books.fwk");
    Session run(file);
    run.platform.scripts[QStringLiteral("searchFrm")] = [&](QDialog& dialog) {
        chooseColumn(dialog, "List1", "Author");
        choose(dialog, "Opt1_3");
        QTest::keyClick(type(dialog, "SearchText_0", "homer"), Qt::Key_Return);
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
    QCOMPARE(run.panel(1), QStringLiteral("%1 records.").arg(found));
    for (int row = 0; row < found; ++row)
        QCOMPARE(run.cell(row, "Author", "searchLV"), QStringLiteral("Homer"));
    QCOMPARE(run.cell(found, "Author", "searchLV"), QStringLiteral("------"));

    const auto numbers = [&](const char* list) {
        QList<int> all;
        for (int row = 0; row + 1 < run.rows(list); ++row) all << run.cell(row, "No", list).toInt();
        return all;
    };
    const QList<int> inFileOrder = numbers("searchLV");
    clickHeader(*run.list("searchLV"), run.section("No", "searchLV"));
    QList<int> descending = inFileOrder;
    std::ranges::sort(descending, std::greater());
    QCOMPARE(numbers("searchLV"), descending);
    QCOMPARE(numbers("LV").size(), 42); // the records stay as they are
    QCOMPARE(run.cell(0, "No"), QStringLiteral("1"));

    run.action("Totals")->trigger();
    run.clickRow(1, {}, "searchLV");
    const core::Item& clicked = run.app.document.searchLV.at(2);
    QCOMPARE(run.app.document.searchLV.selectedItem(), &clicked);
    QCOMPARE(gui::toQt(run.app.document.LV3.at(1).subItem(1).view()), QString::number(descending[1]));

    // One of them is changed through the Entry Form, and the record changes with it.
    const QString number = run.cell(1, "No", "searchLV");
    run.platform.scripts[QStringLiteral("entryFrm")] = [&](QDialog& dialog) {
        const auto boxes = dialog.findChildren<QLineEdit*>(QRegularExpression(QStringLiteral("^FieldBox")));
        QCOMPARE(boxes.value(0)->text(), number);
        QTest::keyClick(boxes.last(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(boxes.last(), QStringLiteral("read again"));
        dialog.findChild<QAction*>(QStringLiteral("Update"))->trigger();
        dialog.close();
    };
    run.window.events().run([&] { run.platform.showForm("entryFrm"); });
    QCOMPARE(run.cell(1, "Notes", "searchLV"), QStringLiteral("read again"));
    QCOMPARE(run.cell(number.toInt() - 1, "Notes"), QStringLiteral("read again"));

    run.platform.chosenFile = gui::fromQt(folders_.path("homer.fwk"));
    run.action("mnuSaveSearch")->trigger();
    QVERIFY(run.platform.messages.empty());
    QCOMPARE(run.panel(5), QStringLiteral("Document Saved"));
    run.action("Search")->trigger(); // up again
    QVERIFY(run.list()->isVisible());
    QCOMPARE(run.panel(1), QStringLiteral("42 records."));
    QVERIFY(run.action("Formulas")->isEnabled() && run.action("Delete")->isEnabled());

    run.action("mnuOpen")->trigger();
    QCOMPARE(run.rows(), found + 1);
    QCOMPARE(numbers("LV"), descending);
    QCOMPARE(run.cell(1, "Notes"), QStringLiteral("read again"));
}

void Search::theDialogChecksWhatIsTyped() {
    Session run(folders_.sample("books.fwk"));
    auto& messages = run.platform.messages;
    run.platform.scripts[QStringLiteral("searchFrm")] = [&](QDialog& dialog) {
        dialog.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &dialog); // before that no box gets the focus
        auto* range = find<QRadioButton>(dialog, "Opt2_4");
        QVERIFY(range->isEnabled()); // the first column is a number
        chooseColumn(dialog, "List2", "Title");
        QVERIFY(!range->isEnabled());
        QVERIFY(find<QRadioButton>(dialog, "Opt1_4")->isEnabled());

        chooseColumn(dialog, "List2", "Price");
        QLineEdit* value = type(dialog, "SearchText_2", "1234");
        QTest::keyClick(value, Qt::Key_Tab);
        QTRY_COMPARE(value->text(), QStringLiteral("12.34"));

        chooseColumn(dialog, "List2", "Bought");
        QCOMPARE(value->text(), QString()); // what was typed for another column
        type(dialog, "SearchText_2", "12312");
        QCOMPARE(value->text(), QStringLiteral("12/31/2"));
        QCOMPARE(value->cursorPosition(), 7);
        type(dialog, "SearchText_2", "13");
        find<QLineEdit>(dialog, "SearchText_3")->setFocus();
        QTRY_COMPARE(messages.size(), 1U);
        QCOMPARE(messages[0].text, QStringLiteral("You entered an invalid date."));
        QCOMPARE(value->text(), QString());
        // The check of a box comes ahead of what the button does, also by its shortcut.
        type(dialog, "SearchText_3", "99");
        QTest::keyClick(&dialog, Qt::Key_A, Qt::AltModifier);
        QTRY_COMPARE(messages.size(), 2U);
        // Waving the dialog away asks nothing.
        type(dialog, "SearchText_3", "99");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    run.action("mnuSearch")->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(messages.size(), 2U);
    QVERIFY(!run.action("Search")->isChecked());
    QVERIFY(run.action("Delete")->isEnabled());
    QVERIFY(run.list()->isVisible());
}

void Search::threeGroupsAndAllAgain() {
    Session run(folders_.sample("books.fwk"));
    run.platform.scripts[QStringLiteral("searchFrm")] = [&](QDialog& dialog) {
        chooseColumn(dialog, "List1", "Title");
        choose(dialog, "Opt1_3");
        type(dialog, "SearchText_0", "the");
        chooseColumn(dialog, "List2", "Price");
        choose(dialog, "Opt2_4");
        type(dialog, "SearchText_2", "5");
        type(dialog, "SearchText_3", "10");
        chooseColumn(dialog, "List3", "Copies");
        choose(dialog, "Opt3_2");
        type(dialog, "SearchText_4", "2");
        click(dialog, "searchBtn");
        QCOMPARE(run.rows("searchLV"), 3);
        QCOMPARE(run.panel(1), QStringLiteral("2 records."));
        QVERIFY(!run.list()->isVisible());
        click(dialog, "allBtn");
        QVERIFY(dialog.isVisible() && run.list()->isVisible());
        QCOMPARE(run.panel(1), QStringLiteral("42 records."));
        click(dialog, "closeBtn");
    };
    run.action("Search")->trigger();
    QVERIFY(!run.action("Search")->isChecked());
}

void Search::aDateThatCannotBeReadEndsTheProgramWithACopy() {
    Session run(folders_.sample("books.fwk"));
    int ended = 0;
    run.window.events().endProgram = [&] { ++ended; };
    run.platform.scripts[QStringLiteral("searchFrm")] = [&](QDialog& dialog) {
        run.LV().at(1).cells[1] = "1/5/2004"; // a title that reads like a date
        chooseColumn(dialog, "List1", "Title");
        type(dialog, "SearchText_0", "the");
        click(dialog, "searchBtn");
        QCOMPARE(ended, 1);
        dialog.close();
    };
    run.action("Search")->trigger();
    QCOMPARE(run.platform.messages.size(), 1U);
    const QString text = run.platform.messages.front().text;
    QVERIFY2(text.contains(QLatin1String("Error 13")), qPrintable(text));
    Session next(text.section(QLatin1Char('\n'), -1));
    QCOMPARE(next.cell(0, "Title"), QStringLiteral("1/5/2004"));
}

void Search::replacesWords() {
    Session run(folders_.sample("books.fwk"));
    const QString title = run.cell(0, "Title");
    QVERIFY(title.startsWith(QLatin1String("The ")));
    run.platform.scripts[QStringLiteral("replaceFrm")] = [&](QDialog& dialog) {
        type(dialog, "Text1", "the");
        QTest::keyClick(type(dialog, "Text2", "An"), Qt::Key_Return); // no button is the default one
        QCOMPARE(run.cell(0, "Title"), title);
        click(dialog, "Command3"); // no column is selected
        QCOMPARE(run.cell(0, "Title"), title);
        auto* columns = find<QTreeWidget>(dialog, "List1");
        QCOMPARE(columns->topLevelItemCount(), 10);
        columns->findItems(QStringLiteral("Notes"), Qt::MatchExactly).value(0)->setSelected(true);
        click(dialog, "Command3");
        QCOMPARE(run.cell(0, "Title"), title);
        click(dialog, "Command1");
        QCOMPARE(run.cell(0, "Title"), QStringLiteral("An ") + title.mid(4));
        QVERIFY(dialog.isVisible());
        click(dialog, "Command2");
        QVERIFY(!dialog.isVisible());
    };
    run.action("mnuReplace")->trigger();
    QCOMPARE(run.platform.forms, QStringList{QStringLiteral("replaceFrm")});
    QCOMPARE(run.panel(5), QStringLiteral("Document Opened"));
}

QTEST_MAIN(Search)
#include "search.moc"
