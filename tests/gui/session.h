#pragma once

#include "../support/dataFile.h"
#include "file/archive/zip.h"
#include "gui/frame/mainFrmView.h"
#include "screen.h"
#include "shell/mainWindow.h"
#include "shell/program.h"

#include <QtTest>

#include <deque>

// The platform of the window, but its questions are answered by the test.
struct ScriptedPlatform : gui::QtPlatform {
    std::deque<platform::Answer> answers; // Ok when there is none left
    std::optional<std::string> chosenFile;
    std::deque<std::string> inputs; // of input boxes; cancelled when there is none left
    QStringList told;               // messages, and links that were opened

    platform::Answer msgBox(const std::string& text, platform::Icon, const std::string&,
                            platform::Buttons) override {
        told << gui::toQt(text);
        return take(answers, platform::Answer::Ok);
    }
    std::optional<std::string> showOpen(const platform::FileDialog&) override { return chosenFile; }
    std::optional<std::string> showSave(const platform::FileDialog&) override { return chosenFile; }
    std::optional<std::string> showNew(const platform::FileDialog&) override { return chosenFile; }
    // Of others that open the same files, and of earlier runs, only those tests know that are about them.
    bool isUsers = false;
    bool guardsFiles() const override { return isUsers; }
    std::filesystem::path stateFolder() override {
        return isUsers ? QtPlatform::stateFolder() : std::filesystem::path();
    }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override {
        return take(inputs, std::string());
    }
    void openLink(const std::string& target) override { told << gui::toQt(target); }

private:
    template <typename Value>
    static Value take(std::deque<Value>& queue, Value value) {
        if (queue.empty()) return value;
        value = queue.front();
        queue.pop_front();
        return value;
    }
};

// One run of the program. What its user does is told in acts with ";" between them, and behind "->" what they
// change on the screen, also on lines that are indented. They go on in a dialog or a menu that comes up:
//
//     click Search              a command, or a widget by its name; f1 is layoutField1
//     click pBox1 9,9           there; "double" clicks twice, "menu" with the right button, and "another" is
//                               a double click of that one
//     Ctrl+click LV Ann         with a key held, on a row by its beginning, or by its number: #3
//     click LV.Title            a heading, which tells also where to drag
//     drag pBox1 37,61 2,2      by so many pixels, from there; "hold" does not let go
//     wheel pBox1 0,-120        slide Slider1 7        focus f2        tab 1
//     tool Field Name           a button of the design, with an entry of its menu
//     nav Next                  a button of the records
//     press Ctrl+Tab 3          keys, three times; "type ann" for a text, "commit ann" of an input method
//     fill f3 2x                in place of what stands in a box
//     file books.fwk            for the next file dialogs, in the test's folder
//     look LV                   its columns; or which picture it shows; with "66 480" behind it at that row
//                               of its pixels: a dot is white and ! black
//
// Behind "..." stand changes that do not matter; screen.h says how they are told.
class Session : public QObject {
    // Before the window is made, or the first of a process had columns of other widths.
    const bool isFontSet_;

public:
    ScriptedPlatform platform;
    shell::Program app{platform};
    gui::MainFrmView window{app, platform};
    std::function<void(QDialog&)> onDialog; // in place of acts; it is closed behind it

    // With a font of its own, so that rows are as high everywhere.
    explicit Session(const QString& file = {}, int points = 9) : isFontSet_(setFont(points)) {
        QApplication::setKeyboardInputInterval(60'000); // however slowly a row's beginning is typed
        qApp->installEventFilter(this);
        window.load(shell::commandLineFor(gui::fromQt(file)));
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }
    void play(const char* script) {
        screen_.changes(window, top(), platform.told); // what stands there is known
        lines_ = QString::fromUtf8(script).replace("\n "_L1, " "_L1).split(u'\n', Qt::SkipEmptyParts);
        next();
        go(nullptr);
        QVERIFY(!isWrong_);
    }
    void act(QString acts) {
        static const std::pair<QRegularExpression, QString> shorter[] = {
            {QRegularExpression(u"\\btool "_s), u"click layoutToolbar."_s},
            {QRegularExpression(u"\\bnav "_s), u"click layoutNavBar."_s},
            {QRegularExpression(u"\\btab "_s), u"click qt_tabwidget_tabbar "_s},
            {QRegularExpression(u"\\bfill (\\S+)"_s), u"click \\1; press Ctrl+A; press Del; type"_s},
            {QRegularExpression(u"\\bf(\\d)"_s), u"layoutField\\1"_s}};
        for (const auto& [form, whole] : shorter) acts.replace(form, whole);
        for (const QString& each : acts.split(u';')) perform(each.simplified().split(u' '));
    }

    template <typename Widget>
    Widget* find(const QString& name) {
        auto* found = top().findChild<Widget*>(name);
        if (found == nullptr) qFatal("no %s", qPrintable(name));
        return found;
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        const bool isDialog = event->type() == QEvent::WindowActivate && object->inherits("QDialog");
        const bool isMenu = event->type() == QEvent::Show && object->inherits("QMenu");
        if ((!isDialog && !isMenu) || object->property("isMet").toBool()) return false;
        object->setProperty("isMet", true);
        QTimer::singleShot(0, object, [this, form = static_cast<QWidget*>(object)] { meet(*form); });
        return false;
    }

private:
    static bool setFont(int points) {
        QApplication::setFont(QFont(u"Liberation Sans"_s, points));
        return true;
    }
    QWidget& top() {
        QWidget* dialog = QApplication::activeModalWidget();
        return dialog != nullptr ? *dialog : window;
    }
    void perform(const QStringList& words) {
        const QString &verb = words[0], what = words.value(1), rest = words.mid(2).join(u' ');
        if (QApplication::activeWindow() == nullptr) { // without a window manager nobody does it
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
        }
        if (verb == "type"_L1) {
            auto* list = qobject_cast<gui::RecordsView*>(withKeys());
            if (list != nullptr) list->keyboardSearch({}); // begins anew
            QTest::keyClicks(withKeys(), words.mid(1).join(u' '));
        } else if (verb == "press"_L1) {
            const QKeyCombination key = QKeySequence(what)[0];
            for (int i = std::max(1, rest.toInt()); i > 0; --i)
                QTest::keyClick(withKeys(), key.key(), key.keyboardModifiers());
        } else if (verb == "commit"_L1) {
            QInputMethodEvent event;
            event.setCommitString(what);
            QApplication::sendEvent(withKeys(), &event);
        } else if (verb == "file"_L1) {
            platform.chosenFile = gui::fromQt(qEnvironmentVariable("TEST_FOLDER") + what);
        } else if (verb == "slide"_L1) {
            find<QAbstractSlider>(what)->setValue(rest.toInt());
        } else if (verb == "focus"_L1) {
            find<QWidget>(what)->setFocus();
        } else if (verb == "look"_L1) {
            screen_.look(*find<QWidget>(what), words.mid(2));
        } else if (auto* action = top().findChild<QAction*>(what); action != nullptr) {
            const auto* button = action->associatedObjects().last();
            if (rest.isEmpty()) return action->trigger();
            for (QAction* each : qobject_cast<const QToolButton*>(button)->menu()->actions())
                if (each->text() == rest || each->objectName() == rest) each->trigger();
        } else {
            mouse(verb.section(u'+', -1), words);
        }
    }
    static QWidget* withKeys() {
        QWidget* menu = QApplication::activePopupWidget();
        return menu != nullptr ? menu : QApplication::focusWidget();
    }
    void meet(QWidget& form) {
        auto* dialog = qobject_cast<QDialog*>(&form);
        onDialog&& dialog != nullptr ? onDialog(*dialog) : go(&form);
        form.setProperty("isMet", false);
        if (form.isVisible()) form.close();
    }
    // The acts, as long as the form is there. An act that opens it ends when it is closed.
    void go(const QWidget* form) {
        while ((form == nullptr || form->isVisible()) && (!acts_.empty() || !lines_.empty())) {
            if (acts_.empty()) {
                compare(lines_.takeFirst());
                next();
                continue;
            }
            act(acts_.takeFirst().simplified());
            // A button that a shortcut presses is seen to go down first.
            const auto buttons = top().findChildren<QAbstractButton*>();
            QTRY_VERIFY(std::ranges::none_of(buttons, &QAbstractButton::isDown));
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }
    void next() {
        if (!lines_.empty()) acts_ = lines_.front().section(u"->"_s, 0, 0).split(u';');
    }
    void compare(const QString& line) {
        const QString wanted = line.section(u"->"_s, 1).simplified();
        const QString seen = screen_.changes(window, top(), platform.told);
        if (seen == wanted || (wanted.endsWith("..."_L1) && (seen + u' ').startsWith(wanted.chopped(3))))
            return;
        qWarning().noquote() << line.simplified() + u"\n  but "_s + seen;
        isWrong_ = true;
    }
    // A widget or what of it takes the mouse, and where.
    std::pair<QWidget*, QPoint> placeOf(const QString& name, const QString& row) {
        auto* widget = find<QWidget>(name.section(u'.', 0, 0));
        const QString column = name.section(u'.', 1);
        const auto* tree = qobject_cast<QTreeView*>(widget);
        for (int i = 0; !column.isEmpty() && i < tree->header()->count(); ++i)
            if (const QHeaderView* head = tree->header();
                tree->model()->headerData(i, Qt::Horizontal) == column)
                return {head->viewport(), {head->sectionViewportPosition(i) + head->sectionSize(i) / 2, 8}};
        auto* list = qobject_cast<QAbstractItemView*>(widget);
        if (list != nullptr && !row.isEmpty()) {
            const QModelIndex first = list->model()->index(0, 0);
            const QModelIndex index = row.startsWith(u'#') ? first.siblingAtRow(row.mid(1).toInt())
                                                           : list->model()->match(first, 0, row).value(0);
            list->scrollTo(index);
            return {list->viewport(), list->visualRect(index).center()};
        }
        if (auto* bar = qobject_cast<QTabBar*>(widget)) return {bar, bar->tabRect(row.toInt()).center()};
        auto* area = qobject_cast<QAbstractScrollArea*>(widget);
        if (area != nullptr) widget = area->viewport();
        return {widget, {8, std::min(8, widget->height() / 2)}};
    }
    void mouse(const QString& verb, QStringList words) {
        static const QRegularExpression point(u"^-?\\d+,-?\\d+$"_s);
        QList<QPoint> points;
        while (point.match(words.last()).hasMatch()) {
            const QString last = words.takeLast();
            points.prepend({last.section(u',', 0, 0).toInt(), last.section(u',', 1).toInt()});
        }
        const auto [widget, middle] = placeOf(words.value(1), words.mid(2).join(u' '));
        const QPoint at = points.value(0, middle), from = points.value(1, middle);
        const QPoint start = widget->mapToGlobal(from);
        const auto with = QKeySequence(words[0].section(u'+', 0, -2) + u"+A"_s)[0].keyboardModifiers();
        if (verb == "wheel"_L1) {
            QWheelEvent wheel(from, start, {}, at, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget, &wheel);
        } else if (verb == "another"_L1) {
            QTest::mouseDClick(widget, Qt::RightButton, {}, at);
        } else if (verb == "drag"_L1 || verb == "hold"_L1) {
            QTest::mousePress(widget, Qt::LeftButton, {}, from);
            for (int step = 1; step <= 8; ++step) // the widget may move along under the pointer
                QTest::mouseMove(widget, widget->mapFromGlobal(start + at * step / 8));
            if (verb == "hold"_L1) return;
            QTest::mouseRelease(widget, Qt::LeftButton, {}, widget->mapFromGlobal(start + at));
        } else {
            QTest::mouseClick(widget, verb == "menu"_L1 ? Qt::RightButton : Qt::LeftButton, with, at);
            if (verb != "double"_L1) return;
            QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
            QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
        }
    }

    QStringList lines_, acts_; // those that are left; the acts are of the first line
    Screen screen_{app};
    bool isWrong_ = false;
};

// The classes of tests by their names in small letters.
inline std::map<std::string, std::function<std::unique_ptr<QObject>()>>& guiTests() {
    static std::map<std::string, std::function<std::unique_ptr<QObject>()>> tests;
    return tests;
}
// Behind the class, in a file of the same name.
#define GUI_TEST(Test)                                                                                       \
    static const bool is##Test##Known =                                                                      \
        guiTests()                                                                                           \
            .emplace(QStringLiteral(#Test).toLower().toStdString(), [] { return std::make_unique<Test>(); }) \
            .second;

// Tests with folders of their own, for the user's and for copies of the samples.
class GuiTest : public QObject {
    Q_OBJECT

protected:
    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    QString sample(const char* name) const {
        QFile::remove(path(name));
        QFile::copy(QStringLiteral(TEST_DATA_DIR "/") + QLatin1String(name), path(name));
        return path(name);
    }
    // A database made in the test, with pictures 0.jpg and so on.
    QString database(const char* name, const DataFile& file, const QByteArrayList& pictures = {}) const {
        QFile::remove(path(name));
        file::Zip zip;
        zip.CreateArchive(gui::fromQt(path(name)));
        zip.addBuffer("data.dat", file.text(), "Main Data File");
        for (int i = 0; i < pictures.size(); ++i)
            zip.addBuffer(std::to_string(i) + ".jpg", pictures[i].toStdString(), "");
        zip.CloseArchive();
        return path(name);
    }

protected slots:
    // Settings that hold nothing but that the disclaimer has been seen.
    void init() {
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "HOME"})
            qputenv(variable, QFile::encodeName(path(variable)));
        qputenv("TEST_FOLDER", QFile::encodeName(path("") + u'/'));
        std::filesystem::remove(platform::SettingsFile::defaultFile());
        platform::SettingsFile settings;
        settings.SaveSetting("StartUp", "Disclaimer", "True");
        QVERIFY(settings.flush());
    }

private:
    QTemporaryDir folder_;
};
