#pragma once

#include "core/layoutObjects.h"

#include <optional>
#include <string>
#include <string_view>

namespace core {

// The kinds of layout objects, under the names of their control arrays. layoutPic2 is the bare sheet:
// nothing is selected.
enum class Family { layoutPic2, layoutField, tLabel, pbLine, vLine, pBox, imgHolder, clipPic };

std::string_view nameOf(Family family);

// An object is named by its array and its Index.
struct ObjectRef {
    Family family = Family::layoutPic2;
    int Index = 0;

    bool operator==(const ObjectRef&) const = default;
    bool isObject() const { return family != Family::layoutPic2; }
    std::string name() const; // "pBox,3", as locks has it
};

// Calls visit with the control array of that family, if it is one.
template <typename Layout, typename Visitor>
void visitFamily(Layout& layout, Family family, Visitor&& visit) {
    switch (family) {
    case Family::layoutField:
        return visit(layout.layoutField);
    case Family::tLabel:
        return visit(layout.tLabel);
    case Family::pbLine:
        return visit(layout.pbLine);
    case Family::vLine:
        return visit(layout.vLine);
    case Family::pBox:
        return visit(layout.pBox);
    case Family::imgHolder:
        return visit(layout.imgHolder);
    case Family::clipPic:
        return visit(layout.clipPic);
    case Family::layoutPic2:
        return;
    }
}

constexpr Family allFamilies[] = {Family::layoutField, Family::tLabel,    Family::pbLine, Family::vLine,
                                  Family::pBox,        Family::imgHolder, Family::clipPic};

// nullptr for the sheet, and for an object that is not there.
LayoutObject* findObject(LayoutObjects& layout, ObjectRef ref);
const LayoutObject* findObject(const LayoutObjects& layout, ObjectRef ref);
// The font of a field or a label; nullptr for the others.
ObjectFont* findFont(LayoutObjects& layout, ObjectRef ref);
// nullptr for the sheet, pictures and clip art.
std::int32_t* findForeColor(LayoutObjects& layout, ObjectRef ref);

// Stacking order: in front of, or behind, all others.
void bringToFront(LayoutObjects& layout, LayoutObject& object);
void sendToBack(LayoutObjects& layout, LayoutObject& object);

} // namespace core
