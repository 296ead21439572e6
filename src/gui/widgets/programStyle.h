#pragma once

#include <QProxyStyle>

namespace gui {

// The desktop's style. Fusion draws the edges of its boxes darker than the window, so that in a dark
// palette an empty check box or box for text cannot be seen; there they are drawn anew in a lighter colour.
// And it does not tell which of several lists has the keys; here its frame does, as that of a box for text.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::polish;
    using QProxyStyle::QProxyStyle;

    // A marked text is read as well as any other: 4.5 to 1 at least, which Fusion's blue does not give.
    void polish(QPalette& palette) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    // A menu keeps from its button that the mouse has gone elsewhere.
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    // The buttons of all dialogs alike are without icons, and nothing moves by itself.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    // The mark of a toolbar that is wider than its window is a black picture.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
};

} // namespace gui
