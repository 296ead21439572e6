#pragma once

#include "app/app.h"

#include <span>
#include <string_view>

namespace print {

// The page of the preview, ready to be drawn on.
drawing::DrawTarget& rptPreview1(app::App& app);

// Chooses the paper of a print. The preview's page takes its size and is empty and in its place.
void usePage(app::App& app, drawing::DrawTarget& target, const drawing::PageSetup& setup);

// Scroll ranges and place of the page in its port.
void InitReportPreview(app::App& app);
void rptHScroll1_Change(app::App& app, int value);
void rptVScroll1_Change(app::App& app, int value);
// The port has another size, or the scroll bars another thickness; in twips.
void rptPreview2_Resize(app::App& app, float width, float height, float barThickness);

struct PreviewButton {
    std::string_view key;
    std::string_view tip;
    std::string_view icon;
};
std::span<const PreviewButton> previewButtons();
void reportToolbar_ButtonClick(app::App& app, std::string_view key);

// The preview tab comes to the front: draws what iPrintMode asks for. False when there was nothing to draw,
// after the message.
bool showPreview(app::App& app);

} // namespace print
