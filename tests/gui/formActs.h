#pragma once

#include "session.h"

#include <QLineEdit>
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
        all << texts.join(QLatin1Char(' '));
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

// The name of the recovery copy that the last message tells.
inline QString copyTold(const Session& run) {
    return run.platform.messages.back().text.section(QLatin1Char('\n'), -1);
}
