#include "layout/clipboard.h"

#include "core/translate.h"
#include "layout/copiedObjects.h"
#include "layout/images.h"
#include "layout/layoutPage.h"
#include "layout/objects.h"
#include "layout/selection.h"
#include "layout/sheet.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <set>
#include <sstream>
#include <type_traits>

namespace layout {

namespace fs = std::filesystem;

using app::App;
using core::Family;
using core::ObjectRef;

namespace {

bool isDesigning(const App& app) {
    const auto design = app.mainFrm.controls.find("Design");
    return app.mainFrm.SSTab1 == app::layoutTab && design != app.mainFrm.controls.end() &&
           design->second.Value;
}

// --- copying ---

// False after a message. A picture that the database has not got is none.
bool takePicture(App& app, const core::ClipPic& clip, CopiedObjects& copied) {
    const fs::path file = clipArtFile(app, clip);
    std::error_code error;
    if (file.empty() || !fs::exists(file, error)) return true;
    const std::uintmax_t size = fs::file_size(file, error);
    if (!error && size > mostPictureBytes) {
        app::warn(app, core::fill(core::tr("The picture %1 is too large."), {clip.Tag}));
        return false;
    }
    std::ostringstream bytes;
    if (error || !(bytes << std::ifstream(file, std::ios::binary).rdbuf()) || bytes.str().size() != size) {
        app::warn(app, core::fill(core::tr("The picture %1 cannot be read."), {clip.Tag}));
        return false;
    }
    copied.pictures.push_back({clip.Tag, bytes.str()});
    return true;
}

// The selected object goes onto the clipboard. False after a message.
bool takeSelected(App& app) {
    CopiedObjects copied;
    bool taken = true;
    for (const ObjectRef object : selectedGroup(app)) {
        visitFamily(copied.layout, object.family, [&](auto& family) {
            visitFamily(app.document.layout, object.family, [&](const auto& own) {
                // Both are of one kind, which the compiler cannot know.
                if constexpr (std::is_same_v<std::decay_t<decltype(family)>, std::decay_t<decltype(own)>>)
                    if (const auto* source = own.find(object.Index)) family.load(object.Index) = *source;
            });
        });
        if (object.family == Family::clipPic)
            taken = taken && takePicture(app, app.document.layout.clipPic[object.Index], copied);
    }
    if (!taken) return false;
    // What would not be read again must not be cut.
    if (!readCopied(linesOf(copied, "\r\n"))) {
        app::warn(app, core::tr("This object has a size or a text that cannot be copied."));
        return false;
    }
    app.platform.setClipboard({linesOf(copied, "\n"), {}, wholeTextOf(copied)});
    return true;
}

// --- pasting ---

// Why an object that shows a column cannot be put on this page; empty when it can.
std::string faultOfColumn(const App& app, const core::LayoutObject& object, bool isPicture, bool isAdded) {
    const core::Column* column = app.document.LV.columns.find(object.Tag);
    if (column == nullptr || column->Index == 1 || column->isType(core::ColumnType::Picture) != isPicture)
        return core::fill(isPicture ? core::tr("This database has no picture column \"%1\".")
                                    : core::tr("This database has no column \"%1\"."),
                          {object.Tag});
    return isAdded ? core::tr("Field already added!") : std::string();
}

template <typename Object>
std::string faultOf(const App& app, const core::ControlArray<Object>& copied,
                    const core::ControlArray<Object>& own, bool isPicture) {
    std::set<std::string, std::less<>> added;
    own.forEach([&](const Object& object) { added.insert(object.Tag); });
    std::string fault;
    copied.forEach([&](const Object& object) {
        if (fault.empty()) fault = faultOfColumn(app, object, isPicture, added.contains(object.Tag));
    });
    return fault;
}

// Puts the pictures into the archive and tells the clip art what they are called here. False after a message.
bool storePictures(App& app, CopiedObjects& copied) {
    for (const CopiedObjects::Picture& picture : copied.pictures) {
        bool isShown = false;
        copied.layout.clipPic.forEach(
            [&](const core::ClipPic& clip) { isShown = isShown || clip.Tag == picture.name; });
        if (!isShown) continue;
        const std::optional<std::string> name = storeClipArt(app, picture.name, picture.bytes);
        if (!name) return false;
        copied.layout.clipPic.forEach([&](core::ClipPic& clip) {
            if (clip.Tag == picture.name) clip.Tag = *name;
        });
    }
    return true;
}

// What surrounds all of the objects.
struct Area {
    float Left = std::numeric_limits<float>::max(), Top = Left;
    float Right = -Left, Bottom = -Left;
};

template <typename Visitor>
void forEachObject(core::LayoutObjects& layout, Visitor&& visit) {
    for (const Family each : core::allFamilies)
        visitFamily(layout, each,
                    [&](auto& family) { family.forEach([&](auto& object) { visit(each, object); }); });
}

bool isTaken(core::LayoutObjects& own, core::LayoutObjects& copied, float offset) {
    bool taken = false;
    forEachObject(copied, [&](Family family, const core::LayoutObject& object) {
        forEachObject(own, [&](Family other, const core::LayoutObject& there) {
            taken = taken || (family == other && there.Left == object.Left + offset &&
                              there.Top == object.Top + offset);
        });
    });
    return taken;
}

// Beside what stands in their place, and on the sheet, which may be another one.
void findPlace(App& app, core::LayoutObjects& copied) {
    float offset = 0;
    for (int steps = 0; steps < 100 && isTaken(app.document.layout, copied, offset); ++steps)
        offset += gridStep;
    Area area;
    forEachObject(copied, [&](Family, const core::LayoutObject& object) {
        area.Left = std::min(area.Left, object.Left + offset);
        area.Top = std::min(area.Top, object.Top + offset);
        area.Right = std::max(area.Right, object.Left + offset + object.Width);
        area.Bottom = std::max(area.Bottom, object.Top + offset + object.Height);
    });
    const LayoutPage::Sheet& sheet = layoutPage(app).layoutPic2;
    // What is larger than the sheet begins at its edge.
    const auto onSheet = [](float first, float last, float length) {
        return std::max(0.0F, std::min(first, first - (last - length))) - first;
    };
    const float right = offset + onSheet(area.Left, area.Right, sheet.Width);
    const float down = offset + onSheet(area.Top, area.Bottom, sheet.Height);
    forEachObject(copied, [&](Family, core::LayoutObject& object) {
        object.Left += right;
        object.Top += down;
    });
}

void dress(App& app, core::LayoutField& field) {
    bool isFirst = true;
    forEachCopy(app.document.layout, field,
                [&](const core::LayoutField& other) { isFirst = isFirst && other.Index > field.Index; });
    field.Text = field.Tag;
    field.BackColor = fieldBackColor(app, field);
    field.align = app.document.isNumericColumn(field.Tag) ? core::Alignment::Right : core::Alignment::Left;
    field.Enabled = isFirst; // a copy of a repeated field is moved by the first one
}

void dress(App& app, core::ImgHolder& holder) {
    holder.BackColor = app.document.layout.imgHolder.templateElement().BackColor;
}

void dress(App& app, core::ClipPic& clip) {
    clip.BorderStyle = 1;
    ImageArchive archive(app);
    fitImage(app, clip, clip.clipImage, unpackedImage(app, clip.Tag, archive));
}

void dress(App&, core::LayoutObject&) {}

// The first object of the last kind is the one to be selected: of a repeated field, the one that moves.
ObjectRef place(App& app, const core::LayoutObjects& copied) {
    ObjectRef selected;
    for (const Family each : core::allFamilies)
        visitFamily(copied, each, [&](const auto& from) {
            from.forEach([&](const auto& object) {
                visitFamily(app.document.layout, each, [&](auto& own) {
                    using Object = std::decay_t<decltype(object)>;
                    if constexpr (std::is_same_v<std::decay_t<decltype(own)>, core::ControlArray<Object>>) {
                        Object& loaded = own.load(own.lowestFreeIndex());
                        const int index = loaded.Index;
                        loaded = object;
                        loaded.Index = index;
                        core::bringToFront(app.document.layout, loaded);
                        dress(app, loaded);
                        if (selected.family != each) selected = {each, index};
                    }
                });
            });
        });
    return selected;
}

} // namespace

bool canPasteObjects(const App& app) {
    return isDesigning(app) && !layoutPage(app).bEditingLabel;
}

bool canCopyObjects(const App& app) {
    return canPasteObjects(app) && layoutPage(app).selectedObject.isObject();
}

void copyObjects(App& app) {
    if (canCopyObjects(app)) takeSelected(app);
}

void cutObjects(App& app) {
    if (!canCopyObjects(app)) return;
    if (isLocked(app.document, layoutPage(app).selectedObject)) {
        app::inform(app, core::tr("This object is locked.  Press the Lock button to unlock it."));
        return;
    }
    if (!takeSelected(app)) return;
    deleteSelectedObject(app);
    app::setDocumentModified(app, true);
}

void pasteObjects(App& app) {
    if (!canPasteObjects(app)) return;
    const platform::ClipboardData data = app.platform.clipboard();
    std::optional<CopiedObjects> copied = readCopied(data.layout.empty() ? data.text : data.layout);
    if (!copied) {
        app::inform(app, core::tr("There are no objects of a layout on the clipboard."));
        return;
    }
    const core::LayoutObjects& own = app.document.layout;
    std::string fault = faultOf(app, copied->layout.layoutField, own.layoutField, false);
    if (fault.empty()) fault = faultOf(app, copied->layout.imgHolder, own.imgHolder, true);
    if (!fault.empty()) {
        app::inform(app, fault);
        return;
    }
    if (!storePictures(app, *copied)) return;
    findPlace(app, copied->layout);
    const ObjectRef selected = place(app, copied->layout);
    select(app, selected);
    placeHandle(app, selected);
    refreshLockIndicator(app);
    layoutPage(app).bShowSelected = true;
    app::setDocumentModified(app, true);
}

} // namespace layout
