#pragma once

#include "app/app.h"

namespace layout {

// The clipboard of the design mode. Objects are there as lines of the file, which any editor shows, and in
// a form of their own with the pictures of the clip art, so that they reach another database as well.

// The page is in front and is being designed, and no label is being typed in.
bool canPasteObjects(const app::App& app);
// And an object is selected.
bool canCopyObjects(const app::App& app);

void copyObjects(app::App& app);
// A locked object stays, after a message.
void cutObjects(app::App& app);
// All of the clipboard's objects or, after a message, none. They stand where they were, or a step of the
// grid beside what stands there, and the last one is selected.
void pasteObjects(app::App& app);

} // namespace layout
