#pragma once

#include <cstdint>
#include <string>

namespace core {

constexpr std::int16_t portrait = 1;
constexpr std::int16_t landscape = 2;
constexpr std::int16_t letterPaper = 1;
constexpr std::int16_t legalPaper = 5;
constexpr std::int16_t customPaper = 256;

// The page of the layout. Lengths in inches. The defaults are those of a new database.
struct LayoutOptions {
    float customPaperLength = 4;
    float customPaperHeight = 6;
    float layoutLeftMargin = 1;
    float layoutTopMargin = 1;
    float layoutBottomMargin = 1;
    float layoutRightMargin = 1;
    std::int16_t layoutPaperSize = letterPaper;
    std::int16_t layoutOrientation = portrait;
    float layoutSpacing = 0.15F; // gap between layouts when several print on a page
    bool operator==(const LayoutOptions&) const = default;
};

// The page of the report. Lengths in inches. The defaults are those of a new database.
struct ReportData {
    float reportLeftMargin = 1;
    float reportRightMargin = 1;
    float reportTopMargin = 1;
    float reportBottomMargin = 1;
    std::int16_t reportPaperSize = letterPaper;
    std::int16_t reportOrientation = portrait;
    std::string reportTitle;
    bool bReportBoldHeaders = false;
    bool operator==(const ReportData&) const = default;
};

} // namespace core
