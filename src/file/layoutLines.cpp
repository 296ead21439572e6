#include "file/layoutLines.h"

#include "core/number.h"
#include "core/runTimeError.h"
#include "file/values.h"

#include <type_traits>

namespace file {

namespace {

constexpr std::size_t elementsOfLabel = 15; // older lines are shorter: no link, left alignment
constexpr std::size_t elementsOfClipArt = 7;

// Every object stands behind those of earlier lines, so a label's empty end never covers the field beside it;
// a box goes behind all others.
template <typename Object>
Object& loadNext(core::LayoutObjects& layout, core::ControlArray<Object>& family) {
    Object& object = family.load(family.upperBound() + 1);
    object.Visible = true;
    constexpr int behindAll = 1'000'000;
    object.zOrder = -layout.count() - (std::is_same_v<Object, core::BoxObject> ? behindAll : 0);
    return object;
}

// An object is loaded only when its whole line has been understood, so the places are read first.
struct Place {
    Place(const Elements& fields, std::size_t first)
        : Left(fields.single(first)), Top(fields.single(first + 1)), Width(fields.single(first + 2)),
          Height(fields.single(first + 3)) {}

    void putInto(core::LayoutObject& object) const {
        object.Left = Left;
        object.Top = Top;
        object.Width = Width;
        object.Height = Height;
    }

    float Left, Top, Width, Height;
};

core::ObjectFont fontOf(const Elements& fields, std::size_t first) {
    core::ObjectFont font;
    font.FontBold = fields.boolean(first);
    font.FontItalic = fields.boolean(first + 1);
    font.FontUnderline = fields.boolean(first + 2);
    font.FontName = fields.text(first + 3);
    font.FontSize = fields.single(first + 4);
    return font;
}

void readField(const Elements& fields, core::LayoutObjects& layout) {
    const Place place(fields, 2);
    const core::ObjectFont font = fontOf(fields, 6);
    const std::int32_t colour = fields.colour(11);
    core::LayoutField& field = loadNext(layout, layout.layoutField);
    place.putInto(field);
    static_cast<core::ObjectFont&>(field) = font;
    field.Tag = fields.text(1);
    field.ForeColor = colour;
}

void readLabel(const Elements& fields, core::LayoutObjects& layout) {
    const Place place(fields, 2);
    const core::ObjectFont font = fontOf(fields, 6);
    const std::int32_t colour = fields.colour(11);
    const bool hasLink = fields.count() == elementsOfLabel;
    const std::int16_t alignment = hasLink ? fields.integer(13) : std::int16_t{0};
    core::Label& label = loadNext(layout, layout.tLabel);
    place.putInto(label);
    static_cast<core::ObjectFont&>(label) = font;
    label.Text = fields.text(1);
    label.ForeColor = colour;
    if (!hasLink) return;
    label.Tag = fields.text(12);
    if (alignment >= 0 && alignment <= 2) label.align = static_cast<core::Alignment>(alignment);
}

void readLine(const Elements& fields, core::LayoutObjects& layout,
              core::ControlArray<core::LineObject>& family) {
    const Place place(fields, 1);
    core::LineObject& line = loadNext(layout, family);
    place.putInto(line);
    // The colour behind the place is not taken: a line is shown, and written again, in the template's.
}

void readBox(const Elements& fields, core::LayoutObjects& layout) {
    const Place place(fields, 1);
    const std::int32_t colour = fields.colour(5);
    const std::int16_t drawWidth = fields.integer(6);
    core::BoxObject& box = loadNext(layout, layout.pBox);
    place.putInto(box);
    box.ForeColor = colour;
    box.DrawWidth = drawWidth;
}

void readPicture(const Elements& fields, core::LayoutObjects& layout) {
    const Place place(fields, 2);
    core::ImgHolder& holder = loadNext(layout, layout.imgHolder);
    place.putInto(holder);
    holder.Tag = fields.text(1);
    if (fields.count() > 6) holder.ToolTipText = fields.text(6); // what stands behind the last separator
    holder.viewImage.Width = holder.Width;
    holder.viewImage.Height = holder.Height;
}

void readClipArt(const Elements& fields, core::LayoutObjects& layout) {
    const Place place(fields, 2);
    core::ClipPic& clip = loadNext(layout, layout.clipPic);
    place.putInto(clip);
    clip.Tag = fields.text(1);
    clip.clipImage.Width = clip.Width;
    clip.clipImage.Height = clip.Height;
}

// A separator in a label's text or in the name of a clip art tears its line, and nothing guards against it
// when it is typed. The line is long by as many fields, and is read with the text put together again.
template <typename Read>
void readTorn(const Elements& fields, core::LayoutObjects& layout, std::size_t elements, Read read) {
    constexpr std::size_t mostSeparators = 200;
    for (std::size_t extra = 0;; ++extra) {
        try {
            read(extra == 0 ? fields : fields.joined(1, extra), layout);
            return;
        } catch (const core::RunTimeError&) {
            if (fields.count() <= elements + extra || extra == mostSeparators) throw;
        }
    }
}

class Line {
public:
    Line(std::string& out, std::string_view word, std::string_view lineEnd) : out_(out), lineEnd_(lineEnd) {
        text(word);
    }
    ~Line() { out_.append(lineEnd_); }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    Line& text(std::string_view value) {
        out_.append(value).push_back('|');
        return *this;
    }
    Line& number(float value) { return text(core::numberText(value)); }
    Line& number(std::int32_t value) { return text(std::to_string(value)); }
    Line& place(const core::LayoutObject& object) {
        return number(object.Left).number(object.Top).number(object.Width).number(object.Height);
    }
    Line& font(const core::ObjectFont& font) {
        text(booleanText(font.FontBold)).text(booleanText(font.FontItalic));
        return text(booleanText(font.FontUnderline)).text(font.FontName).number(font.FontSize);
    }

private:
    std::string& out_;
    std::string_view lineEnd_;
};

} // namespace

bool readLayoutLine(std::string_view line, core::LayoutObjects& layout) {
    const Elements fields(line);
    const std::string_view word = fields.text(0);
    if (word == "F")
        readField(fields, layout);
    else if (word == "L")
        readTorn(fields, layout, elementsOfLabel, readLabel);
    else if (word == "LN")
        readLine(fields, layout, layout.pbLine);
    else if (word == "VLN")
        readLine(fields, layout, layout.vLine);
    else if (word == "B")
        readBox(fields, layout);
    else if (word == "P")
        readPicture(fields, layout);
    else if (word == "C")
        readTorn(fields, layout, elementsOfClipArt, readClipArt);
    else
        return false;
    return true;
}

void writeLayoutLines(std::string& out, const core::LayoutObjects& layout, std::string_view lineEnd) {
    layout.layoutField.forEach([&](const core::LayoutField& field) {
        Line(out, "F", lineEnd).text(field.Tag).place(field).font(field).number(field.ForeColor);
    });
    layout.tLabel.forEach([&](const core::Label& label) {
        Line line(out, "L", lineEnd);
        line.text(label.Text).place(label).font(label).number(label.ForeColor).text(label.Tag);
        line.number(static_cast<std::int32_t>(label.align));
    });
    const auto writeLines = [&](std::string_view word, const core::ControlArray<core::LineObject>& family) {
        family.forEach([&](const core::LineObject& object) {
            Line(out, word, lineEnd).place(object).number(object.BackColor);
        });
    };
    writeLines("LN", layout.pbLine);
    writeLines("VLN", layout.vLine);
    layout.pBox.forEach([&](const core::BoxObject& box) {
        Line(out, "B", lineEnd).place(box).number(box.ForeColor).number(box.DrawWidth);
    });
    layout.imgHolder.forEach(
        [&](const core::ImgHolder& holder) { Line(out, "P", lineEnd).text(holder.Tag).place(holder); });
    layout.clipPic.forEach(
        [&](const core::ClipPic& clip) { Line(out, "C", lineEnd).text(clip.Tag).place(clip); });
}

} // namespace file
