#pragma once

#include "app/app.h"
#include "gui/records/recordsView.h"
#include "gui/widgets/qtText.h"
#include "layout/layoutPage.h"
#include "shell/listEvents.h"

#include <QtWidgets>

#include <map>

using namespace Qt::StringLiterals;

// What a user sees, and what has changed of it. A change is a message's first words or "name=value" of a
// widget, in the order of the Tab key: x is checked, > a selected row, - disabled, * has the keys, | is the
// caret, [] what is selected, and -name has gone. "(cut)" tells that what has the keys is not seen whole, ~
// is a blank that does not break, ? what the document knows nothing of.
class Screen {
public:
    explicit Screen(app::App& app) : app_(app) {}

    QString changes(const QWidget& window, const QWidget& top, QStringList& messages) {
        const std::map<QString, QString> before(state_.begin(), state_.end());
        state_.clear();
        addWindow(window);
        if (&top != &window) addWindow(top);
        const std::map<QString, QString> now(state_.begin(), state_.end());
        const auto page = before.find(u"MainFrm/page"_s);
        const bool isSamePage = page != before.end() && page->second == now.at(page->first);
        QStringList told = std::exchange(looks_, {});
        for (const QString& text : std::exchange(messages, {}))
            told << u'"' + text.section(u' ', 0, 2).section(u'/', -1) + u'"';
        for (const auto& [key, value] : before)
            if (isSamePage && !now.contains(key) &&
                (!key.contains(u'/') || now.contains(key.section(u'/', 0, 0))))
                told << u'-' + key.section(u'/', -1).section(u'.', 0, 0);
        told.removeDuplicates();
        for (const auto& [key, value] : state_) {
            const QString name = key.section(u'/', -1);
            const auto was = before.find(key), holder = now.find(keys);
            const bool isSame = was == before.end() ? value.isEmpty() : was->second == value;
            if (isSame || (holder != now.end() && holder->second.startsWith(name + u'='))) continue;
            told << (value.isEmpty() ? name : key == keys ? value : name + u'=' + value);
        }
        const QString today = QDate::currentDate().toString(u"MM/dd/yyyy"_s);
        return told.join(u' ').simplified().replace("layoutField"_L1, "f"_L1).replace(today, "TODAY"_L1);
    }
    // The columns of a list and their widths; which of the pictures it was that a widget showed; or where
    // another colour begins along a row of pixels, or a column, if it is below nought.
    void look(QWidget& widget, const QStringList& where) { looks_ << u'"' + seen(widget, where) + u'"'; }

private:
    QString seen(QWidget& widget, const QStringList& where) {
        if (const auto* list = qobject_cast<const QTreeView*>(&widget); list != nullptr) {
            QString columns;
            for (int place = 0, i = 0; place < list->header()->count(); ++place) {
                i = list->header()->logicalIndex(place);
                columns += list->model()->headerData(i, Qt::Horizontal).toString();
                columns += QString::number(list->header()->sectionSize(i)) + u' ';
            }
            return columns.trimmed();
        }
        QImage image = widget.grab().toImage();
        if (where.empty()) {
            pictures_.push_back(image);
            return QString::number(std::ranges::find(pictures_, image) - pictures_.begin());
        }
        const int row = where[0].toInt();
        if (row < 0) image = image.transformed(QTransform(0, 1, 1, 0, 0, 0));
        QString changes, last;
        for (int x = 0; x < std::min(image.width(), where[1].toInt()); ++x) {
            const QString colour = image.pixelColor(x, std::abs(row)).name();
            if (colour != std::exchange(last, colour)) changes += u' ' + QString::number(x) + colour;
        }
        changes.replace("#ffffff"_L1, "."_L1).replace("#000000"_L1, "!"_L1);
        return changes.replace(u'#', u':').trimmed();
    }

    static constexpr auto keys = "has the keys"_L1;

    QString valueOf(const QWidget& widget) const {
        QString value = widget.property("plainText").toString();
        if (const auto* box = qobject_cast<const QTextEdit*>(&widget); box != nullptr) {
            value = box->document()->toRawText();
            const auto* field = app_.document.layout.layoutField.find(widget.objectName().mid(11).toInt());
            const bool isKnown = field == nullptr || value == gui::toQt(field->Text);
            value = value.replace(u'\u00a0', u'~') + (isKnown ? u""_s : u"?"_s);
            if (box->verticalScrollBar()->value() > 0) value += u"(scrolled)"_s;
        }
        if (widget.property("checked").toBool()) value = u"x"_s;
        if (!widget.inherits("QAbstractButton")) value += widget.property("text").toString();
        for (const char* number : {"currentIndex", "value"}) // of the tab, of a slider
            if (const int at = widget.property(number).toInt(); at > 0) value = QString::number(at);
        return widget.isEnabled() ? value : value + u'-';
    }
    QString withKeys(QWidget& widget) const {
        const auto* mark = widget.window()->findChild<const QWidget*>(u"sheetMark"_s);
        const bool isField = mark != nullptr && widget.inherits("QTextEdit");
        const auto* edit = qobject_cast<const QLineEdit*>(&widget);
        const bool isCut =
            edit != nullptr && edit->fontMetrics().horizontalAdvance(edit->text()) > edit->width() - 6;
        const bool isWhole = !isCut && widget.visibleRegion().boundingRect() == widget.rect() &&
                             (!isField || mark->geometry().contains(widget.geometry()));
        QString value = valueOf(widget);
        auto* text = QAccessible::queryAccessibleInterface(&widget)->textInterface();
        int from = 0, to = 0;
        if (text == nullptr || widget.inherits("QAbstractButton"))
            value += u'*';
        else if (text->selection(0, &from, &to); from != to)
            value.insert(to, u']').insert(from, u'[');
        else
            value.insert(text->cursorPosition(), u'|');
        return isWhole ? value : value + u"(cut)"_s;
    }
    void addRows(const QString& key, const QAbstractItemView& view) {
        const auto* list = qobject_cast<const gui::RecordsView*>(&view);
        const int rows = view.model()->rowCount(), current = view.currentIndex().row();
        const QHeaderView* head = list != nullptr ? list->header() : nullptr;
        const auto textOf = [&](int row) {
            QString text;
            for (int place = 0; place < view.model()->columnCount(); ++place) {
                const int column = head != nullptr ? head->logicalIndex(place) : place;
                const QModelIndex cell = view.model()->index(row, column);
                text += (cell.data(Qt::CheckStateRole).toBool() ? u"x "_s : u""_s) + cell.data().toString() +
                        u'|';
            }
            return text.chopped(1).replace("------"_L1, "-"_L1);
        };
        QString selected;
        for (int row = 0; row < rows && rows < 1000; ++row) {
            const bool isSelected = view.selectionModel()->isRowSelected(row);
            if (rows < 10)
                add(key + u'.' + QString::number(row), (isSelected ? u">"_s : u""_s) + textOf(row));
            if (isSelected) selected += u' ' + QString::number(row);
            if (list != nullptr && isSelected != shell::visibleList(app_.document).at(row + 1).Selected)
                selected += u'?';
        }
        if (head != nullptr && head->sortIndicatorSection() >= 0)
            add(key + u".sort"_s,
                u"%1/%2"_s.arg(head->sortIndicatorSection()).arg(head->sortIndicatorOrder()));
        if (head == nullptr || (rows < 10 && !selected.contains(u'?'))) return;
        if (rows > 1000) selected = u" %1 rows"_s.arg(view.selectionModel()->selectedRows().size());
        add(key + u".rows"_s,
            u"%1 top %2 at %3 "_s.arg(rows).arg(list->verticalScrollBar()->value()).arg(current) +
                textOf(current).section(u'|', 0, 1) + u" selected"_s + selected);
    }
    void addWindow(const QWidget& window) {
        add(window.objectName(), window.windowTitle().section(u'/', -1).remove(u"[*]"_s));
        for (QWidget* w = window.nextInFocusChain(); w != &window; w = w->nextInFocusChain()) {
            const auto* tool = qobject_cast<QToolButton*>(w);
            const QAction* action = tool != nullptr ? tool->defaultAction() : nullptr;
            QString name = action != nullptr ? action->objectName() : w->objectName();
            if (name == "qt_tabwidget_tabbar"_L1) name = u"page"_s;
            const bool isPanel = w->parent()->objectName() == "SB1"_L1 && name != "SB1_4"_L1;
            const bool isLabel = isPanel || name == "recordPosition"_L1 || w->inherits("QAbstractSlider");
            const bool isTold = action != nullptr || w->focusPolicy() != Qt::NoFocus || isLabel;
            static const QRegularExpression inner(u"^$|^_|^qt_scroll|^SSTab1$"_s);
            if (name.contains(inner) || !w->isVisible() || !isTold) continue;
            const QString key = window.objectName() + u'/' + name;
            add(key, valueOf(*w));
            if (const auto* view = qobject_cast<QAbstractItemView*>(w)) addRows(key, *view);
            if (name == "layoutPic2"_L1) addSheet(window.objectName() + u"/sheet"_s, *w);
            if (QApplication::focusWidget() == w) add(keys, name + u'=' + withKeys(*w));
        }
    }
    void addSheet(const QString& key, const QWidget& sheet) {
        QString guides;
        for (const auto* each : {&layout::layoutPage(app_).rulePic2, &layout::layoutPage(app_).rulePic})
            each->forEach([&](const auto& guide) { guides += u" |"_s + QString::number(guide.line); });
        add(key, u"%1 at %2,%3"_s.arg(app_.document.layout.count()).arg(sheet.x()).arg(sheet.y()) + guides);
    }
    void add(const QString& key, const QString& value) { state_.emplace_back(key, value); }

    app::App& app_;
    std::vector<std::pair<QString, QString>> state_; // "window/widget" and its value
    std::vector<QImage> pictures_;                   // that were looked at
    QStringList looks_;
};
