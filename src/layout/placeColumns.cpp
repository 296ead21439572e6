#include "layout/placeColumns.h"

#include "core/translate.h"
#include "layout/layoutPage.h"
#include "layout/objects.h"
#include "layout/selection.h"

#include <algorithm>
#include <string>
#include <vector>

namespace layout {

using app::App;
using core::ColumnType;

namespace {

constexpr float pitch = 420;      // from box to box
constexpr float gap = 240;        // between blocks
constexpr float pictureShare = 3; // the pictures have a third of the width
constexpr float narrowBox = 1560; // enough for a date or an amount
constexpr float widestLabel = 1695;
constexpr std::size_t mostBlocks = 3;

struct Room {
    float left, top, width, height;
};

// Between the margins, as long as they leave room.
Room roomOf(const App& app) {
    constexpr float least = 2880;
    const LayoutPage& page = layoutPage(app);
    return {page.marginLeft, page.marginTop, std::max(least, page.marginRight - page.marginLeft),
            std::max(least, page.marginBottom - page.marginTop)};
}

// The object that was added last is the selected one.
core::LayoutObject* added(App& app) {
    return core::findObject(app.document.layout, layoutPage(app).selectedObject);
}

void placeBox(App& app, const core::Column& column, const Room& place) {
    const float labelWidth = std::min(widestLabel, place.width * 0.4F);
    addFieldBox(app, column.Text);
    if (core::LayoutObject* box = added(app)) {
        const float room = place.width - labelWidth;
        box->Left = place.left + labelWidth;
        box->Top = place.top;
        box->Width = column.isType(ColumnType::Text) ? room : std::min(room, narrowBox);
    }
    addLabel(app, true);
    if (core::LayoutObject* label = added(app)) {
        label->Left = place.left;
        label->Top = place.top + 45; // in the middle of the box
        label->Width = labelWidth - 60;
    }
}

void placePictures(App& app, const std::vector<const core::Column*>& columns, Room room) {
    const float share = (room.height + gap) / static_cast<float>(columns.size());
    const float height = std::max(std::min(room.width * 0.8F, share - gap), gap);
    for (const core::Column* column : columns) {
        addPictureField(app, column->Text);
        if (core::LayoutObject* box = added(app)) {
            box->Left = room.left;
            box->Top = room.top;
            box->Width = room.width;
            box->Height = height;
        }
        room.top += height + gap;
    }
}

} // namespace

void placeAllColumns(App& app) {
    std::vector<const core::Column*> boxes, pictures;
    for (const core::Column& column : app.document.LV.columns)
        if (column.Index > 1) // the first one is the hidden one
            (column.isType(ColumnType::Picture) ? pictures : boxes).push_back(&column);
    Room room = roomOf(app);
    if (!pictures.empty()) {
        Room right = room;
        right.width = room.width / pictureShare;
        room.width -= right.width + gap;
        right.left += room.width + gap;
        placePictures(app, pictures, right);
    }
    const auto fit = static_cast<std::size_t>(std::clamp(room.height / pitch, 1.0F, 1000.0F));
    const std::size_t all = boxes.size();
    boxes.resize(std::min(all, fit * mostBlocks));
    const std::size_t blocks = std::clamp((boxes.size() + fit - 1) / fit, std::size_t{1}, mostBlocks);
    const std::size_t rows = (boxes.size() + blocks - 1) / blocks;
    const float step = (room.width + gap) / static_cast<float>(blocks);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const std::size_t block = i / rows, row = i % rows;
        placeBox(app, *boxes[i],
                 {room.left + static_cast<float>(block) * step, room.top + static_cast<float>(row) * pitch,
                  step - gap, pitch});
    }
    selectNothing(app);
    if (boxes.size() < all)
        app::inform(app, core::fill(core::tr("The page has room for %1 of %2 columns."),
                                    {std::to_string(boxes.size()), std::to_string(all)}));
}

} // namespace layout
