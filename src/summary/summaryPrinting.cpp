#include "summary/summaryPrinting.h"

#include "core/text.h"
#include "print/margins.h"
#include "print/previewNavigation.h"
#include "print/reportPrinting.h"
#include "summary/summaryTable.h"

#include <algorithm>

namespace summary {

namespace {

using drawing::DrawTarget;

constexpr float columnGap = 250; // twips
constexpr float ruleGap = 40;
constexpr float leastBars = 1440; // narrower ones tell nothing
constexpr float titleFont = 12, usualFont = 10, smallestFont = 6;
constexpr std::size_t mostPrinted = 1000; // more than a line of the widest paper has
constexpr std::int32_t barGrey = 0x909090;

class SummaryPage {
public:
    SummaryPage(app::App& app, DrawTarget& target, const Summary& summary, int barFigure)
        : app_(app), target_(target), summary_(summary), table_(tableOf(summary, {}, mostPrinted)),
          scale_(summary, barFigure), byCount_(summary.request.by.size()),
          barName_(barFigure == recordsBar
                       ? core::tr(recordsHeading)
                       : headingOf(summary.request.figures.at(static_cast<std::size_t>(barFigure)))) {}

    void draw(std::string_view title) {
        print::usePage(app_, target_, print::reportPage(app_));
        const core::ReportData& settings = app_.document.reportData;
        const auto twips = [](double inches) { return static_cast<float>(inches * print::twipsPerInch); };
        left_ = twips(settings.reportLeftMargin);
        top_ = twips(settings.reportTopMargin);
        right_ = target_.Width - twips(settings.reportRightMargin);
        bottom_ = target_.Height - twips(settings.reportBottomMargin);
        target_.FontName = "Arial";
        target_.FontSize = titleFont;
        target_.FontBold = true;
        target_.CurrentX = left_;
        target_.CurrentY = top_;
        target_.Print(fitted(title, right_ - left_), true);
        y_ = target_.CurrentY + columnGap / 2;
        measure();
        drawHeadings();
        for (std::size_t row = 0; row < table_.rows.size(); ++row) drawRow(row);
        target_.EndDoc();
    }

private:
    // As small as it has to be for all columns to have room.
    void measure() {
        for (float size = usualFont;; size -= 1) {
            target_.FontSize = size;
            target_.FontBold = true; // the wider one
            widths_.clear();
            float all = 0;
            for (std::size_t i = 0; i < table_.columns.size(); ++i) {
                float width = target_.TextWidth(table_.columns[i].name);
                for (const auto& row : table_.rows) width = std::max(width, target_.TextWidth(row[i]));
                if (i < byCount_) width = std::min(width, mostForKeys() / static_cast<float>(byCount_));
                widths_.push_back(width);
                all += width + columnGap;
            }
            bars_ = right_ - left_ - all;
            if (bars_ >= 0 || size <= smallestFont) break;
        }
        lineHeight_ = target_.TextHeight("X") * 1.25F;
    }

    float mostForKeys() const { return (right_ - left_) / 2; }

    // A text that is too long ends in dots. How much of it fits is found by halves, since each look measures
    // it.
    std::string fitted(std::string_view text, float width) {
        const auto fits = [&](const std::string& part) { return target_.TextWidth(part) <= width + 1; };
        std::string all(text);
        if (fits(all)) return all;
        std::size_t most = 0;
        for (std::size_t tooMany = core::length(text); most + 1 < tooMany;) {
            const std::size_t middle = most + (tooMany - most) / 2;
            all.assign(core::left(text, middle)).append("...");
            (fits(all) ? most : tooMany) = middle;
        }
        return all.assign(core::left(text, most)).append("...");
    }

    template <typename TextOf>
    void drawCells(TextOf&& textOf) {
        float x = left_;
        for (std::size_t i = 0; i < widths_.size(); ++i) {
            const std::string text = fitted(textOf(i), widths_[i]);
            const float inset = i < byCount_ ? 0 : widths_[i] - target_.TextWidth(text);
            target_.CurrentX = x + inset;
            target_.CurrentY = y_;
            target_.Print(text, false);
            x += widths_[i] + columnGap;
        }
    }

    void drawRule() {
        y_ += ruleGap;
        target_.Line(left_, y_, right_, y_);
        y_ += ruleGap;
    }

    void drawHeadings() {
        target_.FontBold = true;
        drawCells([&](std::size_t i) { return std::string_view(table_.columns[i].name); });
        if (bars_ >= leastBars) {
            target_.CurrentX = right_ - bars_ + columnGap;
            target_.CurrentY = y_;
            target_.Print(fitted(barName_, bars_ - columnGap), false);
        }
        target_.FontBold = false;
        y_ += lineHeight_;
        drawRule();
    }

    void drawRow(std::size_t row) {
        const bool isTotal = row == summary_.groups.size();
        if (y_ + lineHeight_ + (isTotal ? 2 * ruleGap : 0) > bottom_ && row > 0) {
            target_.NewPage();
            y_ = top_;
            drawHeadings();
        }
        if (isTotal) drawRule();
        target_.FontBold = isTotal;
        drawCells([&](std::size_t i) { return std::string_view(table_.rows[row][i]); });
        if (!isTotal && bars_ >= leastBars) drawBar(summary_.groups[row]);
        y_ += lineHeight_;
    }

    // A thick line, since a page has no filled shapes.
    void drawBar(const Group& group) {
        const Bar bar = scale_.barOf(group);
        const float x = right_ - bars_ + columnGap, room = bars_ - columnGap;
        const float y = y_ + lineHeight_ * 0.4F;
        const auto at = [&](double part) { return x + room * static_cast<float>(part); };
        // Where bars go to the left too, it is seen from where.
        if (scale_.zero() > 0) target_.Line(at(scale_.zero()), y_, at(scale_.zero()), y_ + lineHeight_);
        if (bar.to <= bar.from) return;
        const drawing::Pen before = target_;
        target_.ForeColor = barGrey;
        target_.DrawWidth = std::max(1, static_cast<int>(lineHeight_ * 0.5F / drawing::twipsPerLinePixel));
        target_.Line(at(bar.from), y, at(bar.to), y);
        static_cast<drawing::Pen&>(target_) = before;
    }

    app::App& app_;
    DrawTarget& target_;
    const Summary& summary_;
    exchange::OutTable table_;
    BarScale scale_;
    std::size_t byCount_;
    std::string barName_;
    std::vector<float> widths_;
    float left_ = 0, right_ = 0, top_ = 0, bottom_ = 0, bars_ = 0, lineHeight_ = 0, y_ = 0;
};

} // namespace

void drawSummary(app::App& app, DrawTarget& target, const Summary& summary, std::string_view title,
                 int barFigure) {
    SummaryPage(app, target, summary, barFigure).draw(title);
}

} // namespace summary
