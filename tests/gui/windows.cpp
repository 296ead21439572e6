#include "session.h"

#include "gui/dialogs/fontDialog.h"
#include "gui/machine/mailProgram.h"
#include "gui/machine/recentList.h"
#include "gui/widgets/programStyle.h"

// What the platform shows, and the program as it is called.
class Windows : public GuiTest {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(new gui::ProgramStyle); }

    // A question that is waved away is not answered; the hourglass rests as long as it is asked.
    void questions() {
        using platform::MousePointer;
        Session run;
        gui::QtPlatform platform;
        for (const char* way : {"1 press Space", "2 press Tab; press Space", "2!press Return",
                                "3 press Escape", "3 press Tab"}) {
            for (int i = 0; i < 2; ++i) platform.setMousePointer(MousePointer::Hourglass);
            run.onDialog = [&](QDialog& box) {
                QVERIFY(QApplication::overrideCursor() == nullptr);
                QCOMPARE(static_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
                run.act(QString::fromLatin1(way + 2));
            };
            const auto buttons = way[1] == '!' ? platform::Buttons::YesNoDefaultNo : platform::Buttons::YesNo;
            const auto answer = platform.msgBox("?", platform::Icon::None, "", buttons);
            QVERIFY2(static_cast<int>(answer) == *way - '0', way); // Yes, No, and Cancel twice
            QVERIFY(QApplication::overrideCursor() != nullptr);
            platform.setMousePointer(MousePointer::Default);
            QVERIFY(QApplication::overrideCursor() == nullptr);
        }
    }

    // A font that is not installed, and a size that is in no list, stay unless another is chosen.
    void fonts() {
        Session run;
        gui::QtPlatform platform;
        QString told;
        for (const char* acts :
             {"press Return", "press Tab 8; press Return", "press Escape", "type liberation se; press Return",
              "press Tab; type x; press Return; press Backspace; type 0; press Return; press Backspace; "
              "type 1601; press Return; press Shift+Home; type 9,75; press Tab 2; press Space; press Tab; "
              "press Space; press Tab; press Space; press Tab; press Space; press Return"}) {
            run.onDialog = [&](QDialog&) { run.act(QString::fromLatin1(acts)); };
            const auto font = platform.showFont({"MS Sans Serif", 8.25F, true, false, false, true, -5});
            if (!font) continue;
            told += QString::asprintf("%s %g %d%d%d%d %d|", font->FontName.c_str(), double(font->FontSize),
                                      font->FontBold, font->FontItalic, font->FontUnderline,
                                      font->FontStrikethru, font->ForeColor);
        }
        QCOMPARE(told, u"MS Sans Serif 8.25 1001 -5|MS Sans Serif 8.25 1001 -5|"
                       "Liberation Serif 8.25 1001 -5|MS Sans Serif 9.75 0110 -5|"_s);
        gui::FontDialog box({.FontName = "Sans Serif", .FontSize = 18}, nullptr); // its list follows
        QCOMPARE(box.findChild<QListWidget*>(u"sizeList"_s)->selectedItems().at(0)->text(), u"18"_s);
    }

    // An existing name is not asked about here, and one without a suffix gets it.
    void files() {
        QCOMPARE(gui::nameFilters("Pictures (*.bmp;*.gif)|*.bmp;*.gif|All Files (*.*)|*.*").join(u'|'),
                 u"Pictures (*.bmp *.gif)|All Files (*)"_s);
        QString names;
        for (const char* name : {"books", "data.", "data.FWK", "data.txt", ""})
            names += gui::withSuffix(QLatin1String(name), platform::databaseFilter) + u' ';
        QCOMPARE(names, u"books.fwk data.fwk data.FWK data.txt  "_s);
        Session run;
        run.onDialog = [&](QDialog& dialog) {
            // As typed: a selection would have to wait for the folder to be listed.
            dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(sample("books.fwk").chopped(4));
            QMetaObject::invokeMethod(&dialog, "accept");
            QVERIFY(dialog.width() > 650); // sizes and dates have room
        };
        const platform::FileDialog asked{"", "Untitled", std::string(platform::databaseFilter)};
        QCOMPARE(gui::toQt(gui::QtPlatform().showSave(asked).value_or("none")), path("books.fwk"));
        QCOMPARE(gui::toQt(gui::QtPlatform().showOpen(asked).value_or("none")), path("books.fwk"));
        run.onDialog = [](QDialog&) {};
        QVERIFY(!gui::QtPlatform().showSave(asked));
    }

    // A program in place of the system's writes down what it was given, and does the rest.
    void theMailProgram() {
        const QByteArray programs = qgetenv("PATH"), folder = QFile::encodeName(path(""));
        qputenv("PATH", folder + ':' + programs);
        int failed = 0;
        const auto send = [&](const char* rest, const char* body) {
            QFile script(path("xdg-email")), told(path("told"));
            told.remove();
            script.open(QFile::WriteOnly);
            script.write("#!/bin/sh\ncd ${0%/*}; printf '%s|' \"$@\" > part; mv part told; ");
            script.write(rest);
            script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            script.close();
            gui::startMailProgram({"a@b.org", "\"$(id)", body, "/b.fwk"}, this, [&] { ++failed; });
            return QTest::qWaitFor([&] { return told.open(QFile::ReadOnly); }) ? told.readAll() : "";
        };
        QCOMPARE(send("", "1\n2"), "--utf8|--subject|\"$(id)|--body|1\n2|--attach|/b.fwk|a@b.org|");
        QVERIFY(send("", "C:\\new").endsWith("Body=C%3A%5Cnew|")); // its shell would take it for a command
        QVERIFY(send("exec sleep 9", "").contains("attach"));      // nobody waits
        QCOMPARE(failed, 0);
        send("exit 3", "");
        send("kill -9 $$", "");
        QTRY_COMPARE(failed, 2);
        qputenv("PATH", programs);
    }

    // What others keep in the desktop's list stays, in whatever words; a list that is none is left alone.
    void theDesktopsListOfRecentFiles() {
        const QString list = path("recently-used.xbel"), file = u"/home/me/Ünsere Bücher.fwk"_s;
        const QDateTime now(QDate(2026, 3, 4), QTime(5, 6), Qt::UTC);
        const QByteArray others =
            "<bookmark href='file:///a&amp;b' added='2020'><title>A &lt; b</title><info><metadata owner='x'>"
            "<bookmark:applications><bookmark:application name='Ferrowick' "
            "count='7'/></bookmark:applications>"
            "</metadata></info><!-- kept --><desc><![CDATA[<&>]]></desc></bookmark>"_ba.replace('\'', '"');
        const auto write = [&](const QByteArray& bytes) {
            QFile out(list);
            return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
        };
        const auto read = [&] {
            QFile in(list);
            return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
        };
        for (const QByteArray& before : {QByteArray(), "<xbel version=\"1.0\">" + others + "</xbel>"}) {
            QVERIFY(write(before));
            QCOMPARE(gui::noteRecentFile(list, file, now), QString());
            QCOMPARE(gui::noteRecentFile(list, file, now.addDays(1)), QString());
            const QByteArray after = read();
            QVERIFY(before.isEmpty() || after.contains(others));
            QCOMPARE(after.count("href=\"file:///home/me/%C3%9Cnsere%20B%C3%BCcher.fwk\" "
                                 "added=\"2026-03-04T05:06:00.000Z\""),
                     1);
            QVERIFY(after.contains("visited=\"2026-03-05T05:06:00.000Z\"") &&
                    after.contains("application/x-ferrowick"));
            QVERIFY(
                after.contains("exec=\"'ferrowick %f'\" modified=\"2026-03-05T05:06:00.000Z\" count=\"2\""));
            QCOMPARE(QFile::permissions(list).toInt() & 0x77, 0); // its owner alone
        }
        for (const QByteArray& damaged :
             {QByteArray("<xbel><bookmark></xbel>"), QByteArray("<html/>"), QByteArray("<xbel>&x;</xbel>"),
              QByteArray("<xbel>\xff</xbel>"), QByteArray(9'000'000, ' ')}) {
            QVERIFY(write(damaged) && !gui::noteRecentFile(list, file, now).isEmpty());
            QVERIFY(read() == damaged);
        }
        // Who takes the right to write from the list wants none kept.
        QVERIFY(write("<xbel/>") && QFile::setPermissions(list, QFile::ReadOwner));
        QVERIFY(!gui::noteRecentFile(list, file, now).isEmpty() && read() == "<xbel/>");
        QVERIFY(QFile::setPermissions(list, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(!gui::noteRecentFile(path("absent/list"), file, now).isEmpty());
    }

    void theProgramAsItIsCalled() {
        sample("books.fwk");
        const auto codeOf = [&](const char* arguments) {
            QProcess program;
            program.setWorkingDirectory(path(""));
            program.start(QStringLiteral(FERROWICK_PROGRAM), QString::fromLatin1(arguments).split(u' '));
            return program.waitForFinished() ? program.exitCode() : -1;
        };
        for (const char* call :
             {"0 --help", "0 --version", "0 --picture light --size=640x400 --scale=2 a/../books.fwk",
              "0 --picture dark --size=640x400 --dark \"books.fwk\"", "2 --nonsense", "2 a b",
              "2 --picture p --size=100x300 books.fwk", "2 --picture p --size=300by300 books.fwk",
              "2 --picture p --scale=0 books.fwk", "2 --new --last", "2 --last books.fwk",
              "2 --new --picture p", "1 --picture p absent.fwk", "1 --picture no/p books.fwk"})
            QVERIFY2(codeOf(call + 2) == *call - '0', call);
        const QImage light(path("light")), dark(path("dark"));
        QVERIFY(light.size() == QSize(1280, 800) && dark.size() == QSize(640, 400));
        QVERIFY(light.pixelColor(2, 796).lightness() > dark.pixelColor(1, 398).lightness() + 100);
        // In the language of whoever calls it.
        const QByteArray locale = qgetenv("LC_ALL");
        qputenv("LC_ALL", "de_DE.UTF-8");
        QVERIFY(codeOf("--picture german --size=640x400 --dark books.fwk") == 0);
        qputenv("LC_ALL", locale);
        const QRect menus(0, 0, 640, 20);
        QVERIFY(QImage(path("german")).copy(menus) != dark.copy(menus));
        // The user's settings know nothing of it.
        QVERIFY(platform::SettingsFile().GetSetting("StartUp", "File1").empty());
    }
};

GUI_TEST(Windows)
#include "windows.moc"
