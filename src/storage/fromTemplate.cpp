#include "storage/fromTemplate.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/archive/zip.h"
#include "file/dataReader.h"
#include "file/dataWriter.h"
#include "invoice/views.h"
#include "storage/newDatabase.h"
#include "storage/openFile.h"
#include "storage/saveSteps.h"
#include "storage/versions.h"

#include <optional>

namespace storage {

using app::App;

namespace {

constexpr const char* textEntry = "data.dat";

// The text of a database like the template, for the usual paper.
std::string designOf(App& app, const file::Zip& source) {
    std::optional<std::string> text = source.readEntry(textEntry, file::Zip::maxFileBytes);
    if (!text) core::raise(core::errors::fileNotFound, textEntry);
    core::Document document;
    file::readDataFile(*std::move(text), document);
    if (document.LV.empty()) core::addTotalsRow(document.LV);
    document.iLV.Visible = document.bInvoiceStyle;
    invoice::rebuildView(document);
    const auto paper = static_cast<std::int16_t>(app.platform.localePaper());
    document.layoutOptions.layoutPaperSize = paper;
    document.reportData.reportPaperSize = paper;
    return file::encodeDataFile(file::writeDataFile(document, false));
}

void write(App& app, const std::filesystem::path& from, const std::string& target) {
    file::Zip source, made;
    source.OpenArchive(from);
    made.CreateArchive(target, "");
    addData(made, designOf(app, source));
    for (int entry = 0; entry < source.FileCount(); ++entry) {
        const std::string name = source.FileNameAt(entry);
        if (name == textEntry) continue;
        const std::optional<std::string> picture = source.readEntry(name, file::Zip::maxFileBytes);
        if (picture) made.addBuffer(name, *picture, source.commentAt(entry));
    }
    made.CloseArchive(keepingVersion(app, target));
    noteUnsynced(app, made, target);
}

} // namespace

void newFromTemplate(App& app, const std::filesystem::path& from, const std::string& proposed) {
    const std::optional<std::string> target = app.platform.showNew(
        {core::tr("Specify Name For New Database"), proposed + ".fwk", core::tr(platform::databaseFilter)});
    if (!target) return;
    offerToSave(app);
    try {
        if (!writeNewFile(app, *target, [&] { write(app, from, *target); })) return;
    } catch (const core::RunTimeError& error) {
        app::warn(app, core::fill(core::tr("The database could not be made:\n%1"), {error.what()}));
        return;
    }
    app.document.currentFile = *target;
    OpenFile(app, true);
}

} // namespace storage
