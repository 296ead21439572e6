#include "tables/exportPictures.h"

#include "core/translate.h"
#include "exchange/pictures.h"

#include <algorithm>
#include <system_error>

namespace tables {

namespace fs = std::filesystem;
using exchange::Format;

bool takesPictures(Format format) {
    return format != Format::Vcard; // a card has no field for the name of a file
}

bool hasPicturesInside(Format format) {
    return format == Format::Xlsx;
}

ExportPictures::~ExportPictures() {
    std::error_code error; // what cannot be removed stays
    if (!folder_.empty()) fs::remove_all(folder_, error);
}

bool ExportPictures::mayWriteBeside(const fs::path& target) const {
    const fs::path folder = exchange::picturesBeside(target);
    std::error_code error;
    // What is no folder, or cannot be looked at, is told when the pictures are to go there.
    if (!fs::is_directory(folder, error) || fs::is_empty(folder, error)) return true;
    const std::string question = core::fill(core::tr("The folder \"%1\" is there already. Pictures in it "
                                                     "that have the same names are replaced. Continue?"),
                                            {folder.filename().string()});
    return app::askYesNo(app_, question, platform::Icon::Question);
}

void ExportPictures::unpack(const fs::path& target, Format format, exchange::OutTable& table,
                            const exchange::Progress& progress) {
    bInside_ = hasPicturesInside(format);
    const fs::path folder =
        bInside_ ? app_.platform.workFolder() / "exported-pictures" : exchange::picturesBeside(target);
    std::error_code error;
    if (bInside_) fs::remove_all(folder, error); // of a program that was killed
    const bool bNew = !fs::exists(fs::symlink_status(folder, error));
    missing_ = exchange::unpackPictures(app_.document.currentFile, table, folder, progress);
    if (bInside_ || bNew) folder_ = folder;
    if (bInside_) table.pictures = folder;
}

void ExportPictures::finish() {
    if (!bInside_) folder_.clear();
    if (missing_.empty()) return;
    constexpr std::size_t mostNamed = 10;
    std::string names;
    for (std::size_t i = 0; i < std::min(missing_.size(), mostNamed); ++i)
        names.append(i == 0 ? "" : ", ").append(missing_[i]);
    std::string text =
        core::tr("The table is written, but the database has no pictures of these names:\n%1.");
    if (missing_.size() > mostNamed)
        text = core::tr(
            "The table is written, but the database has no pictures of these names:\n%1 and %n more.",
            "The table is written, but the database has no pictures of these names:\n%1 and %n more.",
            static_cast<int>(missing_.size() - mostNamed));
    app::inform(app_, core::fill(text, {names}));
}

} // namespace tables
