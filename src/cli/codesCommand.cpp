#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/whereOption.h"
#include "core/text.h"
#include "layout/keptPictures.h"
#include "search/codes/makeCodes.h"
#include "search/manyRecords.h"
#include "search/searchMode.h"

#include <CLI/CLI.hpp>
#include <unordered_set>

namespace cli {

namespace {

struct CodesOptions {
    std::string file, column, source, kind, records;
    WhereOption where;
    bool leaveOut = false;
    double wait = usualWait;
};

constexpr const char* aboutCodes = "In the text, {COLUMN} stands for what the record has there, and {{ for a "
                                   "brace. Records without a text get\n"
                                   "no code. An EAN or UPC is told with its check digit or without.";

std::vector<core::Item*> recordsMeant(Session& session, const CodesOptions& options) {
    if (!options.where.words.empty()) {
        find(session, options.where);
        std::vector<core::Item*> records = search::recordsIn(session.app, search::foundRecords);
        search::leaveResults(session.app);
        return records;
    }
    if (options.records.empty()) return search::recordsIn(session.app, search::allRecords);
    std::vector<core::Item*> records;
    std::unordered_set<const core::Item*> taken;
    for (const std::string_view key : core::split(options.records, ','))
        if (core::Item& record = session.record(std::string(core::trim(key))); taken.insert(&record).second)
            records.push_back(&record);
    return records;
}

void tellFaulty(const Session& session, const std::vector<search::FaultyText>& faulty) {
    std::vector<std::string> rows;
    rows.reserve(faulty.size());
    for (const search::FaultyText& each : faulty) {
        std::string row = each.record->Key.str();
        rows.push_back(printable(row.append(" gets no code (").append(each.reason).append(")")));
    }
    tellRows(session.file, rows);
}

// A save that fails takes the pictures back, so that the file is as it was.
int store(Session& session, const std::string& column, const search::MadeCodes& made) {
    layout::keptPictures(session.app).isKept = true;
    int changed = 0;
    session.change([&] { changed = search::writeCodes(session.app, column, made, true); });
    if (changed == 0) return changed;
    session.noteOwnWrite();
    try {
        session.save();
    } catch (const Failure&) {
        session.change([&] { layout::takeBackPictures(session.app); });
        throw;
    }
    session.change([&] { search::dropUnusedCodes(session.app); });
    return changed;
}

int run(const CodesOptions& options) {
    const auto kind = codes::kindOf(options.kind);
    Session session(options.file, options.wait);
    session.openToWrite();
    session.refuseIfChanged();
    const search::CodeOrder order{session.column(options.column).Text, *kind, session.typed(options.source)};
    if (const auto fault = search::faultOf(session.app.document, order)) throw Failure(session.file, *fault);
    search::MadeCodes made;
    session.change([&] { made = search::makeCodes(session.app, order, recordsMeant(session, options)); });
    tellFaulty(session, made.faulty);
    if (!made.faulty.empty() && !options.leaveOut)
        throw Failure(session.file, "no codes are made, since there are texts that give none");
    writeOutcome(std::to_string(store(session, order.column, made)) + "\n");
    return done;
}

} // namespace

Run setUpCodes(CLI::App& command) {
    const auto options = std::make_shared<CodesOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("--column", options->column, "The column of pictures that the codes go into")
        ->required()
        ->type_name("COLUMN");
    command.add_option("--from", options->source, "What the codes say: \"{Name}, {Phone}\"")
        ->required()
        ->type_name("TEXT");
    command.add_option("--kind", options->kind, "qr, ean13, ean8, upca, code128 or datamatrix")
        ->required()
        ->type_name("KIND")
        ->check([](const std::string& word) {
            return codes::kindOf(word) ? std::string() : "there is no kind of code \"" + word + "\"";
        });
    CLI::Option* where = addWhereOption(command, options->where);
    command.add_option("--records", options->records, "Only the records with these keys")
        ->type_name("KEY,KEY")
        ->excludes(where);
    command.add_flag("--leave-out", options->leaveOut,
                     "Leave out the records whose texts give no code, instead of making none");
    command.footer(aboutCodes);
    command.parse_complete_callback([options] {
        if (!options->where.words.empty()) options->where.read();
    });
    return [options] { return run(*options); };
}

} // namespace cli
