#include "formActs.h"

#include "qtprint/pagePainter.h"

#include <QPrintDialog>
#include <QScrollBar>

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
    int pages() const {
        const QString info = answerOf(u"pdfinfo"_s, {pdf_});
        return info.mid(info.indexOf("Pages:"_L1) + 6).section(u'\n', 0, 0).toInt();
    }
    QString text() const { return answerOf(u"pdftotext"_s, {u"-layout"_s, pdf_, u"-"_s}); }
    // The page that the preview holds, as a picture without the dotted margins.
    static QImage pageOf(Session& run, double dotsPerInch) {
        const drawing::RecordedPage& page = run.app.mainFrm.previewPage.rptPreview1;
        std::vector<drawing::Drawn> drawn;
        for (const drawing::Drawn& each : page.drawn()) {
            const auto* line = std::get_if<drawing::DrawnLine>(&each);
            if (line == nullptr || line->pen.DrawStyle == drawing::LineStyle::Solid) drawn.push_back(each);
        }
        const double scale = dotsPerInch / 1440;
        QImage image(qRound(page.Width * scale), qRound(page.Height * scale), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.scale(scale, scale);
        qtprint::PagePainter().draw(painter, drawn);
        return image;
    }

    // Each dark spot of the one has a dark spot of the other at most one dot away.
    void comparePageWithPaper(Session& run) {
        constexpr double dotsPerInch = 144;
        const QImage shown = pageOf(run, dotsPerInch);
        const QString picture = folders_.path("page");
        answerOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsPerInch), u"-l"_s, u"1"_s, u"-png"_s,
                                 u"-singlefile"_s, pdf_, picture});
        const QImage printed = QImage(picture + u".png"_s).convertToFormat(QImage::Format_RGB32);
        QCOMPARE(printed.size(), shown.size());
        const auto grey = [](const QImage& image, int x, int y) { return qGray(image.pixel(x, y)); };
        const auto darkestNear = [&](const QImage& image, int x, int y) {
            int darkest = 255;
            for (int dx = -1; dx <= 1; ++dx)
                for (int dy = -1; dy <= 1; ++dy) darkest = std::min(darkest, grey(image, x + dx, y + dy));
            return darkest;
        };
        int dark = 0, lonely = 0;
        for (int y = 1; y + 1 < shown.height(); ++y)
            for (int x = 1; x + 1 < shown.width(); ++x)
                for (const auto& [one, other] : {std::pair(&shown, &printed), std::pair(&printed, &shown)}) {
                    if (grey(*one, x, y) > 96) continue;
                    ++dark;
                    if (darkestNear(*other, x, y) > 176) ++lonely;
                }
        QVERIFY2(dark > 3000, qPrintable(QString::number(dark)));
        QVERIFY2(lonely == 0, qPrintable(u"%1 of %2"_s.arg(lonely).arg(dark)));
    }

private slots:
    void init() {
        Folders::forgetSettings();
        QFile::remove(pdf_);
    }
    void theReportIsShownTurnedAndPrinted() {
        Session run(folders_.sample("packages-500.fwk"));
        run.showTab(app::previewTab);
        auto* port = run.find<QWidget>("rptPreview2");
        QVERIFY(port->isVisible());
        const QImage first = port->grab().toImage();
        QVERIFY(!run.find<QScrollBar>("rptVScroll1")->isHidden());
        run.action("reportToolbar.Next")->trigger();
        QVERIFY(port->grab().toImage() != first);
        run.action("reportToolbar.First")->trigger();
        QCOMPARE(port->grab().toImage(), first);
        // Keys and bar move the page in its port.
        QTest::keyClick(port, Qt::Key_Down);
        QCOMPARE(run.app.mainFrm.previewPage.Top, -240.0F);
        run.find<QScrollBar>("rptVScroll1")->setValue(1000);
        QCOMPARE(run.app.mainFrm.previewPage.Top, -1000.0F);

        run.platform.chosenFile = gui::fromQt(pdf_);
        run.action("mnuPrint")->trigger();
        QVERIFY(run.platform.messages.empty());
        QCOMPARE(pages(), 8);
        for (int record : {0, 250, 499}) QVERIFY(text().contains(run.cell(record, "Package").left(15)));
        // Nothing was asked for that the user has cancelled.
        run.platform.chosenFile.reset();
        run.action("All_As_Report")->trigger();
        QVERIFY(run.platform.messages.empty());
    }

    void manyLayoutsAreShownAndPrinted() {
        Session run(folders_.sample("books.fwk"));
        run.action("Multiple_Layout_Preview_All")->trigger();
        QCOMPARE(run.find<QTabWidget>("SSTab1")->currentIndex(), int(app::previewTab));
        const QImage first = run.find<QWidget>("rptPreview2")->grab().toImage();
        run.action("reportToolbar.Last")->trigger();
        QVERIFY(run.find<QWidget>("rptPreview2")->grab().toImage() != first);
        run.platform.chosenFile = gui::fromQt(pdf_);
        run.action("Print")->trigger();
        QCOMPARE(pages(), 14);
        QVERIFY(text().contains(u"Les Misérables"_s));
    }

    void theReportDialogChangesThePreviewBehindIt() {
        Session run(folders_.sample("books.fwk"));
        run.showTab(app::previewTab);
        const QImage before = run.find<QWidget>("rptPreview2")->grab().toImage();
        run.platform.scripts[u"reportPageSetup"_s] = [&](QDialog& form) {
            in<QLineEdit>(form, "titleTxt")->setText(u"Landscape books"_s);
            in<QRadioButton>(form, "LandscapeOpt")->click();
            in<QTreeWidget>(form, "LV3")->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
            click(form, "ApplyBtn");
            QVERIFY(run.find<QWidget>("rptPreview2")->grab().toImage() != before);
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.action("PageSetup")->trigger();
        QCOMPARE(run.app.document.reportData.reportTitle, std::string("Landscape books"));
        QCOMPARE(run.app.mainFrm.previewPage.rptPreview1.Width, 15840.0F);
        QVERIFY(!run.app.document.printedCols.contains("No"));
    }

    void theLayoutDialogChangesThePaper() {
        Session run(folders_.sample("books.fwk"));
        run.showTab(app::layoutTab);
        run.platform.scripts[u"layoutPageSetupFrm"_s] = [](QDialog& form) {
            auto* papers = in<QTreeWidget>(form, "paperList");
            QCOMPARE(papers->currentItem()->text(0), u"Letter"_s);
            const auto* custom = in<QWidget>(form, "customFrm");
            papers->setCurrentItem(papers->topLevelItem(papers->topLevelItemCount() - 1));
            QVERIFY(custom->isVisible());
            papers->setCurrentItem(rowOf(papers, "A4"));
            QVERIFY(!custom->isVisible());
            in<QLineEdit>(form, "leftTxt")->setText(u"0.5"_s);
            click(form, "OKButton");
        };
        run.action("PageSetup")->trigger();
        QCOMPARE(run.app.document.layoutOptions.layoutPaperSize, std::int16_t{9});
        QCOMPARE(run.app.document.layoutOptions.layoutLeftMargin, 0.5F);
        QCOMPARE(run.app.mainFrm.layoutPage.layoutPic2.Width, 11906.0F);
    }

    void previewAndPaperAgree() {
        if (QStandardPaths::findExecutable(u"pdftoppm"_s).isEmpty()) QSKIP("poppler-utils is not installed");
        Session run(folders_.sample("books.fwk"));
        run.platform.chosenFile = gui::fromQt(pdf_);
        run.showTab(app::previewTab);
        run.action("Print")->trigger();
        comparePageWithPaper(run);
        QFile::remove(pdf_);
        run.action("Multiple_Layout_Preview_All")->trigger();
        run.action("Print")->trigger();
        run.action("reportToolbar.First")->trigger();
        comparePageWithPaper(run);
    }

    void aPreviewPageIsQuick() {
        Session run(folders_.sample("packages-32000.fwk"));
        run.showTab(app::previewTab);
        constexpr int turns = 10;
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < turns; ++i) {
            run.action("reportToolbar.Next")->trigger();
            run.find<QWidget>("rptPreview2")->grab();
        }
        QVERIFY2(timer.elapsed() < 500 * turns, "ten times what a released build may take");
    }

    void thePrintDialogTakesAFile() {
        Session run(folders_.sample("books.fwk"));
        if (!run.platform.QtPlatform::printerDeviceName().starts_with("Print to PDF"))
            QSKIP("this system has printers, which are not to be printed on");
        run.showTab(app::layoutTab);
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            QVERIFY(dialog->findChild<QWidget*>(u"printRange"_s)->parentWidget()->isHidden());
            auto* name = dialog->findChild<QLineEdit*>(u"filename"_s);
            QVERIFY(name != nullptr);
            QCOMPARE(name->text(), folders_.path("books.pdf")); // beside the database
            name->setText(pdf_);
            dialog->accept();
        });
        run.action("Selected_As_Layouts")->trigger();
        QVERIFY(run.platform.messages.empty());
        QCOMPARE(pages(), 1);
        QVERIFY(text().contains(u"The Odyssey"_s));
        QTimer::singleShot(0, this,
                           [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
        QFile::remove(pdf_);
        run.action("All_As_Layouts")->trigger();
        QVERIFY(!QFile::exists(pdf_));
    }

    // The way to a printer of the system, which here writes into a file.
    void aPrinterGetsItsPaperAndItsJobs() {
        gui::SystemPrinter printer;
        if (!printer.isPdf()) QSKIP("this system has printers, which are not to be printed on");
        QTimer::singleShot(0, this,
                           [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept(); });
        const auto choice = printer.showDialog({9, 2}, pdf_, nullptr);
        QVERIFY(choice.has_value());
        QCOMPARE(choice->PaperSize, 9);
        QCOMPARE(choice->Orientation, 2);
        QCOMPARE(printer.takeFileName(), pdf_);
        QVERIFY(printer.takeFileName().isEmpty());
        qtprint::QtTextMetrics metrics;
        const auto target = printer.open("job", metrics);
        target->setPage({9, 2, 16838, 11906});
        target->FontSize = 12;
        for (const char* line : {"first sheet", "second sheet"}) {
            target->CurrentX = target->CurrentY = 1440;
            target->Print(line, true);
            if (*line == 'f') target->NewPage();
        }
        target->EndDoc();
        QVERIFY(target->close());
        QCOMPARE(pages(), 2);
        QVERIFY(answerOf(u"pdfinfo"_s, {pdf_}).contains("842 x 595"_L1));
        const QString box = answerOf(u"pdftotext"_s, {u"-bbox"_s, pdf_, u"-"_s});
        QVERIFY2(box.contains("xMin=\"72.0"_L1), qPrintable(box.left(900)));
    }

    void aPdfFileIsNotOverwrittenUnasked() {
        Session run(folders_.sample("books.fwk"));
        QFile old(pdf_);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
        old.close();
        run.platform.chosenFile = gui::fromQt(pdf_);
        run.platform.answers = {platform::Answer::No};
        run.action("Print")->trigger();
        QCOMPARE(run.platform.messages.size(), std::size_t{1});
        QCOMPARE(QFileInfo(pdf_).size(), 3);
        run.platform.answers = {platform::Answer::Yes};
        run.action("Print")->trigger();
        QCOMPARE(pages(), 1);
    }

    void aFileThatCannotBeWrittenIsTold() {
        Session run(folders_.sample("books.fwk"));
        run.platform.chosenFile = gui::fromQt(folders_.path("no/such/folder/out.pdf"));
        run.action("Print")->trigger();
        QCOMPARE(run.platform.messages.size(), std::size_t{1});
        QVERIFY(run.platform.messages[0].text.contains(u"could not be written"_s));
        QCOMPARE(run.platform.messages[0].caption, u"Print to PDF"_s);
    }
};

QTEST_MAIN(Print)
#include "print.moc"
