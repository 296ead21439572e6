#include "session.h"

#include "gui/dialogs/fontDialog.h"
#include "gui/machine/mailProgram.h"
#include "gui/widgets/palette.h"
#include "gui/widgets/programStyle.h"
#include "shell/commands.h"

#include <set>

namespace {

// Whatever is wrong with the widgets of a window or of a page of it.
struct Complaints {
    QStringList all;

    void expect(bool isFine, const char* fault, const QWidget& w) {
        const QString name = w.objectName() + u" in "_s + w.window()->objectName();
        if (!isFine)
            all << QString::asprintf("%s: %s %s", fault, w.metaObject()->className(), qPrintable(name));
    }
    static QWidgetList visible(const QWidget& page) {
        QWidgetList all = page.findChildren<QWidget*>(QRegularExpression(u"^(?!qt_)"_s));
        all.removeIf([&](const QWidget* w) { return !w->isVisibleTo(&page); });
        return all;
    }

    // Captions that share a letter, but for those where it is wanted.
    void sharedLetters(const QStringList& captions) {
        std::map<QString, QString> letters;
        for (const QString& caption : captions) {
            const QString letter = QKeySequence::mnemonic(caption).toString();
            if (letter.isEmpty() || caption.startsWith("&Replace "_L1) || caption == "&Invoices"_L1) continue;
            if (letters.contains(letter)) all << letters[letter] + u" and "_s + caption;
            letters[letter] = caption;
        }
    }
    // Without a name or a tip for somebody who has the keys or a screen reader only.
    void unnamed(const QWidget& page) {
        QStringList captions;
        for (QWidget* w : visible(page)) {
            const auto* label = qobject_cast<QLabel*>(w);
            const bool isFree = label != nullptr && label->buddy() == nullptr;
            const bool isPanel = w->parent()->objectName() == "SB1"_L1;
            expect(!isFree || isPanel || !label->text().endsWith(u':'), "label of nothing", *w);
            if (!isFree) captions << w->property("text").toString() << w->property("title").toString();
            const bool isTool = w->inherits("QToolButton"), inBar = w->parent()->inherits("QToolBar");
            expect(!inBar || !isTool || !w->toolTip().isEmpty(), "no tip", *w);
            const bool hasKeys = w->focusPolicy() != Qt::NoFocus || w->inherits("QToolBar");
            const QString name = QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name);
            expect(!(inBar ? isTool : hasKeys) || !name.trimmed().isEmpty(), "no name", *w);
        }
        sharedLetters(captions);
    }
    // Over another widget, but for a pixel of rounding, beyond its frame, or cut.
    void misplaced(const QWidget& page) {
        for (const QWidget* w : visible(page)) {
            const QWidget& parent = *w->parentWidget();
            const QString name = parent.objectName();
            const bool isScrolled = name == "qt_scrollarea_viewport"_L1 || name == "Picture1"_L1;
            const bool isHeader = w->inherits("QHeaderView") || parent.inherits("QHeaderView");
            expect(isScrolled || isHeader || parent.rect().contains(w->geometry()), "beyond its frame", *w);
            for (const QWidget* other : visible(parent)) {
                const QRect shared = other->geometry() & w->geometry();
                const bool isBeside = other->parent() != &parent || other == w;
                expect(isBeside || shared.width() < 2 || shared.height() < 2, "over another", *w);
            }
            QSize least = w->minimumSizeHint().expandedTo({0, w->heightForWidth(w->width())});
            if (w->minimumWidth() > 0) least.setWidth(w->minimumWidth()); // narrower by intention
            const bool isFree = !isHeader && w->minimumHeight() < w->maximumHeight();
            expect(!isFree || w->size().expandedTo(least) == w->size(), "cut", *w);
            const auto* bar = qobject_cast<const QScrollBar*>(w);
            expect(bar == nullptr || bar->objectName().isEmpty() || bar->maximum() > 1, "no use", *w);
            const auto* tree = qobject_cast<const QTreeWidget*>(w);
            const bool hasHeading = tree != nullptr && !tree->isHeaderHidden();
            expect(!hasHeading || tree->headerItem()->text(0) != "1"_L1, "no heading", *w);
        }
    }
    // By Tab, or without a sign of having the keys, which a list shows all round.
    void unreached(const QWidget& dialog) {
        std::set<const QWidget*> reached;
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab); // to show the keys begins with the first Tab
        for (QWidget* w = dialog.focusWidget(); reached.insert(w).second; w = dialog.focusWidget()) {
            expect(w->visibleRegion().boundingRect() == w->rect(), "hidden", *w);
            const QImage with = w->grab().toImage();
            QTest::keyClick(w, Qt::Key_Tab);
            const QImage without = w->grab().toImage();
            const bool isText = w->inherits("QTextEdit") || w->inherits("QPlainTextEdit");
            const bool isOther = isText || w->inherits("QPushButton") || w->hasFocus();
            expect(isOther || with != without, "no sign of the keys", *w);
            const int x = with.width() - 1, y = with.height() - 1;
            for (const QPoint at : {QPoint(x / 2, 0), QPoint(x / 2, y), QPoint(0, y / 2), QPoint(x, y / 2)})
                expect(!w->inherits("QTreeWidget") || with.pixel(at) != without.pixel(at), "no frame", *w);
        }
        for (const QWidget* w : visible(dialog))
            if (w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) != 0 && w->focusProxy() == nullptr)
                expect(reached.contains(w), "not reached", *w);
    }
};

} // namespace

// Every window to somebody without a mouse or without eyes, what the platform shows, and the program as it is
// called.
class Windows : public GuiTest {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(new gui::ProgramStyle); }

    // Also where the texts are so large that dialogs have to scroll.
    void everyDialog() {
        Complaints complaints;
        int shown = 0;
        const std::function<void(QDialog&)> look = [&](QDialog& dialog) {
            complaints.unnamed(dialog);
            complaints.misplaced(dialog);
            complaints.unreached(dialog);
            const int title = dialog.fontMetrics().horizontalAdvance(dialog.windowTitle());
            complaints.expect(title > 0 && dialog.width() > title, "narrower than its title", dialog);
            const int room = dialog.screen()->availableSize().height();
            complaints.expect(dialog.height() <= room, "higher than the screen", dialog);
            ++shown;
            dialog.close();
        };
        for (const char* file : {"books.fwk", "invoices.fwk"}) {
            Session run(sample(file), *file == 'b' ? 13 : 9);
            run.onDialog = look;
            for (const char* form :
                 {"disclaimFrm",      "databaseTypeFrm",    "designFrm",    "entryFrm",
                  "formulateFrm",     "TotalsFrm",          "mailFrm",      "reportPageSetup",
                  "reportChoicesFrm", "layoutPageSetupFrm", "replaceFrm",   "searchFrm",
                  "serialFrm",        "repeatFrm",          "setValuesFrm", "duplicatesFrm",
                  "serialCheckFrm",   "statisticsFrm",      "coloursFrm",   "makeCodeFrm",
                  "exportFrm"})
                run.platform.showForm(form);
        }
        Session run(sample("books.fwk"), 26);
        run.onDialog = look;
        for (const char* form : {"searchFrm", "reportPageSetup", "designFrm"}) run.platform.showForm(form);
        run.platform.chosenFile = TEST_DATA_DIR "/tables/gn-us.csv";
        run.act(u"click mnuImportTable"_s);
        gui::QtPlatform platform;
        platform.msgBox("Save?", platform::Icon::Question, "Title", platform::Buttons::YesNo);
        platform.inputBox("How many?", "A title that is longer than its box", "1");
        platform.showFont({"Arial", 8});
        QCOMPARE(complaints.all.join(u'\n'), QString());
        QCOMPARE(shown, 49);
    }

    void theMainWindow() {
        Complaints complaints;
        const QPalette before = QApplication::palette();
        for (const char* file : {"books.fwk", "invoices.fwk", ""}) {
            Session run(*file == 0 ? QString() : sample(file));
            run.act(u"click mnuSummary"_s);
            for (const char* command : {"Totals", "Design"}) {
                for (const int tab : {1, 2, 0}) {
                    run.act(u"tab %1"_s.arg(tab));
                    complaints.unnamed(run.window);
                }
                complaints.misplaced(*run.find<QTabWidget>(u"SSTab1"_s)->currentWidget());
                run.act(u"click "_s + QLatin1String(command));
            }
            for (const QMenu* menu : run.window.menuBar()->findChildren<QMenu*>()) {
                QStringList captions;
                for (const QAction* item : menu->actions()) captions << item->text();
                complaints.sharedLetters(captions);
            }
            for (const QAction* action : run.window.findChildren<QAction*>()) {
                const std::string key = gui::fromQt(action->objectName());
                if (!shell::hasCommand(key) || shell::command(key).icon.empty()) continue;
                if (key.starts_with("mnuTemplate")) continue; // in colours of their own
                const QImage light = action->icon().pixmap(QSize(24, 24)).toImage();
                gui::useDarkColours();
                const QImage dark = action->icon().pixmap(QSize(24, 24)).toImage();
                if (light == dark) complaints.all << action->objectName() + u" is not seen"_s;
                QApplication::setPalette(before);
            }
        }
        QCOMPARE(complaints.all.join(u'\n'), QString());
    }

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
              "2 --picture p --scale=0 books.fwk", "1 --picture p absent.fwk", "1 --picture no/p books.fwk"})
            QVERIFY2(codeOf(call + 2) == *call - '0', call);
        const QImage light(path("light")), dark(path("dark"));
        QVERIFY(light.size() == QSize(1280, 800) && dark.size() == QSize(640, 400));
        QVERIFY(light.pixelColor(2, 796).lightness() > dark.pixelColor(1, 398).lightness() + 100);
        // The user's settings know nothing of it.
        QVERIFY(platform::SettingsFile().GetSetting("StartUp", "File1").empty());
    }
};

QTEST_MAIN(Windows)
#include "windows.moc"
