#pragma once

#include "app/app.h"
#include "core/objectRef.h"

#include <string>
#include <vector>

namespace layout {

// Each adds an object near the top of the visible part of the sheet, in front of the others, and selects it.
void addFieldBox(app::App& app, const std::string& key);
void addPictureField(app::App& app, const std::string& key);
void addClipArt(app::App& app);
void addLabel(app::App& app, bool bAutoName);
void addBox(app::App& app);
void addHorizontalLine(app::App& app);
void addVerticalLine(app::App& app);

// The selected object, and with a repeated field its copies; empty while nothing is selected.
std::vector<core::ObjectRef> selectedGroup(app::App& app);
// Locks of a deleted object stay, so a new one that takes its name is locked from birth. It is wanted so.
void deleteSelectedObject(app::App& app);
// Asks, and removes all objects.
void nuke(app::App& app);
void eraseLayout(app::App& app);

enum class FontStyle { Bold, Italic, Underline };
void flipFontStyle(app::App& app, FontStyle style);
// A repeated field changes with all its copies.
void setObjectFont(app::App& app);
void sendToFront(app::App& app);
void sendToBack(app::App& app);

// A double click: asks for the border width.
void pBox_DblClick(app::App& app, int index);

} // namespace layout
