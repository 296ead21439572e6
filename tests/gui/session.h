#pragma once

#include "../support/dataFile.h"
#include "file/zip.h"
#include "gui/frame/mainFrmView.h"
#include "gui/records/recordsView.h"
#include "gui/widgets/qtText.h"
#include "shell/mainWindow.h"
#include "shell/program.h"

#include <QtTest>
#include <QtWidgets>

#include <deque>

using namespace Qt::StringLiterals;

// The platform of the window, but its dialogs are answered by the test.
struct ScriptedPlatform : gui::QtPlatform {
    struct Message {
        QString text;
        platform::Icon icon;
    };
    std::vector<Message> messages;
    std::deque<platform::Answer> answers; // Ok when there is none left
    std::optional<std::string> chosenFile;
    std::deque<std::string> inputs;         // of input boxes; cancelled when there is none left
    std::deque<platform::FontChoice> fonts; // of font dialogs; cancelled likewise
    QStringList links;                      // that were opened
    QStringList forms;
    // What the user does in a form. The script has to close it. A form without a script is not shown.
    std::map<QString, std::function<void(QDialog&)>> scripts;
    std::function<void(QDialog&)> anyForm; // where there is no such script

    platform::Answer msgBox(const std::string& text, platform::Icon icon, const std::string&,
                            platform::Buttons) override {
        messages.push_back({gui::toQt(text), icon});
        return take(answers).value_or(platform::Answer::Ok);
    }
    std::optional<std::string> showOpen(const platform::FileDialog&) override { return chosenFile; }
    std::optional<std::string> showSave(const platform::FileDialog&) override { return chosenFile; }
    std::optional<std::string> showNew(const platform::FileDialog&) override { return chosenFile; }
    void showForm(std::string_view name) override {
        forms << gui::toQt(name);
        const auto act = scripts.contains(forms.last()) ? scripts[forms.last()] : anyForm;
        if (!act) return;
        QTimer::singleShot(0, qApp, [form = forms.last(), act] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog->objectName() != form) return; // it did not come up
            if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == dialog; }))
                qFatal("%s is not active", qPrintable(form));
            act(*dialog);
            if (dialog->isVisible()) qFatal("%s is still open", qPrintable(form)); // nobody would close it
        });
        QtPlatform::showForm(name);
    }
    // Of others that open the same files, and of earlier runs, only those tests know that are about them.
    bool isUsers = false;
    bool guardsFiles() const override { return isUsers; }
    std::filesystem::path stateFolder() override {
        return isUsers ? QtPlatform::stateFolder() : std::filesystem::path();
    }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override {
        return take(inputs).value_or("");
    }
    std::optional<platform::FontChoice> showFont(const platform::FontChoice&) override { return take(fonts); }
    void openLink(const std::string& target) override { links << gui::toQt(target); }

private:
    template <typename Value>
    static std::optional<Value> take(std::deque<Value>& queue) {
        if (queue.empty()) return std::nullopt;
        const Value value = queue.front();
        queue.pop_front();
        return value;
    }
};

// One run of the program, with the user's folders of the test.
struct Session {
    ScriptedPlatform platform;
    shell::Program app{platform};
    gui::MainFrmView window{app, platform};

    explicit Session(const QString& file = {}) {
        window.load(shell::commandLineFor(gui::fromQt(file)));
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    template <typename Widget>
    Widget* find(const char* name) {
        auto* found = window.findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) qFatal("no %s", name);
        return found;
    }
    QAction* action(const char* key) { return find<QAction>(key); }
    QString panel(int number) { return find<QLabel>(qPrintable(u"SB1_%1"_s.arg(number)))->text(); }
    gui::RecordsView* list(const char* name = "LV") { return find<gui::RecordsView>(name); }
    core::RecordsList& LV() { return app.document.LV; }

    int section(const char* column, const char* listName = "LV") {
        const QAbstractItemModel* model = list(listName)->model();
        for (int s = 0; s < model->columnCount(); ++s)
            if (model->headerData(s, Qt::Horizontal).toString() == QLatin1String(column)) return s;
        qFatal("no column %s", column);
    }
    QString cell(int row, const char* column, const char* listName = "LV") {
        return list(listName)->model()->index(row, section(column, listName)).data().toString();
    }
    // The columns as they are shown, "a|b", of each row.
    QStringList texts(const char* listName = "LV") {
        const gui::RecordsView* view = list(listName);
        QStringList all;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            QStringList cells;
            for (int place = 0; place < view->model()->columnCount(); ++place)
                cells << view->model()->index(row, view->header()->logicalIndex(place)).data().toString();
            all << cells.join(u'|');
        }
        return all;
    }
    void showTab(int tab) {
        QTabBar* bar = find<QTabWidget>("SSTab1")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
    }
    int rows(const char* listName = "LV") { return list(listName)->model()->rowCount(); }

    QPoint headerPlace(int section, const char* listName = "LV") {
        const QHeaderView* header = list(listName)->header();
        return {header->sectionViewportPosition(section) + header->sectionSize(section) / 2, 8};
    }
    void clickHeader(const char* column, const char* listName = "LV") {
        QTest::mouseClick(list(listName)->header()->viewport(), Qt::LeftButton, {},
                          headerPlace(section(column, listName), listName));
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}, const char* listName = "LV") {
        const QRect place = list(listName)->visualRect(list(listName)->model()->index(row, 0));
        QTest::mouseClick(list(listName)->viewport(), Qt::LeftButton, modifiers, place.center());
    }
    void dragHeader(QPoint from, QPoint to) {
        QWidget* header = list()->header()->viewport();
        QTest::mousePress(header, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 8; ++step) QTest::mouseMove(header, from + (to - from) * step / 8);
        QTest::mouseRelease(header, Qt::LeftButton, {}, to);
    }
};

// Folders of the test's own, for the user's and for copies of the samples.
class Folders {
public:
    Folders() {
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "HOME"})
            qputenv(variable, QFile::encodeName(path(variable)));
    }
    // Settings that hold nothing but that the disclaimer has been seen.
    static void forgetSettings() {
        std::filesystem::remove(platform::SettingsFile::defaultFile());
        platform::SettingsFile settings;
        settings.SaveSetting("StartUp", "Disclaimer", "True");
        QVERIFY(settings.flush());
    }
    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    QString sample(const char* name) const {
        QFile::remove(path(name));
        QFile::copy(QStringLiteral(TEST_DATA_DIR "/") + QLatin1String(name), path(name));
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner);
        return path(name);
    }
    // A database made in the test.
    QString database(const char* name, const DataFile& file) const {
        QFile::remove(path(name));
        file::Zip zip;
        zip.CreateArchive(gui::fromQt(path(name)));
        zip.addBuffer("data.dat", file.text(), "Main Data File");
        zip.CloseArchive();
        return path(name);
    }

private:
    QTemporaryDir folder_;
};

// The name of the recovery copy that the last message tells.
inline QString copyTold(const Session& run) {
    return run.platform.messages.back().text.section(u'\n', -1);
}
