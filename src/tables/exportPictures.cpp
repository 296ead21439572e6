#include "tables/exportPictures.h"

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
    std::string question = "The folder \"";
    question.append(folder.filename().string());
    question.append("\" is there already. Pictures in it that have the same names are replaced. Continue?");
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
    std::string text = "The table is written, but the database has no pictures of these names:\n";
    for (std::size_t i = 0; i < std::min(missing_.size(), mostNamed); ++i)
        text.append(i == 0 ? "" : ", ").append(missing_[i]);
    if (missing_.size() > mostNamed)
        text.append(" and ").append(std::to_string(missing_.size() - mostNamed)).append(" more");
    app::inform(app_, text.append("."));
}

} // namespace tables
