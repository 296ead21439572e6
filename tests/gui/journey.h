#pragma once

#include "formActs.h"

// What a user does, one or more acts a line with ";" between them, and behind "->" what they change on the
// screen, also on lines that are indented. The acts go on in a dialog that comes up:
//
//     click Search            a command, or a widget by its name
//     click List1 Author      a row of a list by its first text; "double" clicks twice
//     press Ctrl+Tab 3        keys, three times; "type ann" for a text
//
// A change is a message's first words or "name=value" of a widget, in the order of the Tab key: x is checked,
// > a selected row, - disabled, * has the keys, | is the caret, [] what is selected, and -name has gone.
// "(cut)" tells that what has the keys is not seen whole, "..." stands for changes that do not matter.
class Journey {
public:
    explicit Journey(Session& run) : run_(run) {
        run_.platform.anyForm = [this](QDialog& form) { go(&form); };
    }
    void play(const char* script) {
        lines_ = QString::fromUtf8(script).replace("\n "_L1, " "_L1).split(u'\n', Qt::SkipEmptyParts);
        lines_.prepend(u"-> ..."_s); // what stands there is known
        go(nullptr);
        QVERIFY(!isWrong_);
    }

    static void act(QWidget& window, const QString& line) {
        const QString verb = line.section(u' ', 0, 0), what = line.section(u' ', 1, 1);
        const QString rest = line.section(u' ', 2);
        if (verb == "type"_L1) {
            QTest::keyClicks(QApplication::focusWidget(), line.section(u' ', 1));
        } else if (verb == "press"_L1) {
            const QKeyCombination key = QKeySequence(what)[0];
            for (int i = std::max(1, rest.toInt()); i > 0; --i)
                QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
        } else if (auto* action = window.findChild<QAction*>(what); action != nullptr) {
            action->trigger();
        } else {
            auto* widget = window.findChild<QWidget*>(what);
            if (widget == nullptr) qFatal("no %s", qPrintable(line));
            clickOn(*widget, rest, verb == "double"_L1);
        }
    }

private:
    using State = std::vector<std::pair<QString, QString>>; // "window/widget" and its value
    static constexpr auto keys = "has the keys"_L1;

    QWidget& window() const {
        QWidget* dialog = QApplication::activeModalWidget();
        return dialog != nullptr ? *dialog : run_.window;
    }

    // The acts, as long as the form is there. An act that opens it ends when it is closed.
    void go(const QDialog* form) {
        while (form == nullptr || form->isVisible()) {
            if (acts_.empty()) {
                compare(lines_.takeFirst());
                if (lines_.empty()) return;
                acts_ = lines_.front().section(u"->"_s, 0, 0).split(u';');
            }
            act(window(), acts_.takeFirst().simplified());
            // A button that a shortcut presses is seen to go down first.
            const auto buttons = window().findChildren<QAbstractButton*>();
            QTRY_VERIFY(std::ranges::none_of(buttons, &QAbstractButton::isDown));
            QCoreApplication::processEvents();
        }
    }
    void compare(const QString& line) {
        const QString wanted = line.section(u"->"_s, 1).simplified(), seen = changes();
        if (wanted.endsWith("..."_L1) ? seen.startsWith(wanted.chopped(3)) : seen == wanted) return;
        qWarning("%s\n  but %s", qPrintable(line.simplified()), qPrintable(seen));
        isWrong_ = true;
    }
    static QString valueOf(const QWidget& widget) {
        QString value = widget.property("plainText").toString();
        if (widget.property("checked").toBool()) value = u"x"_s;
        if (!widget.inherits("QAbstractButton")) value += widget.property("text").toString();
        return widget.isEnabled() ? value : value + u'-';
    }
    static QString withKeys(const QWidget& widget) {
        const QString end = widget.visibleRegion().boundingRect() == widget.rect() ? u""_s : u"(cut)"_s;
        const auto* box = qobject_cast<const QLineEdit*>(&widget);
        if (box == nullptr) return valueOf(widget) + u'*' + end;
        if (box->hasSelectedText()) return u'[' + box->selectedText() + u']' + end;
        return box->text().insert(box->cursorPosition(), u'|') + end;
    }
    static void addRows(State& state, const QString& key, const QAbstractItemView& view) {
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            QString text = view.selectionModel()->isRowSelected(row) ? u">"_s : u""_s;
            for (int column = 0; column < view.model()->columnCount(); ++column) {
                const QModelIndex cell = view.model()->index(row, column);
                text += cell.data(Qt::CheckStateRole).toBool() ? u"x "_s : u""_s;
                text += cell.data().toString() + u'|';
            }
            state.emplace_back(key + u'.' + QString::number(row),
                               text.chopped(1).replace("------"_L1, "-"_L1));
        }
    }
    static void addWindow(State& state, const QWidget& window) {
        state.emplace_back(window.objectName(), window.windowTitle().section(u'/', -1));
        for (QWidget* w = window.nextInFocusChain(); w != &window; w = w->nextInFocusChain()) {
            const auto* tool = qobject_cast<QToolButton*>(w);
            const QAction* action = tool != nullptr ? tool->defaultAction() : nullptr;
            const QString name = action != nullptr ? action->objectName() : w->objectName();
            const bool isPanel = w->parent()->objectName() == "SB1"_L1 && name != "SB1_4"_L1;
            const bool isTold = action != nullptr || w->focusPolicy() != Qt::NoFocus || isPanel;
            if (name.isEmpty() || name.startsWith(u'_') || !w->isVisible() || !isTold) continue;
            const QString key = window.objectName() + u'/' + name;
            state.emplace_back(key, valueOf(*w));
            if (const auto* view = qobject_cast<QAbstractItemView*>(w)) addRows(state, key, *view);
            if (QApplication::focusWidget() == w) state.emplace_back(keys, name + u'=' + withKeys(*w));
        }
    }
    QString changes() {
        std::map<QString, QString> before(state_.begin(), state_.end());
        state_.clear();
        addWindow(state_, run_.window);
        if (&window() != &run_.window) addWindow(state_, window());
        std::map<QString, QString> now(state_.begin(), state_.end());
        QStringList told;
        for (; messages_ < run_.platform.messages.size(); ++messages_)
            told << u'"' + run_.platform.messages[messages_].text.section(u' ', 0, 2) + u'"';
        for (const auto& [key, value] : before)
            if (!now.contains(key) && (!key.contains(u'/') || now.contains(key.section(u'/', 0, 0))))
                told << u'-' + key.section(u'/', -1).section(u'.', 0, 0);
        told.removeDuplicates();
        for (const auto& [key, value] : state_) {
            const QString name = key.section(u'/', -1);
            if (before[key] == value || now[keys].startsWith(name + u'=')) continue;
            told << (value.isEmpty() ? name : key == keys ? value : name + u'=' + value);
        }
        const QString today = QDate::currentDate().toString(u"MM/dd/yyyy"_s);
        return told.join(u' ').simplified().replace(today, u"TODAY"_s);
    }

    Session& run_;
    QStringList lines_, acts_; // those that are left; the acts are of the first line
    std::size_t messages_ = 0;
    State state_;
    bool isWrong_ = false;
};
