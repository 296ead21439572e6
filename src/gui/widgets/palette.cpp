#include "gui/widgets/palette.h"

#include "gui/widgets/programStyle.h"

#include <QApplication>

#include <algorithm>
#include <cmath>

namespace gui {

namespace {

double luminance(const QColor& colour) {
    const auto part = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

} // namespace

double contrast(const QColor& text, const QColor& ground) {
    constexpr double glare = 0.05;
    const double a = luminance(text) + glare, b = luminance(ground) + glare;
    return std::max(a, b) / std::min(a, b);
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

void useDarkColours() {
    QApplication::setStyle(new ProgramStyle(QStringLiteral("Fusion")));
    const QColor window(0x2b, 0x2c, 0x2f);
    const QColor text(0xe8, 0xea, 0xed);
    const QColor grey(0x80, 0x86, 0x8b);
    QPalette dark(QColor(0x3c, 0x3d, 0x41), window);
    dark.setColor(QPalette::Base, QColor(0x1f, 0x20, 0x22));
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x27, 0x2a));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        dark.setColor(role, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, grey);
    dark.setColor(QPalette::PlaceholderText, QColor(0xba, 0xc0, 0xc6));
    dark.setColor(QPalette::ToolTipBase, QColor(0x3c, 0x3d, 0x41));
    dark.setColor(QPalette::Highlight, QColor(0x1f, 0x5f, 0xbf));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(0x8a, 0xb4, 0xf8));
    QApplication::setPalette(dark);
}

void useLightColours() {
    QApplication::setStyle(new ProgramStyle(QStringLiteral("Fusion")));
    const QColor text(0x20, 0x21, 0x24);
    const QColor grey(0x80, 0x86, 0x8b);
    QPalette light(QColor(0xec, 0xed, 0xef), QColor(0xf1, 0xf2, 0xf4));
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf7, 0xf9));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        light.setColor(role, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        light.setColor(QPalette::Disabled, role, grey);
    light.setColor(QPalette::PlaceholderText, QColor(0x5f, 0x63, 0x68));
    light.setColor(QPalette::Highlight, QColor(0x1a, 0x62, 0xc7));
    light.setColor(QPalette::HighlightedText, Qt::white);
    light.setColor(QPalette::Link, QColor(0x1a, 0x5f, 0xb4));
    QApplication::setPalette(light);
}

} // namespace gui
