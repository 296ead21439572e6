#include "drawing/drawTarget.h"

#include <algorithm>

namespace drawing {

void DrawTarget::setPage(const PageSetup& setup) {
    static_cast<TextFont&>(*this) = {};
    static_cast<Pen&>(*this) = {};
    CurrentX = CurrentY = 0;
    isFirst_ = true;
    overflowEnds = {};
    sheetTop_ = 0;
    isOverflow_ = false;
    Width = static_cast<float>(setup.Width);
    Height = static_cast<float>(setup.Height);
    pageSet(setup);
}

float DrawTarget::TextHeight(std::string_view) {
    // A line always goes on downwards, whatever size a damaged file asks for.
    return std::max(metrics().textHeight(*this), 1.0F);
}

void DrawTarget::Print(std::string_view text, bool lineEnd) {
    const float lineHeight = TextHeight(text);
    if (isPrinter() && !bOneSheet && CurrentY > sheetTop_ && CurrentY + lineHeight > sheetEnd())
        beginOverflowSheet();
    if (!text.empty()) drawText(CurrentX, CurrentY, text);
    if (lineEnd) {
        CurrentX = 0;
        CurrentY += lineHeight;
    } else {
        CurrentX += TextWidth(text);
    }
}

float DrawTarget::sheetEnd() const {
    // Where the first sheet ends is said by the margins of who prints.
    if (isFirst_) return Height;
    return Height - (isOverflow_ ? overflowEnds : unprintable()).bottom;
}

void DrawTarget::beginOverflowSheet() {
    startSheet();
    isFirst_ = false;
    isOverflow_ = true;
    CurrentY = sheetTop_ = overflowEnds.top;
}

void DrawTarget::Line(float x1, float y1, float x2, float y2) {
    drawLine(x1, y1, x2, y2);
    CurrentX = x2;
    CurrentY = y2;
}

void DrawTarget::NewPage() {
    startSheet();
    isFirst_ = false;
    sheetTop_ = 0;
    isOverflow_ = false;
    CurrentX = CurrentY = 0;
}

void DrawTarget::EndDoc() {
    endDocument();
    isFirst_ = true;
    sheetTop_ = 0;
    isOverflow_ = false;
    CurrentX = CurrentY = 0;
}

} // namespace drawing
