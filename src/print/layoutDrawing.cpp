#include "core/number.h"
#include "core/text.h"
#include "layout/layoutPage.h"
#include "print/layoutPrinting.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace print {

using app::App;
using drawing::DrawTarget;

namespace {

void useLine(const core::LineObject& line, DrawTarget& target) {
    target.ForeColor = line.ForeColor;
    target.DrawWidth = line.DrawWidth;
    target.DrawStyle = drawing::LineStyle::Solid;
}

void drawText(const core::Document& document, DrawTarget& target, const core::LayoutField& field) {
    copyObjectFont(field, field.ForeColor, target);
    const core::Column* column = document.LV.columns.find(field.Tag);
    if (column == nullptr || !column->isNumeric())
        printWrapped(target, target.CurrentX, field.Height, field.Width, field.Text);
    else if (!field.Text.empty())
        printInBoxRight(field.Text, field.Width, target, target.CurrentX);
}

void drawImage(DrawTarget& target, const core::LayoutObject& holder, const core::FittedImage& image, float dx,
               float dy) {
    if (!image.path.empty())
        target.PaintPicture(image.path, holder.Left + image.Left + dx, holder.Top + image.Top + dy,
                            image.Width, image.Height);
}

// Where the head of the text ends that is no wider, behind a blank; npos where every blank is in it. A wide
// field of a damaged file may hold thousands of words, so they are not measured one by one, but in strides
// that grow, and then by halves: a text does not become narrower by a word more.
std::size_t headThatFits(DrawTarget& target, std::string_view text, float width) {
    std::size_t fits = 0;
    std::vector<std::size_t> ends; // behind the blanks of one stride
    for (std::size_t stride = 1;; stride *= 2) {
        ends.clear();
        for (std::size_t blank = fits; ends.size() < stride; ends.push_back(++blank)) {
            blank = text.find(' ', blank);
            if (blank == std::string_view::npos) break;
        }
        const auto end = std::ranges::partition_point(
            ends, [&](std::size_t each) { return target.TextWidth(text.substr(0, each)) <= width; });
        if (end != ends.begin()) fits = *std::prev(end);
        if (end != ends.end()) return fits;
        if (ends.size() < stride) return std::string_view::npos;
    }
}

} // namespace

void copyObjectFont(const core::ObjectFont& object, std::int32_t ForeColor, DrawTarget& target) {
    target.FontName = object.FontName;
    target.ForeColor = ForeColor;
    target.FontBold = object.FontBold;
    target.FontUnderline = object.FontUnderline;
    target.FontStrikethru = object.FontStrikethru;
    target.FontItalic = object.FontItalic;
    target.FontSize = object.FontSize;
}

void printInBoxRight(std::string_view text, float width, DrawTarget& target, float x) {
    const double offset = static_cast<double>(width) - static_cast<double>(target.TextWidth(text));
    target.CurrentX = x + static_cast<float>(std::max<int>(core::toInt16(offset), 0));
    target.Print(text, true);
}

void printWrapped(DrawTarget& target, float x, float maxHeight, float width, std::string_view text) {
    constexpr float inset = 10;
    constexpr float furthest = 1'000'000; // no paper is longer; a damaged file may say anything
    maxHeight = std::min(maxHeight, furthest);
    std::string_view rest = text;
    float used = 0;
    do {
        const std::size_t head = headThatFits(target, rest, width - inset);
        const std::string_view line = rest.substr(0, head);
        rest = head == std::string_view::npos ? std::string_view() : core::ltrim(rest.substr(head));
        target.CurrentX = x;
        if (!(used < maxHeight)) return;
        target.Print(line, true);
        used += target.TextHeight(line);
    } while (!rest.empty());
}

void drawTexts(const core::Document& document, const core::LayoutObjects& objects, DrawTarget& target,
               float dx, float dy) {
    const auto goTo = [&](const core::LayoutObject& object) {
        target.CurrentX = object.Left + dx;
        target.CurrentY = object.Top + dy;
    };
    objects.layoutField.forEach([&](const core::LayoutField& field) {
        goTo(field);
        drawText(document, target, field);
    });
    objects.tLabel.forEach([&](const core::Label& label) {
        goTo(label);
        copyObjectFont(label, label.ForeColor, target);
        printWrapped(target, target.CurrentX, label.Height, label.Width, label.Text);
    });
}

void drawShapes(const App& app, const core::LayoutObjects& objects, DrawTarget& target, float dx, float dy) {
    // The width of a line counts pixels, and is taken off as if it were twips. It is wanted so.
    objects.pbLine.forEach([&](const core::LineObject& line) {
        useLine(line, target);
        const float y = line.Top + dy + line.Height / 2 - static_cast<float>(line.DrawWidth);
        target.Line(line.Left + dx, y, line.Left + dx + line.Width, y);
    });
    objects.vLine.forEach([&](const core::LineObject& line) {
        useLine(line, target);
        const float x = line.Left + dx + line.Width / 2 - static_cast<float>(line.DrawWidth);
        target.Line(x, line.Top + dy, x, line.Top + dy + line.Height);
    });
    const float pixelX = layout::layoutPage(app).TwipsPerPixelX;
    const float pixelY = layout::layoutPage(app).TwipsPerPixelY;
    objects.pBox.forEach([&](const core::BoxObject& box) {
        target.DrawWidth = box.DrawWidth;
        target.ForeColor = box.ForeColor;
        target.DrawStyle = drawing::LineStyle::Solid;
        target.Rectangle(box.Left + dx + pixelX, box.Top + dy + pixelY, box.Width - 2 * pixelX,
                         box.Height - 2 * pixelY);
    });
    objects.imgHolder.forEach(
        [&](const core::ImgHolder& holder) { drawImage(target, holder, holder.viewImage, dx, dy); });
    objects.clipPic.forEach(
        [&](const core::ClipPic& clip) { drawImage(target, clip, clip.clipImage, dx, dy); });
}

void drawObjects(App& app, DrawTarget& target, float dx, float dy) {
    target.bOneSheet = true; // a record stands on one sheet, as its preview does on one page
    drawTexts(app.document, app.document.layout, target, dx, dy);
    drawShapes(app, app.document.layout, target, dx, dy);
}

} // namespace print
