#pragma once

#include "session.h"

// What a user does in a form, with its widgets found by their names.
template <typename Widget = QPushButton>
Widget* in(const QDialog& form, const char* name) {
    auto* found = form.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) qFatal("no %s in %s", name, qPrintable(form.objectName()));
    return found;
}

// A widget, or the row of a list that begins with a text.
inline void clickOn(QWidget& widget, const QString& row = {}, bool twice = false) {
    auto* list = qobject_cast<QAbstractItemView*>(&widget);
    if (list == nullptr)
        return QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
    const QModelIndex index = list->model()->match(list->model()->index(0, 0), 0, row).value(0);
    list->scrollTo(index);
    const QPoint place = list->visualRect(index).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    if (!twice) return;
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place);
}
inline void click(QWidget* widget) {
    clickOn(*widget);
}
inline void click(const QDialog& form, const char* name) {
    clickOn(*in<QWidget>(form, name));
}
inline void clickRow(const QDialog& form, const char* listName, const char* text) {
    clickOn(*in<QWidget>(form, listName), QLatin1String(text));
}
inline constexpr auto chooseColumn = clickRow;

// Types in place of what stands in a box, and returns it.
inline QLineEdit* typeIn(const QDialog& form, const char* name, const char* text) {
    auto* box = in<QLineEdit>(form, name);
    box->setFocus();
    box->clear();
    QTest::keyClicks(box, QLatin1String(text));
    return box;
}
