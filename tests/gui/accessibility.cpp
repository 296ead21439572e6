#include "session.h"

#include "gui/dialogs/fontDialog.h"
#include "gui/machine/messageBox.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>

namespace {

QString nameOf(QWidget& widget) {
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&widget);
    return accessible == nullptr ? QString() : accessible->text(QAccessible::Name).trimmed();
}

QString told(const QWidget& widget) {
    return QLatin1String(widget.metaObject()->className()) + QLatin1Char(' ') + widget.objectName();
}

// Captions that share a letter, as they are wanted.
bool isWanted(const QString& one, const QString& other) {
    return (one == QLatin1String("&Items") && other == QLatin1String("&Invoices")) ||
           (one.startsWith(QLatin1String("&Replace ")) && other.startsWith(QLatin1String("&Replace ")));
}

QStringList sharedLetters(const QStringList& captions) {
    QStringList shared;
    std::map<QString, QString> letters;
    for (const QString& caption : captions) {
        const QString letter = QKeySequence::mnemonic(caption).toString();
        if (letter.isEmpty()) continue;
        const auto [first, isFirst] = letters.emplace(letter, caption);
        if (!isFirst && !isWanted(first->second, caption))
            shared << first->second + QLatin1String(" and ") + caption;
    }
    return shared;
}

// What somebody misses who has the keys or a screen reader only.
QStringList complaints(QWidget& window) {
    QStringList all, captions;
    if (window.windowTitle().isEmpty()) all << QStringLiteral("no title");
    for (QToolBar* bar : window.findChildren<QToolBar*>())
        if (bar->isVisibleTo(&window) && nameOf(*bar).isEmpty()) all << told(*bar) + " has no name"_L1;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || widget->objectName().startsWith(QLatin1String("qt_"))) continue;
        if (const auto* button = qobject_cast<QAbstractButton*>(widget)) captions << button->text();
        if (const auto* frame = qobject_cast<QGroupBox*>(widget)) captions << frame->title();
        if (const auto* label = qobject_cast<QLabel*>(widget)) {
            if (label->buddy() != nullptr)
                captions << label->text();
            else if (label->text().endsWith(QLatin1Char(':')) &&
                     !label->objectName().startsWith(QLatin1String("SB1")))
                all << QStringLiteral("whose label is ") + label->text();
        }
        auto* tool = qobject_cast<QToolButton*>(widget);
        const bool inBar = tool != nullptr && qobject_cast<QToolBar*>(widget->parentWidget()) != nullptr;
        if (inBar && tool->defaultAction() != nullptr && tool->toolTip().isEmpty())
            all << QStringLiteral("no tip: ") + told(*widget);
        if (widget->focusPolicy() == Qt::NoFocus && !inBar) continue;
        if (nameOf(*widget).isEmpty()) all << QStringLiteral("no name: ") + told(*widget);
        const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        if (accessible != nullptr && accessible->role() == QAccessible::NoRole)
            all << QStringLiteral("no role: ") + told(*widget);
    }
    return all + sharedLetters(captions);
}

} // namespace

// Every window to somebody without a mouse or without eyes.
class Accessibility : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    static void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), code, modifiers);
    }
    static QString focusName() {
        const auto* tool = qobject_cast<QToolButton*>(QApplication::focusWidget());
        if (tool != nullptr && tool->defaultAction() != nullptr) return tool->defaultAction()->objectName();
        return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void forms_data();
    void forms();
    void dialogsOfThePlatform();
    void mainWindow();
    void roundTheWindow();
    void recordsByTheKeys();
    void aPageByTheKeys();
};

void Accessibility::forms_data() {
    QTest::addColumn<QString>("file");
    const auto add = [](const char* form, const char* file) {
        QTest::newRow(form) << QString::fromLatin1(file);
    };
    for (const char* form :
         {"disclaimFrm", "databaseTypeFrm", "designFrm", "entryFrm", "formulateFrm", "TotalsFrm", "mailFrm",
          "reportPageSetup", "layoutPageSetupFrm", "replaceFrm", "searchFrm", "serialFrm"})
        add(form, "books.fwk");
    add("repeatFrm", "invoices.fwk");
}

void Accessibility::forms() {
    QFETCH(QString, file);
    Session session(folders_.sample(qPrintable(file)));
    const QString form = QLatin1String(QTest::currentDataTag());
    QStringList found{QStringLiteral("not shown")};
    session.platform.scripts[form] = [&](QDialog& dialog) {
        found = complaints(dialog);
        if (!dialog.isAncestorOf(QApplication::focusWidget())) found << QStringLiteral("no focus");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    session.platform.showForm(gui::fromQt(form));
    QCOMPARE(found.join(QLatin1String("; ")), QString());
}

void Accessibility::dialogsOfThePlatform() {
    gui::MessageBox question(nullptr, "Save?", platform::Icon::Question, "Title", platform::Buttons::YesNo);
    QCOMPARE(complaints(question).join(QLatin1String("; ")), QString());
    gui::FontDialog fonts({}, nullptr);
    QCOMPARE(complaints(fonts).join(QLatin1String("; ")), QString());
}

void Accessibility::mainWindow() {
    for (const char* file : {"books.fwk", "invoices.fwk"}) {
        Session session(folders_.sample(file));
        for (const int tab : {0, 1, 2}) {
            session.find<QTabWidget>("SSTab1")->setCurrentIndex(tab);
            QCOMPARE(complaints(session.window).join(QLatin1String("; ")), QString());
        }
        session.action("Design")->trigger();
        QCOMPARE(complaints(session.window).join(QLatin1String("; ")), QString());
        for (const QAction* menu : session.window.menuBar()->actions()) {
            QStringList captions;
            for (const QAction* item : menu->menu()->actions()) captions << item->text();
            QCOMPARE(sharedLetters(captions).join(QLatin1String("; ")), QString());
        }
    }
    Session empty;
    QCOMPARE(complaints(empty.window).join(QLatin1String("; ")), QString());
}

void Accessibility::roundTheWindow() {
    Session session(folders_.sample("books.fwk"));
    QVERIFY(session.list()->hasFocus());
    key(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(session.app.mainFrm.SSTab1, app::layoutTab);
    QStringList walk;
    for (int i = 0; i < 4; ++i) {
        key(Qt::Key_F6);
        walk << focusName();
    }
    QCOMPARE(walk, (QStringList{QStringLiteral("New"), QStringLiteral("qt_tabwidget_tabbar"),
                                QStringLiteral("layoutNavBar.New"), QStringLiteral("layoutPic2")}));
    key(Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(focusName(), QStringLiteral("layoutNavBar.New"));
    key(Qt::Key_Escape);
    QCOMPARE(focusName(), QStringLiteral("layoutPic2"));
}

void Accessibility::recordsByTheKeys() {
    Session session(folders_.sample("books.fwk"));
    key(Qt::Key_Home);
    key(Qt::Key_Space);
    QVERIFY(session.app.document.LV3.at(2).cells.front().view() != "");
    session.platform.scripts[QStringLiteral("entryFrm")] = [](QDialog& form) { form.reject(); };
    key(Qt::Key_Return);
    QCOMPARE(session.platform.forms, QStringList{QStringLiteral("entryFrm")});
}

// The design, a line on the sheet, moved and drawn longer, and gone again.
void Accessibility::aPageByTheKeys() {
    Session session(folders_.sample("books.fwk"));
    const auto toButton = [](const char* name) {
        key(Qt::Key_F6);
        for (int i = 0; i < 30 && focusName() != QLatin1String(name); ++i) key(Qt::Key_Right);
        QCOMPARE(focusName(), QLatin1String(name));
    };
    toButton("Design");
    key(Qt::Key_Return);
    QCOMPARE(focusName(), QStringLiteral("layoutPic2"));
    const int objects = session.app.document.layout.count();
    for (int i = 0; i < 2; ++i) key(Qt::Key_F6);
    toButton("layoutToolbar.Box");
    key(Qt::Key_Return);
    QCOMPARE(session.app.document.layout.count(), objects + 1);
    QCOMPARE(focusName(), QStringLiteral("layoutPic2"));
    const core::ObjectRef added = session.app.mainFrm.layoutPage.selectedObject;
    const core::LayoutObject& box = *findObject(session.app.document.layout, added);
    const float left = box.Left, width = box.Width;
    key(Qt::Key_Right, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(box.Left, left + app::gridStep);
    QVERIFY(box.Width > width);
    key(Qt::Key_Tab);
    QVERIFY(session.app.mainFrm.layoutPage.selectedObject != added);
    key(Qt::Key_Backtab);
    QVERIFY(session.app.mainFrm.layoutPage.selectedObject == added);
    key(Qt::Key_Delete);
    QCOMPARE(session.app.document.layout.count(), objects);
}

QTEST_MAIN(Accessibility)
#include "accessibility.moc"
