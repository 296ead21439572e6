#include "layout/objects.h"
#include "layout/layoutPage.h"

#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"
#include "layout/labels.h"
#include "layout/selection.h"
#include "layout/sheet.h"

namespace layout {

using app::App;
using core::Family;
using core::LayoutObject;
using core::ObjectRef;

namespace {

// The lowest free Index, the common place, in front.
template <typename Object>
Object& add(App& app, core::ControlArray<Object>& family) {
    constexpr double twipsPerInch = 1440;
    Object& object = family.load(family.lowestFreeIndex());
    object.Visible = true;
    object.Left = static_cast<float>(app.document.layoutOptions.layoutLeftMargin * twipsPerInch);
    object.Top = static_cast<float>(layoutPage(app).layoutVScroll.Value) + object.Height;
    core::bringToFront(app.document.layout, object);
    return object;
}

void selectNew(App& app, ObjectRef object) {
    select(app, object);
    placeHandle(app, object);
}

template <typename Object>
bool hasColumn(const core::ControlArray<Object>& family, const std::string& key) {
    bool found = false;
    family.forEach([&](const Object& object) { found = found || object.Tag == key; });
    return found;
}

// Ship_To_Name reads Ship To Name.
std::string spokenName(const std::string& tag) {
    if (tag.find('_') == std::string::npos) return tag;
    return std::string(core::trim(core::replaceAll(tag, "_", " ")));
}

core::LayoutField* selectedField(App& app) {
    const ObjectRef selected = layoutPage(app).selectedObject;
    return selected.family == Family::layoutField ? app.document.layout.layoutField.find(selected.Index)
                                                  : nullptr;
}

template <typename Visitor>
void forSelectedGroup(App& app, Visitor&& visit) {
    for (const ObjectRef object : selectedGroup(app)) visit(object);
}

// What was chosen anew; the copies of a field can differ in all else. Boxes and lines have no text, but take
// the colour.
void setFont(core::Document& document, ObjectRef object, const platform::FontChoice& before,
             const platform::FontChoice& choice) {
    const auto set = [&](auto& property, auto platform::FontChoice::*chosen) {
        if (before.*chosen != choice.*chosen) property = choice.*chosen;
    };
    using platform::FontChoice;
    if (std::int32_t* colour = findForeColor(document.layout, object)) set(*colour, &FontChoice::ForeColor);
    core::ObjectFont* font = findFont(document.layout, object);
    if (font == nullptr) return;
    set(font->FontName, &FontChoice::FontName);
    set(font->FontSize, &FontChoice::FontSize);
    set(font->FontBold, &FontChoice::FontBold);
    set(font->FontItalic, &FontChoice::FontItalic);
    set(font->FontUnderline, &FontChoice::FontUnderline);
    set(font->FontStrikethru, &FontChoice::FontStrikethru);
}

platform::FontChoice presentFont(core::LayoutObjects& layout, ObjectRef object) {
    const core::ObjectFont* own = findFont(layout, object);
    const core::ObjectFont font = own != nullptr ? *own : core::ObjectFont();
    const std::int32_t* colour = findForeColor(layout, object);
    return {font.FontName,
            font.FontSize,
            font.FontBold,
            font.FontItalic,
            font.FontUnderline,
            font.FontStrikethru,
            colour != nullptr ? *colour : 0};
}

// A label that goes while it is typed in is no longer open.
void closeSelectedLabel(App& app) {
    const ObjectRef selected = layoutPage(app).selectedObject;
    if (selected.family != Family::tLabel) return;
    const core::Label* label = app.document.layout.tLabel.find(selected.Index);
    if (label != nullptr && !label->Locked) layoutPage(app).bEditingLabel = false;
}

} // namespace

void addFieldBox(App& app, const std::string& key) {
    core::LayoutObjects& layout = app.document.layout;
    if (hasColumn(layout.layoutField, key)) {
        app::inform(app, core::tr("Field already added!"));
        return;
    }
    core::LayoutField& field = add(app, layout.layoutField);
    field.Tag = key;
    field.Text = key;
    field.BackColor = fieldBackColor(app, field);
    field.align = app.document.isNumericColumn(key) ? core::Alignment::Right : core::Alignment::Left;
    layoutPage(app).Handle.bLocked = false;
    selectNew(app, {Family::layoutField, field.Index});
}

void addPictureField(App& app, const std::string& key) {
    core::LayoutObjects& layout = app.document.layout;
    if (hasColumn(layout.imgHolder, key)) {
        app::inform(app, core::tr("Field already added."));
        return;
    }
    core::ImgHolder& holder = add(app, layout.imgHolder);
    holder.Tag = key;
    layoutPage(app).Handle.bLocked = false;
    selectNew(app, {Family::imgHolder, holder.Index});
}

void addClipArt(App& app) {
    core::ClipPic& clip = add(app, app.document.layout.clipPic);
    clip.BorderStyle = 1;
    selectNew(app, {Family::clipPic, clip.Index});
}

void addLabel(App& app, bool bAutoName) {
    core::LayoutObjects& layout = app.document.layout;
    core::Label& label = add(app, layout.tLabel);
    const ObjectRef selected = layoutPage(app).selectedObject;
    const bool isBound = selected.family == Family::layoutField || selected.family == Family::imgHolder;
    const LayoutObject* bound = isBound ? findObject(layout, selected) : nullptr;
    if (bAutoName && bound != nullptr) {
        label.Text = spokenName(bound->Tag);
        label.FontBold = true;
    }
    label.Locked = true;
    selectNew(app, {Family::tLabel, label.Index});
}

void addBox(App& app) {
    selectNew(app, {Family::pBox, add(app, app.document.layout.pBox).Index});
}

void addHorizontalLine(App& app) {
    selectNew(app, {Family::pbLine, add(app, app.document.layout.pbLine).Index});
}

void addVerticalLine(App& app) {
    selectNew(app, {Family::vLine, add(app, app.document.layout.vLine).Index});
}

std::vector<ObjectRef> selectedGroup(App& app) {
    core::LayoutObjects& layout = app.document.layout;
    const core::LayoutField* field = selectedField(app);
    if (field == nullptr || !isRepeatedField(layout, *field)) {
        const ObjectRef selected = layoutPage(app).selectedObject;
        if (findObject(layout, selected) == nullptr) return {};
        return {selected};
    }
    std::vector<ObjectRef> group;
    layout.layoutField.forEach([&](const core::LayoutField& each) {
        if (each.Tag == field->Tag) group.push_back({Family::layoutField, each.Index});
    });
    return group;
}

void deleteSelectedObject(App& app) {
    core::LayoutObjects& layout = app.document.layout;
    closeSelectedLabel(app);
    forSelectedGroup(app, [&](ObjectRef object) {
        visitFamily(layout, object.family, [&](auto& family) { family.unload(object.Index); });
    });
    selectNothing(app);
}

void nuke(App& app) {
    const platform::Answer answer =
        app.platform.msgBox(core::tr("Are you sure?"), platform::Icon::None,
                            core::tr("Erase Layout Confirmation"), platform::Buttons::YesNo);
    if (answer == platform::Answer::Yes) eraseLayout(app);
}

void eraseLayout(App& app) {
    unloadObjects(app);
}

void flipFontStyle(App& app, FontStyle style) {
    core::ObjectFont* font = findFont(app.document.layout, layoutPage(app).selectedObject);
    if (font == nullptr) return;
    bool& property = style == FontStyle::Bold     ? font->FontBold
                     : style == FontStyle::Italic ? font->FontItalic
                                                  : font->FontUnderline;
    property = !property;
}

void setObjectFont(App& app) {
    const platform::FontChoice before = presentFont(app.document.layout, layoutPage(app).selectedObject);
    const std::optional<platform::FontChoice> choice = app.platform.showFont(before);
    if (!choice) return;
    forSelectedGroup(app, [&](ObjectRef object) { setFont(app.document, object, before, *choice); });
}

void sendToFront(App& app) {
    core::LayoutObjects& layout = app.document.layout;
    forSelectedGroup(app, [&](ObjectRef object) {
        if (LayoutObject* each = findObject(layout, object)) core::bringToFront(layout, *each);
    });
}

void sendToBack(App& app) {
    core::LayoutObjects& layout = app.document.layout;
    forSelectedGroup(app, [&](ObjectRef object) {
        if (LayoutObject* each = findObject(layout, object)) core::sendToBack(layout, *each);
    });
}

void pBox_DblClick(App& app, int index) {
    core::BoxObject* box = app.document.layout.pBox.find(index);
    if (box == nullptr) return;
    const std::string answer = app.platform.inputBox(core::tr("Enter value from 1 to 10 for border width."),
                                                     core::tr("Border Width Setting"), "1");
    const double width = core::roundHalfEven(core::val(answer));
    if (width >= 1 && width <= 10) box->DrawWidth = static_cast<int>(width);
}

} // namespace layout
