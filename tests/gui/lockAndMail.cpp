#include "formActs.h"

#include <QDesktopServices>

#include <csignal>

// Locking the design, and handing the database to a mail program.
class LockAndMail : public QObject {
    Q_OBJECT

private:
    Folders folders_;
    QByteArray path_ = qgetenv("PATH");

    // A program in place of the system's "xdg-email": it writes down what it was given and does the rest.
    QString mailProgram(const char* rest) {
        const QString folder = folders_.path("programs");
        QDir().mkpath(folder);
        QFile script(folder + u"/xdg-email"_s);
        if (!script.open(QFile::WriteOnly)) qFatal("no script");
        script.write(
            "#!/bin/sh\n[ $# -gt 0 ] && printf '%s\\n--\\n' \"$@\" > \"$0.part\"\necho $$ > \"$0.pid\"\n"
            "mv \"$0.part\" \"$0.told\"\n");
        script.write(rest);
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QFile::remove(script.fileName() + u".told"_s);
        qputenv("PATH", folder.toLocal8Bit() + ':' + path_);
        return script.fileName();
    }
    static QByteArray bytesOf(const QString& file) {
        QFile read(file);
        return read.open(QFile::ReadOnly) ? read.readAll() : QByteArray();
    }
    // What the program was given, each argument with a line "--" behind it.
    static QStringList told(const QString& program) {
        const QString file = program + u".told"_s;
        if (!QTest::qWaitFor([&] { return QFile::exists(file); })) return {};
        return QString::fromUtf8(bytesOf(file)).split(u"\n--\n"_s, Qt::SkipEmptyParts);
    }
    static void type(const QDialog& form, const char* address, const char* subject, const char* message) {
        for (const auto& [name, text] : {std::pair{"Text1", address}, std::pair{"Text2", subject}}) {
            QCOMPARE(QApplication::focusWidget(), in<QWidget>(form, name));
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(in<QWidget>(form, "Text3")->hasFocus());
        in<QPlainTextEdit>(form, "Text3")->insertPlainText(QString::fromUtf8(message));
    }

public slots:
    void openMail(const QUrl&) {}

private slots:
    void init() { Folders::forgetSettings(); }
    void cleanup() { qputenv("PATH", path_); }
    void theLockHoldsUntilItIsOpened() {
        Session run(folders_.sample("books.fwk"));
        run.platform.answers = {platform::Answer::Yes};
        run.platform.inputs = {"secret", "secret"};
        run.action("mnuDatabaseLock")->trigger();
        for (const char* button : {"Properties", "Design"}) {
            run.action(button)->trigger();
            QVERIFY(run.platform.messages.back().text.startsWith("The database structure"_L1));
            QVERIFY(run.platform.forms.empty() && !run.action(button)->isChecked());
        }
        run.action("mnuDatabaseLock")->trigger();
        run.action("Properties")->trigger();
        QCOMPARE(run.platform.forms, QStringList{u"designFrm"_s});
        run.action("Design")->trigger();
        QVERIFY(run.action("Design")->isChecked());
    }

    void theMailProgramIsGivenTheDatabase() {
        const QString program = mailProgram("");
        const QString file = folders_.sample("books.fwk");
        Session run(file);
        run.platform.scripts[u"mailFrm"_s] = [&](QDialog& form) {
            click(form, "OKButton");
            QCOMPARE(run.platform.messages.size(), std::size_t{1}); // neither an address nor a subject
            in<QWidget>(form, "Text1")->setFocus();
            type(form, "ann@example.org", "My \"books\" $(id)", "One; two\nthree \xC3\xA9");
            click(form, "OKButton");
            QCOMPARE(told(program),
                     (QStringList{u"--utf8"_s, u"--subject"_s, u"My \"books\" $(id)"_s, u"--body"_s,
                                  u"One; two\nthree \u00E9"_s, u"--attach"_s, file, u"ann@example.org"_s}));
            QVERIFY(form.isVisible());
            // Its shell would take this for a command.
            QFile::remove(program + u".told"_s);
            in<QPlainTextEdit>(form, "Text3")->setPlainText(u"C:\\new"_s);
            click(form, "OKButton");
            const QStringList link = told(program);
            QVERIFY(link.size() == 4 && link[1] == "--attach"_L1);
            QVERIFY2(link[3].endsWith("&Body=C%3A%5Cnew"_L1), qPrintable(link[3]));

            auto* message = in<QPlainTextEdit>(form, "Text3");
            message->setPlainText(QString(499, u'x'));
            QTest::keyClicks(message, u"abc"_s);
            QCOMPARE(message->toPlainText(), u'a' + QString(499, u'x'));
            click(form, "CancelButton");
        };
        run.action("mnuEmail")->trigger();
        QCOMPARE(run.platform.messages.size(), std::size_t{1});
    }

    void aMailProgramThatHangsOrFails() {
        Session run(folders_.sample("books.fwk"));
        run.platform.scripts[u"mailFrm"_s] = [&](QDialog& form) {
            const QString hanging = mailProgram("exec sleep 60\n");
            type(form, "ann@example.org", "Books", "");
            QElapsedTimer clock;
            clock.start();
            click(form, "OKButton");
            QVERIFY(!told(hanging).empty());
            QVERIFY2(clock.elapsed() < 10000, "waited for");
            QVERIFY(in<QWidget>(form, "Text1")->isEnabled() && run.platform.messages.empty());
            ::kill(bytesOf(hanging + u".pid"_s).trimmed().toInt(), SIGKILL);
            QTRY_COMPARE(run.platform.messages.size(), std::size_t{1}); // it has crashed

            mailProgram("exit 3\n");
            click(form, "OKButton");
            QTRY_COMPARE(run.platform.messages.size(), std::size_t{2});
            QCOMPARE(run.platform.messages.back().text, u"Your mail program could not be started."_s);
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.action("mnuEmail")->trigger();
    }

    void withoutAMailProgram() {
        // The link goes to whoever opens links; on this display nobody does.
        qputenv("PATH", QFile::encodeName(folders_.path("none")));
        Session run(folders_.sample("books.fwk"));
        run.platform.scripts[u"mailFrm"_s] = [&](QDialog& form) {
            type(form, "ann@example.org", "Books", "");
            click(form, "OKButton");
            QCOMPARE(run.platform.messages.back().text, u"Your mail program could not be started."_s);
            QDesktopServices::setUrlHandler(u"mailto"_s, this, "openMail");
            click(form, "OKButton");
            QDesktopServices::unsetUrlHandler(u"mailto"_s);
            QVERIFY(run.platform.messages.back().text.startsWith("Please attach"_L1));
            click(form, "CancelButton");
        };
        run.action("mnuEmail")->trigger();
    }
};

QTEST_MAIN(LockAndMail)
#include "lockAndMail.moc"
