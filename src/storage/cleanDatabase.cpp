#include "storage/cleanDatabase.h"

#include "app/hourglass.h"
#include "app/windowState.h"
#include "core/text.h"
#include "file/archive/zip.h"
#include "layout/keptPictures.h"
#include "storage/versions.h"

#include <map>
#include <set>

namespace storage {

namespace {

using app::App;

// GIF images stay, and so does the text of the database.
bool isCleaned(std::string_view name) {
    return core::upper(core::right(core::trim(name), 3)) == "JPG";
}

// The images that might go. What refers to one takes it out; each cell is looked at once, however many
// images there are.
class Unused {
public:
    explicit Unused(const file::Zip& Zip) {
        for (int i = 0; i < Zip.FileCount(); ++i)
            if (const std::string name = Zip.FileNameAt(i); isCleaned(name)) {
                names_.push_back(name);
                byUpper_.emplace(core::upper(name), false);
            }
    }

    const std::vector<std::string>& names() const { return names_; }
    // As the records list finds a text: the whole of it, in any case.
    bool isFound(const std::string& name) const { return byUpper_.find(core::upper(name))->second; }

    void found(std::string_view text) {
        // Nearly every cell is told from the name of an image by its last letter.
        const std::string_view name = core::rtrim(text);
        if (name.empty() || (name.back() != 'g' && name.back() != 'G')) return;
        core::upperInto(scratch_, text);
        const auto entry = byUpper_.find(scratch_);
        if (entry != byUpper_.end()) entry->second = true;
    }

private:
    std::vector<std::string> names_;
    std::map<std::string, bool, std::less<>> byUpper_;
    std::string scratch_;
};

// Any cell counts, of a Text column as well. In a cell with a value for each item row every value does.
void findInRecords(const core::RecordsList& records, Unused& unused) {
    records.forEach([&](const core::Item& item) {
        for (const std::string_view cell : item.cells) {
            unused.found(cell);
            if (cell.find(core::itemSeparator) == std::string_view::npos) continue;
            for (const std::string_view value : core::split(cell, core::itemSeparator)) unused.found(value);
        }
    });
}

} // namespace

std::vector<std::string> cleanDatabase(App& app) {
    if (app.mainFrm.bReadOnly)
        core::raise(core::errors::pathAccess, app.document.currentFile + " is open to read only");
    app.changes.announce(app, app::Change::Writing);
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    Unused unused(Zip);
    findInRecords(app.document.LV, unused);
    std::set<std::string, std::less<>> clipArt;
    app.document.layout.clipPic.forEach([&](const core::ClipPic& clip) { clipArt.insert(clip.Tag); });
    std::vector<std::string> removed;
    for (const std::string& name : unused.names()) {
        if (clipArt.contains(name) || unused.isFound(name) || !Zip.contains(name))
            continue; // or gone already
        layout::keepReplaced(app, Zip, name);
        Zip.DeleteFile(name);
        removed.push_back(name);
    }
    Zip.CloseArchive(keepingVersion(app, app.document.currentFile));
    noteUnsynced(app, Zip, app.document.currentFile);
    app.changes.announce(app, app::Change::Written);
    return removed;
}

void mnuCleanDatabase_Click(App& app) {
    const app::Hourglass hourglass(app);
    try {
        cleanDatabase(app);
        app::showFileSize(app);
    } catch (const std::exception&) {
        // An archive that cannot be cleaned stays as it is. Nobody is told: it is wanted so.
    }
}

} // namespace storage
