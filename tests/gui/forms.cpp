#include "session.h"

#include "app/appearance.h"
#include "gui/machine/localeForm.h"

#include <fstream>

using platform::Answer;

// What a user does in the forms, from an empty window to a searched database.
class Forms : public GuiTest {
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("PATH", ""); } // without a mail program

    void aDatabaseFromNothing() {
        Session run;
        run.platform.chosenFile = gui::fromQt(path("made.fwk"));
        run.platform.answers.assign(9, Answer::Yes);
        run.platform.inputs = {"secret", "secret"};
        run.play(R"(
click mnuNew; press Escape; click mnuNew; click Option2; click Option1; click OKButton -> MainFrm=made.fwk SB1_5
    designFrm=Database Properties fieldTxt=| typeOpt0=x
click typeOpt4; type Item; press Return; click typeOpt3; type No; press Return; click typeOpt0; type Day; press
    Return; click typeOpt1; type Extra; press Return; type Price; press Return; click typeOpt2; type ota l; press
    Home; type T; click addBtn; press Return -> "You must enter" typeOpt0 typeOpt2=x List1.0=Item|Text|NA|NA
    List1.1=No|Number|NA|OFF List1.2=Day|Date|OFF|NA List1.3=Extra|Currency|NA|NA List1.4=Price|Currency|NA|NA
    List1.5=Tota_l|Calculation|NA|NA
click List1 Extra; click deleteBtn; click List1 Tota_l; click fieldTxt; type Total; click changeBtn -> "Are you
    absolutely" "Would you like" -List1 fieldTxt=Total changeBtn=* List1.3=Price|Currency|NA|NA
    List1.4=>Total|Calculation|NA|NA
double List1 Day; double List1 Item; click List1 No; press Return -> "Auto enter today's" "Auto increment value"
    List1.1=>No|Number|NA|ON List1.2=Day|Date|ON|NA List1.4=Total|Calculation|NA|NA List1=*
press Alt+D -> ...
click mnuExpressionEditor -> formulateFrm=Expression Editor colList.0=Total|Undefined colList=* fieldList=-
    fieldList.0=No fieldList.1=Price fieldList.2=Total addCalcBtn=-
click colList Total; click operatorBtn4; double fieldList Price -> colList.0=>Total|Undefined fieldList.1=>Price
    fieldList=* expTxt= ( Price addCalcBtn
press Backspace; press Space; press +; click NumKey1; click NumKey2; click NumKey3; click NumKey4; click NumKey5;
    click NumKey6; click NumKey7; click NumKey8; click NumKey9; click NumKey0 -> NumKey0=* expTxt= ( Price +
    1234567890
press Backspace 10; type 1.5x; press Space; press Backspace -> expTxt= ( Price + 1.5
type )*20; press Num+,; press Backspace; press Return; click colList Total; click clearBtn -> colList.0=>Total| (
    Price + 1.5 ) * 20 expTxt clearBtn=*
press Alt+D; click mnuTotalColumns; press End; press Space -> -formulateFrm SB1_3=Done. TotalsFrm=Choose Columns To
    Total LV.0=No LV.1=Price LV.2=>x Total LV=*
press Return; press Return -> -TotalsFrm LV.0=>-|-|-|-|- entryFrm=Entry Form FieldBox0=|
press Ctrl+N; type Nail; press Return 3; type 2.50 -> FieldBox0=Nail FieldBox1=1 FieldBox2=TODAY FieldBox3=2.50|
press Return; press Ctrl+N; type Bolt; press Down; press Enter 2; type 1234; press Return -> -hint_mnuImportTable -hint_mnuNewRecord
    LV.0=Nail|1|TODAY|$2.50|$80.00 LV.1=>Bolt|2|TODAY|$12.34|$276.80 LV.2=-|-|-|-|$356.80 SB1_1=2 records. FieldBox0=|
    FieldBox1 FieldBox2 FieldBox3
press PgUp; press Tab 2; type 1231 -> LV.0=>Nail|1|TODAY|$2.50|$80.00 LV.1=Bolt|2|TODAY|$12.34|$276.80 FieldBox0=Nail
    FieldBox1=1 FieldBox2=12/31/| FieldBox3=$2.50
press Backspace; type /2020; press Ctrl+Shift+Return; press Ctrl+S -> LV.0=>Nail|1|12/31/2020|$2.50|$80.00
    SB1_5=Document Saved FieldBox2=12/31/2020|
click prevChk0; click FieldBox0; press Ctrl+A; type NAIL; press Return -> FieldBox0=| prevChk0=x
press Ctrl+F; type bolt; press Return -> LV.0=Nail|1|12/31/2020|$2.50|$80.00 LV.1=>Bolt|2|TODAY|$12.34|$276.80
    srchTxt=bolt| FieldBox0=Bolt FieldBox1=2 FieldBox2=TODAY FieldBox3=$12.34
press Ctrl+F -> srchTxt=[bolt]
click againBtn; click First; press Ctrl+Return -> LV.1=Bolt|2|TODAY|$12.34|$276.80
    LV.2=>Nail|1|12/31/2020|$2.50|$80.00 LV.3=-|-|-|-|$436.80 SB1_1=3 records. SB1_5=Document Modified FieldBox0=|
    FieldBox1 FieldBox2 FieldBox3
press Ctrl+D; press Escape -> "Are you sure?" -LV -entryFrm LV.1=>Bolt|2|TODAY|$12.34|$276.80 LV.2=-|-|-|-|$356.80
    LV=* SB1_1=2 records.
click mnuSerialAdjust; click List1 No -> serialFrm=Adjust Serial Number Values List1.0=>No List1=* Text1=3
press Tab; type 100x; press Return -> "You entered a" Text1=100x|
press Ctrl+A; type 0100; press Return; press Escape; click mnuDatabaseLock; click Properties; click Design -> "No's
    value has" "This feature will" "Database Locked." "The database structure" -serialFrm LV=*
click mnuDatabaseLock; click Save; press Return; press Ctrl+N -> SB1_5=Document Saved entryFrm=Entry Form FieldBox0=|
    FieldBox1=101 FieldBox2=TODAY
press Escape -> ...
)");
    }

    void searchedAndReplaced() {
        const DataFile data("No:4 Title By Price:2 Day:1",
                            "1|The Sea|Poe|$12.34|01/02/2020;2|Emma|Austen|$5.00|;3|The War|Poe|$7.00|");
        Session run(database("found.fwk", data));
        run.play(R"(
click Search -> ...
click List2 Title -> List2.0=No List2.1=>Title List2=* Opt2_4=-
click List1 By; click Opt1_3; click SearchText_0; type poe; press Return -> -LV Formulas=- searchLV.0=1|The
    Sea|Poe|$12.34|01/02/2020 searchLV.1=>3|The War|Poe|$7.00| searchLV.2=-|-|-|-|- SB1_1=2 records. List1.0=No
    List1.2=>By Opt1_0 Opt1_3=x Opt1_4=- SearchText_0=poe|
click List2 Price; click SearchText_2; type 500; press Tab; type 1000; click Opt2_4 -> List2.1=Title List2.3=>Price
    Opt2_0 Opt2_4=x* SearchText_2=5.00 SearchText_3=10.00
click List3 No; click Opt3_2; click SearchText_4; type 3; click searchBtn -> -searchLV searchLV.0=>3|The
    War|Poe|$7.00| searchLV.1=-|-|-|-|- SB1_1=1 records. Opt3_0 Opt3_2=x SearchText_4=3 searchBtn=*
click List2 Day; click SearchText_2; type 12312 -> List2.3=Price List2.4=>Day SearchText_2=12/31/2| SearchText_3
press Ctrl+A; type 13; press Tab -> "You entered an" SearchText_2 SearchText_3=|
type 99; press Alt+A -> "You entered an" -searchLV Formulas LV.0=>1|The Sea|Poe|$12.34|01/02/2020
    LV.1=2|Emma|Austen|$5.00| LV.2=3|The War|Poe|$7.00| LV.3=-|-|-|-|- SB1_1=3 records. allBtn=*
click SearchText_3; type 99; press Escape -> -searchFrm Search Delete LV=*
click mnuReplace -> ...
click Text1; type the; press Tab; type An; press Return; click List1 By; click Command3 -> List1.3=>By Text1=the
    Text2=An Command3=*
click Command1; press Escape -> -replaceFrm LV.0=>1|An Sea|Poe|$12.34|01/02/2020 LV.2=3|An War|Poe|$7.00| LV=*
)");
    }

    void manyRecordsAtOnce() {
        const DataFile data = DataFile("No:4 Name Price:2", "1|Bolt|$1.00;1|Nut|$2.00;3|Bolt|$1.00")
                                  .sections("Optioned Cols=No|;Increments=No,3|");
        Session run(database("many.fwk", data));
        run.play(R"(
press Ctrl+A; click mnuSetValues; press End; press Alt+W; press Alt+T; type Price*2 -> LV.1=>1|Nut|$2.00
    LV.2=>3|Bolt|$1.00 LV.3=>-|-|- setValuesFrm=Set Values List1=2 Opt2_1=x Text1=Price*2| Opt1_0=x Opt1_1=-
    preview.0=1|$1.00| preview.1=1|$2.00| preview.2=3|$1.00| OKButton=-
press Ctrl+A; type Price * 2; press Return -> -setValuesFrm LV.0=>1|Bolt|$2.00 LV.1=>1|Nut|$4.00
    LV.2=>3|Bolt|$2.00 LV=* SB1_5=Document Modified
click mnuDuplicates; press Alt+N -> -LV Search=x Formulas=- Delete=- searchLV.0=1|Bolt|$2.00
    searchLV.1=>3|Bolt|$2.00 searchLV.2=-|-|- SB1_1=2 records. duplicatesFrm=Find Duplicates List1.0=>No
    List1.1=x Name List1.2=x Price List1=* List2.0=>2|Bolt, $2.00
press Alt+D; press Escape -> "Delete 1 record" -duplicatesFrm searchLV=*
click mnuSerialCheck; press Return -> -searchLV Search Formulas Delete LV.0=>1|Bolt|$2.00 LV.1=>1|Nut|$4.00
    LV.2=3|Bolt|$2.00 LV.3=-|-|- LV=* SB1_1=3 records.
)");
    }

    void rowsCopiedAndPasted() {
        Session run(database("rows.fwk", DataFile("No:4 Name Price:2", "1|Bolt|$1.00;2|Nut|$2.00")));
        run.play(R"(
press Home; press Shift+Down; press Ctrl+Shift+C; press End; press Ctrl+V -> LV.0=1|Bolt|$1.00 LV.2=>-|-|-
    pasteFrm=Paste Records Check1=x* Grid1.0=|| Grid1.1=1|Bolt|$1.00 Grid1.2=2|Nut|$2.00 columnCbo0=1 columnCbo1=2
    columnCbo2=3
press Escape; press Ctrl+C; press Shift+Insert -> -Grid1 Check1=* Grid1.1=-|-|- List1.0=1|No|-|is no number
    List1.1=1|Price|-|is no number OKButton=-
press Tab; press Down; press Tab 2; press End -> -List1 columnCbo0=2 columnCbo1 columnCbo2=3* List1.0=1|Price|-|is
    no number
press Alt+L; press Return -> -pasteFrm LV.2=>0|-|$.00 LV.3=-|-|- LV=* SB1_1=3 records. SB1_5=Document Modified
)");
    }

    void aTableImportedAndExported() {
        Session run(database("table.fwk", DataFile("No:4 Name Price:2", "1|Bolt|$1.00")));
        std::ofstream(path("people.csv").toStdString())
            << "Name;Day;Pay\nAnn;31.12.2024;1.234,50\nBob;1.2.2024;x\n";
        run.play(R"(
file people.csv; click mnuImportTable -> importFrm=Import separatorCbo=1* Check1=x Opt1_0=x List2.0=>x Name|Text|As it
    is| List2.1=x Day|Date|Day, month, year| List2.2=x Pay|Text|As it is| Text1=Name readAsCbo=- signCbo=-
    Grid1.0=Ann|12/31/2024|1.234,50 Grid1.1=Bob|02/01/2024|x
press Alt+O; press Alt+W -> Opt1_0=x*
press Alt+C; press Down 2; press Alt+T; press Down 2 -> List2.0=x Name|Text|As it is| List2.2=>x
    Pay|Currency|1.234,50| Text1=Pay typeCbo=2* readAsCbo=1 signCbo Grid1.0=Ann|12/31/2024|$1,234.50 List1.0=3|Pay|x|is no
    number in this form OKButton=-
press Alt+L; press Alt+N; type 2 -> List2.2=>x 2|Currency|1.234,50| Text1=2| List1.0=3|2|x|is no number in this form
    Check2=x OKButton
file table2.fwk; press Alt+I -> -importFrm MainFrm=table2.fwk LV.0=>Ann|12/31/2024|$1,234.50 LV.1=Bob|02/01/2024| LV.2=-|-|-
    LV=* SB1_1=2 records.
click mnuExportTable; press Alt+N -> exportFrm=Export Opt1_0=* Opt1_1=- Opt1_2=x List1.0=>Name List1.1=Day List1.2=2
    Check2=- Check3=- OKButton=-
press Escape -> -exportFrm LV=*
)");
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(path("people.csv"))});
        QDragEnterEvent enter({}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QDropEvent drop({}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QString shown;
        run.onDialog = [&](QDialog& dialog) { shown = dialog.objectName(); };
        for (QEvent* event : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&drop)})
            QCoreApplication::sendEvent(&run.window, event);
        QTRY_COMPARE(shown, u"importFrm"_s);
    }

    void undoneByTheKeys() {
        const DataFile data = DataFile("Name Qty:4", "Bolt|2;Nut|3").objects("F|Name|1440|1440|2000|1000");
        Session run(database("undo.fwk", data));
        run.platform.answers = {platform::Answer::Yes};
        run.play(R"(
press Home; press Delete -> "Are you sure?" -LV LV.0=>Nut|3 LV.1=-|- SB1_5=Document Modified
press Ctrl+Z -> LV.0=>Bolt|2 LV.1=Nut|3 LV.2=-|- SB1_5=Document Saved
press Ctrl+Shift+Z; press Ctrl+Z ->
tab 1; focus f1; press End; type xy -> Totals=- Properties=- Delete=- page=1 Slider1=1 recordPosition=Record 1 of 2
    sheet=1 at 19,0 f1=Boltxy|
press Ctrl+Z -> f1=Bolt|
type z; click layoutNavBar.Update -> SB1_5=Document Modified f1=Boltz|
press Ctrl+Z -> SB1_5=Document Saved f1=|Bolt
press Ctrl+Shift+Z -> SB1_5=Document Modified f1=|Boltz
)");
    }

    void aPageByTheKeys() {
        const DataFile data = DataFile("Name Qty:4", "Bolt|2;Nut|3").objects("F|Name|1440|1440|2000|1000");
        Session run(database("page.fwk", data));
        run.play(R"(
click Totals; press Home; press Space; press Shift+Down; press Space -> Totals=x LV.1=>Nut|3 LV3.0=Qty|3
press Ctrl+PgDown -> Totals=x- Properties=- Delete=- page=1 Slider1=2 recordPosition=Record 2 of 2 sheet=1 at 19,0
    layoutPic2=*(cut) f1=Nut
press F6 -> New=*
press F6 2 -> layoutNavBar.New=*
press F6; press Shift+F6; press Escape -> layoutPic2=*(cut)
press F6; press Right 7; press Return -> -Slider1 -f1 -layoutNavBar -recordPosition Design=x layoutToolbar.Snap=x
    layoutToolbar.Rows=- clearRulesBtn=- sheet=1 at 19,19 SB1_5=Document Modified
press F6 3; press Right 5; press Return -> sheet=2 at 19,19 selectionPlace=At 1, 1.26 Size 1.59 x 1.26 in
press Ctrl+Right; press Ctrl+Shift+Right -> selectionPlace=At 1.08, 1.26 Size 1.67 x 1.26 in
press Tab; press Backtab; press Delete -> -selectionPlace sheet=1 at 19,19
press Ctrl+Tab; press Ctrl+PgUp 2; click mnuEmail -> Totals=x Properties Delete page LV.0=Bolt|2 LV.1=>Nut|3 LV.2=-|-
    LV3.0=Qty|3 mailFrm=Email Currently Opened Database File Text1=|
type a@b; press Tab; type Books; press Tab; type text; press Tab; press Space -> "Your mail program" Text1=a@b
    Text2=Books Text3=text OKButton=*
press Escape -> ...
)");
    }

    // The window converts at its edges; the document has the program's own forms all the time.
    void valuesInTheFormOfTheCountry() {
        const DataFile data =
            DataFile("Name Born:1 Price:2 Qty:4", "Ann|12/31/1999|$1,234.50|2.5;Bo|01/02/2000|$.50|3")
                .section("Totaled Cols", "Price|")
                .objects("F|Born|1440|1440|2000|600;F|Price|1440|2400|2000|600;F|Qty|1440|3360|2000|600");
        const QString file = database("country.fwk", data);
        {
            Session run(file);
            app::appearance(run.app).localeForm = gui::formOf(QLocale(u"de_DE"_s));
            run.play(R"(
tab 1; tab 0; click mnuLocaleForm -> LV.0=>Ann|31.12.1999|1.234,50 €|2,5 LV.1=Bo|02.01.2000|0,50 €|3
click LV Bo; tab 1 -> Totals=- Properties=- Delete=- page=1 Slider1=2 recordPosition=Record 2 of 2 sheet=3
    at 19,0 layoutPic2=*(cut) f1=02.01.2000? f2=0,50~€? f3=3
focus f1; press Ctrl+A; type 31122; press Backspace 2; type 99 -> f1=31.12.99|?
press Tab; press Ctrl+A; press Del; type 1.234,5 -> f1=31.12.1999? f2=1.234,5|?
press Tab; press Ctrl+A; press Del; type 1,5 -> f2=1234,5? f3=1,5|?
nav Update; tab 0 -> Totals Properties Delete page LV.0=Ann|31.12.1999|1.234,50 €|2,5
    LV.1=>Bo|31.12.1999|1.234,50 €|1,5 LV.2=-|-|1.234,00 €|- LV=* SB1_5=Document Modified
press Return -> entryFrm=Entry Form FieldBox0=[Bo] FieldBox1=31.12.1999 FieldBox2=1.234,50 € FieldBox3=1,5
type x; press Tab; press Ctrl+A; type 01022 -> FieldBox0=x FieldBox1=01.02.2|
press Tab; press Ctrl+A; type 12345 -> FieldBox2=12345|
press Return -> FieldBox2=123,45 FieldBox3=[1,5]
press Escape -> -entryFrm LV=*
click Search -> ...
click List1 Born; click SearchText_0; type 31.12.99 -> List1.0=Name List1.1=>Born Opt1_4
    SearchText_0=31.12.99|
press Return -> -LV Formulas=- searchLV.0=Ann|31.12.1999|1.234,50 €|2,5 searchLV.1=>Bo|31.12.1999|1.234,50
    €|1,5 searchLV.2=-|-|2.469,00 €|-
press Escape; click LV Ann; click mnuSetValues -> -searchFrm setValuesFrm=Set Values List1=* Opt2_0=x
    Opt1_1=x preview.0=Ann|Ann| preview.1=Bo|Bo|
focus List1; press Down 3; click Text1; type 4,5 -> List1=3 Text1=4,5| preview.0=Ann|2,5|4,5
    preview.1=Bo|1,5|4,5
press Escape; click mnuStatistics; focus columnCbo; press Down 2 -> -setValuesFrm statisticsFrm=Column
    Statistics columnCbo=2* Check1=x List1.0=>Records|2 List1.1=Values|2 List1.2=Empty|0 List1.3=Different
    values|1 List1.4=Least|1.234,50 € List1.5=Greatest|1.234,50 € List1.6=Mean|1.234,50 €
    List1.7=Median|1.234,50 € List1.8=Sum|2.469,00 € List2.0=>1.234,50 €|2|
press Escape; click mnuLocaleForm -> -statisticsFrm searchLV.0=Ann|12/31/1999|$1,234.50|2.5
    searchLV.1=>Bo|12/31/1999|$1,234.50|1.5 searchLV.2=-|-|$2,469.00|- searchLV=*
)");
            const core::Item& bo = run.app.document.LV.at(2);
            QCOMPARE(bo.cells[1].view(), std::string_view("12/31/1999"));
            QCOMPARE(bo.cells[2].view(), std::string_view("$1,234.50"));
            QCOMPARE(bo.cells[3].view(), std::string_view("1.5"));
            run.act(u"click mnuLocaleForm; click mnuExit"_s);
        }
        Session next(file);
        QVERIFY(app::appearance(next.app).bLocaleForm);
    }

    // What has the keys is seen whole; a click beside the handle scrolls.
    void aPaneOfManyColumns() {
        std::string columns;
        for (int column = 0; column < 30; ++column) columns += "Column" + std::to_string(column) + " ";
        Session run(database("wide.fwk", DataFile(columns)));
        run.play(R"(
press Return; press Return 15 -> ...
press Down 14 -> VScroll1=12559 FieldBox29=|
press Up 29 -> VScroll1 FieldBox0=|
press Tab 29 -> VScroll1=12559 FieldBox29=|
press Tab -> VScroll1 prevChk0=*
click VScroll1 8,300 -> VScroll1=500 prevChk0=*(cut)
press Escape -> ...
)");
    }
};

GUI_TEST(Forms)
#include "forms.moc"
