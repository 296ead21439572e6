#pragma once

#include "app/app.h"
#include "file/keptEntry.h"

#include <vector>

namespace layout {

// Pictures go into the open file at once, and out of it, so what they replace is kept here until the command
// is over, for it to be undone.
struct KeptPictures {
    bool isKept = false; // where commands can be undone
    std::vector<file::KeptEntry> entries;
};
inline KeptPictures& keptPictures(const app::App& app) {
    return app.rooms.of<KeptPictures>();
}
// Before the entry of that name is replaced or deleted.
inline void keepReplaced(const app::App& app, const file::Zip& archive, const std::string& name) {
    KeptPictures& pictures = keptPictures(app);
    if (pictures.isKept) pictures.entries.push_back(file::keepEntry(archive, name));
}

} // namespace layout
