#include "gui/widgets/programStyle.h"

#include "gui/widgets/palette.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>

namespace gui {

namespace {

constexpr int edgeStrength = 110;    // of 255, in the colour of the text
constexpr int textEdgeStrength = 60; // a box for text stands out by its ground as well

QColor focusColor(const QPalette& palette) {
    return palette.color(isDark(palette) ? QPalette::Link : QPalette::Highlight);
}

QColor edgeColor(const QStyleOption& option, int strength) {
    QColor edge = option.palette.color(QPalette::WindowText);
    edge.setAlpha(strength);
    return edge;
}

} // namespace

void ProgramStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = palette.color(group, QPalette::HighlightedText);
        QColor ground = palette.color(group, QPalette::Highlight);
        constexpr int steps = 20, percent = 108;
        for (int i = 0; i < steps; ++i) {
            if (contrast(text, ground) >= leastContrast) break;
            ground = text.lightness() > ground.lightness() ? ground.darker(percent) : ground.lighter(percent);
        }
        palette.setColor(group, QPalette::Highlight, ground);
    }
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    const bool isText = element == PE_FrameLineEdit;
    // Only whoever goes by the keys is shown where they are.
    const bool isFocus = element == PE_FrameFocusRect && option->state.testFlag(State_KeyboardFocusChange);
    if ((!isRound && !isBox && !isText && !isFocus) || !isDark(option->palette) ||
        baseStyle()->name() != QLatin1String("fusion"))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool hasKeys = isFocus || (isText && option->state.testFlag(State_HasFocus));
    painter->setPen(hasKeys ? focusColor(option->palette)
                            : edgeColor(*option, isText ? textEdgeStrength : edgeStrength));
    painter->setBrush(Qt::NoBrush);
    const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound)
        painter->drawEllipse(box);
    else
        painter->drawRoundedRect(box, 1.5, 1.5);
    painter->restore();
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuItem && item != nullptr && !item->icon.isNull() &&
        item->state.testFlag(State_Selected) && item->state.testFlag(State_Enabled)) {
        QStyleOptionMenuItem highlighted = *item;
        const int size = pixelMetric(PM_SmallIconSize, option, widget);
        highlighted.icon = QIcon(
            item->icon.pixmap(QSize(size, size), painter->device()->devicePixelRatioF(), QIcon::Selected));
        QProxyStyle::drawControl(element, &highlighted, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element != CE_ShapedFrame || !option->state.testFlag(State_HasFocus) ||
        qobject_cast<const QAbstractItemView*>(widget) == nullptr)
        return;
    painter->save();
    painter->setPen(focusColor(option->palette));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    const bool isLeft = control == CC_ToolButton && button != nullptr && widget != nullptr &&
                        button->state.testFlag(State_MouseOver) && !button->state.testFlag(State_Sunken) &&
                        !widget->rect().contains(widget->mapFromGlobal(QCursor::pos()));
    if (!isLeft) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionToolButton left = *button;
    left.state.setFlag(State_MouseOver, false);
    QProxyStyle::drawComplexControl(control, &left, painter, widget);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons || hint == SH_Widget_Animation_Duration) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
    QIcon plain = QProxyStyle::standardIcon(which, option, widget);
    const QPalette palette = QGuiApplication::palette();
    const bool isMark =
        which == SP_ToolBarHorizontalExtensionButton || which == SP_ToolBarVerticalExtensionButton;
    if (!isMark || !isDark(palette) || plain.availableSizes().isEmpty()) return plain;
    QPixmap light = plain.pixmap(plain.availableSizes().constFirst());
    QPainter painter(&light);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(light.rect(), palette.color(QPalette::WindowText));
    painter.end();
    return light;
}

} // namespace gui

#include "moc_programStyle.cpp"
