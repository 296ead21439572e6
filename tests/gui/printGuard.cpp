#include "formActs.h"

#include "gui/dialogs/layoutPageSetupFrmView.h"
#include "gui/dialogs/reportPageSetupView.h"
#include "qtprint/pdfFile.h"
#include "qtprint/twipsFont.h"

#include <QGroupBox>
#include <QMessageBox>
#include <QPrintDialog>

// What a print must not overwrite, and the page setup as it reads.
class PrintGuard : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void theOpenDatabaseIsNoPdfFile();
    void aPrintWithoutASheetLeavesTheOldFile();
    void thePageSetupsHaveTheirCaptions();
    void aClickOnCustomShowsItsFrameAgain();
};

void PrintGuard::theOpenDatabaseIsNoPdfFile() {
    const QString file = folders_.sample("books.fwk");
    const QString link = folders_.path("link.pdf");
    QVERIFY(QFile::link(file, link));
    const QByteArray before = bytesOf(file);
    Session run(file);
    if (run.platform.QtPlatform::printerDeviceName() != "Print to PDF")
        QSKIP("this system has printers, which are not to be printed on");
    run.platform.answers = {platform::Answer::Yes, platform::Answer::Yes, platform::Answer::Yes};
    const auto expectRefusal = [&] {
        QCOMPARE(run.platform.messages.size(), std::size_t{1});
        QVERIFY(run.platform.messages[0].text.contains(QLatin1String("is the open database")));
        QVERIFY(bytesOf(file) == before);
        run.platform.messages.clear();
    };
    for (const QString& name : {file, link}) {
        run.platform.chosenFile = gui::fromQt(name);
        run.action("All_As_Report")->trigger();
        expectRefusal();
    }
    QTimer::singleShot(0, this, [&] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        dialog->findChild<QLineEdit*>(QStringLiteral("filename"))->setText(link);
        QTimer::singleShot(0, dialog, [] { // it asks whether to overwrite
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                box->button(QMessageBox::Yes)->click();
        });
        dialog->accept();
    });
    run.action("All_As_Layouts")->trigger();
    expectRefusal();
}

void PrintGuard::aPrintWithoutASheetLeavesTheOldFile() {
    const QString pdf = folders_.path("old.pdf");
    QFile old(pdf);
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    qtprint::QtTextMetrics metrics;
    const auto print = [&] { return qtprint::openPdfFile(gui::fromQt(pdf), "old", metrics); };
    QVERIFY(print()->close());
    QCOMPARE(bytesOf(pdf), QByteArray("old"));
    const auto target = print();
    target->setPage({});
    target->EndDoc(); // an empty sheet is one
    QVERIFY(target->close());
    QVERIFY(bytesOf(pdf).startsWith("%PDF"));
}

void PrintGuard::thePageSetupsHaveTheirCaptions() {
    Session run(folders_.sample("books.fwk"));
    const auto framesOf = [](const QDialog& form) {
        QStringList titles;
        for (const auto* frame : form.findChildren<QGroupBox*>()) titles << frame->title();
        titles.sort();
        return titles.join(QLatin1Char('|'));
    };
    const gui::reportPageSetupView report(run.app, run.window.events(), &run.window);
    QCOMPARE(framesOf(report), QStringLiteral(" Bold Headers | Columns To Print | Margins | Orientation | "
                                              "Paper Size | Report Title "));
    const gui::layoutPageSetupFrmView layout(run.app, run.window.events(), &run.window);
    QCOMPARE(framesOf(layout), QStringLiteral(" Custom Paper Size | Layout Spacing | Margins | Orientation | "
                                              "Paper Sizes "));
    QStringList labels;
    for (const auto* label : layout.findChildren<QLabel*>()) labels << label->text();
    QVERIFY(labels.contains(
        QStringLiteral("  Amount of spacing in inches between layouts in multiple layout printing:")));
}

void PrintGuard::aClickOnCustomShowsItsFrameAgain() {
    Session run(folders_.sample("books.fwk"));
    gui::layoutPageSetupFrmView form(run.app, run.window.events(), &run.window);
    form.show();
    auto* custom = in<QWidget>(form, "customFrm");
    for (int turn = 0; turn < 2; ++turn) {
        clickRow(form, "paperList", "Custom");
        QVERIFY2(custom->isVisible(), qPrintable(QString::number(turn)));
        in<QPushButton>(form, "customOkBtn")->click();
        QVERIFY(!custom->isVisible());
    }
}

QTEST_MAIN(PrintGuard)
#include "printGuard.moc"
