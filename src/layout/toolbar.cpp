#include "layout/toolbar.h"
#include "layout/layoutPage.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "layout/labels.h"
#include "layout/objects.h"
#include "layout/selection.h"

#include <array>
#include <functional>
#include <map>

namespace layout {

using app::App;

namespace {

void toggleSnap(App& app) {
    app::Control& button = app.mainFrm.control("layoutToolbar.Snap");
    button.Value = !button.Value;
    app.mainFrm.bSnapToGrid = button.Value;
}

// A new object is not locked, whatever its name was locked for before: the grip says so until it is clicked.
std::function<void(App&)> adding(void (*add)(App&)) {
    return [add](App& app) {
        layoutPage(app).Handle.bLocked = false;
        add(app);
    };
}

void pressLock(App& app) {
    toggleObjectLock(app);
    app.mainFrm.control("layoutToolbar.Lock").Value = isLocked(app.document, layoutPage(app).selectedObject);
}

const std::map<std::string_view, std::function<void(App&)>>& routines() {
    static const std::map<std::string_view, std::function<void(App&)>> all = {
        {"Nuke", nuke},
        {"Delete", deleteSelectedObject},
        {"Snap", toggleSnap},
        {"Line", adding(addHorizontalLine)},
        {"vLine", adding(addVerticalLine)},
        {"Box", adding(addBox)},
        {"ClipArt", adding(addClipArt)},
        {"Label", adding([](App& app) { addLabel(app, false); })},
        {"Link", setLabelLink},
        {"Lock", pressLock},
        {"Rows", [](App& app) { app.platform.showForm("repeatFrm"); }},
        {"Bold", [](App& app) { flipFontStyle(app, FontStyle::Bold); }},
        {"Italic", [](App& app) { flipFontStyle(app, FontStyle::Italic); }},
        {"Underline", [](App& app) { flipFontStyle(app, FontStyle::Underline); }},
        {"Font", setObjectFont},
        {"SendFront", sendToFront},
        {"SendBack", sendToBack},
    };
    return all;
}

} // namespace

std::span<const ToolbarButton> toolbarButtons() {
    static constexpr std::array<ToolbarButton, 24> buttons = {{
        {"Nuke", core::marked("Erase Layout"), "nuke"},
        {"Delete", core::marked("Delete Selected Object"), "deleteObject"},
        {"Snap", core::marked("Snap To Grid"), "snap", true},
        {"-", "", ""},
        {"Line", core::marked("Add Horizontal Line To Layout."), "line"},
        {"vLine", core::marked("Add Vertical Line To Layout."), "vLine"},
        {"Box", core::marked("Add Box To Layout."), "box"},
        {"ClipArt", core::marked("Add a static clip art image to layout."), "clipArt"},
        {"-", "", ""},
        {"Label", core::marked("Add Label"), "label", false, true},
        {"Link", core::marked("Create Link From Label."), "link"},
        {"Lock", core::marked("Lock Selected Object."), "lockObject", true},
        {"-", "", ""},
        {"Field", core::marked("Add Entry Box"), "field", false, true},
        {"Rows", core::marked("Create Item Rows"), "rows"},
        {"Picture", core::marked("Add Picture"), "pictureField", false, true},
        {"-", "", ""},
        {"Bold", core::marked("Bold"), "bold"},
        {"Italic", core::marked("Italic"), "italic"},
        {"Underline", core::marked("Underline"), "underline"},
        {"Font", core::marked("Set Font"), "font"},
        {"-", "", ""},
        {"SendFront", core::marked("Bring To Front"), "sendFront"},
        {"SendBack", core::marked("Send To Back"), "sendBack"},
    }};
    return buttons;
}

void layoutToolbar_ButtonClick(App& app, std::string_view key) {
    const auto routine = routines().find(key);
    if (routine != routines().end()) routine->second(app);
}

bool isButtonEnabled(const App& app, std::string_view key) {
    const bool hasMenuAlone = key == "Field" || key == "Picture";
    if (!hasMenuAlone && !routines().contains(key)) return false;
    const auto control = app.mainFrm.controls.find("layoutToolbar." + std::string(key));
    return control == app.mainFrm.controls.end() || control->second.Enabled;
}

void layoutToolbar_ButtonMenuClick(App& app, std::string_view key) {
    if (key == "AutoLabel")
        addLabel(app, true);
    else if (app.document.LV.columns[key].isType(core::ColumnType::Picture))
        addPictureField(app, std::string(key));
    else
        addFieldBox(app, std::string(key));
}

} // namespace layout
