#include "gui/programStyle.h"

#include "gui/palette.h"

#include <QPainter>
#include <QStyleOption>

namespace gui {

namespace {

constexpr int edgeStrength = 110; // of 255, in the colour of the text

} // namespace

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if ((!isRound && !isBox) || !isDark(option->palette) || baseStyle()->name() != QLatin1String("fusion"))
        return;
    QColor edge = option->palette.color(QPalette::WindowText);
    edge.setAlpha(edgeStrength);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge);
    painter->setBrush(Qt::NoBrush);
    const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound)
        painter->drawEllipse(box);
    else
        painter->drawRoundedRect(box, 1.5, 1.5);
    painter->restore();
}

} // namespace gui
