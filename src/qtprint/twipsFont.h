#pragma once

#include "drawing/drawTarget.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QString>

#include <memory>
#include <vector>

namespace qtprint {

// The font for a painter whose unit is a twip. Without hinting, so that a text takes the same room at
// every resolution.
QFont twipsFont(const drawing::TextFont& font);

QColor toColor(std::int32_t colour); // 0x00BBGGRR

inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// What texts measure on every target that Qt draws on. Needs the application object.
class QtTextMetrics : public drawing::TextMetrics {
public:
    float textWidth(const drawing::TextFont& font, std::string_view text) override;
    float textHeight(const drawing::TextFont& font) override;

private:
    struct Measured {
        drawing::TextFont font;
        QFontMetricsF metrics;
        qreal eachWidth = 0; // of all characters alike; 0 when they differ
    };
    Measured& measured(const drawing::TextFont& font);

    std::vector<std::unique_ptr<Measured>> fonts_; // few: those of a layout, or the two of a report
};

} // namespace qtprint
