#pragma once

#include "session.h"

#include "../support/objectAt.h"
#include "layout/sheet.h"

#include <QClipboard>
#include <QImage>
#include <QScrollBar>
#include <QSlider>
#include <QTextEdit>
#include <QToolButton>

// A run with its layout page: objects are found by the names of their arrays, and every event is the mouse's
// or the keyboard's. A pixel is 15 twips.
struct LayoutSession : Session {
    using Session::Session;

    app::LayoutPage& page = app.mainFrm.layoutPage;
    core::LayoutObjects& objects = app.document.layout;

    void showLayout() { showTab(app::layoutTab); }
    void pressDesign() { action("Design")->trigger(); }
    QWidget* sheet() { return find<QWidget>("layoutPic2"); }
    // What takes the mouse of an object: of a text box the viewport.
    QWidget* object(const char* name) {
        auto* widget = find<QWidget>(name);
        auto* box = qobject_cast<QTextEdit*>(widget);
        return box != nullptr ? box->viewport() : widget;
    }
    QTextEdit* field(int index) { return find<QTextEdit>(qPrintable(u"layoutField%1"_s.arg(index))); }
    QToolButton* button(const char* key) {
        auto* bar = find<QToolBar>("layoutToolbar");
        return qobject_cast<QToolButton*>(
            bar->widgetForAction(find<QAction>(qPrintable(u"layoutToolbar."_s + QLatin1String(key)))));
    }
    void click(const char* key) { QTest::mouseClick(button(key), Qt::LeftButton); }
    // An entry of a button's menu, by the keyboard.
    void choose(const char* key, const char* entry) {
        QMenu* menu = button(key)->menu();
        for (QAction* item : menu->actions())
            if (item->text() == QLatin1String(entry) || item->objectName() == QLatin1String(entry)) {
                item->trigger();
                return;
            }
        qFatal("no entry %s", entry);
    }
    void navigate(const char* key) {
        auto* bar = find<QToolBar>("layoutNavBar");
        QTest::mouseClick(
            bar->widgetForAction(find<QAction>(qPrintable(u"layoutNavBar."_s + QLatin1String(key)))),
            Qt::LeftButton);
    }
    // With the left button, by so many pixels, the pointer on the way at each of the steps.
    void drag(const char* name, QPoint by, QPoint from = {10, 5}, int steps = 8) {
        QWidget* widget = object(name);
        const QPoint start = widget->mapToGlobal(from);
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        for (int step = 1; step <= steps; ++step)
            QTest::mouseMove(widget, widget->mapFromGlobal(start + by * step / steps));
        QTest::mouseRelease(widget, Qt::LeftButton, {}, widget->mapFromGlobal(start + by));
    }
    void select(const char* name) { QTest::mouseClick(object(name), Qt::LeftButton, {}, {5, 5}); }
    void size(const char* name, QPoint by) {
        select(name);
        drag("Handle", by, {4, 4});
    }
    void doubleClick(const char* name) {
        QTest::mouseClick(object(name), Qt::LeftButton, {}, {5, 5});
        QTest::mouseDClick(object(name), Qt::LeftButton, {}, {5, 5});
    }
    // Every event of the way to the screen.
    void settle() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
};

// A picture file of plain colour.
inline QString makePicture(const QString& path, QSize size, QColor colour = Qt::darkGreen) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    image.save(path, "JPEG");
    return path;
}
