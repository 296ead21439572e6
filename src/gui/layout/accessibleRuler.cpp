#include "gui/layout/accessibleRuler.h"

#include "gui/layout/rulerView.h"

#include "gui/widgets/measures.h"
#include "layout/layoutPage.h"

#include <QAccessibleWidget>

namespace gui {

namespace {

class AccessibleRuler final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleRuler(RulerView& ruler)
        : QAccessibleWidget(&ruler, QAccessible::Slider), ruler_(ruler) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    // It takes the keys, though neither Tab nor the mouse gives it them.
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focusable = true;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? ruler_.chosenText() : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return ruler_.chosenInches().value_or(0); }
    void setCurrentValue(const QVariant& inches) override { ruler_.moveChosenTo(inches.toDouble()); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return ruler_.lastInches(); }
    QVariant minimumStepSize() const override { return static_cast<double>(layout::gridStep) / twipsPerInch; }

private:
    RulerView& ruler_;
};

QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    auto* ruler = className == QLatin1String("gui::RulerView") ? qobject_cast<RulerView*>(object) : nullptr;
    return ruler == nullptr ? nullptr : new AccessibleRuler(*ruler);
}

} // namespace

void tellRulerRole() {
    QAccessible::installFactory(interfaceOf); // again is as once
}

} // namespace gui
