#include "formActs.h"

#include "calc/selectedTotals.h"

#include <QDropEvent>
#include <QMimeData>

// What a user does in the main window, from the start of the program to its end.
class Journeys : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }
    void startsEmptyWithTheWayToBegin() {
        Session run;
        QCOMPARE(run.window.windowTitle(), u"Ferrowick"_s);
        QCOMPARE(run.panel(5), u"No Open Document"_s);
        QVERIFY(run.find<QWidget>("startPage")->isVisible());
        QVERIFY(!run.list()->isVisible());
        QVERIFY(!run.find<QTabWidget>("SSTab1")->tabBar()->isEnabled());
        QVERIFY(!run.find<QMenu>("mnuTools")->menuAction()->isEnabled());
        QVERIFY(!run.action("mnuFile1")->isVisible());

        auto* open = run.find<QPushButton>("start_mnuOpen");
        QTest::mouseClick(open, Qt::LeftButton); // the dialog is cancelled
        QVERIFY(run.find<QWidget>("startPage")->isVisible());
        run.platform.chosenFile = gui::fromQt(folders_.sample("books.fwk"));
        QTest::mouseClick(open, Qt::LeftButton);
        QVERIFY(run.list()->isVisible());
        QCOMPARE(QApplication::focusWidget(), run.list());

        // A file that cannot be read leaves the empty window again, which now knows a recent file.
        QFile broken(folders_.path("broken.fwk"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no archive") > 0);
        broken.close();
        run.platform.chosenFile = gui::fromQt(broken.fileName());
        run.action("Open")->trigger();
        QVERIFY(run.platform.messages.empty());
        QVERIFY(run.find<QWidget>("startPage")->isVisible());
        QTest::mouseClick(run.find<QPushButton>("start_mnuFile1"), Qt::LeftButton);
        QCOMPARE(run.rows(), 43);
    }

    void showsADatabase() {
        Session run(folders_.sample("books.fwk"));
        QCOMPARE(run.window.windowTitle(), u"Ferrowick - "_s + folders_.path("books.fwk"));
        QCOMPARE(run.panel(1), u"42 records."_s);
        QVERIFY(run.action("Save")->isEnabled());
        QCOMPARE(run.rows(), 43);
        QCOMPARE(run.cell(1, "Title"), u"Les Misérables"_s);
        const QAbstractItemModel* model = run.list()->model();
        const int price = run.section("Price");
        QVERIFY(model->index(0, price).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        QCOMPARE(model->index(0, price).data(Qt::ToolTipRole).toString(), u"Price"_s);
        QVERIFY(!model->headerData(run.section("Cover"), Qt::Horizontal, Qt::DecorationRole).isNull());
        QVERIFY(model->headerData(price, Qt::Horizontal, Qt::DecorationRole).isNull());
        // The Totals row alone is blue and bold.
        QCOMPARE(model->index(42, price).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::blue));
        QVERIFY(model->index(42, price).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(!model->index(41, price).data(Qt::FontRole).isValid());
        // The file has Price in front of Bought, and the table the other way round.
        const QHeaderView* header = run.list()->header();
        QVERIFY(price > run.section("Bought"));
        QVERIFY(header->visualIndex(price) < header->visualIndex(run.section("Bought")));
        QCOMPARE(header->sectionSize(run.section("No")), 700 / 15 + 1);
    }

    void aHeaderSortsAndTotalsStaysLast() {
        Session run(folders_.sample("books.fwk"));
        run.window.resize(700, 400);
        run.list()->verticalScrollBar()->setValue(4);
        for (const bool descending : {true, false}) {
            run.clickHeader("Author");
            QCOMPARE(run.cell(0, "Author"), descending ? u"Victor Hugo"_s : u"Bram Stoker"_s);
            QVERIFY(run.LV().at(run.rows()).isTotals());
            QCOMPARE(run.list()->header()->sortIndicatorSection(), run.section("Author"));
            QCOMPARE(run.list()->header()->sortIndicatorOrder(),
                     descending ? Qt::DescendingOrder : Qt::AscendingOrder);
            const int selected = run.LV().indexOf(*run.LV().selectedItem()) - 1;
            QCOMPARE(run.selectedRows(), QList<int>{selected});
            QCOMPARE(run.list()->verticalScrollBar()->value(), 4); // where it was, not at the selected one
        }
        // The arrow goes as soon as the rows stand in another order.
        run.platform.chosenFile = gui::fromQt(folders_.sample("packages-500.fwk"));
        run.list()->header()->setFocus();
        run.action("mnuOpen")->trigger();
        QCOMPARE(run.list()->header()->sortIndicatorSection(), -1);
        QVERIFY(run.list()->hasFocus());
    }

    void draggedAndSizedColumnsAreSaved() {
        const QString file = folders_.sample("books.fwk");
        {
            Session run(file);
            QHeaderView* header = run.list()->header();
            const int title = run.section("Title");
            const QPoint edge = run.headerPlace(title) + QPoint(header->sectionSize(title) / 2 - 1, 0);
            run.dragHeader(edge, edge + QPoint(-63, 0));
            QCOMPARE(run.LV().columns["Title"].Width, 15.0F * static_cast<float>(header->sectionSize(title)));
            QVERIFY(run.LV().columns["Title"].Width < 2400);
            // A double click on the divider fits the column to its longest text.
            run.LV().at(40).cells[1] = std::string(60, 'W');
            const QPoint divider = run.headerPlace(title) + QPoint(header->sectionSize(title) / 2 - 1, 0);
            QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, divider);
            QVERIFY(header->sectionSize(title) >
                    run.list()->fontMetrics().horizontalAdvance(QString(60, u'W')));
            QCOMPARE(run.LV().columns["Title"].Width, 15.0F * static_cast<float>(header->sectionSize(title)));
            run.dragHeader(run.headerPlace(run.section("Copies")), QPoint(3, 8));
            QCOMPARE(run.LV().columns["Copies"].Position, 2); // 1 is the hidden column
            QCOMPARE(run.LV().columns["Title"].Position, 4);
            QVERIFY(!run.app.document.bModified);
            run.action("Save")->trigger();
            QVERIFY(run.platform.messages.empty());
            QCOMPARE(run.panel(5), u"Document Saved"_s);
        }
        Session again(file);
        QCOMPARE(again.list()->header()->visualIndex(again.section("Copies")), 0);
        QCOMPARE(again.cell(0, "Copies"), u"1"_s);
        QVERIFY(again.list()->header()->sectionSize(again.section("Title")) > 400);
        file::Zip zip;
        zip.OpenArchive(gui::fromQt(file));
        QVERIFY(zip.contains("cover1.jpg"));
    }

    void selectionGoesBothWays() {
        Session run(folders_.sample("books.fwk"));
        const auto flags = [&] {
            QList<int> rows;
            for (int i = 1; i <= run.LV().count(); ++i)
                if (run.LV().at(i).Selected) rows << i - 1;
            return rows;
        };
        run.clickRow(3);
        run.clickRow(6, Qt::ShiftModifier);
        run.clickRow(5, Qt::ControlModifier);
        QCOMPARE(run.selectedRows(), (QList<int>{3, 4, 6}));
        QCOMPARE(flags(), run.selectedRows());
        QCOMPARE(run.LV().indexOf(*run.LV().selectedItem()), 6); // the row that was taken out has the focus
        QVERIFY(!run.LV().selectedItem()->Selected);
        QTest::keyClick(run.list(), Qt::Key_Down, Qt::ControlModifier); // the focus moves alone
        QTest::keyClick(run.list(), Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(run.LV().indexOf(*run.LV().selectedItem()), 8);
        QCOMPARE(flags(), (QList<int>{3, 4, 6}));
        QTest::keyClick(run.list(), Qt::Key_End);
        QCOMPARE(flags(), QList<int>{42});
        QTest::keyClick(run.list(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(flags().size(), 43);
        QVERIFY(!run.app.mainFrm.bCtrlDown);
        QTest::mouseClick(run.list()->header()->viewport(), Qt::LeftButton, {},
                          {run.list()->header()->length() + 20, 5});
        QCOMPARE(flags().size(), 43);

        run.window.events().run([&] { // what a handler does shows
            run.LV().clearSelection();
            run.LV().setSelectedItem(&run.LV().at(20));
            run.LV().at(22).Selected = true;
        });
        QCOMPARE(run.selectedRows(), (QList<int>{19, 21}));
        QCOMPARE(run.list()->currentIndex().row(), 19);
    }

    void selectedTotalsAddUp() {
        Session run(folders_.sample("books.fwk"));
        auto* sums = run.find<QTreeWidget>("LV3");
        QVERIFY(!sums->isVisible());
        run.action("Totals")->trigger();
        QVERIFY(sums->isVisible() && run.action("Totals")->isChecked());
        run.clickRow(0);
        run.clickRow(1, Qt::ControlModifier);
        QCOMPARE(rowOf(sums, "Price")->text(1), u"$37.09"_s);
        run.action("mnuSelectedTotals")->trigger();
        QVERIFY(!sums->isVisible() && !run.action("Totals")->isChecked());
    }

    void tabsAndTheirButtons() {
        Session run(folders_.sample("books.fwk"));
        QTabBar* bar = run.find<QTabWidget>("SSTab1")->tabBar();
        run.showTab(app::layoutTab);
        QCOMPARE(run.app.mainFrm.SSTab1, static_cast<int>(app::layoutTab));
        QVERIFY(!run.action("Totals")->isEnabled());
        QVERIFY(!run.list()->isVisible());
        run.showTab(app::reportTab);
        QVERIFY(run.action("Totals")->isEnabled());
        QCOMPARE(run.list()->selectionMode(), QAbstractItemView::ExtendedSelection);
        // A double click goes to the layout when the option says so.
        run.action("mnuLayoutDoubleClick")->trigger();
        QVERIFY(run.action("mnuLayoutDoubleClick")->isChecked());
        QTest::mouseDClick(run.list()->viewport(), Qt::LeftButton, {}, QPoint(40, 40));
        QCOMPARE(bar->currentIndex(), static_cast<int>(app::layoutTab));
    }

    void recentFilesAndSettingsLastToTheNextStart() {
        const QString books = folders_.sample("books.fwk");
        {
            Session run(folders_.sample("packages-500.fwk"));
            run.platform.chosenFile = gui::fromQt(books);
            run.action("mnuOpen")->trigger();
            QVERIFY(run.action("mnuFile1")->text().contains("books.fwk"_L1));
            QVERIFY(run.action("mnuFile2")->isVisible() && !run.action("mnuFile3")->isVisible());
            run.action("mnuAutoLoad")->trigger();
            run.window.resize(700, 500);
            run.action("mnuExit")->trigger();
            QVERIFY(!run.window.isVisible());
        }
        Session next;
        QCOMPARE(next.window.windowTitle(), u"Ferrowick - "_s + books);
        QVERIFY(next.action("mnuAutoLoad")->isChecked());
        QCOMPARE(next.window.size(), QSize(700, 500));
        next.action("mnuFile2")->trigger();
        QCOMPARE(next.rows(), 501);
    }

    void aDroppedFileOpens() {
        Session run;
        QMimeData data;
        const auto drop = [&](const QString& path) {
            data.setUrls({QUrl::fromLocalFile(path)});
            QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&run.window, &enter);
            QDropEvent event({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&run.window, &event);
            return enter.isAccepted();
        };
        QVERIFY(!drop(folders_.path("picture.png")));
        QVERIFY(run.platform.messages.empty() && run.app.document.currentFile.empty());
        QVERIFY(drop(folders_.sample("books.fwk")));
        QCOMPARE(run.rows(), 43);
    }

    void closingOffersToSave() {
        const QString file = folders_.sample("books.fwk");
        Session run(file);
        run.window.events().run([&] {
            run.LV().at(1).cells[1] = "changed";
            app::setDocumentModified(run.app, true);
        });
        QCOMPARE(run.cell(0, "Title"), u"changed"_s);
        run.platform.answers = {platform::Answer::No};
        run.window.close();
        QVERIFY(!run.window.isVisible());
        QCOMPARE(run.platform.messages.front().text, u"Save current document?"_s);
        QCOMPARE(Session(file).cell(0, "Title"), u"The Odyssey"_s);
    }

    void anErrorThatNobodyCaughtKeepsACopyAndEnds() {
        Session run(folders_.sample("books.fwk"));
        int ended = 0;
        run.window.events().endProgram = [&] { ++ended; };
        run.window.events().run([&] {
            run.LV().at(1).cells[1] = "not yet saved";
            run.LV().byKey("i999");
        });
        QCOMPARE(ended, 1);
        QCOMPARE(run.platform.messages.size(), 1U);
        QCOMPARE(run.platform.messages[0].icon, platform::Icon::Critical);
        QVERIFY(run.platform.messages[0].text.contains("Error 35601"_L1));
        Session next(copyTold(run));
        QCOMPARE(next.cell(0, "Title"), u"not yet saved"_s);
    }

    void aLargeListIsShownAndSelectedAsAWhole() {
        Session run(folders_.sample("packages-32000.fwk"));
        QCOMPARE(run.rows(), 32001);
        run.list()->selectAll();
        calc::collectSelected(run.app, run.LV());
        QCOMPARE(run.app.mainFrm.selectedRows.size(), 32001U);
        QTest::keyClick(run.list(), Qt::Key_End);
        QCOMPARE(run.list()->currentIndex().row(), 32000);
        QTest::keyClick(run.list(), Qt::Key_Home);
        run.list()->setFocus();
        QTest::keyClicks(run.list(), u"fizsh"_s);
        QCOMPARE(run.cell(run.list()->currentIndex().row(), "Package"), u"fizsh"_s);
    }
};

QTEST_MAIN(Journeys)
#include "journeys.moc"
