#include "gui/dialogs/fontDialog.h"
#include "layoutPage.h"

class SmallScreen : public QObject {
    Q_OBJECT

    Folders folders_;

private slots:
    void newInvoicesAndTheNextTab() {
        Folders::forgetSettings();
        LayoutSession run(folders_.sample("invoices.fwk"));
        run.showLayout();
        run.navigate("New");
        QCOMPARE(run.find<QLabel>("recordPosition")->text(), u"New record"_s);
        run.play(u"do Design; focus layoutPic2; key Ctrl+Tab"_s);
        QCOMPARE(run.app.mainFrm.SSTab1, app::previewTab);
    }
    void theFontBoxFollowsItsSize() {
        gui::FontDialog box({.FontName = "Sans Serif", .FontSize = 18}, nullptr);
        QCOMPARE(box.findChild<QListWidget*>(u"sizeList"_s)->selectedItems().at(0)->text(), u"18"_s);
    }
};
QTEST_MAIN(SmallScreen)
#include "smallScreen.moc"
