#include "session.h"

// The dialog of the versions: what it shows, and when it shows the state anew.
class VersionsTest : public GuiTest {
    Q_OBJECT

private:
    // The rows of a list, "a|b", as its columns stand.
    static QStringList rows(const QTreeView& list) {
        QStringList all;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            QStringList cells;
            for (int place = 0; place < list.model()->columnCount(); ++place)
                cells << list.model()->index(row, list.header()->logicalIndex(place)).data().toString();
            all << cells.join(u'|');
        }
        return all;
    }

private slots:
    void shownAndRestored() {
        Session run(sample("books.fwk"));
        const auto* present = run.find<QTreeView>(u"LV"_s);
        const QStringList first = rows(*present);
        run.platform.inputs = {"1", "1"}; // copies
        for (int i = 0; i < 2; ++i) run.act(u"click mnuDuplicate; click mnuSave"_s);
        QCOMPARE(rows(*present).size(), first.size() + 2);
        run.onDialog = [&](QDialog& form) {
            auto* list = form.findChild<QTreeWidget*>(u"List1"_s);
            auto* records = form.findChild<QTreeView*>(u"LV"_s);
            QCOMPARE(list->topLevelItemCount(), 2);
            QCOMPARE(list->topLevelItem(1)->text(2).toInt(), first.size() - 1); // without the Totals row
            QVERIFY(list->hasFocus() && !records->isVisible());
            QTest::keyClick(list, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Return);
            QVERIFY(form.frameGeometry().bottom() <= form.screen()->geometry().bottom());
            QCOMPARE(rows(*records), first);
            QTest::keyClick(list, Qt::Key_Up);
            QVERIFY(!records->isVisible());
            QTest::keyClick(list, Qt::Key_Down);
            form.findChild<QPushButton*>(u"restoreBtn"_s)->click();
        };
        run.act(u"click mnuVersions"_s);
        QCOMPARE(rows(*present), first);
        QVERIFY(run.app.document.bModified);

        run.onDialog = [](QDialog& form) {
            auto* megabytes = form.findChild<QSpinBox*>(u"Text1"_s);
            megabytes->setFocus();
            megabytes->selectAll();
            QTest::keyClicks(megabytes, u"75"_s);
            form.findChild<QCheckBox*>(u"Check1"_s)->click();
            QVERIFY(!megabytes->isEnabled());
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.act(u"click mnuVersions"_s);
        QCOMPARE(run.platform.getSetting("VersionsMegabytes", ""), "75");
        QCOMPARE(run.platform.getSetting("KeepVersions", ""), "False");
    }
};

QTEST_MAIN(VersionsTest)
#include "versions.moc"
