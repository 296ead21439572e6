#include "shell/program.h"
#include "session.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/frame/commandLine.h"
#include "gui/machine/messageBox.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/palette.h"
#include "shell/commands.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>
#include <QVBoxLayout>

// The platform's own dialogs, the icons, and the program as it is called.
class Dialogs : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    // Runs the test's part as soon as the modal dialog is there.
    template <typename Dialog>
    static void whenShown(const std::function<void(Dialog&)>& act) {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [=] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            timer->deleteLater();
            act(*dialog);
        });
        timer->start(10);
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void aQuestionThatIsWavedAwayIsNotAnswered() {
        gui::QtPlatform platform;
        const auto ask = [&](const std::function<void(QMessageBox&)>& act) {
            whenShown<QMessageBox>(act);
            return platform.msgBox("Save <b>it</b>?", platform::Icon::Question, "Title",
                                   platform::Buttons::YesNo);
        };
        using platform::Answer;
        QCOMPARE(ask([](QMessageBox& box) {
                     QCOMPARE(box.text(), u"Save <b>it</b>?"_s);
                     QCOMPARE(box.textFormat(), Qt::PlainText);
                     QCOMPARE(box.windowTitle(), u"Title"_s);
                     QCOMPARE(box.icon(), QMessageBox::Question);
                     box.button(QMessageBox::Yes)->click();
                 }),
                 Answer::Yes);
        QCOMPARE(ask([](QMessageBox& box) { box.button(QMessageBox::No)->click(); }), Answer::No);
        QCOMPARE(ask([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Answer::Cancel);
        QCOMPARE(ask([](QMessageBox& box) { box.close(); }), Answer::Cancel);
    }

    // What is higher than the screen scrolls, but its buttons do not.
    void aDialogFitsItsScreen() {
        QDialog dialog;
        dialog.setWindowTitle(QString(40, u'W'));
        auto* column = new QVBoxLayout(&dialog);
        QList<QLineEdit*> boxes;
        for (int i = 0; i < 60; ++i) column->addWidget(boxes.emplace_back(new QLineEdit));
        auto* row = new QHBoxLayout;
        auto* button = new QPushButton(u"OK"_s);
        row->addWidget(button);
        column->addLayout(row);
        boxes[1]->setFocus();
        gui::fitDialog(dialog);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(dialog.height() <= dialog.screen()->availableSize().height());
        QVERIFY(dialog.width() >= dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()));
        QVERIFY(!button->visibleRegion().isEmpty());
        QVERIFY(boxes[1]->hasFocus());
        QVERIFY(boxes[59]->visibleRegion().isEmpty());
        for (int i = 1; i < 59; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(boxes[59]->hasFocus());
        QVERIFY(!boxes[59]->visibleRegion().isEmpty());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(button->hasFocus());
    }

    // A font that is not installed, and a size that is in no list, stay what they are unless another is
    // chosen.
    void theFontBoxWritesWhatWasChanged() {
        const platform::FontChoice present{"MS Sans Serif", 8.25F, true, false, false, true, -2147483640};
        const auto told = [](const platform::FontChoice& c) {
            return QStringLiteral("%1|%2|%3%4%5%6|%7")
                .arg(gui::toQt(c.FontName))
                .arg(static_cast<double>(c.FontSize))
                .arg(c.FontBold)
                .arg(c.FontItalic)
                .arg(c.FontUnderline)
                .arg(c.FontStrikethru)
                .arg(c.ForeColor);
        };
        gui::QtPlatform platform;
        const auto key = [](Qt::Key code, int times = 1) {
            for (int i = 0; i < times; ++i) QTest::keyClick(QApplication::focusWidget(), code);
        };
        const auto choose = [&](const std::function<void(QDialog&)>& act) {
            whenShown<QDialog>([&](QDialog& dialog) {
                QVERIFY(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
                act(dialog);
                if (dialog.isVisible()) QFAIL("still open");
            });
            const auto choice = platform.showFont(present);
            return choice ? told(*choice) : u"cancelled"_s;
        };
        const QString same = told(present);
        QCOMPARE(choose([&](QDialog&) { key(Qt::Key_Enter); }), same);
        QCOMPARE(choose([&](QDialog&) {
                     key(Qt::Key_Tab, 8); // to OK
                     QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
                 }),
                 same);
        QCOMPARE(choose([&](QDialog&) { key(Qt::Key_Escape); }), u"cancelled"_s);
        QCOMPARE(choose([&](QDialog& dialog) {
                     auto* size = dialog.findChild<QLineEdit*>(u"sizeTxt"_s);
                     size->setFocus();
                     for (const char* wrong : {"", "0", "1601", "x", "nan"}) {
                         size->setText(QLatin1String(wrong));
                         key(Qt::Key_Return);
                         QVERIFY2(dialog.isVisible(), wrong);
                     }
                     size->setText(u"9,75"_s);
                     dialog.findChild<QAbstractButton*>(u"italicChk"_s)->click();
                     dialog.findChild<QAbstractButton*>(u"boldChk"_s)->click();
                     key(Qt::Key_Return);
                 }),
                 u"MS Sans Serif|9.75|0101|-2147483640"_s);
        QCOMPARE(choose([&](QDialog& dialog) {
                     QTest::keyClicks(dialog.focusWidget(), u"liberation se"_s);
                     key(Qt::Key_Return);
                 }),
                 QString(same).replace(u"MS Sans Serif"_s, u"Liberation Serif"_s));
    }

    void aboutAndDisclaimer() {
        gui::QtPlatform platform;
        shell::Program app(platform);
        gui::MainFrmView window(app, platform);
        window.load({});
        QString about;
        whenShown<QMessageBox>([&](QMessageBox& box) {
            about = box.windowTitle() + u'\n' + box.text();
            box.close();
        });
        window.findChild<QAction*>(u"mnuAbout"_s)->trigger();
        QVERIFY2(about.startsWith(QLatin1String("About Ferrowick\nFerrowick\nVersion " FERROWICK_VERSION)),
                 qPrintable(about));

        bool readOnly = false;
        whenShown<QDialog>([&](QDialog& dialog) {
            const auto* text = dialog.findChild<QTextBrowser*>(u"RichTextBox1"_s);
            readOnly = text != nullptr && text->isReadOnly() && text->toPlainText().contains("warranty"_L1);
            QTest::mouseClick(dialog.findChild<QPushButton*>(u"Command1"_s), Qt::LeftButton);
        });
        window.findChild<QAction*>(u"mnuDisclaimer"_s)->trigger();
        QVERIFY(readOnly);
    }

    void namesInFileDialogs() {
        const std::string_view filter = platform::databaseFilter;
        QCOMPARE(gui::nameFilters(filter), (QStringList{u"Database (*.fwk)"_s, u"All Files (*)"_s}));
        QCOMPARE(gui::nameFilters("Pictures (*.bmp;*.gif)|*.bmp;*.gif"),
                 QStringList{u"Pictures (*.bmp *.gif)"_s});
        const std::pair<const char*, const char*> names[] = {{"/a.b/data", "/a.b/data.fwk"},
                                                             {"/a/data.", "/a/data.fwk"},
                                                             {"/a/data.FWK", "/a/data.FWK"},
                                                             {"/a/data.txt", "/a/data.txt"}};
        for (const auto& [typed, expected] : names)
            QCOMPARE(gui::withSuffix(QLatin1String(typed), filter), QLatin1String(expected));

        // The real dialogs: an existing name is not asked about here, and a cancelled dialog gives nothing.
        gui::QtPlatform platform;
        const QString file = folders_.sample("books.fwk");
        whenShown<QFileDialog>([&](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), u"Save As..."_s);
            // As typed: a selection would have to wait for the folder to be listed.
            dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(file);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        QCOMPARE(platform.showSave({"Save As...", "Untitled.fwk", std::string(filter)}), gui::fromQt(file));
        whenShown<QFileDialog>([&](QFileDialog& dialog) { dialog.reject(); });
        QVERIFY(!platform.showOpen({"Open Database", "", std::string(filter)}));
    }

    void theHourglassRestsWhileTheUserIsAsked() {
        gui::QtPlatform platform;
        platform.setMousePointer(platform::MousePointer::Hourglass);
        platform.setMousePointer(platform::MousePointer::Hourglass); // a handler within a handler
        QVERIFY(QApplication::overrideCursor() != nullptr);
        bool rested = false;
        whenShown<QMessageBox>([&](QMessageBox& box) {
            rested = QApplication::overrideCursor() == nullptr;
            box.close();
        });
        platform.msgBox("x", platform::Icon::None, "x");
        QVERIFY(rested);
        QVERIFY(QApplication::overrideCursor() != nullptr);
        platform.setMousePointer(platform::MousePointer::Default);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void everyCommandHasItsIconInBothPalettes() {
        const auto lightness = [](const QIcon& icon,
                                  QIcon::Mode mode) { // of the darkest or lightest ink on the page
            const QImage image = icon.pixmap(QSize(24, 24), 1, mode).toImage();
            int solid = 0, bright = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    if (const QColor colour = image.pixelColor(x, y); colour.alpha() > 200) {
                        ++solid;
                        bright += colour.lightness();
                    }
            return solid == 0 ? -1 : bright / solid;
        };
        QStringList names;
        for (const shell::Menu& menu : shell::menuBar())
            for (const auto key : menu.items)
                if (key != "-") names << gui::toQt(shell::command(key).icon);
        for (const auto button : shell::toolbarKeys()) {
            if (button != "-") names << gui::toQt(shell::command(button).icon);
            for (const auto key : shell::buttonMenuKeys(button))
                if (key != "-") names << gui::toQt(shell::command(key).icon);
        }
        names.removeDuplicates();
        names.removeAll(QString());
        QVERIFY(names.size() > 20);
        const QPalette before = QApplication::palette();
        for (const QString& name : names) {
            const QIcon icon = gui::familyIcon(name);
            QVERIFY2(!icon.isNull(), qPrintable(name));
            const int light = lightness(icon, QIcon::Normal);
            QVERIFY2(light >= 0 && light < 130, qPrintable(name));
            QVERIFY2(lightness(icon, QIcon::Disabled) == -1, qPrintable(name)); // nothing solid is left
            gui::useDarkColours();
            QVERIFY2(lightness(icon, QIcon::Normal) > 150, qPrintable(name));
            QApplication::setPalette(before);
        }
        QVERIFY(gui::familyIcon(u"noSuchIcon"_s).isNull());
    }

    void commandLine_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("wrong");
        const QString here = QDir::currentPath();
        QTest::newRow("nothing") << QStringList{} << QString() << false;
        QTest::newRow("relative") << QStringList{u"a/../b.fwk"_s} << here + u"/b.fwk"_s << false;
        QTest::newRow("quoted") << QStringList{u"\"/x/my books.fwk\""_s} << u"/x/my books.fwk"_s << false;
        QTest::newRow("two files") << QStringList{u"a"_s, u"b"_s} << here + u"/a"_s << true;
        QTest::newRow("unknown option") << QStringList{u"--nonsense"_s} << QString() << true;
        QTest::newRow("no size") << QStringList{u"--size=100by100"_s} << QString() << true;
        QTest::newRow("no scale") << QStringList{u"--scale=0"_s} << QString() << true;
    }

    void commandLine() {
        QFETCH(QStringList, arguments);
        std::vector<QByteArray> words = {"ferrowick"};
        for (const QString& argument : arguments) words.push_back(argument.toLocal8Bit());
        std::vector<char*> argv;
        argv.reserve(words.size());
        for (QByteArray& word : words) argv.push_back(word.data());
        const gui::CommandLine line = gui::parseCommandLine(static_cast<int>(argv.size()), argv.data());
        QTEST(line.file, "file");
        QTEST(!line.error.isEmpty(), "wrong");
    }

    void picturesOfTheWindow() {
        const QString picture = folders_.path("window.png");
        const auto run = [](const QStringList& arguments) {
            QProcess program;
            program.start(QStringLiteral(FERROWICK_PROGRAM), arguments);
            program.waitForFinished();
            return program.exitCode();
        };
        const QString option = u"--picture"_s;
        const QString books = folders_.sample("books.fwk");
        QCOMPARE(run({option, picture, u"--size=640x400"_s, u"--scale=2"_s, books}), 0);
        const QImage light(picture);
        QCOMPARE(light.size(), QSize(1280, 800));
        QCOMPARE(run({option, picture, u"--size=640x400"_s, u"--dark"_s, books}), 0);
        const QImage dark(picture);
        QCOMPARE(dark.size(), QSize(640, 400));
        QVERIFY(light.pixelColor(2, 796).lightness() > dark.pixelColor(1, 398).lightness() + 100);
        // The user's settings know nothing of it.
        QVERIFY(platform::SettingsFile().GetSetting("StartUp", "File1").empty());
        QCOMPARE(run({option, picture, folders_.path("absent.fwk")}), 1);
        QCOMPARE(run({option, folders_.path("no/such/folder.png"), books}), 1);
        QCOMPARE(run({u"--nonsense"_s}), 2);
        QCOMPARE(run({u"--help"_s}), 0);
    }
};

QTEST_MAIN(Dialogs)
#include "dialogs.moc"
