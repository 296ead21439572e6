#pragma once

#include "app/app.h"
#include "core/layoutObjects.h"
#include "file/archive/zip.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace layout {

// A picture box shows this in place of a file name while its image comes from the clipboard and has not
// been stored.
constexpr const char* clipboardMark = "cbHolder";

// Loads the file into the image and fits it into its holder. An empty path, a file that is not there
// and one that cannot be shown leave the holder empty, without a message.
void fitImage(app::App& app, const core::LayoutObject& holder, core::FittedImage& image,
              const std::filesystem::path& path);

// The images of the open database. It is opened by the first image that has to be unpacked; one that cannot
// be unpacked (absent, damaged, too large) is passed over.
class ImageArchive {
public:
    explicit ImageArchive(app::App& app);
    void extract(const std::string& name);

private:
    app::App& app_;
    file::Zip Zip_;
    bool bOpen_ = false, bUnreadable_ = false;
};

// Where the image of that entry lies in the work folder, unpacked when it is not there yet; an empty path for
// no name, or one that is never unpacked.
std::filesystem::path unpackedImage(app::App& app, const std::string& name, ImageArchive& archive);
// The same for clip art, which an open has unpacked.
std::filesystem::path clipArtFile(app::App& app, const core::ClipPic& clip);

// What keeps the state before a picture is replaced by one of the same name, as a save keeps that before it;
// said by who knows of both.
struct ReplacedPictures {
    std::function<file::Zip::BeforeReplacing(app::App& app, const std::string& database)> keeping;
};

// Double clicks: choose a picture for the record (when browsing), or the clip art (when designing).
// The archive changes at once.
void imgHolder_DblClick(app::App& app, int index);
void selectClipArt(app::App& app, int iIndex);

// Clip art from another place: puts the picture into the archive and the work folder, unless it is there.
// Another picture that has its name keeps it. The name that it has here, or nothing after a message.
std::optional<std::string> storeClipArt(app::App& app, const std::string& name, std::string_view bytes);

// Whether that picture box takes a picture, as it does for who browses the records.
bool takesPicture(app::App& app, int index);
// A picture from another place for the record that is shown: stores it in the archive, where another picture
// of that name stays as it is, and shows it in the box. The name that it has there, or
// nothing after a message.
std::optional<std::string> takePicture(app::App& app, int index, const std::string& name,
                                       std::string_view bytes);

// The image of the clipboard for the selected picture box or clip art.
void mnuImportImage_Click(app::App& app);

// Stores the clipboard image of a picture box in the archive. Returns its entry name.
std::string storeClipboardImage(app::App& app, const core::FittedImage& image);

} // namespace layout
