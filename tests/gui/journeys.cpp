#include "formActs.h"
#include "layoutPage.h"

#include <QDropEvent>
#include <QMimeData>

// What a user does in the main window, from the start of the program to its end.
class Journeys : public QObject {
    Q_OBJECT

private:
    Folders folders_;

private slots:
    void init() { Folders::forgetSettings(); }

    void startsEmptyAndComesBack() {
        for (const char* file : {"books.fwk", "packages-500.fwk"}) folders_.sample(file);
        {
            LayoutSession run;
            run.window.resize(700, 400);
            run.expect(R"(
click start_mnuOpen -> keys start_mnuOpen
file books.fwk; click start_mnuOpen -> arrow -1 0, current 0 1|The Odyssey, keys LV, list LV 43, rows 0 , status 42 records. Document Opened, title books.fwk, top 0
file XDG_CONFIG_HOME/ferrowick/ferrowick.conf; do Open -> keys start_mnuOpen, list start, title Ferrowick
click start_mnuFile1 -> arrow -1 0, current 0 1|The Odyssey, keys LV, list LV 43, rows 0 , title books.fwk, top 0
file packages-500.fwk; do mnuOpen; do mnuAutoLoad -> current 0 0ad|games, list LV 501, status 500 records. Document Opened, title packages-500.fwk)");
            run.play(u"do mnuExit"_s);
        }
        Session next;
        QCOMPARE(next.window.windowTitle(), u"Ferrowick - "_s + folders_.path("packages-500.fwk"));
        QCOMPARE(next.window.size(), QSize(700, 400));
    }

    void theListUnderMouseAndKeys() {
        LayoutSession run(folders_.sample("books.fwk"));
        folders_.sample("packages-32000.fwk");
        run.window.resize(700, 400);
        run.expect(R"(
do Totals; row 0 -> also 1, sums No1 Price$8.49 Copies1 Value$8.49
row 1 Ctrl -> also 2, current 1 2|Les Misérables, rows 0 1 , sums No3 Price$37.09 Copies5 Value$122.89
row 3; row 6 Shift; row 5 Ctrl -> also 3, current 5 6|Der Zauberberg, rows 3 4 6 , sums No1 Price$948.92 Copies Value$3,795.68
key Ctrl+Down; key Ctrl+Down -> current 7 8|Niels Lyhne, top 1
key Space -> also 4, rows 3 4 6 7 , sums No8 Price$14.24 Copies2 Value$28.48
key End -> also 1, current 42 ------|------, rows 42 , top 36
do mnuSelectedTotals; wheel LV 0,120 -> top 30
sort Author -> arrow 2 1, current 41 42|Dracula, rows 41
sort Author -> arrow 2 0, current 41 30|Les Misérables
tab 1; tab 0 -> 
do mnuLayoutDoubleClick; double LV 40,40 -> keys layoutPic2, objects 23, page 1, record Record 33 of 42, sheet 19 0, text 41|Frankenstein|Mary Shelley|04/12/1998|$30.78|4|$123.12|signed, first edition|
tab 2; tab 0 -> arrow 2 0, current 32 41|Frankenstein, keys LV, list LV 43, page 0, rows 32 , top 30
sort Title; file packages-32000.fwk; do mnuOpen -> arrow -1 1, current 0 0ad|games, list LV 32001, status 32000 records. Document Opened, title packages-32000.fwk, top 0
key Ctrl+A; key Ctrl+End -> also 32001, current 32000 ------|------, top 31987
key Home; type fizsh -> also 1, current 9136 fizsh|shells, top 9123)",
                   [&] { return QString::number(run.list()->selectionModel()->selectedRows().size()); });
    }

    void columnsAreDraggedAndSizedAndSaved() {
        const QString file = folders_.sample("books.fwk");
        const auto look = [](const QTreeView& list) {
            QString columns;
            for (int place = 0; place < list.header()->count(); ++place) {
                const int section = list.header()->logicalIndex(place);
                columns += list.model()->headerData(section, Qt::Horizontal).toString() +
                           QString::number(list.header()->sectionSize(section)) + u' ';
            }
            return columns;
        };
        {
            Session run(file);
            const gui::RecordsView& list = *run.list();
            QCOMPARE(look(list),
                     u"No47 Title213 Author147 Price80 Bought87 Copies60 Value87 Cover93 Notes200 "_s);
            QVERIFY(
                !list.model()->headerData(run.section("Cover"), Qt::Horizontal, Qt::DecorationRole).isNull());
            for (int row = 41; row <= 42; ++row) { // the Totals row alone is blue and bold
                const QModelIndex cell = list.model()->index(row, run.section("Price"));
                QCOMPARE(cell.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, int(Qt::AlignRight));
                QCOMPARE(cell.data(Qt::FontRole).value<QFont>().bold(), row == 42);
                QCOMPARE(cell.data(Qt::ForegroundRole).value<QColor>() == QColor(Qt::blue), row == 42);
            }
            const int title = run.section("Title"); // 213 pixels wide
            const QPoint edge = run.headerPlace(title) + QPoint(213 / 2 - 1, 0);
            run.LV().at(40).cells[1] = std::string(60, 'W');
            QTest::mouseDClick(list.header()->viewport(), Qt::LeftButton, {}, edge);
            QVERIFY(list.header()->sectionSize(title) >
                    list.fontMetrics().horizontalAdvance(QString(60, u'W')));
            list.header()->resizeSection(title, 213);
            run.dragHeader(edge, edge + QPoint(-63, 0));
            run.dragHeader(run.headerPlace(run.section("Copies")), QPoint(3, 8));
            QVERIFY(!run.app.document.bModified);
            run.action("Save")->trigger();
        }
        Session again(file);
        QCOMPARE(look(*again.list()),
                 u"Copies60 No47 Title150 Author147 Price80 Bought87 Value87 Cover93 Notes200 "_s);
    }

    void aDroppedFileOpensAndAClosedOneIsOfferedToSave() {
        Session run;
        const auto drop = [&](const QString& path) {
            QMimeData data;
            data.setUrls({QUrl::fromLocalFile(path)});
            QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QDropEvent event({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
            for (QEvent* each : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&event)})
                QApplication::sendEvent(&run.window, each);
            return enter.isAccepted();
        };
        QVERIFY(!drop(folders_.path("picture.png")) && run.app.document.currentFile.empty());
        QVERIFY(drop(folders_.sample("books.fwk")));
        QCOMPARE(run.rows(), 43);
        run.app.document.bModified = true;
        run.platform.answers = {platform::Answer::No};
        run.window.close();
        QVERIFY(!run.window.isVisible());
        QCOMPARE(run.platform.messages.at(0).text, u"Save current document?"_s);
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
        QVERIFY(run.platform.messages.at(0).text.contains("Error 35601"_L1));
        QCOMPARE(Session(copyTold(run)).cell(0, "Title"), u"not yet saved"_s);
    }

    void invoicesFromAnEmptyPageToADeletedOne() {
        DataFile data("No:4 Customer Item Qty:4 Price:2 Line:5 Subtotal:5 Total:5");
        data.section("Formulas", "Line,Qty * Price|Subtotal,Line|Total,Subtotal * 1.08|")
            .section("Totaled Cols", "Qty|Total|")
            .section("Optioned Cols", "No|")
            .section("Increments", "No,0|")
            .section("DatabaseStyle", "True");
        LayoutSession run(folders_.database("made.fwk", data));
        run.platform.scripts[u"repeatFrm"_s] = [](QDialog& form) {
            for (const char* column : {"Item", "Qty", "Price", "Line"}) chooseColumn(form, "List1", column);
            typeIn(form, "Text1", "2");
            click(form, "OKButton");
        };
        run.platform.scripts[u"searchFrm"_s] = [](QDialog& form) {
            chooseColumn(form, "List1", "Item");
            click(form, "Opt1_3");
            QTest::keyClick(typeIn(form, "SearchText_0", "nut"), Qt::Key_Return);
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.platform.answers = {platform::Answer::Ok, platform::Answer::Yes};
        run.expect(R"(
do Design; tool Rows; drag layoutField1 0,160; drag layoutField2 0,160; drag layoutField3 0,160; drag layoutField4 0,160 -> keys layoutPic2, objects 8, page 1, place At 2.83, 1.92 Size 0.83 x 0.2 in, sheet 19 19, status Document Modified, text Item|Qty|Price|Line|Item|Qty|Price|Line|
click layoutField1 -> place At 0.17, 1.92 Size 0.83 x 0.2 in
click layoutField4; tool Field No; tool Field Customer; drag layoutField10 200,0; tool Field Total; drag layoutField11 0,340 -> objects 11, place At 1, 3.75 Size 1.26 x 0.2 in, text Item|Qty|Price|Line|Item|Qty|Price|Line|No|Customer|Total|
do Design -> keys qt_tabwidget_tabbar, messages 1, place -, sheet none, text |||||||||||
nav New; fill Customer Ann; fill Item Bolt; fill Qty 2x; fill Price 150; fill Item.2 Nut; fill Qty.2 3; fill Price.2 2.5 -> keys layoutField7 at 3-3, record New record, sheet 19 0, text Bolt|2|150|$.00|Nut|3|2.5|$.00|1|Ann|$.00|
into Line -> keys layoutField4 at 0-0, text Bolt|2|$1.50|$3.00|Nut|3|$2.50|$7.50|1|Ann|$11.34|
fill Qty 100; into Total -> keys layoutField11 at 0-0, text Bolt|100|$1.50|$150.00|Nut|3|$2.50|$7.50|1|Ann|$170.10|
nav New; fill Customer Bo; fill Item Nut; fill Qty 4; fill Price 2.5; nav Update -> keys layoutField3 at 0-0, record Record 2 of 2, status 2 records. Document Modified, text Nut|4|$2.50|$10.00||||$.00|2|Bo|$10.80|
nav First -> record Record 1 of 2, text Bolt|100|$1.50|$150.00|Nut|3|$2.50|$7.50|1|Ann|$170.10|
tab 0 -> arrow -1 0, current 1 2|Bo, keys iLV, list iLV 1|Ann|$157.50|$170.10;2|Bo|$10.00|$10.80;------|------|------|$180.90, page 0, rows 1 , top 0)");
        QHeaderView* header = run.list("iLV")->header();
        header->resizeSection(1, 200);
        header->moveSection(2, 0);
        run.expect(R"(
click viewOpt0; row 1 A iLV; tab 1 -> also 96, keys layoutPic2, objects 11, page 1, record Record 1 of 2, sheet 19 0, text Bolt|100|$1.50|$150.00|Nut|3|$2.50|$7.50|1|Ann|$170.10|
tab 0; do Search -> arrow -1 0, current 1 Bo|Nut, keys searchLV, list searchLV Ann|Nut|3|$2.50|$7.50;Bo|Nut|4|$2.50|$10.00;------|------|7|------|------, page 0, rows 1 , top 0
double searchLV 40,25 -> keys layoutPic2, objects 11, page 1, record Record 2 of 2, sheet 19 0, text Nut|4|$2.50|$10.00||||$.00|2|Bo|$10.80|
fill Qty 5; into Total -> keys layoutField11 at 0-0, text Nut|5|$2.50|$12.50||||$.00|2|Bo|$13.50|
nav New; fill Customer Di; into Total -> record New record, status 3 records. Document Modified, text |||$.00||||$.00|3|Di|$.00|
slide Slider1 2; fill Customer Al; into Total -> record Record 2 of 2, text Nut|5|$2.50|$12.50||||$.00|2|Al|$13.50|
tab 0 -> arrow -1 0, current 1 Al|Nut, keys searchLV, list searchLV Ann|Nut|3|$2.50|$7.50;Al|Nut|5|$2.50|$12.50;------|------|7|------|------, page 0, rows 1 , top 0
do Search -> current 2 Al|Nut, keys iLV, list iLV Ann|Bolt|100|$1.50|$150.00;Ann|Nut|3|$2.50|$7.50;Al|Nut|5|$2.50|$12.50;------|------|108|------|------, rows 2
click viewOpt1; row 1 A iLV; do Delete -> also 200, current 1 $.00|3, list iLV $157.50|1|Ann|$170.10;$.00|3|Di|$.00;------|------|------|$170.10, messages 2, rows 1 , status 2 records. Document Modified)",
                   [&] { return QString::number(header->sectionSize(1)); });
    }
};

QTEST_MAIN(Journeys)
#include "journeys.moc"
