#include "gui/formView.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
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

QPushButton* FormView::makeButton(const char* name, const QString& caption,
                                  const std::function<void()>& handler) {
    auto* button = named(name, new QPushButton(caption));
    connect(button, &QPushButton::clicked, this, [this, handler] { on(handler); });
    return button;
}

QLayout* FormView::makeBottomRow(QPushButton* okay, QPushButton* cancel) {
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(okay, QDialogButtonBox::AcceptRole);
    if (cancel != nullptr) buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    auto* row = new QHBoxLayout;
    row->addWidget(buttons);
    return row;
}

void FormView::reject() {
    on([this] { closeForm(); });
}

} // namespace gui
