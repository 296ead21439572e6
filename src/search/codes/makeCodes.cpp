#include "search/codes/makeCodes.h"

#include "app/hourglass.h"
#include "app/longWork.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "search/codes/codeSource.h"
#include "search/searchMode.h"

#include <set>
#include <unordered_set>

namespace search {

using app::App;
using core::Column;
using core::Item;
using core::RecordsList;

namespace {

// The codes that the records name when these cells are written.
std::set<std::string, std::less<>> usedCodes(const RecordsList& records, const Column& column,
                                             const MadeCodes& made) {
    std::set<std::string, std::less<>> names;
    std::unordered_set<const Item*> written;
    for (const auto& [record, name] : made.cells) {
        written.insert(record);
        names.insert(name);
    }
    records.forEach([&](const Item& record) {
        for (const Column& each : records.columns) {
            if (each.Index == 1 || (each.Index == column.Index && written.contains(&record))) continue;
            const std::string_view cell = RecordsList::cell(record, each);
            if (codes::isCodeEntryName(cell)) names.emplace(cell);
        }
    });
    return names;
}

} // namespace

std::optional<std::string> faultOf(const core::Document& document, const CodeOrder& order) {
    const Column* column = document.LV.columns.find(order.column);
    if (column == nullptr || !column->isType(core::ColumnType::Picture))
        return core::fill(core::tr("There is no column of pictures \"%1\""), {order.column});
    try {
        const CodeSource source(document, order.source);
    } catch (const core::RunTimeError& error) {
        return error.what();
    }
    return std::nullopt;
}

MadeCodes makeCodes(App& app, const CodeOrder& order, const std::vector<Item*>& records) {
    const app::Hourglass hourglass(app);
    const CodeSource source(app.document, order.source);
    const Column& column = app.document.LV.columns[order.column];
    MadeCodes made;
    std::unordered_set<std::string> names;
    app::LongWork work(app, core::tr("Making codes"), static_cast<int>(records.size()));
    int done = 0;
    for (Item* record : records) {
        work.reached(++done);
        const std::string text = source.textOf(*record);
        if (core::trim(text).empty()) {
            if (codes::isCodeEntryName(RecordsList::cell(*record, column).view()))
                made.cells.emplace_back(record, std::string());
            continue;
        }
        try {
            std::string name = codes::codeEntryName(order.kind, text);
            if (!names.contains(name)) {
                made.pictures.push_back({name, codes::makeCode(order.kind, text)});
                names.insert(name);
            }
            made.cells.emplace_back(record, std::move(name));
        } catch (const core::RunTimeError& error) {
            if (error.number != core::errors::typeMismatch) throw;
            made.faulty.push_back({record, error.what()});
        }
    }
    return made;
}

int writeCodes(App& app, const std::string& columnName, const MadeCodes& made, bool bDropUnused) {
    const app::Hourglass hourglass(app);
    const Column& column = app.document.LV.columns[columnName];
    const auto used =
        bDropUnused ? usedCodes(app.document.LV, column, made) : std::set<std::string, std::less<>>();
    layout::storePictures(app, made.pictures, [&](std::string_view name) {
        return bDropUnused && codes::isCodeEntryName(name) && !used.contains(name);
    });
    int changed = 0;
    for (const auto& [record, name] : made.cells) {
        core::CellText& cell = RecordsList::cell(*record, column);
        if (cell == name) continue;
        cell = core::CellText(name);
        ++changed;
    }
    if (changed == 0) return changed;
    app::setDocumentModified(app, true);
    app.changes.announce(app, app::Change::Values);
    refreshResults(app, columnName);
    return changed;
}

void dropUnusedCodes(App& app) {
    const auto used = usedCodes(app.document.LV, app.document.LV.columns.at(1), {});
    layout::storePictures(
        app, {}, [&](std::string_view name) { return codes::isCodeEntryName(name) && !used.contains(name); });
}

} // namespace search
