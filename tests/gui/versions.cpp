#include "journey.h"

// The dialog of the versions: what it shows, and when it shows the state anew.
class Versions : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }

    void shownAndRestored() {
        Session run(folders_.sample("books.fwk"));
        const QStringList first = run.texts();
        run.platform.inputs = {"1", "1"}; // copies
        for (int i = 0; i < 2; ++i) {
            run.LV().setSelectedItem(&run.LV().at(1));
            run.action("mnuDuplicate")->trigger();
            run.action("mnuSave")->trigger();
        }
        QCOMPARE(run.rows(), first.size() + 2);
        run.platform.scripts[u"versionsFrm"_s] = [&](QDialog& form) {
            auto* list = form.findChild<QTreeWidget*>(u"List1"_s);
            auto* records = form.findChild<QTreeView*>(u"LV"_s);
            QStringList counts;
            for (int row = 0; row < list->topLevelItemCount(); ++row)
                counts << list->topLevelItem(row)->text(2);
            QCOMPARE(counts.join(u' '),
                     u"%1 %2"_s.arg(first.size()).arg(first.size() - 1)); // without the Totals row
            QCOMPARE(QApplication::focusWidget(), list);
            QVERIFY(!records->isVisible());
            QTest::keyClick(list, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Return);
            QVERIFY(records->isVisible() &&
                    form.frameGeometry().bottom() <= form.screen()->geometry().bottom());
            QStringList shown;
            for (int row = 0; row < records->model()->rowCount(); ++row) {
                QStringList cells;
                for (int place = 0; place < records->model()->columnCount(); ++place)
                    cells << records->model()
                                 ->index(row, records->header()->logicalIndex(place))
                                 .data()
                                 .toString();
                shown << cells.join(u'|');
            }
            QCOMPARE(shown, first);
            QTest::keyClick(list, Qt::Key_Up);
            QVERIFY(!records->isVisible());
            QTest::keyClick(list, Qt::Key_Down);
            form.findChild<QPushButton*>(u"restoreBtn"_s)->click();
        };
        run.action("mnuVersions")->trigger();
        QCOMPARE(run.texts(), first);
        QCOMPARE(run.panel(5), u"Document Modified"_s);

        run.platform.scripts[u"versionsFrm"_s] = [](QDialog& form) {
            auto* megabytes = form.findChild<QSpinBox*>(u"Text1"_s);
            megabytes->setFocus();
            megabytes->selectAll();
            QTest::keyClicks(megabytes, u"75"_s);
            form.findChild<QCheckBox*>(u"Check1"_s)->click();
            QVERIFY(!megabytes->isEnabled());
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.action("mnuVersions")->trigger();
        QCOMPARE(run.platform.getSetting("VersionsMegabytes", ""), "75");
        QCOMPARE(run.platform.getSetting("KeepVersions", ""), "False");
    }
};

QTEST_MAIN(Versions)
#include "versions.moc"
