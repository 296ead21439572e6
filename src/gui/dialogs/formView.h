#pragma once

#include "gui/frame/eventBoundary.h"

#include <QDialog>
#include <QPushButton>

#include <functional>

namespace gui {

// The window of a form. Each of its events runs through the boundary, and after it the window shows
// the members of the form's logic anew.
class FormView : public QDialog {
    Q_OBJECT

public:
    // Shows the form as a modal dialog until its logic has unloaded it.
    void showModal();
    // Shows the members as they are now.
    void refresh();
    // Escape and the close button of the window.
    void reject() override;

protected:
    FormView(EventBoundary& events, const char* name, const QString& caption, QWidget* parent);

    // What a signal of the form's widgets calls. A signal that comes of showing the members is no
    // event of the user's.
    void on(const std::function<void()>& handler);

    // The three that a form's window has to give.
    virtual void showMembers() = 0;
    virtual void closeForm() = 0; // the handler of closing
    virtual bool isUnloaded() const = 0;

    // A push button under its control's name that calls a handler of the form.
    QPushButton* makeButton(const char* name, const QString& caption, const std::function<void()>& handler);
    // Buttons in a row at the lower right of the form, in the order of the desktop.
    QLayout* makeBottomRow(QPushButton* okay, QPushButton* cancel = nullptr);

    // Ahead of the form's first appearance; a form that has nothing to show may unload itself.
    virtual void activate() {}

    int em() const { return fontMetrics().height(); }

private:
    EventBoundary& events_;
    bool showing_ = false;
};

// Gives each list of a window, which Qt leaves without one, the name that it is told by: that of its label,
// its frame or its header.
void nameLists(const QWidget& window);

// Gives a widget the name of its control.
template <typename Widget>
Widget* named(const char* name, Widget* widget) {
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace gui
