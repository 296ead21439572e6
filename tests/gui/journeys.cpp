#include "session.h"

#include "../support/sheetWatch.h"

// A user with a real mouse and keyboard.
struct Hands : Session {
    explicit Hands(const QString& file) : Session(file) { app.mainFrm.bLayoutDblClick = true; }
    bool shows(const std::string& number) {
        return gui::fromQt(Session::find<QTextEdit>(u"layoutField1"_s)->toPlainText()) == number;
    }
    void showTab(int tab) { act(u"tab %1"_s.arg(tab)); }
    void clickRow(core::RecordsList& list, int row, bool bCtrl) {
        act((bCtrl ? u"Ctrl+click %1 #%2"_s : u"click %1 #%2"_s).arg(gui::toQt(list.Name)).arg(row - 1));
    }
    void find(const char* name, bool bAll) {
        onDialog = [=, this](QDialog&) {
            const QString search = u"click List1 Name; click Opt1_3; fill SearchText_0 %1; press Return"_s;
            if (*name != '\0') act(search.arg(QLatin1String(name)) + (bAll ? u"; click allBtn"_s : u""_s));
        };
        act(u"click mnuSearch"_s);
    }
    void focusField(int index) { act(u"click f%1"_s.arg(index)); }
    void type(int index, const std::string& text) { act(u"fill f%1 "_s.arg(index) + gui::toQt(text)); }
    void navigate(const std::string& key) { act(u"nav "_s + gui::toQt(key)); }
    void slide(int value) { act(u"slide Slider1 %1"_s.arg(std::max(value, 1))); }
    void command(const char* key) { act(u"click "_s + QLatin1String(key)); }
    void sort(core::RecordsList& list) { act(u"click "_s + gui::toQt(list.Name) + u".Name"_s); }
    void view(int index) { act(u"click viewOpt%1"_s.arg(index)); }
    void open(core::RecordsList& list) {
        QTest::keyClick(Session::find<QTreeView>(gui::toQt(list.Name)), Qt::Key_Return);
    }
};

// What a user does in the main window, from the start of the program to its end.
class Journeys : public GuiTest {
    Q_OBJECT

private slots:
    void startsEmptyAndComesBack() {
        for (const char* file : {"books.fwk", "packages-500.fwk"}) sample(file);
        {
            Session run;
            run.window.resize(700, 400);
            run.play(R"(
press Tab -> start_mnuOpen=*
look sample_library; press Tab 2; look sample_library -> "0" "1" sample_library=*
press Tab 4 -> sample_invoices=*
press Space; click Properties -> MainFrm=invoices.fwk ...
press Tab; press Down 5 -> typeOpt0 typeOpt4=x*
press Escape; file books.fwk; click mnuOpen -> -iLV -viewOpt0 -viewOpt1 -designFrm MainFrm=books.fwk LV.rows=43 top 0
    at 0 1|The Odyssey selected 0 LV=* SB1_1=42 records. SB1_6=Database Style: Standard
file XDG_CONFIG_HOME/ferrowick/ferrowick.conf; click Open -> MainFrm=Ferrowick Save=- Print=- PageSetup=- Search=-
    Totals=- Formulas=- Properties=- Design=- Delete=- page=- sample_invoices=*(cut)
click start_mnuFile1 -> MainFrm=books.fwk ...
file packages-500.fwk; focus qt_tabwidget_tabbar; click mnuOpen; click mnuAutoLoad -> MainFrm=packages-500.fwk
    LV.rows=501 top 0 at 0 0ad|games selected 0 SB1_1=500 records.
)");
            QVERIFY(QFile::exists(path("HOME/Documents/Ferrowick/invoices.fwk"))); // a copy of the user's own
            run.act(u"click mnuExit"_s);
        }
        Session next;
        QCOMPARE(next.window.windowTitle(), u"Ferrowick - "_s + path("packages-500.fwk"));
        QCOMPARE(next.window.size(), QSize(700, 400));
    }

    void theListUnderMouseAndKeys() {
        const QString file = sample("books.fwk");
        for (const char* other : {"packages-32000.fwk", "invoices.fwk"}) sample(other);
        Session run(file);
        run.window.resize(700, 400);
        const QAbstractItemModel& model = *run.find<QTreeView>(u"LV"_s)->model();
        QVERIFY(!model.headerData(7, Qt::Horizontal, Qt::DecorationRole).isNull());
        for (int row = 41; row <= 42; ++row) { // the Totals row alone is blue and bold
            const QModelIndex price = model.index(row, 4);
            QCOMPARE(price.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, int(Qt::AlignRight));
            QCOMPARE(price.data(Qt::FontRole).value<QFont>().bold(), row == 42);
            QCOMPARE(price.data(Qt::ForegroundRole).value<QColor>() == QColor(Qt::blue), row == 42);
        }
        run.app.document.LV.at(40).cells[1] = std::string(60, 'W');
        run.play(R"(
double LV.Title 259,8; look LV -> "No47 Title694 Author147 Price80 Bought87 Copies60 Value87 Cover93 Notes200"
drag LV.Title -544,0 740,8; drag LV.Copies -530,0; look LV; click Save -> "Copies60 No47 Title150 Author147 Price80
    Bought87 Value87 Cover93 Notes200" LV.rows=43 top 0 at 0 1|1 selected 0 SB1_5=Document Saved
click Totals; click LV #0 -> Totals=x LV3.0=Copies|1 LV3.1=No|1 LV3.2=Price|$8.49 LV3.3=Value|$8.49
Ctrl+click LV #1 -> LV.rows=43 top 0 at 1 4|2 selected 0 1 LV3.0=Copies|5 LV3.1=No|3 LV3.2=Price|$37.09
    LV3.3=Value|$122.89
click LV #3; Shift+click LV #6; Ctrl+click LV #5 -> LV.rows=43 top 0 at 5 4|6 selected 3 4 6 LV3.0=Copies| LV3.1=No|1
    LV3.2=Price|$948.92 LV3.3=Value|$3,795.68
press Ctrl+Down 2 -> LV.rows=43 top 1 at 7 2|8 selected 3 4 6
press Space -> LV.rows=43 top 1 at 7 2|8 selected 3 4 6 7 LV3.0=Copies|2 LV3.1=No|8 LV3.2=Price|$14.24
    LV3.3=Value|$28.48
press End -> LV.rows=43 top 36 at 42 108|- selected 42
click mnuSelectedTotals; wheel LV 0,120 -> -LV3 Totals LV.rows=43 top 27 at 42 108|- selected 42
click LV.Author -> LV.sort=2/1 LV.rows=43 top 27 at 41 4|42 selected 41
click LV.Author -> LV.sort=2/0 LV.rows=43 top 27 at 41 3|30 selected 41
click mnuLayoutDoubleClick; double LV 40,40 -> Totals=- Properties=- Delete=- page=1 Slider1=30 recordPosition=Record
    30 of 42 sheet=23 at 19,0 layoutPic2=*(cut) f1=38 f2=Sült f3=Knut Hamsun f4=12/06/2001 f5=$18.97 f6=3 f7=$56.91
    f8=a gift, read twice
tab 2; tab 0 -> Totals Properties Delete page LV.sort=2/0 LV.rows=43 top 27 at 29 3|38 selected 29 LV=*
click LV.Title; file packages-32000.fwk; click mnuOpen -> -LV MainFrm=packages-32000.fwk LV.rows=32001 top 0 at 0
    0ad|games selected 1 rows SB1_1=32000 records. SB1_5=Document Opened
press Ctrl+A; press Ctrl+End -> LV.rows=32001 top 31987 at 32000 -|- selected 32001 rows
click LV #2; type fizsh -> LV.rows=32001 top 9123 at 9136 fizsh|shells selected 1 rows
click mnuSearch; click Opt1_3; fill SearchText_0 lib; press Return; press Escape -> -LV Search=x Formulas=- Delete=-
    searchLV.rows=17043 top 0 at 17041 libsysstat-qt5-0|libs selected 1 rows ...
)");
        QTest::keyPress(run.find<QTreeView>(u"searchLV"_s), Qt::Key_Control); // and held
        run.play("file invoices.fwk; click Totals; click mnuOpen -> ...");
        QCOMPARE(run.find<QTreeWidget>(u"LV3"_s)->topLevelItem(1)->text(1), u"$9.00"_s);
        Session(file).play(R"(
look LV -> "Copies60 No47 Title150 Author147 Price80 Bought87 Value87 Cover93 Notes200"
)");
    }

    void theListByItsKeysAndObjectsOnTheClipboard() {
        Session run(database("menu.fwk", DataFile("Name Qty:4", "Bolt|2;Nut|1;\xC9lan|3;Nail|5")));
        run.platform.inputs = {"1"};
        run.play(R"(
type el -> LV.0=Bolt|2 LV.2=>Élan|3
press Shift+F10; press B; press Return; type nn -> LV.0=Élan|3 LV.2=>Nail|5 LV.3=Bolt|2 LV.sort=0/1
press Ctrl+D -> -LV LV.4=Nail|5 LV.5=-|- SB1_1=5 records. SB1_5=Document Modified
press Menu; press E; fill FieldBox0 Nap; press Ctrl+Shift+Return; press Escape -> LV.2=>Nap|5
press Insert; type Cog; press Return; type 9; press Return; press Escape -> LV.2=Nap|5 LV.5=>Cog|9 LV.6=-|- SB1_1=6
    records.
press Ctrl+L; tool Box; press Ctrl+C; press Ctrl+V; press Ctrl+Right -> Totals=- Properties=- Design=x Delete=- page=1
    layoutToolbar.Snap=x layoutToolbar.Rows=- clearRulesBtn=- sheet=2 at 19,19 layoutPic2=*(cut) selectionPlace=At 1.17,
    1.34 Size 1.59 x 1.26 in
press Ctrl+X; press Ctrl+V; press Ctrl+V -> sheet=3 at 19,19 selectionPlace=At 1.25, 1.43 Size 1.59 x 1.26 in
tool Field Name; press Ctrl+L; tab 0; click mnuLayoutDoubleClick; press Insert -> -clearRulesBtn -layoutToolbar
    -selectionPlace Design Slider1=6 recordPosition=New record sheet=4 at 19,0 f1=|
)");
    }

    void columnsByTheKeys() {
        Session run(sample("books.fwk"));
        run.play(R"(
press Ctrl+Shift+F10; press Ctrl+Shift+Right 2; press Right; press Ctrl+Left 2; press Down; look LV -> "Title213 No63
    Author147 Price80 Bought87 Copies60 Value87 Cover93 Notes200" LV.rows=43 top 0 at 0 The Odyssey|1 selected 0
press Ctrl+Shift+F10; press End; press Ctrl+Right; press Ctrl+Left; press Left; press Ctrl+Shift+Left 20; look LV ->
    "Title213 No63 Author147 Price80 Bought87 Copies60 Value20 Notes200 Cover93" -has the keys
press Return; press Menu; press L; press Escape; look LV -> "Title213 No63 Author147 Price80 Bought87 Value20 Copies60
    Notes200 Cover93" LV.sort=6/1 LV.rows=43 top 0 at 41 Walden|26 selected 41 LV=*
press Menu; press G; press Home; press Menu; press W; press Escape; look LV -> "Title221 No63 Author147 Price80 Bought87
    Value20 Copies60 Notes200 Cover93" LV.rows=43 top 11 at 41 Walden|26 selected 41
)");
    }

    // Dropped or not; and an error that nobody caught keeps a copy and ends the program.
    // Groups, and the records of one, by keys and by mouse; the summary follows what is changed.
    void theSummary() {
        Session run(sample("books.fwk"));
        const auto* view = run.find<QTreeView>(u"summaryTable"_s);
        const auto row = [&](int number) {
            const int last = view->model()->rowCount() - 1;
            QStringList cells;
            for (int i = 0; i < view->model()->columnCount(); ++i)
                cells << view->model()->index(number < 0 ? last : number, i).data().toString();
            return cells.join(u'|');
        };
        const auto results = [&] {
            return run.app.document.searchLV.Visible ? run.app.document.searchLV.count() - 1 : -1;
        };
        run.act(u"press Ctrl+M"_s);
        QVERIFY(view->isVisible() && view->hasFocus());
        QTRY_COMPARE(row(-1).section(u'|', 0, 1), u"Total|42"_s);
        run.act(u"focus groupCbo0; type Bought"_s);
        QTRY_COMPARE(row(0).section(u'|', 0, 1), u"1998|8"_s);
        run.act(u"focus summaryTable; press Home; press Down 2; press Return"_s);
        QCOMPARE(results(), 2);
        QVERIFY(view->hasFocus()); // to go on to the next group
        run.act(u"click summaryBars 20,10"_s);
        QCOMPARE(results(), 8);
        QCOMPARE(view->currentIndex().row(), 0);
        run.act(u"click allBtn"_s);
        QCOMPARE(results(), -1);
        run.platform.answers = {platform::Answer::Yes};
        run.act(u"focus LV; click Delete"_s);
        QTRY_COMPARE(row(-1).section(u'|', 0, 1), u"Total|41"_s);
        run.platform.chosenFile = gui::fromQt(path("sums.pdf"));
        run.act(u"click printSummary"_s);
        QVERIFY(QFile::exists(path("sums.pdf")));
        QStringList figures;
        run.onDialog = [&](QDialog& dialog) {
            const auto* list = dialog.findChild<QTreeWidget*>(u"List1"_s);
            for (int i = 0; i < list->topLevelItemCount(); ++i) figures << list->topLevelItem(i)->text(1);
        };
        auto* head = run.find<QTreeView>(u"LV"_s)->header();
        const int price = run.app.document.LV.columns["Price"].Index - 2;
        QTimer::singleShot(0, head, [&] {
            emit head->customContextMenuRequested({head->sectionViewportPosition(price) + 5, 5});
        });
        run.play("focus LV; press t -> ...");
        QCOMPARE(figures.join(u' '), u"41 41 0 41 $1.05 $949.97 $50.10 $28.60 $2,053.90"_s);
        run.act(u"focus summaryTable; press Ctrl+M"_s);
        QVERIFY(!view->isVisible() && run.find<QTreeView>(u"LV"_s)->hasFocus());
    }

    void filesThatAreDroppedAndProgramsThatEnd() {
        Session run;
        const auto drop = [&](const QString& path, QPoint at = {50, 50}) {
            QMimeData data;
            data.setUrls({QUrl::fromLocalFile(path)});
            QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
            QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, {});
            QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, {});
            for (QEvent* each :
                 {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&move), static_cast<QEvent*>(&event)})
                QApplication::sendEvent(&run.window, each);
            QCoreApplication::sendPostedEvents();
            return move.isAccepted();
        };
        QVERIFY(!drop(path("picture.png")) && run.app.document.currentFile.empty());
        QVERIFY(drop(sample("books.fwk")) && run.app.document.LV.count() == 43);
        run.act(u"tab 1"_s);
        const QWidget* frame = run.find<QWidget>(u"imgHolder1"_s);
        const QPoint inFrame = frame->mapTo(&run.window, frame->rect().center());
        QImage art(20, 10, QImage::Format_ARGB32);
        for (const auto& [colour, kept] :
             {std::pair(Qt::transparent, "art.jpg"), std::pair(Qt::red, "art-2.jpg")}) {
            art.fill(colour);
            art.save(path("art.png"));
            QVERIFY(!drop(path("art.png")) && drop(path("art.png"), inFrame));
            const core::ImgHolder& holder = run.app.document.layout.imgHolder[1];
            QCOMPARE(holder.ToolTipText, kept);
            QVERIFY(run.platform.told.takeLast().contains(QLatin1String(kept)));
            const QImage stored(gui::toQt(holder.viewImage.path));
            QVERIFY(stored.size() == art.size() &&
                    (stored.pixelColor(5, 5).green() > 250) == (colour != Qt::red));
        }
        QVERIFY(drop(sample("books.fwk")));
        run.act(u"tab 1"_s);
        QVERIFY(QFile::copy(path("books.fwk"), path("no.gif")) && drop(path("no.gif"), inFrame));
        QVERIFY(run.platform.told.takeLast().contains("no.gif cannot be read"_L1));
        run.act(u"click Design"_s);
        QVERIFY(!drop(path("art.png"), inFrame) && run.window.isWindowModified());
        QCOMPARE(run.window.windowTitle(), u"Ferrowick - "_s + path("books.fwk") + u"[*]"_s);
        int ended = 0;
        run.window.events().endProgram = [&] { ++ended; };
        run.window.events().run([&] {
            run.app.document.LV.at(1).cells[1] = "not yet saved";
            run.app.document.LV.byKey("i999");
        });
        const QString error = run.platform.told.at(0), copy = error.section(u'\n', -1);
        QVERIFY(ended == 1 && error.contains("Error 35601"_L1));
        QVERIFY(Session(copy).app.document.LV.at(1).cells[1] == "not yet saved");
        run.app.document.bModified = true;
        run.platform.answers = {platform::Answer::No};
        run.window.close();
        QVERIFY(!run.window.isVisible() && run.platform.told.at(1) == "Save current document?"_L1);
    }

    void invoicesFromAnEmptyPageToADeletedOne() {
        DataFile data("No:4 Customer Item Qty:4 Price:2 Line:5 Subtotal:5 Total:5");
        data.section("Formulas", "Line,Qty * Price|Subtotal,Line|Total,Subtotal * 1.08|")
            .section("Totaled Cols", "Qty|Total|")
            .section("Optioned Cols", "No|")
            .section("Increments", "No,0|")
            .section("DatabaseStyle", "True");
        Session run(database("made.fwk", data));
        run.platform.answers = {platform::Answer::Ok, platform::Answer::Yes};
        run.play(R"(
click Design; tool Rows; click List1 Item; click List1 Qty; click List1 Price; click List1 Line; fill Text1 2; press
    Return; drag f1 0,160; drag f2 0,160; drag f3 0,160; drag f4 0,160 -> Totals=- Properties=- Design=x Delete=-
    page=1 layoutToolbar.Snap=x layoutToolbar.Picture=- clearRulesBtn=- sheet=8 at 19,19 layoutPic2=*(cut)
    SB1_5=Document Modified selectionPlace=At 2.83, 1.92 Size 0.83 x 0.2 in
click f4; tool Field No; tool Field Customer; drag f10 200,0; tool Field Total; drag f11 0,340 -> sheet=11 at 19,19
    selectionPlace=At 1, 3.75 Size 1.26 x 0.2 in
click Design -> "To create a" -clearRulesBtn -layoutPic2 -layoutToolbar -selectionPlace -sheet Design page=1*
    layoutNavBar.Add=- Slider1=1
nav New; fill f10 Ann; fill f1 Bolt; fill f2 2x; fill f3 150; fill f5 Nut; fill f6 3; fill f7 2.5 -> -hint_mnuNewRecord
    recordPosition=New record sheet=11 at 19,0 f1=Bolt f2=2 f3=150 f4=$.00 f5=Nut f6=3 f7=2.5| f8=$.00 f9=1 f10=Ann
    f11=$.00
click f4 -> f3=$1.50 f4=|$3.00 f7=$2.50 f8=$7.50 f11=$11.34
nav New; fill f10 Bo; fill f1 Nut; fill f2 4; fill f3 2.5; nav Update; nav First -> recordPosition=Record 1 of 2
    SB1_1=2 records. f3=|$1.50
tab 0 -> Totals Properties Delete page viewOpt1=x iLV.0=1|Ann|$10.50|$11.34 iLV.1=>2|Bo|$10.00|$10.80
    iLV.2=-|-|-|$22.14 iLV=*
)");
        auto* header = run.find<QTreeView>(u"iLV"_s)->header();
        header->resizeSection(1, 200);
        header->moveSection(2, 0);
        run.play(R"(
click viewOpt0; click iLV #1; look iLV -> "Customer200 Item96 Qty96 Price96 Line96" Delete=- viewOpt0=x viewOpt1
    iLV.0=Ann|Bolt|2|$1.50|$3.00 iLV.1=>Ann|Nut|3|$2.50|$7.50 iLV.2=Bo|Nut|4|$2.50|$10.00 iLV.3=-|-|9|-|-
click Search; click List1 Item; click Opt1_3; fill SearchText_0 nut; press Return; press Escape -> -iLV Search=x
    Formulas=- searchLV.0=Ann|Nut|3|$2.50|$7.50 searchLV.1=>Bo|Nut|4|$2.50|$10.00 searchLV.2=-|-|7|-|- searchLV=*
double searchLV #1; fill f2 5; click f11; slide Slider1 1; fill f10 Al; click f11 -> Totals=- Properties=- page=1
    layoutNavBar.Add=- Slider1=1 recordPosition=Record 1 of 2 sheet=11 at 19,0 f1=Bolt f2=2 f3=$1.50 f4=$3.00 f5=Nut
    f6=3 f7=$2.50 f8=$7.50 f9=1 f10=Al f11=|$11.34
tab 2; click Search; tab 1; fill f10 Di; click f11 -> Search Formulas f10=Di
tab 0; click viewOpt1; look iLV; click iLV #1; click Delete -> "Subtotal96 No96 Customer200 Total96" "Are you sure?"
    Totals Properties Delete page viewOpt1=x iLV.0=>$10.50|1|Di|$11.34 iLV.1=-|-|-|$11.34 iLV=*
)");
    }

    // Every record keeps what belongs to it.
    void randomEvents() {
        for (const bool invoices : {false, true}) {
            const QString file = database("events.fwk", numberedRecords(invoices));
            const std::string wrong = failureOf(300, Open, [&](const SheetEvents& events) {
                Hands run(file);
                return SheetUser(run).play(events);
            });
            QVERIFY2(wrong.empty(), wrong.c_str());
        }
    }
};

GUI_TEST(Journeys)
#include "journeys.moc"
