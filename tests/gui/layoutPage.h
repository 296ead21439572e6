#pragma once

#include "layout/layoutPage.h"
#include "session.h"
#include "shell/listEvents.h"

#include <QScrollBar>
#include <QSlider>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>

// A run whose user is told in a small language: acts that are parted by ";", each a word and what it is
// about.
//
//     tab 1                        a page                 do Design          a command of the window
//     tool Field Name              a button of the design, with an entry of its menu
//     nav Next                     a button of the records
//     row 3 Ctrl iLV               a click on a record    sort Title         a click on a heading
//     click pBox1 9,9              double likewise; "another" is a double click of the right button
//     drag pBox1 37,61 2,2         by so many pixels, from there
//     wheel pBox1 0,-120           slide Slider1 7
//     focus layoutField2           key Ctrl+Right         type some text     into what has the keys
//     commit text                  of an input method     look pBox1 66 480  at that row of its pixels
//     into Qty.2                   a click into the second box of a column
//     fill Qty.2 text              types there in place of what it holds
//     file books.fwk               for the next file dialogs, in the test's folder
//
// A pixel is 15 twips.
struct LayoutSession : Session {
    // With a font of its own, so that rows are as high everywhere.
    explicit LayoutSession(const QString& file = {})
        : Session((QApplication::setFont(QFont(u"Liberation Sans"_s, 9)), file)) {
        QApplication::setKeyboardInputInterval(60'000); // however slowly a row's beginning is typed
    }

    using State = std::map<QString, QString>;

    core::LayoutObjects& objects = app.document.layout;
    QStringList looked; // at a widget, and where

    void play(const QString& script) {
        for (const QString& act : script.simplified().split(u';', Qt::SkipEmptyParts))
            perform(act.simplified().split(u' '));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    // Lines of acts, each with all that they change of what is seen: "nav Next -> record Record 2 of 42".
    void expect(const char* table, const std::function<QString()>& also = {}) {
        bool asExpected = true;
        State before = state();
        for (const QString& line : QString::fromUtf8(table).split(u'\n', Qt::SkipEmptyParts)) {
            const QString acts = line.section(u"->"_s, 0, 0);
            play(acts);
            State now = state();
            if (also) now[u"also"_s] = also();
            QStringList changes;
            for (const auto& [what, value] : now)
                if (before[what] != value) changes << what + u' ' + (value.isEmpty() ? u"-"_s : value);
            before = now;
            const QString told = acts + u"-> "_s + changes.join(u", "_s);
            if (told.simplified() == line.simplified()) continue;
            qWarning().noquote() << told;
            asExpected = false;
        }
        QVERIFY2(asExpected, "the lines above are not as expected");
    }

    void showLayout() { showTab(app::layoutTab); }
    void navigate(const char* key) { press("layoutNavBar", QLatin1String(key)); }
    QTextEdit* field(int index) { return find<QTextEdit>(qPrintable(u"layoutField%1"_s.arg(index))); }

private:
    State state() {
        const QWidget& holder = *window.focusWidget();
        const QWidget& mark = *find<QWidget>("sheetMark");
        State now{{u"title"_s, window.windowTitle().section(u'/', -1)},
                  {u"status"_s, panel(app::recordsPanel) + u' ' + panel(app::documentPanel)},
                  {u"page"_s, QString::number(find<QTabWidget>("SSTab1")->currentIndex())},
                  {u"messages"_s, QString::number(platform.messages.size())},
                  {u"links"_s, platform.links.join(u' ')},
                  {u"keys"_s, holder.objectName()}};
        if (const auto* box = qobject_cast<const QTextEdit*>(&holder)) {
            const QTextCursor caret = box->textCursor();
            now[u"keys"_s] += u" at %1-%2"_s.arg(caret.anchor()).arg(caret.position());
            const bool seen = box->visibleRegion().boundingRect().size() == box->size();
            now[u"keys"_s] += seen && mark.geometry().contains(box->geometry()) ? u""_s : u" unseen"_s;
        }
        if (find<QWidget>("startPage")->isVisible()) now[u"list"_s] = u"start"_s;
        for (const char* name : {"LV", "iLV", "searchLV"})
            if (list(name)->isVisible()) addList(now, name);
        if (find<QWidget>("layoutPic1")->isVisible()) addSheet(now, *find<QWidget>("layoutPic2"));
        return now;
    }
    void addSheet(State& now, const QWidget& sheet) {
        now[u"sheet"_s] = sheet.isVisible() ? u"%1 %2"_s.arg(sheet.x()).arg(sheet.y()) : u"none"_s;
        now[u"place"_s] = find<QLabel>("selectionPlace")->text().simplified();
        now[u"record"_s] = find<QLabel>("recordPosition")->text();
        now[u"objects"_s] = QString::number(objects.count());
        QString& text = now[u"text"_s];
        objects.layoutField.forEach([&](const auto& each) {
            const QString whole = field(each.Index)->document()->toRawText();
            text +=
                QString(whole).replace(u'\u00a0', u'~') + (whole == gui::toQt(each.Text) ? u"|"_s : u"?|"_s);
        });
        text.replace(QDate::currentDate().toString(u"MM/dd/yyyy"_s), u"today"_s);
        for (const auto* guides : {&layout::layoutPage(app).rulePic2, &layout::layoutPage(app).rulePic})
            guides->forEach([&](const auto& each) { now[u"guides"_s] += QString::number(each.line) + u' '; });
        now[u"guides"_s] += find<QWidget>("clearRulesBtn")->isEnabled() ? u"to clear"_s : QString();
    }
    void addList(State& now, const char* name) {
        const gui::RecordsView* view = list(name);
        const QStringList all = texts(name);
        const int current = view->currentIndex().row();
        now[u"list"_s] =
            view->objectName() + u' ' + (all.size() < 6 ? all.join(u';') : QString::number(all.size()));
        now[u"current"_s] = u"%1 %2"_s.arg(current).arg(all.value(current).section(u'|', 0, 1));
        const core::RecordsList& records = shell::visibleList(app);
        for (int row = 0; row < records.count() && records.count() < 1000; ++row) {
            const bool selected = records.at(row + 1).Selected;
            if (selected) now[u"rows"_s] += QString::number(row) + u' ';
            if (selected != view->selectionModel()->isRowSelected(row)) now[u"rows"_s] += u'?';
        }
        now[u"top"_s] = QString::number(view->verticalScrollBar()->value());
        const auto* head = view->header();
        now[u"arrow"_s] = u"%1 %2"_s.arg(head->sortIndicatorSection()).arg(head->sortIndicatorOrder());
        const auto* sums = find<QTreeWidget>("LV3");
        for (int row = 0; row < sums->topLevelItemCount() && sums->isVisible(); ++row)
            now[u"sums"_s] += sums->topLevelItem(row)->text(0) + sums->topLevelItem(row)->text(1) + u' ';
    }
    void perform(const QStringList& words) {
        const QString& act = words[0];
        const QDir folder = QFileInfo(qEnvironmentVariable("XDG_DATA_HOME")).dir();
        const QByteArray name = words.value(1).toUtf8();
        const auto point = [&](int word, QPoint byDefault) {
            const QStringList parts = words.value(word).split(u',');
            return parts.size() == 2 ? QPoint(parts[0].toInt(), parts[1].toInt()) : byDefault;
        };
        const auto modifiers = QKeySequence(words.value(2) + u"+A"_s)[0].keyboardModifiers();
        if (act == u"tab"_s) return showTab(name.toInt());
        if (act == u"do"_s) return action(name)->trigger();
        if (act == u"tool"_s) return press("layoutToolbar", words[1], words.value(2));
        if (act == u"nav"_s) return navigate(name);
        if (act == u"row"_s) return clickRow(name.toInt(), modifiers, words.value(3, u"LV"_s).toLatin1());
        if (act == u"sort"_s) return clickHeader(name);
        if (act == u"slide"_s) return find<QAbstractSlider>(name)->setValue(words[2].toInt());
        if (act == u"focus"_s) return find<QWidget>(name)->setFocus();
        if (act == u"key"_s) return press(QKeySequence(words[1])[0]);
        auto* rows = qobject_cast<QAbstractItemView*>(QApplication::focusWidget());
        if (act == u"type"_s && rows != nullptr) rows->keyboardSearch({}); // begins anew
        if (act == u"type"_s) return QTest::keyClicks(window.focusWidget(), words.mid(1).join(u' '));
        if (act == u"into"_s) return into(words[1].section(u'.', 0, 0), words[1].section(u'.', 1));
        if (act == u"fill"_s)
            return play(u"into "_s + words[1] + u"; key Ctrl+A; key Del; type "_s + words.mid(2).join(u' '));
        if (act == u"look"_s) return void(looked = words.mid(1));
        if (act == u"file"_s) return void(platform.chosenFile = folder.filePath(words[1]).toStdString());
        if (act == u"commit"_s) {
            QInputMethodEvent event;
            event.setCommitString(words[1]);
            return void(QApplication::sendEvent(window.focusWidget(), &event));
        }
        mouse(act, object(name), point(2, {5, 5}), point(3, {10, 5}));
    }
    // What takes the mouse.
    QWidget* object(const char* name) {
        auto* area = qobject_cast<QAbstractScrollArea*>(find<QWidget>(name));
        return area != nullptr ? area->viewport() : find<QWidget>(name);
    }
    static void mouse(const QString& act, QWidget* widget, QPoint at, QPoint from) {
        const QPoint start = widget->mapToGlobal(from);
        if (act == u"another"_s) return QTest::mouseDClick(widget, Qt::RightButton, {}, at);
        if (act == u"wheel"_s) {
            QWheelEvent wheel(from, start, {}, at, {}, {}, Qt::NoScrollPhase, false);
            return void(QApplication::sendEvent(widget, &wheel));
        }
        if (act != u"drag"_s) QTest::mouseClick(widget, Qt::LeftButton, {}, at);
        if (act == u"click"_s) return;
        if (act == u"double"_s) QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
        if (act == u"double"_s) return QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 8; ++step) // the widget may move along under the pointer
            QTest::mouseMove(widget, widget->mapFromGlobal(start + at * step / 8));
        QTest::mouseRelease(widget, Qt::LeftButton, {}, widget->mapFromGlobal(start + at));
    }
    void press(QKeyCombination keys) {
        QTest::keyClick(window.focusWidget(), keys.key(), keys.keyboardModifiers());
    }
    void press(const char* barName, const QString& key, const QString& entry = {}) {
        auto* wanted = find<QAction>(qPrintable(QLatin1String(barName) + u'.' + key));
        auto* button = qobject_cast<QToolButton*>(find<QToolBar>(barName)->widgetForAction(wanted));
        if (entry.isEmpty()) return QTest::mouseClick(button, Qt::LeftButton);
        for (QAction* item : button->menu()->actions())
            if (item->text() == entry || item->objectName() == entry) item->trigger();
    }
    void into(const QString& column, const QString& row) {
        window.activateWindow(); // without a window manager nobody does it when a dialog closes
        QVERIFY(QTest::qWaitForWindowActive(&window));
        int before = std::max(row.toInt(), 1);
        objects.layoutField.forEach([&](const auto& each) {
            if (gui::toQt(each.Tag) == column && --before == 0)
                QTest::mouseClick(field(each.Index)->viewport(), Qt::LeftButton, {}, {8, 8});
        });
    }
};
