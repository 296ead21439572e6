#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace gui {

// Texts and paths of the document are UTF-8.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
    return text.toStdString();
}

// For a text that a menu or a button would take mnemonics from.
inline QString withoutMnemonics(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace gui
