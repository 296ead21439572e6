#include "layout/images.h"
#include "layout/layoutPage.h"

#include "app/hourglass.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "file/archive/zip.h"
#include "layout/keptPictures.h"
#include "layout/sheet.h"

#include <cerrno>
#include <fstream>
#include <functional>
#include <random>

namespace layout {

namespace fs = std::filesystem;

using app::App;
using core::FittedImage;
using core::LayoutObject;

namespace {

constexpr std::string_view imageFilter = core::marked("Jpeg Images (*.jpg)|*.jpg|GIF Images (*.gif)|*.gif");

// The two directions leave a different rest, and it is wanted so.
void scaleInto(const LayoutObject& holder, FittedImage& image, double width, double height) {
    image.Stretch = true;
    image.Height = holder.Height - 2;
    image.Width = static_cast<float>((holder.Height - 2) / height * width);
    if (image.Width <= holder.Width - 2) return;
    image.Width = holder.Width - 1;
    image.Height = static_cast<float>((holder.Width - 1) / width * height);
}

void fit(const LayoutObject& holder, FittedImage& image, drawing::Extent natural) {
    const auto width = static_cast<float>(natural.Width);
    const auto height = static_cast<float>(natural.Height);
    image.Stretch = false;
    image.Width = width;
    image.Height = height;
    if (height >= holder.Height || width >= holder.Width) scaleInto(holder, image, width, height);
    image.Left = (holder.Width - image.Width) / 2;
    image.Top = (holder.Height - image.Height) / 2;
    image.Visible = true;
}

// Why an image cannot be shown; one without a name is in the clipboard.
std::string faultOf(App& app, const fs::path& file, const std::string& name) {
    if (app.platform.isPictureTooLarge(file))
        return name.empty() ? core::tr("The picture in the clipboard is too large.")
                            : core::fill(core::tr("The picture %1 is too large."), {name});
    errno = 0;
    std::error_code error;
    std::string reason;
    if (fs::is_directory(file, error))
        reason = std::generic_category().message(EISDIR);
    else if (!std::ifstream(file).is_open() && errno != 0)
        reason = std::generic_category().message(errno);
    if (name.empty())
        return reason.empty()
                   ? core::tr("The picture in the clipboard cannot be read.")
                   : core::fill(core::tr("The picture in the clipboard cannot be read: %1."), {reason});
    return reason.empty() ? core::fill(core::tr("The picture %1 cannot be read."), {name})
                          : core::fill(core::tr("The picture %1 cannot be read: %2."), {name, reason});
}

// The chosen file, or nothing after the message. A cancelled dialog has chosen nothing, which is no
// image either: it is wanted so.
std::optional<fs::path> chooseImage(App& app, const std::string& title) {
    const std::string chosen =
        app.platform.showOpen({title, "", core::tr(imageFilter)}).value_or(std::string());
    const std::string ending = core::upper(core::right(chosen, 3));
    if (ending != "GIF" && ending != "JPG")
        app::inform(app, core::tr("You selected a file other than a GIF or JPEG.  Please try again."));
    else if (app.platform.pictureExtent(chosen))
        return fs::path(chosen);
    else
        app::warn(app, faultOf(app, chosen, fs::path(chosen).filename().string()));
    return std::nullopt;
}

// False after a message: the archive cannot be written, or the file has a name that no entry may have.
bool tryToAdd(App& app, const std::function<void()>& add) {
    try {
        add();
        return true;
    } catch (const core::RunTimeError& error) {
        app::warn(app,
                  core::fill(core::tr("The picture could not be added to the database: %1"), {error.what()}));
    } catch (const fs::filesystem_error& error) {
        app::warn(app, core::fill(core::tr("The picture could not be added to the database: %1"),
                                  {error.code().message()}));
    }
    return false;
}

void addToArchive(App& app, const fs::path& file, const std::string& comment) {
    if (app.mainFrm.bReadOnly)
        core::raise(core::errors::pathAccess,
                    core::fill(core::tr("%1 is open to read only"), {app.document.currentFile}));
    app.changes.announce(app, app::Change::Writing);
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    keepReplaced(app, Zip, file.filename().string());
    file::Zip::BeforeReplacing keep;
    const auto& keeping = app.rooms.of<ReplacedPictures>().keeping;
    if (keeping && Zip.contains(file.filename())) keep = keeping(app, app.document.currentFile);
    Zip.AddFile(file, comment);
    Zip.CloseArchive(keep);
    app.changes.announce(app, app::Change::Written);
}

bool archiveHas(core::Document& document, const std::string& name) {
    file::Zip Zip;
    Zip.OpenArchive(document.currentFile);
    const bool found = Zip.contains(name);
    Zip.CloseArchive();
    return found;
}

bool isImageName(const std::string& name) {
    const std::string ending = core::upper(core::right(name, 4));
    return file::isSafeEntryName(name) && (ending == ".GIF" || ending == ".JPG");
}

// The name itself when no picture has it, or this one; else with a number, "art-2.gif".
std::string nameInArchive(const file::Zip& Zip, const std::string& name, std::string_view bytes) {
    std::string chosen = name;
    for (int number = 2; Zip.contains(chosen); ++number) {
        if (Zip.readEntry(chosen, file::Zip::maxFileBytes) == bytes) break;
        chosen = fs::path(name).stem().string();
        chosen.append("-").append(std::to_string(number)).append(fs::path(name).extension().string());
    }
    return chosen;
}

void writeWorkFile(const fs::path& path, std::string_view bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) core::raise(core::errors::pathAccess, path.string());
}

int randomNumber() {
    static std::mt19937 engine{std::random_device{}()};
    return std::uniform_int_distribution<int>(1, 10000)(engine);
}

// A clipboard image has a file of its own from the start, since the clipboard may have changed by the
// time it is stored. One that cannot be shown leaves the holder what it has.
bool takeClipboardImage(App& app, const LayoutObject& holder, FittedImage& image, const std::string& name) {
    const fs::path file = app.platform.tempFolder() / name;
    const fs::path taken = app.platform.tempFolder() / ("new-" + name);
    if (!app.platform.saveClipboardPicture(taken)) return false;
    FittedImage fitted = image;
    fitImage(app, holder, fitted, taken);
    std::error_code error;
    if (fitted.path.empty())
        app::warn(app, faultOf(app, taken, {}));
    else
        fs::rename(taken, file, error);
    if (fitted.path.empty() || error) {
        fs::remove(taken, error);
        return false;
    }
    fitted.path = file.string();
    image = fitted;
    return true;
}

} // namespace

void fitImage(App& app, const LayoutObject& holder, FittedImage& image, const fs::path& path) {
    image.path.clear();
    std::error_code ignored;
    if (path.empty() || !fs::is_regular_file(path, ignored)) return;
    const app::Hourglass hourglass(app);
    const std::optional<drawing::Extent> natural = app.platform.pictureExtent(path);
    if (!natural || natural->Width <= 0 || natural->Height <= 0) return;
    image.path = path.string();
    fit(holder, image, *natural);
}

fs::path unpackedImage(App& app, const std::string& name, ImageArchive& archive) {
    if (name.empty() || !file::isSafeEntryName(name)) return {};
    fs::path file = app.platform.tempFolder() / name;
    std::error_code ignored;
    if (!fs::exists(file, ignored)) archive.extract(name);
    return file;
}

fs::path clipArtFile(App& app, const core::ClipPic& clip) {
    if (clip.Tag.empty() || !file::isSafeEntryName(clip.Tag)) return {};
    return app.platform.tempFolder() / clip.Tag;
}

ImageArchive::ImageArchive(App& app) : app_(app) {}

void ImageArchive::extract(const std::string& name) {
    if (bUnreadable_) return;
    try {
        if (!bOpen_) {
            Zip_.SetBaseFolder(app_.platform.tempFolder());
            bUnreadable_ = true;
            Zip_.OpenArchive(app_.document.currentFile);
            bUnreadable_ = false;
            bOpen_ = true;
        }
        Zip_.ExtractFile(name);
    } catch (const core::RunTimeError&) { // NOLINT(bugprone-empty-catch): the holder stays empty
    }
}

void imgHolder_DblClick(App& app, int index) {
    core::ImgHolder* holder = app.document.layout.imgHolder.find(index);
    if (holder == nullptr || isDesignMode(app)) return;
    const std::optional<fs::path> file = chooseImage(app, core::tr("Select image for picture box."));
    if (!file) return;
    if (!tryToAdd(app, [&] { addToArchive(app, *file, ""); })) return;
    fitImage(app, *holder, holder->viewImage, *file);
    holder->ToolTipText = file->filename().string();
    // An unpacked image of that name is another one from now on.
    const fs::path unpacked = app.platform.tempFolder() / file->filename();
    std::error_code error;
    if (!fs::equivalent(*file, unpacked, error)) fs::remove(unpacked, error);
}

void selectClipArt(App& app, int iIndex) {
    core::ClipPic* clip = app.document.layout.clipPic.find(iIndex);
    if (clip == nullptr || !isDesignMode(app)) return;
    const std::optional<fs::path> file = chooseImage(app, core::tr("Select image for clip art."));
    if (!file) return;
    const fs::path copy = app.platform.tempFolder() / file->filename();
    const bool added = tryToAdd(app, [&] {
        addToArchive(app, *file, "Clip Art");
        std::error_code error;
        if (!fs::equivalent(*file, copy, error))
            fs::copy_file(*file, copy, fs::copy_options::overwrite_existing);
    });
    if (!added) return;
    clip->Tag = file->filename().string();
    fitImage(app, *clip, clip->clipImage, copy);
}

namespace {

std::optional<std::string> storePicture(App& app, const std::string& name, std::string_view bytes,
                                        const std::string& comment) {
    if (!isImageName(name)) {
        app::warn(app, core::fill(core::tr("The picture %1 cannot be read."), {name}));
        return std::nullopt;
    }
    std::string chosen;
    bool isShown = true;
    const bool stored = tryToAdd(app, [&] {
        file::Zip Zip;
        Zip.OpenArchive(app.document.currentFile);
        chosen = nameInArchive(Zip, name, bytes);
        const bool isThere = Zip.contains(chosen);
        Zip.CloseArchive();
        const fs::path file = app.platform.tempFolder() / chosen;
        writeWorkFile(file, bytes);
        if (isThere) return;
        isShown = app.platform.pictureExtent(file).has_value();
        if (isShown) return addToArchive(app, file, comment);
        app::warn(app, faultOf(app, file, name));
        fs::remove(file);
    });
    return stored && isShown ? std::optional(chosen) : std::nullopt;
}

} // namespace

std::optional<std::string> storeClipArt(App& app, const std::string& name, std::string_view bytes) {
    return storePicture(app, name, bytes, "Clip Art");
}

bool takesPicture(App& app, int index) {
    return !isDesignMode(app) && app.document.layout.imgHolder.find(index) != nullptr;
}

std::optional<std::string> takePicture(App& app, int index, const std::string& name, std::string_view bytes) {
    std::optional<std::string> stored;
    if (takesPicture(app, index)) stored = storePicture(app, name, bytes, "");
    if (!stored) return stored;
    core::ImgHolder* holder = app.document.layout.imgHolder.find(index);
    fitImage(app, *holder, holder->viewImage, app.platform.tempFolder() / *stored);
    holder->ToolTipText = *stored;
    return stored;
}

std::string storeClipboardImage(App& app, const FittedImage& image) {
    for (;;) {
        const std::string number = std::to_string(randomNumber());
        const std::string bmpName = "cb" + number + ".bmp";
        std::string jpgName = "cb" + number + ".jpg";
        // The names that are taken would be those of the .jpg files; it is the other that is asked for,
        // and it is wanted so.
        if (archiveHas(app.document, bmpName)) continue;
        const fs::path jpeg = app.platform.tempFolder() / jpgName;
        app.platform.convertToJpeg(image.path, jpeg, 75);
        addToArchive(app, jpeg, "");
        return jpgName;
    }
}

void mnuImportImage_Click(App& app) {
    const core::ObjectRef selected = layoutPage(app).selectedObject;
    core::LayoutObjects& objects = app.document.layout;
    try {
        if (selected.family == core::Family::imgHolder) {
            core::ImgHolder* holder = objects.imgHolder.find(selected.Index);
            const std::string name = "clipboard-" + std::to_string(selected.Index) + ".bmp";
            if (holder != nullptr && takeClipboardImage(app, *holder, holder->viewImage, name))
                holder->ToolTipText = clipboardMark;
        } else if (selected.family == core::Family::clipPic) {
            core::ClipPic* clip = objects.clipPic.find(selected.Index);
            if (clip != nullptr && takeClipboardImage(app, *clip, clip->clipImage, "clipboard.bmp")) {
                clip->Tag = storeClipboardImage(app, clip->clipImage);
                clip->clipImage.path = (app.platform.tempFolder() / clip->Tag).string();
            }
        }
    } catch (const core::RunTimeError&) { // NOLINT(bugprone-empty-catch): ends without a word, as wanted
    }
}

} // namespace layout
