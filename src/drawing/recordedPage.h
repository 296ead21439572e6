#pragma once

#include "drawing/drawTarget.h"

#include <variant>
#include <vector>

namespace drawing {

struct DrawnText {
    float Left = 0, Top = 0;
    std::string text;
    TextFont font;
    std::int32_t ForeColor = 0;
};

struct DrawnLine {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Pen pen;
};

struct DrawnRectangle {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    Pen pen;
};

struct DrawnPicture {
    std::filesystem::path picture;
    float Left = 0, Top = 0, Width = 0, Height = 0;
};

using Drawn = std::variant<DrawnText, DrawnLine, DrawnRectangle, DrawnPicture>;

// A page that remembers what is drawn on it, so that it can be shown whenever a window asks for it.
class RecordedPage : public DrawTarget {
public:
    void measureWith(TextMetrics& metrics) { metrics_ = &metrics; }
    void Cls();

    bool isPrinter() const override { return false; }
    const std::vector<Drawn>& drawn() const { return drawn_; }
    // Raised by every change, so that a view knows when to paint.
    std::uint64_t changes() const { return changes_; }

protected:
    TextMetrics& metrics() override;
    void pageSet(const PageSetup&) override { Cls(); }
    void drawText(float x, float y, std::string_view text) override;
    void drawLine(float x1, float y1, float x2, float y2) override;
    void drawRectangle(float left, float top, float width, float height) override;
    void drawPicture(const std::filesystem::path& picture, float left, float top, float width,
                     float height) override;

private:
    void add(Drawn drawn);

    TextMetrics* metrics_ = nullptr;
    std::vector<Drawn> drawn_;
    std::uint64_t changes_ = 0;
};

} // namespace drawing
