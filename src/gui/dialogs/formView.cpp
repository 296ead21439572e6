#include "gui/dialogs/formView.h"

#include "gui/dialogs/dialogFit.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>

namespace gui {

FormView::FormView(EventBoundary& events, const char* name, const QString& caption, QWidget* parent)
    : QDialog(parent), events_(events) {
    setObjectName(QLatin1String(name));
    setWindowTitle(caption);
}

void nameLists(const QWidget& window) {
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    for (auto* list : window.findChildren<QAbstractItemView*>()) {
        if (!list->accessibleName().isEmpty()) continue;
        const auto label = std::ranges::find(labels, list, &QLabel::buddy);
        const auto* frame = qobject_cast<QGroupBox*>(list->parentWidget());
        QString name = label != labels.end() ? (*label)->text() : QString();
        if (name.isEmpty() && frame != nullptr) name = frame->title();
        if (name.isEmpty() && list->model() != nullptr)
            name = list->model()->headerData(0, Qt::Horizontal).toString();
        name = name.remove(QLatin1Char('&')).trimmed();
        list->setAccessibleName(name);
        for (auto* box : window.findChildren<QLineEdit*>())
            if (box->focusProxy() == list) box->setAccessibleName(name); // shows what is chosen in the list
    }
}

void FormView::showModal() {
    nameLists(*this);
    activate();
    if (isUnloaded()) return;
    refresh();
    fitDialog(*this);
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

#include "moc_formView.cpp"
