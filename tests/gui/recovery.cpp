#include "gui/machine/endSignals.h"
#include "gui/widgets/textBox.h"
#include "session.h"
#include "shell/menuCommands.h"
#include "storage/recoveryCopies.h"

#include <csignal>
#include <ctime>

namespace fs = std::filesystem;

// What the window does by itself to lose nothing: timers, signals, the bar, and the questions as they are
// shown.
class RecoveryTest : public GuiTest {
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
    static void answer(Session& run, const QString& button, QString* text = nullptr) {
        run.onDialog = [=](QDialog& dialog) {
            if (text != nullptr) *text = dialog.findChild<QLabel*>(u"qt_msgbox_label"_s)->text();
            for (auto* each : dialog.findChildren<QPushButton*>())
                if (each->text().remove(u'&') == button) each->click();
        };
    }
    static QString names(const Session& run) {
        QString all;
        run.app.document.LV.forEach(
            [&](const core::Item& item) { all += gui::toQt(item.cells[0].str()) + u' '; });
        return all;
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
        QString text;
        answer(run, u"Cancel"_s, &text);
        open(run, file);
        QVERIFY2(text.contains(u"File: "_s + file) && text.contains(u"Records: 2"_s), qPrintable(text));
        QVERIFY(!run.app.document.bModified);
        answer(run, u"Restore"_s);
        open(run, file);
        QVERIFY(run.app.document.bModified);
        run.act(u"click mnuSave"_s);
        QCOMPARE(copies(), 0);
    }

    // What 32,000 records cost the window: the moment in which the copy is begun, and keys while it is
    // written.
    void keepsNoKeyWaiting() {
        std::string rows;
        for (int row = 0; row < 32000; ++row)
            rows += "some text|" + std::to_string(row) +
                    "|3|4|5|6|7|8|9|a text|11|12|13|14|15|16|17|18|19|20|21|22|23|24|25;";
        rows.pop_back();
        const QString file = database(
            "big.fwk",
            DataFile("A B C D E F G H I J K L M N O P Q R S T U V W X Y", rows).objects("F|A|0|0|2000|300"));
        Session run;
        open(run, file);
        run.act(u"tab 1"_s);
        auto* field = run.window.findChild<gui::TextBox*>();
        field->setFocus();
        using Clock = storage::UnsavedWork::Clock;
        // Of this thread: what else the machine does is not the program's.
        const auto microseconds = [](auto&& act) {
            const auto now = [] {
                timespec time{};
                ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
                return time.tv_sec * 1'000'000L + time.tv_nsec / 1000;
            };
            const long start = now();
            act();
            return now() - start;
        };
        const auto press = [&] { return microseconds([&] { QTest::keyClick(field, Qt::Key_X); }); };
        std::vector<long> begins, keys, quiet;
        for (int round = 0; round < 5; ++round) {
            run.window.events().run([&] { app::setDocumentModified(run.app, true); });
            begins.push_back(microseconds(
                [&] { storage::tendUnsavedWork(run.app, Clock::now() + std::chrono::seconds(3)); }));
            if (!storage::unsavedWork(run.app).writer.isRunning()) QSKIP("It is written in this process.");
            while (storage::unsavedWork(run.app).writer.isRunning()) {
                keys.push_back(press());
                QTest::qWait(5);
            }
            for (int i = 0; i < 20; ++i) quiet.push_back(press());
        }
        for (auto* times : {&begins, &keys, &quiet}) std::ranges::sort(*times);
        qInfo("begun in %ld to %ld us; keys meanwhile %ld, 99 of 100 below %ld, at most %ld us; else %ld, at "
              "most %ld us",
              begins.front(), begins.back(), keys[keys.size() / 2], keys[keys.size() * 99 / 100], keys.back(),
              quiet[quiet.size() / 2], quiet.back());
        QVERIFY(begins[begins.size() / 2] + keys[keys.size() * 99 / 100] < 8000);
        storage::removeUnsavedWork(run.app);
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
        ::raise(SIGHUP);
        QTRY_COMPARE(ended, SIGHUP);
    }

    void saysWhatOthersDoToTheFile() {
        Session run;
        open(run, books());
        QCOMPARE(bar(run), QStringList());
        books("Other|1");
        QTRY_COMPARE(bar(run), (QStringList{u"Read Again"_s, u"Not Now"_s}));
        QVERIFY(
            run.window.findChild<gui::NoticeBar*>()->accessibleName().startsWith(u"books.fwk was changed"_s));
        QCOMPARE(names(run), u"Bolt Nut ------ "_s);
        QTest::keyClick(&run.window, Qt::Key_F6,
                        Qt::ShiftModifier); // the page's other end: the tabs, then the bar
        QTest::keyClick(&run.window, Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"notice_0"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(bar(run), QStringList());
        QCOMPARE(names(run), u"Other ------ "_s);

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

QTEST_MAIN(RecoveryTest)
#include "recovery.moc"
