#pragma once

#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace gui {

// Texts and paths of the document are UTF-8.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
    return text.toStdString();
}

inline QStringList toQt(const std::vector<std::string>& texts) {
    QStringList all;
    for (const std::string& text : texts) all << toQt(std::string_view(text));
    return all;
}

// For a text that a menu or a button would take mnemonics from.
inline QString withoutMnemonics(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace gui
