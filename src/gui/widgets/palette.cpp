#include "gui/widgets/palette.h"

#include "gui/widgets/programStyle.h"

#include <QApplication>

namespace gui {

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
    dark.setColor(QPalette::PlaceholderText, QColor(0x9a, 0xa0, 0xa6));
    dark.setColor(QPalette::ToolTipBase, QColor(0x3c, 0x3d, 0x41));
    dark.setColor(QPalette::Highlight, QColor(0x1f, 0x5f, 0xbf));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(0x8a, 0xb4, 0xf8));
    QApplication::setPalette(dark);
}

} // namespace gui
