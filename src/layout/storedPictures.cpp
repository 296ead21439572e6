#include "layout/storedPictures.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/archive/zip.h"
#include "layout/images.h"
#include "layout/keptPictures.h"

#include <algorithm>
#include <set>

namespace layout {

using app::App;

namespace {

// The names of pictures that could go and that stand in the text which is saved. It is looked through once.
std::set<std::string, std::less<>> savedNames(const file::Zip& Zip,
                                              const std::set<std::string, std::less<>>& names) {
    std::set<std::string, std::less<>> found;
    const std::string text = Zip.readEntry("data.dat", file::Zip::maxFileBytes).value_or(std::string());
    constexpr std::string_view ends = "|@\r\n";
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find_first_of(ends, from), text.size());
        const auto name = names.find(std::string_view(text).substr(from, end - from));
        if (name != names.end()) found.insert(*name);
        from = end + 1;
    }
    return found;
}

std::vector<std::string> namesThatGo(const file::Zip& Zip,
                                     const std::function<bool(std::string_view name)>& goes) {
    std::set<std::string, std::less<>> names;
    if (goes)
        for (int i = 0; i < Zip.FileCount(); ++i)
            if (std::string name = Zip.FileNameAt(i); goes(name)) names.insert(std::move(name));
    std::vector<std::string> going;
    if (names.empty()) return going;
    const auto saved = savedNames(Zip, names);
    for (const std::string& name : names)
        if (!saved.contains(name)) going.push_back(name);
    return going;
}

} // namespace

void storePictures(App& app, const std::vector<NewPicture>& pictures,
                   const std::function<bool(std::string_view name)>& goes) {
    if (app.mainFrm.bReadOnly)
        core::raise(core::errors::pathAccess,
                    core::fill(core::tr("%1 is open to read only"), {app.document.currentFile}));
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    std::vector<const NewPicture*> added;
    for (const NewPicture& picture : pictures)
        if (!Zip.contains(picture.name)) added.push_back(&picture);
    const std::vector<std::string> going = namesThatGo(Zip, goes);
    if (added.empty() && going.empty()) return;
    std::vector<file::KeptEntry> kept;
    for (const NewPicture* picture : added) {
        if (Zip.contains(picture->name)) continue; // two records share it
        kept.push_back({picture->name, {}, std::nullopt});
        Zip.addBuffer(picture->name, picture->bytes, "");
    }
    for (const std::string& name : going) {
        kept.push_back({name, {}, Zip.readEntry(name, file::Zip::maxFileBytes)});
        Zip.DeleteFile(name);
    }
    const auto& keeping = app.rooms.of<ReplacedPictures>().keeping;
    file::Zip::BeforeReplacing keep;
    if (keeping && !going.empty()) keep = keeping(app, app.document.currentFile);
    app.changes.announce(app, app::Change::Writing);
    Zip.CloseArchive(keep);
    KeptPictures& forUndo = keptPictures(app);
    if (forUndo.isKept)
        for (file::KeptEntry& entry : kept) forUndo.entries.push_back(std::move(entry));
    app.changes.announce(app, app::Change::Written);
}

void takeBackPictures(App& app) {
    std::vector<file::KeptEntry>& entries = keptPictures(app).entries;
    if (entries.empty()) return;
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) file::putBack(Zip, *entry);
    Zip.CloseArchive();
    entries.clear();
}

} // namespace layout
