#pragma once

#include "core/column.h"
#include "core/controlArray.h"

#include <cstdint>
#include <string>

namespace core {

// What stands on the layout page. All lengths are twips from the sheet's top left corner, margins
// included, so that printing needs no scaling. Colours are 0x00BBGGRR.

constexpr std::int32_t white = 0xFFFFFF;

struct LayoutObject {
    int Index = 0;
    std::string Tag;
    float Left = 0, Top = 0, Width = 0, Height = 0;
    bool Visible = false;
    int zOrder = 0; // higher is nearer to the front; lives only while the program runs
    bool operator==(const LayoutObject&) const = default;
};

struct ObjectFont {
    std::string FontName = "MS Sans Serif";
    float FontSize = 8.25F; // points
    bool FontBold = false, FontItalic = false, FontUnderline = false, FontStrikethru = false;
    bool operator==(const ObjectFont&) const = default;
};

// A text box bound to the column that Tag names.
struct LayoutField : LayoutObject, ObjectFont {
    std::string Text;
    std::int32_t ForeColor = 0;
    std::int32_t BackColor = white;
    Alignment align = Alignment::Left;
    bool Enabled = true;
    bool Locked = true;
    bool operator==(const LayoutField&) const = default;
};

// A caption; Tag is its link.
struct Label : LayoutObject, ObjectFont {
    std::string Text = "Label";
    std::int32_t ForeColor = 0;
    std::int32_t BackColor = white;
    Alignment align = Alignment::Left;
    bool Locked = true;
    bool operator==(const Label&) const = default;
};

// A horizontal or a vertical line, drawn through the middle of its rectangle.
struct LineObject : LayoutObject {
    std::int32_t ForeColor = 0;
    std::int32_t BackColor = white;
    int DrawWidth = 2; // pixels
    bool operator==(const LineObject&) const = default;
};

// The outline of a rectangle.
struct BoxObject : LayoutObject {
    std::int32_t ForeColor = 0;
    int DrawWidth = 1; // pixels, 1 to 10
    bool operator==(const BoxObject&) const = default;
};

// The image inside a picture box or clip art box: its fitted rectangle, relative to the holder, and
// the unpacked file that it shows (empty: none).
struct FittedImage {
    std::string path;
    float Left = 0, Top = 0, Width = 0, Height = 0;
    bool Visible = true;
    bool Stretch = false;
    bool operator==(const FittedImage&) const = default;
};

// A picture box bound to the Picture column that Tag names; the image is its viewImage.
struct ImgHolder : LayoutObject {
    std::string ToolTipText; // entry name of the record's image, empty for none
    std::int32_t BackColor = white;
    FittedImage viewImage;
    bool operator==(const ImgHolder&) const = default;
};

// A fixed picture of the page; Tag is the entry name of the image, the image is its clipImage.
struct ClipPic : LayoutObject {
    int BorderStyle = 0;
    FittedImage clipImage;
    bool operator==(const ClipPic&) const = default;
};

template <typename Object>
Object layoutTemplate(float width, float height) {
    Object object;
    object.Width = width;
    object.Height = height;
    return object;
}

// The control arrays of the layout page, under the names that the file and the locks know.
struct LayoutObjects {
    ControlArray<LayoutField> layoutField{layoutTemplate<LayoutField>(1815, 285)};
    ControlArray<Label> tLabel{layoutTemplate<Label>(1695, 195)};
    ControlArray<LineObject> pbLine{layoutTemplate<LineObject>(2910, 75)};
    ControlArray<LineObject> vLine{layoutTemplate<LineObject>(75, 3135)};
    ControlArray<BoxObject> pBox{layoutTemplate<BoxObject>(2295, 1815)};
    ControlArray<ImgHolder> imgHolder{layoutTemplate<ImgHolder>(1815, 1575)};
    ControlArray<ClipPic> clipPic{layoutTemplate<ClipPic>(2175, 1815)};

    void unloadAll();
    int count() const; // of all families
};

} // namespace core
