#include "core/objectRef.h"

#include <algorithm>

namespace core {

std::string_view nameOf(Family family) {
    switch (family) {
    case Family::layoutField:
        return "layoutField";
    case Family::tLabel:
        return "tLabel";
    case Family::pbLine:
        return "pbLine";
    case Family::vLine:
        return "vLine";
    case Family::pBox:
        return "pBox";
    case Family::imgHolder:
        return "imgHolder";
    case Family::clipPic:
        return "clipPic";
    case Family::layoutPic2:
        break;
    }
    return "layoutPic2";
}

std::string ObjectRef::name() const {
    return std::string(nameOf(family)) + "," + std::to_string(Index);
}

LayoutObject* findObject(LayoutObjects& layout, ObjectRef ref) {
    LayoutObject* found = nullptr;
    visitFamily(layout, ref.family, [&](auto& family) { found = family.find(ref.Index); });
    return found;
}

const LayoutObject* findObject(const LayoutObjects& layout, ObjectRef ref) {
    const LayoutObject* found = nullptr;
    visitFamily(layout, ref.family, [&](const auto& family) { found = family.find(ref.Index); });
    return found;
}

ObjectFont* findFont(LayoutObjects& layout, ObjectRef ref) {
    if (ref.family == Family::layoutField) return layout.layoutField.find(ref.Index);
    if (ref.family == Family::tLabel) return layout.tLabel.find(ref.Index);
    return nullptr;
}

std::int32_t* findForeColor(LayoutObjects& layout, ObjectRef ref) {
    std::int32_t* colour = nullptr;
    visitFamily(layout, ref.family, [&](auto& family) {
        auto* object = family.find(ref.Index);
        if constexpr (requires { object->ForeColor; })
            if (object != nullptr) colour = &object->ForeColor;
    });
    return colour;
}

namespace {

template <typename Choose>
int outermost(const LayoutObjects& layout, Choose choose) {
    int order = 0;
    for (const Family family : allFamilies)
        visitFamily(layout, family, [&](const auto& objects) {
            objects.forEach([&](const LayoutObject& object) { order = choose(order, object.zOrder); });
        });
    return order;
}

} // namespace

void bringToFront(LayoutObjects& layout, LayoutObject& object) {
    object.zOrder = outermost(layout, [](int a, int b) { return std::max(a, b); }) + 1;
}

void sendToBack(LayoutObjects& layout, LayoutObject& object) {
    object.zOrder = outermost(layout, [](int a, int b) { return std::min(a, b); }) - 1;
}

} // namespace core
