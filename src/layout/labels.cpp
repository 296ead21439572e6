#include "layout/labels.h"
#include "layout/layoutPage.h"

#include "core/translate.h"
#include "layout/sheet.h"

namespace layout {

using app::App;

namespace {

constexpr int enterKey = 13;

} // namespace

void tLabel_DblClick(App& app, int index) {
    core::Label* label = app.document.layout.tLabel.find(index);
    if (label == nullptr || !isDesignMode(app)) return;
    label->Locked = false;
    layoutPage(app).bEditingLabel = true;
}

void tLabel_LostFocus(App& app, int index) {
    if (core::Label* label = app.document.layout.tLabel.find(index)) label->Locked = true;
    layoutPage(app).bEditingLabel = false;
}

void tLabel_Change(core::Document& document, int index, std::string_view text) {
    if (core::Label* label = document.layout.tLabel.find(index)) label->Text = text;
}

bool tLabel_KeyPress(App& app, int KeyAscii) {
    if (KeyAscii != enterKey) return true;
    app::inform(
        app,
        core::tr("Please use separate labels for multiple lines, or resize your label and allow your text to "
                 "wrap automatically."));
    return false;
}

void setLabelLink(App& app) {
    const core::ObjectRef selected = layoutPage(app).selectedObject;
    if (selected.family != core::Family::tLabel) return;
    core::Label* label = app.document.layout.tLabel.find(selected.Index);
    if (label == nullptr) return;
    label->Tag = app.platform.inputBox(
        core::tr("Enter URL or email address.  URL's should begin with http:// and emails "
                 "should start with mailto:"),
        core::tr("Insert Link"), label->Tag);
}

} // namespace layout
