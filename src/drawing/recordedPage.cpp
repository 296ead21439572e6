#include "drawing/recordedPage.h"

#include "core/runTimeError.h"

namespace drawing {

void RecordedPage::Cls() {
    drawn_.clear();
    ++changes_;
    CurrentX = CurrentY = 0;
}

TextMetrics& RecordedPage::metrics() {
    if (metrics_ == nullptr) core::raise(core::errors::deviceIO, "no text metrics");
    return *metrics_;
}

void RecordedPage::add(Drawn drawn) {
    drawn_.push_back(std::move(drawn));
    ++changes_;
}

void RecordedPage::drawText(float x, float y, std::string_view text) {
    add(DrawnText{x, y, std::string(text), *this, ForeColor});
}

void RecordedPage::drawLine(float x1, float y1, float x2, float y2) {
    add(DrawnLine{x1, y1, x2, y2, *this});
}

void RecordedPage::drawRectangle(float left, float top, float width, float height) {
    add(DrawnRectangle{left, top, width, height, *this});
}

void RecordedPage::drawPicture(const std::filesystem::path& picture, float left, float top, float width,
                               float height) {
    add(DrawnPicture{picture, left, top, width, height});
}

} // namespace drawing
