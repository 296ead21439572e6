#pragma once

#include <QString>

namespace gui {

// The text of a cell as a tool tip: what looks like markup is shown as it stands, and a long text leaves room
// on the screen for what the tip is about.
inline QString toolTipOf(QString text) {
    constexpr qsizetype mostLetters = 500;
    if (text.size() > mostLetters) text = text.left(mostLetters) + QChar(0x2026);
    return QStringLiteral("<qt>") + text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")) +
           QStringLiteral("</qt>");
}

} // namespace gui
