#include "gui/formView.h"

#include <QScopedValueRollback>

namespace gui {

FormView::FormView(EventBoundary& events, const char* name, const QString& caption, QWidget* parent)
    : QDialog(parent), events_(events) {
    setObjectName(QLatin1String(name));
    setWindowTitle(caption);
}

void FormView::showModal() {
    activate();
    if (isUnloaded()) return;
    refresh();
    exec();
}

void FormView::refresh() {
    if (showing_) return;
    const QScopedValueRollback guard(showing_, true);
    showMembers();
}

void FormView::on(const std::function<void()>& handler) {
    if (showing_) return;
    events_.run([&] {
        handler();
        refresh();
    });
    if (isUnloaded()) done(Accepted);
}

void FormView::reject() {
    on([this] { closeForm(); });
}

} // namespace gui
