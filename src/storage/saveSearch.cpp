#include "storage/saveSearch.h"

#include "core/number.h"
#include "core/translate.h"
#include "file/dataWriter.h"
#include "storage/saveSteps.h"

#include <filesystem>
#include <optional>

namespace storage {

namespace {

using app::App;
using core::Item;
using core::RecordsList;

// The number in a key is the place that the record had when the file was opened, and the record is
// looked up by that place: after a sort or a deletion it can be another one. It is wanted so.
const Item& recordOf(const RecordsList& records, std::string_view itemKey) {
    return records.at(core::toInt32(core::val(itemKey.substr(1))));
}

// An invoice can be listed once for each of its items; it is written once.
std::string writeResults(core::Document& document) {
    std::string text = file::writeDesign(document, false);
    const file::RowWriter rows(document.LV.columns);
    RecordsList& written = document.scratchLV;
    written.clear();
    document.searchLV.forEach([&](const Item& result) {
        if (result.isTotals()) {
            rows.append(text, document.LV.byKey(core::totalsKey));
            return;
        }
        if (written.find(result.Tag) != nullptr) return;
        const Item& record = recordOf(document.LV, result.Tag);
        written.add(result.Tag, result.Tag);
        rows.append(text, record);
    });
    written.clear();
    return text;
}

void writeAndPack(App& app, const std::string& target) {
    (void)writeNewFile(app, target, [&] {
        const std::string bytes = file::encodeDataFile(writeResults(app.document));
        keepDataFile(app, bytes);
        app::setDocumentModified(app, false);
        packAlone(app, target, bytes);
    });
}

} // namespace

std::optional<core::RunTimeError> saveSearchResults(App& app) {
    const std::optional<std::string> target =
        app.platform.showSave({core::tr("Save As..."), core::tr("Untitled Search Results.fwk"),
                               core::tr(platform::databaseFilter)});
    if (!target) return std::nullopt;
    std::error_code none; // the file may have another name
    if (*target == app.document.currentFile ||
        std::filesystem::equivalent(*target, app.document.currentFile, none)) {
        app::inform(
            app, core::tr("You cannot save your search results to a file named the same as the one that is "
                          "currently open."));
        return std::nullopt;
    }
    try {
        writeAndPack(app, *target);
        return std::nullopt;
    } catch (const std::exception& error) {
        // Nothing is swallowed: whatever kept the file from being written is told.
        return tellFailure(app, true, error);
    }
}

} // namespace storage
