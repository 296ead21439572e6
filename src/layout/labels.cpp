#include "layout/labels.h"

#include "core/text.h"
#include "layout/sheet.h"

#include <algorithm>

namespace layout {

using app::App;

namespace {

constexpr int enterKey = 13;

// What can be opened, or nothing.
std::string addressOf(std::string_view target) {
    const std::string_view link = core::trim(target);
    const bool isPlain = std::ranges::all_of(link, [](unsigned char c) { return c >= ' ' && c != 0x7f; });
    if (!isPlain) return {};
    const std::string upper = core::upper(link);
    if (upper.starts_with("WWW.")) return "http://" + std::string(link);
    for (const std::string_view scheme : {"HTTP://", "HTTPS://", "MAILTO:"})
        if (upper.starts_with(scheme) && upper.size() > scheme.size()) return std::string(link);
    return {};
}

} // namespace

void tLabel_DblClick(App& app, int index) {
    core::Label* label = app.document.layout.tLabel.find(index);
    if (label == nullptr || !isDesignMode(app)) return;
    label->Locked = false;
    app.mainFrm.layoutPage.bEditingLabel = true;
}

void tLabel_LostFocus(App& app, int index) {
    if (core::Label* label = app.document.layout.tLabel.find(index)) label->Locked = true;
    app.mainFrm.layoutPage.bEditingLabel = false;
}

void tLabel_Change(App& app, int index, std::string_view text) {
    if (core::Label* label = app.document.layout.tLabel.find(index)) label->Text = text;
}

bool tLabel_KeyPress(App& app, int KeyAscii) {
    if (KeyAscii != enterKey) return true;
    app::inform(app,
                "Please use separate labels for multiple lines, or resize your label and allow your text to "
                "wrap automatically.");
    return false;
}

void setLabelLink(App& app) {
    const core::ObjectRef selected = app.mainFrm.layoutPage.selectedObject;
    if (selected.family != core::Family::tLabel) return;
    core::Label* label = app.document.layout.tLabel.find(selected.Index);
    if (label == nullptr) return;
    label->Tag =
        app.platform.inputBox("Enter URL or email address.  URL's should begin with http:// and emails "
                              "should start with mailto:",
                              "Insert Link", label->Tag);
}

void followLink(App& app, std::string_view target) {
    const std::string address = addressOf(target);
    if (!address.empty()) app.platform.openLink(address);
}

} // namespace layout
