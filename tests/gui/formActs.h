#pragma once

#include "session.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

// What a user does in a form, with its widgets found by their names.
template <typename Widget = QPushButton>
Widget* in(const QDialog& form, const char* name) {
    auto* found = form.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) qFatal("no %s in %s", name, qPrintable(form.objectName()));
    return found;
}

inline void click(QWidget* widget) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}
inline void click(const QDialog& form, const char* name) {
    click(in<QWidget>(form, name));
}

inline QTreeWidgetItem* rowOf(const QTreeWidget* list, const char* text) {
    const auto rows = list->findItems(QLatin1String(text), Qt::MatchExactly);
    if (rows.size() != 1) qFatal("%d rows %s", static_cast<int>(rows.size()), text);
    return rows.constFirst();
}
inline void clickRow(const QDialog& form, const char* listName, const char* text) {
    auto* list = in<QTreeWidget>(form, listName);
    list->scrollToItem(rowOf(list, text));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(rowOf(list, text)).center());
}
inline void doubleClickRow(const QDialog& form, const char* listName, const char* text) {
    clickRow(form, listName, text);
    auto* list = in<QTreeWidget>(form, listName);
    const QPoint place = list->visualItemRect(rowOf(list, text)).center();
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place);
}

// "Name Type Auto-Date Auto-Serial" of each row.
inline QStringList rows(const QDialog& form, const char* listName) {
    const auto* list = in<QTreeWidget>(form, listName);
    QStringList all;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        QStringList texts;
        for (int section = 0; section < list->columnCount(); ++section)
            texts << list->topLevelItem(row)->text(section);
        all << texts.join(u' ');
    }
    return all;
}

inline QString expression(const QDialog& form) {
    return in<QPlainTextEdit>(form, "expTxt")->toPlainText();
}

inline void addColumn(const QDialog& form, const char* type, const char* name) {
    click(form, type);
    QTest::keyClicks(QApplication::focusWidget(), QLatin1String(name)); // the focus came back to the name box
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

inline void chooseColumn(const QDialog& form, const char* listName, const char* column) {
    auto* columns = in<QListWidget>(form, listName);
    QListWidgetItem* item = columns->findItems(QLatin1String(column), Qt::MatchExactly).value(0);
    if (item == nullptr) qFatal("no column %s", column);
    columns->scrollToItem(item);
    QTest::mouseClick(columns->viewport(), Qt::LeftButton, {}, columns->visualItemRect(item).center());
}

// Types in place of what stands in a box, and returns it.
inline QLineEdit* typeIn(const QDialog& form, const char* name, const char* text) {
    auto* box = in<QLineEdit>(form, name);
    box->setFocus();
    box->clear();
    QTest::keyClicks(box, QLatin1String(text));
    return box;
}
