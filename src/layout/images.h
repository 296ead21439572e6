#pragma once

#include "app/app.h"
#include "core/layoutObjects.h"

#include <filesystem>
#include <string>

namespace layout {

// A picture box shows this in place of a file name while its image comes from the clipboard and has not
// been stored.
constexpr const char* clipboardMark = "cbHolder";

// Loads the file into the image and fits it into its holder. An empty path, a file that is not there
// and one that cannot be shown leave the holder empty, without a message.
void fitImage(app::App& app, const core::LayoutObject& holder, core::FittedImage& image,
              const std::filesystem::path& path);

// Double clicks: choose a picture for the record (when browsing), or the clip art (when designing).
// The archive changes at once.
void imgHolder_DblClick(app::App& app, int index);
void selectClipArt(app::App& app, int iIndex);

// The image of the clipboard for the selected picture box or clip art.
void mnuImportImage_Click(app::App& app);

// Stores the clipboard image of a picture box in the archive. Returns its entry name.
std::string storeClipboardImage(app::App& app, const core::FittedImage& image);

} // namespace layout
