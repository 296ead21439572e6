#include "gui/widgets/wrappedRadioButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace gui {

namespace {

constexpr int labelFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
constexpr int usualWidth = 60; // characters

} // namespace

WrappedRadioButton::WrappedRadioButton(const QString& text, QWidget* parent) : QRadioButton(text, parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize WrappedRadioButton::indicatorSize() const {
    return {style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this),
            style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, this)};
}

int WrappedRadioButton::labelLeft() const {
    return indicatorSize().width() + style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this) +
           2;
}

QRect WrappedRadioButton::labelIn(int width) const {
    return fontMetrics().boundingRect(QRect(0, 0, std::max(1, width - labelLeft() - 2), 1 << 16), labelFlags,
                                      text());
}

int WrappedRadioButton::heightForWidth(int width) const {
    return std::max(labelIn(width).height(), indicatorSize().height()) + 4;
}

QSize WrappedRadioButton::sizeHint() const {
    const int width = fontMetrics().averageCharWidth() * usualWidth;
    return {width, heightForWidth(width)};
}

QSize WrappedRadioButton::minimumSizeHint() const {
    const int width = fontMetrics().averageCharWidth() * usualWidth / 2;
    return {width, heightForWidth(sizeHint().width())};
}

void WrappedRadioButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect label = QRect(labelLeft(), 2, width() - labelLeft() - 2, height() - 4);
    const QSize indicator = indicatorSize();
    const int line = fontMetrics().height();
    option.rect = QRect(QPoint(0, 2 + std::max(0, (line - indicator.height()) / 2)), indicator);
    painter.drawPrimitive(QStyle::PE_IndicatorRadioButton, option);
    painter.drawItemText(label, labelFlags, palette(), isEnabled(), text(), QPalette::WindowText);
    if ((option.state & QStyle::State_HasFocus) == 0) return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = labelIn(width()).translated(label.topLeft()).adjusted(-2, -2, 2, 2) & rect();
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace gui

#include "moc_wrappedRadioButton.cpp"
