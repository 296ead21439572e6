#include "session.h"

#include <QPrintDialog>

// Printing through a queue of the system's print server: one of the test's own.
class Cups : public QObject {
    Q_OBJECT

private:
    Folders folders_;
    QTemporaryDir server_;
    QProcess cupsd_;
    QDir programs_; // where the server is installed

    QString at(const char* name) const { return server_.filePath(QLatin1String(name)); }
    void configure() const {
        for (const char* folder : {"etc", "spool", "cache", "run", "log"})
            QDir(server_.path()).mkdir(QLatin1String(folder));
        QFile files(at("etc/cups-files.conf"));
        QVERIFY(files.open(QIODevice::WriteOnly));
        QTextStream(&files) << "ServerRoot " << at("etc") << "\nServerBin "
                            << programs_.filePath(u"lib/cups"_s) << "\nDataDir "
                            << programs_.filePath(u"share/cups"_s) << "\nRequestRoot " << at("spool")
                            << "\nCacheDir " << at("cache") << "\nStateDir " << at("run") << "\nErrorLog "
                            << at("log/error") << "\nAccessLog " << at("log/access") << "\nPageLog "
                            << at("log/page") << "\n";
        QFile server(at("etc/cupsd.conf"));
        QVERIFY(server.open(QIODevice::WriteOnly));
        QTextStream(&server)
            << "PreserveJobFiles Yes\nListen " << at("run/socket")
            << "\nBrowsing No\nDefaultAuthType None\nWebInterface No\n"
               "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
               "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n";
    }

    QString run(const QString& program, const QStringList& arguments) const {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    // The documents that the server has taken; it keeps them behind the job.
    QStringList jobs() const { return QDir(at("spool")).entryList({u"d*"_s}, QDir::Files, QDir::Name); }
    QString text(int job) const {
        return run(u"pdftotext"_s, {u"-layout"_s, at("spool/") + jobs().at(job), u"-"_s});
    }

private slots:
    void initTestCase() {
        const QStringList places = QString::fromLocal8Bit(qgetenv("PATH")).split(u':') << u"/usr/sbin"_s;
        const QString program = QStandardPaths::findExecutable(u"cupsd"_s, places);
        if (program.isEmpty()) QSKIP("cups is not installed");
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) QSKIP("poppler-utils is not installed");
        programs_ = QFileInfo(program).dir();
        programs_.cdUp();
        configure();
        qputenv("CUPS_SERVER", QFile::encodeName(at("run/socket")));
        cupsd_.start(program, {u"-f"_s, u"-c"_s, at("etc/cupsd.conf"), u"-s"_s, at("etc/cups-files.conf")});
        if (!QTest::qWaitFor([this] { return QFile::exists(at("run/socket")); }))
            QSKIP("cupsd does not start for this user");
        run(programs_.filePath(u"sbin/lpadmin"_s),
            {u"-p"_s, u"FileQueue"_s, u"-E"_s, u"-v"_s, u"file:/dev/null"_s, u"-m"_s, u"raw"_s});
        Folders::forgetSettings();
    }

    void reportsAndLayoutsReachTheQueue() {
        Session run(folders_.sample("books.fwk"));
        QCOMPARE(run.platform.printerDeviceName(), std::string("FileQueue"));
        run.action("Print")->trigger();
        QVERIFY(run.platform.messages.empty());
        QTRY_COMPARE(jobs().size(), 1);
        QVERIFY(text(0).contains(u"Les Misérables"_s));
        QVERIFY(text(0).contains(u"Books on the shelves"_s));

        // Each record is a job.
        run.clickRow(1);
        run.clickRow(4, Qt::ControlModifier);
        QTimer::singleShot(0, this, [] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            QCOMPARE(dialog->printer()->printerName(), u"FileQueue"_s);
            dialog->accept();
        });
        run.action("Selected_As_Layouts")->trigger();
        QVERIFY(run.platform.messages.empty());
        QTRY_COMPARE(jobs().size(), 3);
        QVERIFY(text(1).contains(u"Les Misérables"_s));
        QVERIFY(text(2).contains(u"Middlemarch"_s));
        QVERIFY(!text(2).contains(u"Les Misérables"_s));
    }

    void cleanupTestCase() {
        cupsd_.terminate();
        cupsd_.waitForFinished();
    }
};

QTEST_MAIN(Cups)
#include "cups.moc"
