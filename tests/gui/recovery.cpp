#include "gui/machine/endSignals.h"
#include "session.h"
#include "shell/menuCommands.h"
#include "storage/recoveryCopies.h"

#include <QSessionManager>
#include <csignal>

namespace fs = std::filesystem;

// What the window does by itself to lose nothing: timers, signals, the bar, and the questions as they are
// shown.
class Recovery : public GuiTest {
    Q_OBJECT

private:
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
        return database("books.fwk", DataFile("Name Place", rows).objects("F|Name|0|0|900|300"));
    }
    // Presses a button of the question that comes up.
    static void answer(Session& run, const QString& button) {
        run.onDialog = [=](QDialog& dialog) {
            for (auto* each : dialog.findChildren<QPushButton*>())
                if (each->text().remove(u'&') == button) each->click();
        };
    }
    static QStringList bar(Session& run) {
        auto* notice = run.window.findChild<gui::NoticeBar*>();
        QStringList all;
        if (!notice->isVisible()) return all;
        for (const auto* each : notice->findChildren<QPushButton*>(QRegularExpression(u"^notice_"_s)))
            all << each->text().remove(u'&');
        return all;
    }

private slots:
    void initTestCase() { qunsetenv("XDG_STATE_HOME"); }
    void cleanup() { fs::remove_all(folder()); }

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
        answer(run, u"Cancel"_s);
        open(run, file);
        QVERIFY(!run.app.document.bModified);
        answer(run, u"Restore"_s);
        open(run, file);
        QVERIFY(run.app.document.bModified);
        run.act(u"click mnuSave"_s);
        QCOMPARE(copies(), 0);
    }

    void endsBySignalsInADialogToo() {
        const QString file = books();
        Session run;
        int ended = 0;
        const gui::EndSignals signalled([&](int number) {
            ended = number;
            run.window.endAtOnce();
        });
        open(run, file);
        run.window.events().run([&] { app::setDocumentModified(run.app, true); });
        run.onDialog = [&](QDialog&) {
            ::raise(SIGTERM);
            QTRY_COMPARE(ended, SIGTERM);
        };
        QCOMPARE(run.platform.choose("?", "?", {"One"}), -1);
        QCOMPARE(ended, SIGTERM);
        QCOMPARE(copies(), 1);
        QVERIFY(!QFile::exists(path(".~lock.books.fwk#")));
        QCOMPARE(gui::toQt(platform::SettingsFile().GetSetting("StartUp", "defaultFile")), file);
    }

    void keepsAllWhenTheUserLogsOut() {
        Session run;
        open(run, books());
        run.window.events().run([&] { app::setDocumentModified(run.app, true); });
        emit qApp->commitDataRequest(*qApp->findChild<QSessionManager*>());
        QCOMPARE(copies(), 1);
        QCOMPARE(platform::SettingsFile().GetSetting("StartUp", "defaultFile"), run.app.document.currentFile);
        QVERIFY(QFile::exists(path(".~lock.books.fwk#"))); // who may stay
    }

    void saysWhatOthersDoToTheFile() {
        Session run;
        open(run, books());
        QCOMPARE(bar(run), QStringList());
        books("Other|1");
        QTRY_COMPARE(bar(run), (QStringList{u"Read Again"_s, u"Not Now"_s}));
        QVERIFY(
            run.window.findChild<gui::NoticeBar*>()->accessibleName().startsWith(u"books.fwk was changed"_s));
        QCOMPARE(run.app.document.LV.count(), 3); // as it was
        run.act(u"press Shift+F6 2"_s);           // the tabs, then the bar
        QCOMPARE(QApplication::focusWidget()->objectName(), u"notice_0"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(bar(run), QStringList());
        QCOMPARE(run.app.document.LV.count(), 2);

        run.act(u"click mnuSave"_s); // our own
        QTest::qWait(700);
        QCOMPARE(bar(run), QStringList());

        run.window.events().run([&] { app::setDocumentModified(run.app, true); });
        books("Third|1");
        QTRY_COMPARE(bar(run), (QStringList{u"Save as Another File..."_s, u"Overwrite at the Next Save"_s,
                                            u"Read the Other State"_s}));
        run.act(u"click notice_1"_s);
        QCOMPARE(bar(run), QStringList());
        run.act(u"click mnuSave"_s); // without a question
        QVERIFY(!run.app.document.bModified);
        QTest::qWait(700);
        QCOMPARE(bar(run), QStringList());

        fs::remove(run.app.document.currentFile);
        QTRY_COMPARE(bar(run), (QStringList{u"Write It Again"_s, u"Not Now"_s}));
        run.act(u"click notice_0"_s);
        QVERIFY(fs::exists(run.app.document.currentFile));
        QCOMPARE(bar(run), QStringList());
    }
};

GUI_TEST(Recovery)
#include "recovery.moc"
