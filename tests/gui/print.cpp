#include "formActs.h"
#include "layoutPage.h"

#include "qtprint/pdfFile.h"
#include "qtprint/twipsFont.h"

#include <QPrintDialog>

using platform::Answer;

// What a user prints, and what he sees of it ahead.
class Print : public QObject {
    Q_OBJECT

private:
    Folders folders_;
    QString pdf_ = folders_.path("out.pdf");

    static QString answerOf(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    // Pages and paper of the file, and how often its text has a word in it.
    QString printed(const QString& word) const {
        const QString info = answerOf(u"pdfinfo"_s, {pdf_}).simplified();
        return info.section(u"Pages: "_s, 1).section(u' ', 0, 0) + u" of "_s +
               info.section(u"Page size: "_s, 1).section(u" pts"_s, 0, 0) + u", "_s +
               QString::number(answerOf(u"pdftotext"_s, {pdf_, u"-"_s}).count(word));
    }
    // The page on view and the first printed one have their ink in the same places.
    void comparePageWithPaper(LayoutSession& run) {
        const QString file = folders_.path("page");
        answerOf(u"pdftoppm"_s, {u"-r"_s, u"96"_s, u"-l"_s, u"1"_s, u"-png"_s, u"-singlefile"_s, pdf_, file});
        QImage paper(file + u".png"_s);
        const QSize size = paper.size() / 8;
        const auto& page = print::previewPage(run.app);
        const QRect place(QPoint(qRound(page.Left / 15), qRound(page.Top / 15)), paper.size());
        QImage shown = run.find<QWidget>("rptPreview2")->grab(place).toImage();
        for (QImage* image : {&paper, &shown})
            *image = image->scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        int dark = 0, difference = 0;
        for (int i = 0; i < size.width() * size.height(); ++i) {
            const QPoint at(i % size.width(), i / size.width());
            if (qGray(paper.pixel(at)) < 200) ++dark;
            difference = std::max(difference, std::abs(qGray(paper.pixel(at)) - qGray(shown.pixel(at))));
        }
        QVERIFY(dark > 50 && difference < 40);
    }

private slots:
    void initTestCase() {
        gui::QtPlatform platform;
        if (platform.printerDeviceName() != "Print to PDF") QSKIP("this system has printers");
        if (QStandardPaths::findExecutable(u"pdftoppm"_s).isEmpty()) QSKIP("poppler-utils is not installed");
    }
    void init() {
        Folders::forgetSettings();
        QFile::remove(pdf_);
    }

    void theReportIsShownTurnedAndPrinted() {
        LayoutSession run(folders_.sample("packages-500.fwk"));
        run.window.resize(700, 500);
        std::vector<QImage> pages;
        run.expect(R"(
tab 2 -> also 0 0 0, keys rptPreview2, page 2
do reportToolbar.Next -> also 1 0 0
do reportToolbar.First -> also 0 0 0
key PgDown; key Down; key PgUp; key Right -> also 3 -240 -240
wheel rptPreview2 -120,-120 -> also 4 -960 -960
slide rptVScroll1 1000; slide rptHScroll1 100 -> also 5 -100 -1000)",
                   [&] {
                       const auto& page = print::previewPage(run.app);
                       pages.push_back(run.find<QWidget>("rptPreview2")->grab().toImage());
                       const auto which = std::ranges::find(pages, pages.back()) - pages.begin();
                       return u"%1 %2 %3"_s.arg(which).arg(page.Left).arg(page.Top);
                   });
        run.play(u"file out.pdf; do mnuPrint"_s);
        QCOMPARE(printed(u"games"_s), u"8 of 612 x 792, 25"_s);
    }

    void theDialogsChangeThePages() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.platform.scripts[u"reportPageSetup"_s] = [&](QDialog& form) {
            typeIn(form, "titleTxt", "Landscape books");
            in<QRadioButton>(form, "LandscapeOpt")->click();
            click(form, "ApplyBtn");
            QCOMPARE(print::previewPage(run.app).rptPreview1.Width, 15840.0F); // behind the dialog
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.platform.scripts[u"layoutPageSetupFrm"_s] = [](QDialog& form) {
            for (int turn = 0; turn < 2; ++turn) { // a click on Custom shows its frame again
                clickRow(form, "paperList", "Custom");
                QVERIFY(in<QWidget>(form, "customFrm")->isVisible());
                click(form, "customOkBtn");
            }
            clickRow(form, "paperList", "A4");
            QVERIFY(!in<QWidget>(form, "customFrm")->isVisible());
            typeIn(form, "leftTxt", "0.5");
            click(form, "OKButton");
        };
        run.play(u"tab 2; do PageSetup; file out.pdf; do Print; tab 1; do PageSetup"_s);
        QCOMPARE(printed(u"Landscape books"_s), u"2 of 792 x 612, 1"_s);
        QCOMPARE(run.app.document.layoutOptions.layoutLeftMargin, 0.5F);
        QFile::remove(pdf_);
        QTimer::singleShot(0, qApp, [&] {
            QCoreApplication::processEvents();
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            auto* name = dialog->findChild<QLineEdit*>(u"filename"_s);
            const QString proposed = name->text();
            name->setText(pdf_);
            dialog->accept();
            QCOMPARE(proposed, folders_.path("books.pdf")); // beside the database
            QVERIFY(dialog->findChild<QWidget*>(u"gbPrintRange"_s)->isHidden());
        });
        run.play(u"do Selected_As_Layouts"_s);
        QCOMPARE(printed(u"The Odyssey"_s), u"1 of 595 x 842, 1"_s);
    }

    void previewAndPaperAgree() {
        LayoutSession run(folders_.sample("books.fwk"));
        run.window.resize(1400, 1400); // the whole page is in view
        run.play(u"file out.pdf; tab 2; do Print"_s);
        comparePageWithPaper(run);
        QFile::remove(pdf_);
        run.play(u"do Multiple_Layout_Preview_All; do Print; do reportToolbar.First"_s);
        QCOMPARE(printed(u"Les Misérables"_s), u"14 of 612 x 792, 3"_s);
        comparePageWithPaper(run);
    }

    // The open database, by another name too, is no file to print into; others are asked about.
    void whatAPrintWouldOverwrite() {
        const QString file = folders_.sample("books.fwk");
        QVERIFY(QFile::link(file, folders_.path("link.pdf")) && QFile::copy(file, pdf_));
        LayoutSession run(file);
        run.platform.answers = {Answer::Yes, Answer::Yes, Answer::Yes, Answer::No, Answer::Yes};
        run.expect(R"(
do mnuPrint -> 
file books.fwk; do mnuPrint -> also books.fwk is the open database, and cannot be printed into., messages 1
file link.pdf; do All_As_Report -> also link.pdf is the open database, and cannot be printed into., messages 2
file no/such/folder; do mnuPrint -> also folder, messages 3
file out.pdf; do mnuPrint -> also A file with that name exists. Overwrite it?, messages 4
do mnuPrint -> also A file with that name exists. Overwrite it? written, messages 5)",
                   [&] {
                       const auto& told = run.platform.messages;
                       return (told.empty() ? QString() : told.back().text.section(u'/', -1)) +
                              (QFileInfo(file).size() == QFileInfo(pdf_).size() ? u""_s : u" written"_s);
                   });
        QVERIFY(Session(file).rows() == 43);
        qtprint::QtTextMetrics metrics;
        QVERIFY(qtprint::openPdfFile(gui::fromQt(file), "none", metrics)->close());
        QVERIFY(Session(file).rows() == 43); // a print without a sheet leaves the old file
    }
};

QTEST_MAIN(Print)
#include "print.moc"
