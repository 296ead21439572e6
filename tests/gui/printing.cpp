#include "session.h"

#include <QPrintDialog>

using platform::Answer;

// Stands for the program that shows PDFs.
class Opener : public QObject {
    Q_OBJECT

public:
    explicit Opener(QStringList& opened) : opened_(opened) {}

public slots:
    void open(const QUrl& url) { opened_ << url.toLocalFile(); }

private:
    QStringList& opened_;
};

// What a user prints, and what he sees of it ahead.
class Printing : public GuiTest {
    Q_OBJECT

private:
    const QString pdf_ = path("out.pdf");

    static QString answerOf(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    // Pages and paper of the file, and how often its text has a word in it.
    QString printed(const QString& word) const {
        static const QRegularExpression form(u"Pages: (\\d+).*Page size: (.*) pts"_s);
        const auto info = form.match(answerOf(u"pdfinfo"_s, {pdf_}).simplified());
        const auto count = answerOf(u"pdftotext"_s, {pdf_, u"-"_s}).count(QRegularExpression(word));
        return u"%1 of %2, %3"_s.arg(info.captured(1), info.captured(2)).arg(count);
    }

private slots:
    void initTestCase() {
        if (gui::QtPlatform().printerDeviceName() != "Print to PDF") QSKIP("this system has printers");
        if (QStandardPaths::findExecutable(u"pdftoppm"_s).isEmpty()) QSKIP("poppler-utils is not installed");
    }
    void cleanup() { QFile::remove(pdf_); }

    void theReportIsShownTurnedAndPrinted() {
        Session run(sample("packages-500.fwk"));
        run.window.resize(700, 500);
        run.play(R"(
tab 2; look rptPreview2 -> "0" Totals=- Properties=- Delete=- page=2 fitText=Too narrow for the longest text: Package
    (15 of 34 characters), Section (8 of 13 characters), Installed_KB (10 of 12 characters). rptPreview2=*
click reportToolbar.Next; look rptPreview2 -> "1"
click reportToolbar.First; look rptPreview2 -> "0"
press PgDown; press Down; press PgUp; press Right; look rptPreview2 -> "3" rptVScroll1=240 rptHScroll1=240
wheel rptPreview2 -120,-120; look rptPreview2 -> "4" rptVScroll1=960 rptHScroll1=960
slide rptVScroll1 1000; slide rptHScroll1 100; look rptPreview2 -> "5" rptVScroll1=1000 rptHScroll1=100
file out.pdf; click mnuPrint -> statusNote=out.pdf was made.
)");
        QCOMPARE(printed(u"games"_s), u"8 of 612 x 792, 25"_s);
        // The keys go to the end of the page ahead of the next one, and come back to the end of the one
        // before.
        const auto* place = run.find<QLabel>(u"previewPlace"_s);
        const auto* bar = run.find<QScrollBar>(u"rptVScroll1"_s);
        const auto at = [&](const char* keys) {
            run.act(QString::fromLatin1(keys));
            const bool isEnd = bar->value() == bar->maximum();
            return place->text() + (bar->value() == 0 ? u" top"_s : isEnd ? u" end"_s : QString());
        };
        QCOMPARE(at("focus rptPreview2; press Home"), u"Page 1 of 9 top"_s);
        QCOMPARE(at("press PgDown 9"), u"Page 3 of 9"_s);
        QCOMPARE(at("press PgUp 9"), u"Page 1 of 9 top"_s);
        QCOMPARE(at("press End; press PgDown"), u"Page 9 of 9 end"_s);
        QCOMPARE(at("click mnuFitPage; press PgUp 2"), u"Page 7 of 9 top"_s);
    }

    void aPdfIsOpenedWhenThatIsWanted() {
        Session run(sample("books.fwk"));
        QStringList opened;
        Opener opener(opened);
        QDesktopServices::setUrlHandler(u"file"_s, &opener, "open");
        run.act(u"file out.pdf; click mnuPrint; click mnuOpenPdf"_s);
        QFile::remove(pdf_);
        run.act(u"click mnuPrint; click mnuOpenPdf"_s);
        QTRY_COMPARE(opened, QStringList(pdf_));
        QDesktopServices::unsetUrlHandler(u"file"_s);
    }

    void whatTheFilterFindsIsPrinted() {
        Session run(sample("packages-500.fwk"));
        run.play(R"(
press Ctrl+Shift+F -> filterText=|
type section:games data -> -LV Search=x Formulas=- Delete=- filterText=section:games data| searchLV.rows=11 top 0
    at 0 0ad-data|games selected 0 SB1_1=10 records.
press Down; file out.pdf; click mnuPrint -> searchLV=* statusNote=out.pdf was made.
tab 2 -> Totals=- Properties=- page=2 fitText=Too narrow for the longest text: Package (15 of 17 characters),
    Installed_KB (10 of 12 characters). rptPreview2=*
tab 0; press / -> Totals Properties page filterText=[section:games data] searchLV.rows=11 top 0 at 0
    0ad-data|games selected 0
press Ctrl+A; type bytes>x -> filterText=bytes>x|
)");
        QCOMPARE(run.find<QLabel>(u"filterReason"_s)->text(), u"\"x\" is no number"_s);
        run.play(R"(
press Escape -> -searchLV Search Formulas Delete filterText=| LV.rows=501 top 0 at 0 0ad|games selected 0
    SB1_1=500 records.
press Escape -> -filterClose -filterColumns -filterKept -filterText LV=*
press Ctrl+Shift+F; type dat -> -LV Search=x Formulas=- Delete=- filterText=dat| searchLV.rows=38 top 0 at 0
    0ad-data|games selected 0 SB1_1=37 records.
click Search -> -searchLV Search Formulas Delete filterText=| LV.rows=501 top 0 at 0 0ad|games selected 0
    SB1_1=500 records.
)");
        QCOMPARE(printed(u"games"_s), u"1 of 612 x 792, 10"_s);
    }

    void theDialogsChangeThePages() {
        Session run(sample("books.fwk"));
        run.play(R"(
tab 2; click PageSetup; click LV3 Author; press Space; fill titleTxt Landscape books; click LandscapeOpt; click
    ApplyBtn -> Totals=- Properties=- Delete=- page=2 fitText=Too narrow for the longest text: Title (20 of 24
    characters). SB1_5=Document Modified reportPageSetup=Report Page Setup
    LV3.0=x No LV3.1=x Title LV3.2=>Author LV3.3=x Price LV3.4=Bought LV3.5=Copies LV3.6=x Value LV3.7=Cover
    LV3.8=Notes titleTxt=Landscape books boldYesOpt=x letterOpt=x LandscapeOpt=x leftTxt=1 rightTxt=1 TopTxt=1
    bottomTxt=1 ApplyBtn=*
press Escape; file out.pdf; click Print -> -reportPageSetup rptPreview2=* statusNote=out.pdf was made.
)");
        QCOMPARE(printed(u"Landscape books|Homer"_s), u"2 of 792 x 612, 1"_s);
        QFile::remove(pdf_);
        run.play(R"(
tab 1; click PageSetup -> page=1 Slider1=1 ...
click paperList Custom -> lengthTxt=4 heightTxt=6
click customOkBtn -> -customOkBtn -heightTxt -lengthTxt OKButton=*
click paperList Custom; fill lengthTxt 10.25 -> lengthTxt=10.25| heightTxt=6
click paperList A4; fill leftTxt 0.5; click OKButton -> -layoutPageSetupFrm layoutPic2=*(cut)
)");
        QCOMPARE(run.app.document.layoutOptions.layoutLeftMargin, 0.5F);
        QString proposed;
        run.onDialog = [&](QDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(u"filename"_s);
            proposed = name->text();
            name->setText(pdf_);
            QVERIFY(dialog.findChild<QWidget*>(u"gbPrintRange"_s)->isHidden());
            dialog.accept();
        };
        run.act(u"click Selected_As_Layouts"_s);
        QCOMPARE(proposed, path("books.pdf")); // beside the database
        QCOMPARE(printed(u"The Odyssey"_s), u"1 of 595 x 842, 1"_s);
    }

    // The bar above the page goes when its button has widened the columns, and comes back by Undo.
    void narrowColumnsAreWidened() {
        Session run(sample("packages-500.fwk"));
        run.act(u"tab 2"_s);
        run.play(R"(
click fitWiden -> -fitText -fitWiden SB1_5=Document Modified
press Ctrl+Z -> fitText=Too narrow for the longest text: Package (15 of 34 characters), Section (8 of 13 characters),
    Installed_KB (10 of 12 characters). SB1_5=Document Saved
click PageSetup; click moreBtn -> reportChoicesFrm=Report Choices headsChk=* stepList=-
focus groupList; type Since; focus stepList; type quarter; click pagesChk; press Return -> -reportChoicesFrm
    reportPageSetup=Report Page Setup titleTxt=Packages boldYesOpt=x letterOpt=x PortraitOpt=x leftTxt=1 rightTxt=1
    TopTxt=1 bottomTxt=1 moreBtn=*
focus titleTxt; press Return; file out.pdf; click mnuPrint -> -reportPageSetup rptPreview2=* SB1_5=Document Modified
    statusNote=out.pdf was made.
)");
        QCOMPARE(printed(u"Since: .*-Q\\d"_s), u"16 of 612 x 792, 145"_s);
    }

    // The open database, by another name too, is no file to print into; others are asked about.
    void whatAPrintWouldOverwrite() {
        const QString file = sample("books.fwk");
        QVERIFY(QFile::link(file, path("link.pdf")) && QFile::copy(file, pdf_));
        Session run(file);
        run.platform.answers = {Answer::Yes, Answer::Yes, Answer::Yes, Answer::No, Answer::Yes};
        run.play(R"(
click mnuPrint ->
file books.fwk; click mnuPrint -> "books.fwk is the"
file link.pdf; click All_As_Report -> "link.pdf is the"
file no/such/folder; click mnuPrint -> "folder could not"
file out.pdf; click mnuPrint -> "A file with"
)");
        QCOMPARE(QFileInfo(file).size(), QFileInfo(pdf_).size());
        run.play("click mnuPrint -> ...");
        QVERIFY(QFileInfo(file).size() != QFileInfo(pdf_).size());
        QVERIFY(Session(file).app.document.LV.count() == 43);
    }
};

GUI_TEST(Printing)
#include "printing.moc"
