#include "gui/machine/endSignals.h"
#include "session.h"
#include "shell/menuCommands.h"
#include "storage/recoveryCopies.h"

#include <csignal>

namespace fs = std::filesystem;

// What the window does by itself to lose nothing: timers, signals, the bar, and the questions as they are
// shown.
class RecoveryTest : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    static void open(Session& run, const QString& file) {
        run.platform.isUsers = true;
        run.window.events().run([&] { shell::openNamedFile(run.app, gui::fromQt(file)); });
    }
    static fs::path folder() {
        return fs::path(qgetenv("HOME").toStdString()) / ".local/state/ferrowick/recovery";
    }
    static int copies() {
        std::error_code error;
        int count = 0;
        for (const auto& entry : fs::directory_iterator(folder(), error))
            count += entry.path().extension() == ".fwk";
        return count;
    }
    QString books(const char* rows = "Bolt|1;Nut|2") const {
        return folders_.database("books.fwk", DataFile("Name Place", rows).objects("F|Name|0|0|900|300"));
    }
    // Presses a button of the question that comes up, when it does.
    static void answer(const QString& button, QString* text = nullptr) {
        QTimer::singleShot(0, qApp, [=] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) qFatal("nothing is asked");
            if (text != nullptr) *text = box->text();
            for (QAbstractButton* each : box->buttons())
                if (each->text().remove(u'&') == button) return each->click();
            QTest::keyClick(box, Qt::Key_Escape);
        });
    }
    static QStringList bar(Session& run) {
        auto* notice = run.find<gui::NoticeBar>("noticeBar");
        QStringList all;
        if (!notice->isVisible()) return all;
        for (const auto* each : notice->findChildren<QPushButton*>(QRegularExpression(u"^notice_"_s)))
            all << each->text().remove(u'&');
        return all;
    }

private slots:
    void initTestCase() { qunsetenv("XDG_STATE_HOME"); }
    void init() {
        Folders::forgetSettings();
        fs::remove_all(folder());
    }

    void keepsWhatIsTypedAndOffersIt() {
        const QString file = books();
        {
            Session run;
            open(run, file);
            run.window.events().run([&] { app::setDocumentModified(run.app, true); });
            QCOMPARE(copies(), 0);
            QTRY_COMPARE_WITH_TIMEOUT(copies(), 1, 6000);
            storage::leaveUnsavedWork(run.app); // as if it were killed
        }
        Session run;
        QString text;
        answer(u"Cancel"_s, &text);
        open(run, file);
        QVERIFY2(text.contains(u"File: "_s + file) && text.contains(u"Records: 2"_s), qPrintable(text));
        QVERIFY(!run.app.document.bModified);
        answer(u"Restore"_s);
        open(run, file);
        QVERIFY(run.app.document.bModified);
        QCOMPARE(run.panel(app::documentPanel), u"Document Modified"_s);
        run.action("mnuSave")->trigger();
        QCOMPARE(copies(), 0);
    }

    void endsBySignalsInADialogToo() {
        const QString file = books();
        Session run;
        int ended = 0;
        const gui::EndSignals signalled([&](int number) {
            ended = number;
            run.window.endAtOnce();
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
        });
        open(run, file);
        run.window.events().run([&] { app::setDocumentModified(run.app, true); });
        QTimer::singleShot(0, [] { ::raise(SIGTERM); });
        QCOMPARE(run.platform.choose("?", "?", {"One"}), -1);
        QCOMPARE(ended, SIGTERM);
        QCOMPARE(copies(), 1);
        QVERIFY(!QFile::exists(folders_.path(".~lock.books.fwk#")));
        QCOMPARE(gui::toQt(platform::SettingsFile().GetSetting("StartUp", "defaultFile")), file);
        ::raise(SIGHUP);
        QTRY_COMPARE(ended, SIGHUP);
    }

    void saysWhatOthersDoToTheFile() {
        Session run;
        open(run, books());
        QCOMPARE(bar(run), QStringList());
        books("Other|1");
        QTRY_COMPARE(bar(run), (QStringList{u"Read Again"_s, u"Not Now"_s}));
        QVERIFY(run.find<QFrame>("noticeBar")->accessibleName().startsWith(u"books.fwk was changed"_s));
        QCOMPARE(run.texts(), (QStringList{u"Bolt|1"_s, u"Nut|2"_s, u"------|------"_s}));
        QTest::keyClick(&run.window, Qt::Key_F6,
                        Qt::ShiftModifier); // the page's other end: the tabs, then the bar
        QTest::keyClick(&run.window, Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"notice_0"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(bar(run), QStringList());
        QCOMPARE(run.texts(), (QStringList{u"Other|1"_s, u"------|------"_s}));

        run.action("mnuSave")->trigger(); // our own
        QTest::qWait(700);
        QCOMPARE(bar(run), QStringList());

        run.window.events().run([&] { app::setDocumentModified(run.app, true); });
        books("Third|1");
        QTRY_COMPARE(bar(run), (QStringList{u"Save as Another File..."_s, u"Overwrite at the Next Save"_s,
                                            u"Read the Other State"_s}));
        run.find<QPushButton>("notice_1")->click();
        QCOMPARE(bar(run), QStringList());
        run.action("mnuSave")->trigger(); // without a question
        QVERIFY(!run.app.document.bModified);
        QTest::qWait(700);
        QCOMPARE(bar(run), QStringList());

        fs::remove(run.app.document.currentFile);
        QTRY_COMPARE(bar(run), (QStringList{u"Write It Again"_s, u"Not Now"_s}));
        run.find<QPushButton>("notice_0")->click();
        QVERIFY(fs::exists(run.app.document.currentFile));
        QCOMPARE(bar(run), QStringList());
    }
};

QTEST_MAIN(RecoveryTest)
#include "recovery.moc"
