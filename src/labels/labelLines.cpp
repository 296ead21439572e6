#include "core/text.h"
#include "labels/labelPrinting.h"
#include "print/layoutPrinting.h"

#include <algorithm>
#include <cmath>

namespace labels {

using drawing::DrawTarget;

namespace {

// A text of the label, in the file's terms a field or a caption.
struct Part {
    const core::LayoutObject* object = nullptr;
    const core::ObjectFont* font = nullptr;
    std::int32_t ForeColor = 0;
    std::string text;
    bool isField = false, isShown = true;
};

// Those that stand side by side.
struct TextRow {
    std::vector<Part> parts;
    float top() const { return parts.front().object->Top; }
};

// A line end within a value would begin a new line anywhere.
std::string inOneLine(std::string_view text) {
    constexpr std::size_t most = 4000; // no label holds more; a value may be as long as it likes
    std::string line(core::trim(text.substr(0, most)));
    for (char& each : line)
        if (each == '\r' || each == '\n' || each == '\t') each = ' ';
    return line;
}

std::vector<TextRow> linesOf(const core::LayoutObjects& objects) {
    std::vector<Part> parts;
    objects.layoutField.forEach([&](const core::LayoutField& field) {
        parts.push_back({&field, &field, field.ForeColor, inOneLine(field.Text), true});
    });
    objects.tLabel.forEach([&](const core::Label& label) {
        parts.push_back({&label, &label, label.ForeColor, inOneLine(label.Text), false});
    });
    std::ranges::stable_sort(parts, [](const Part& a, const Part& b) {
        return a.object->Top != b.object->Top ? a.object->Top < b.object->Top
                                              : a.object->Left < b.object->Left;
    });
    std::vector<TextRow> lines;
    for (Part& part : parts) {
        if (lines.empty() || part.object->Top - lines.back().top() > 1) lines.emplace_back();
        lines.back().parts.push_back(std::move(part));
    }
    return lines;
}

// A blank in front of the second is a gap between the two.
bool standApart(const core::LayoutObject& first, const core::LayoutObject& second) {
    constexpr float gap = 20; // twips; narrower than a blank, wider than rounding
    return second.Left - (first.Left + first.Width) > gap;
}

// Words between two columns go with the one behind them, or, behind the last, with the one in front, and so
// do those that touch it: of "{City}, {State}" the comma is left when there are both. A line of words alone
// stays.
void hideLonelyWords(TextRow& line) {
    const auto fields = std::ranges::count_if(line.parts, &Part::isField);
    if (fields == 0) return;
    bool anchor = true;
    const auto lastField = std::ranges::find_if(line.parts.rbegin(), line.parts.rend(), &Part::isField);
    anchor = !lastField->text.empty();
    for (auto part = line.parts.rbegin(); part != line.parts.rend(); ++part) {
        if (part->isField) anchor = !part->text.empty();
        part->isShown = anchor && !part->text.empty();
    }
    for (std::size_t i = 1; i < line.parts.size(); ++i) {
        const Part& before = line.parts[i - 1];
        if (before.isField && before.text.empty() && !line.parts[i].isField &&
            !standApart(*before.object, *line.parts[i].object))
            line.parts[i].isShown = false;
    }
}

// As it is drawn: with the blanks that gaps stand for.
struct Run {
    const Part* part;
    std::string text;
};

std::vector<Run> runsOf(const TextRow& line) {
    std::vector<Run> runs;
    const core::LayoutObject* before = nullptr;
    bool isApart = false;
    for (const Part& part : line.parts) {
        if (before != nullptr) isApart = isApart || standApart(*before, *part.object);
        before = part.object;
        if (!part.isShown) continue;
        std::string text(isApart && !runs.empty() ? 1 : 0, ' ');
        runs.push_back({&part, text.append(part.text)});
        isApart = false;
    }
    return runs;
}

float widthOf(DrawTarget& target, const std::vector<Run>& runs, float scale) {
    float width = 0;
    for (const Run& run : runs) {
        print::copyObjectFont(*run.part->font, run.part->ForeColor, target);
        target.FontSize *= scale;
        width += target.TextWidth(run.text);
    }
    return width;
}

// The longest beginning that is no wider.
std::string_view cutTo(DrawTarget& target, std::string_view text, float width) {
    if (target.TextWidth(text) <= width) return text;
    std::size_t fits = 0, over = core::length(text);
    while (over - fits > 1) {
        const std::size_t middle = fits + (over - fits) / 2;
        (target.TextWidth(core::left(text, middle)) <= width ? fits : over) = middle;
    }
    return core::left(text, fits);
}

// Answers the height that it took.
float drawLine(DrawTarget& target, const std::vector<Run>& runs, float x, float y, float right) {
    constexpr float smallest = 0.75F; // smaller letters would look like another label
    const float room = std::max(right - x, 0.0F), width = widthOf(target, runs, 1);
    const float scale = width > room && width > 0 ? std::max(room / width, smallest) : 1;
    float height = 0;
    for (const Run& run : runs) {
        print::copyObjectFont(*run.part->font, run.part->ForeColor, target);
        height = std::max(height, target.TextHeight(run.text));
        target.FontSize *= scale;
        target.CurrentX = x;
        target.CurrentY = y;
        const std::string_view shown = cutTo(target, run.text, std::max(right - x, 0.0F));
        target.Print(shown, false);
        x += target.TextWidth(shown);
    }
    return height;
}

} // namespace

void drawLabel(const app::App& app, const core::LayoutObjects& objects, DrawTarget& target, float dx,
               float dy, bool bClosedUp, float right) {
    if (!bClosedUp) {
        print::drawTexts(app.document, objects, target, dx, dy);
    } else {
        constexpr float inset = 30; // half a millimetre
        float lifted = 0;           // by the empty lines above
        std::vector<TextRow> lines = linesOf(objects);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            hideLonelyWords(lines[i]);
            const std::vector<Run> runs = runsOf(lines[i]);
            if (!runs.empty())
                drawLine(target, runs, lines[i].parts.front().object->Left + dx, lines[i].top() + dy - lifted,
                         right - inset);
            else if (i + 1 < lines.size())
                lifted += lines[i + 1].top() - lines[i].top();
        }
    }
    print::drawShapes(app, objects, target, dx, dy);
}

} // namespace labels
