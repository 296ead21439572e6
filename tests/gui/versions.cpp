#include "session.h"

// The dialog of the versions: what it shows, and when it shows the state anew.
class Versions : public GuiTest {
    Q_OBJECT

private slots:
    void shownAndRestored() {
        Session run(sample("books.fwk"));
        const core::RecordsList& present = run.app.document.LV;
        const int first = present.count();
        run.platform.inputs = {"1", "1"}; // copies
        for (int i = 0; i < 2; ++i) run.act(u"click mnuDuplicate; click mnuSave"_s);
        QCOMPARE(present.count(), first + 2);
        run.onDialog = [&](QDialog& form) {
            auto* list = form.findChild<QTreeWidget*>(u"List1"_s);
            auto* records = form.findChild<QTreeView*>(u"LV"_s);
            QCOMPARE(list->topLevelItem(1)->text(2).toInt(), first - 1); // without the Totals row
            QVERIFY(list->hasFocus() && !records->isVisible());
            run.act(u"press Down; press Return"_s);
            QVERIFY(form.frameGeometry().bottom() <= form.screen()->geometry().bottom());
            QCOMPARE(records->model()->rowCount(), first);
            run.act(u"press Up"_s);
            QVERIFY(!records->isVisible());
            run.act(u"press Down; click restoreBtn"_s);
        };
        run.act(u"click mnuVersions"_s);
        QVERIFY(present.count() == first && run.app.document.bModified);
    }
};

GUI_TEST(Versions)
#include "versions.moc"
