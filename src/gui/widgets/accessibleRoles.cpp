#include "gui/widgets/accessibleRoles.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace gui {

namespace {

QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (className == QLatin1String("gui::BarChart")) return new QAccessibleWidget(widget, QAccessible::Chart);
    if (className == QLatin1String("gui::SheetPaper"))
        return new QAccessibleWidget(widget, QAccessible::Canvas);
    if (className == QLatin1String("gui::PreviewPort") || className == QLatin1String("gui::SheetShape"))
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    // The corner that the window is sized by has a role in Qt that no screen reader knows.
    if (className == QLatin1String("QSizeGrip")) return new QAccessibleWidget(widget, QAccessible::Separator);
    return nullptr;
}

} // namespace

void tellRoles() {
    QAccessible::installFactory(interfaceOf);
}

} // namespace gui
