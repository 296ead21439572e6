#include "qtprint/twipsFont.h"

#include <QFontInfo>

#include <algorithm>
#include <cmath>

namespace qtprint {

namespace {

bool isPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

} // namespace

QFont twipsFont(const drawing::TextFont& font) {
    constexpr float smallest = 1;
    constexpr float largest = 1600;
    constexpr float twipsPerPoint = 20;
    // The screen font of old databases has no file any more; the substitute has nearly its widths.
    static const bool substituted = [] {
        QFont::insertSubstitution(QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans"));
        return true;
    }();
    Q_UNUSED(substituted)
    QFont shown(toQString(font.FontName));
    const float points =
        std::isfinite(font.FontSize) ? std::clamp(font.FontSize, smallest, largest) : smallest;
    shown.setPixelSize(static_cast<int>(std::lround(points * twipsPerPoint)));
    shown.setHintingPreference(QFont::PreferNoHinting);
    shown.setBold(font.FontBold);
    shown.setItalic(font.FontItalic);
    shown.setUnderline(font.FontUnderline);
    shown.setStrikeOut(font.FontStrikethru);
    return shown;
}

QColor toColor(std::int32_t colour) {
    // A number beyond the three bytes stands for a colour of the desktop; on paper that is black.
    if (colour < 0 || colour > 0xFFFFFF) return Qt::black;
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

QtTextMetrics::Measured& QtTextMetrics::measured(const drawing::TextFont& font) {
    const auto found = std::ranges::find_if(fonts_, [&](const auto& known) { return known->font == font; });
    if (found != fonts_.end()) return **found;
    const QFont shown = twipsFont(font);
    auto added = std::make_unique<Measured>(Measured{font, QFontMetricsF(shown)});
    if (QFontInfo(shown).fixedPitch()) added->eachWidth = added->metrics.horizontalAdvance(QLatin1Char('x'));
    fonts_.push_back(std::move(added));
    return *fonts_.back();
}

float QtTextMetrics::textWidth(const drawing::TextFont& font, std::string_view text) {
    if (text.empty()) return 0;
    const Measured& known = measured(font);
    if (known.eachWidth > 0 && isPlain(text))
        return static_cast<float>(known.eachWidth * static_cast<qreal>(text.size()));
    return static_cast<float>(known.metrics.horizontalAdvance(toQString(text)));
}

float QtTextMetrics::textHeight(const drawing::TextFont& font) {
    return static_cast<float>(measured(font).metrics.height());
}

} // namespace qtprint
