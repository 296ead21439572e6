#pragma once

#include "app/app.h"

#include <string_view>

namespace layout {

// The page size in twips that the printer gives for the layout's paper, orientation and custom size.
drawing::Extent pageExtent(app::App& app);

// Puts the sheet into design or browse mode.
void InitLayout(app::App& app, bool bDesign);
// The same, by the state of the button "Design".
void refreshLayoutMode(app::App& app);
bool isDesignMode(app::App& app);

// Rebuilds the menus of the buttons "Field" and "Picture" from the columns.
void refreshLayoutButtonMenus(app::App& app);

// The viewport has another size, in twips.
void layoutPic1_Resize(app::App& app, float width, float height);
void refreshLayoutScroll(app::App& app);
void layoutVScroll_Change(app::App& app, int value);
void layoutHScroll_Change(app::App& app, int value);

// Whether another field shows the same column.
bool isRepeatedField(const core::LayoutObjects& layout, const core::LayoutField& field);
// Every other field of the same column, in array order.
template <typename Visitor>
void forEachCopy(core::LayoutObjects& layout, const core::LayoutField& field, Visitor&& visit) {
    layout.layoutField.forEach([&](core::LayoutField& other) {
        if (other.Index != field.Index && other.Tag == field.Tag) visit(other);
    });
}

// Removes all objects of the page. Nothing is selected any more.
void unloadObjects(app::App& app);

// The back colour of a field: calculated boxes are cyan when the user wants them highlighted.
std::int32_t fieldBackColor(const app::App& app, const core::LayoutField& field);

} // namespace layout
