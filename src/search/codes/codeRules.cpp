#include "search/codes/codeRules.h"

#include "app/fileSettings.h"
#include "core/text.h"
#include "core/translate.h"
#include "search/codes/codeSource.h"
#include "search/manyRecords.h"

#include <functional>
#include <utility>

namespace search {

using app::App;
using core::Item;
using core::RecordsList;

namespace {

constexpr std::string_view codeSetting = "code.";
constexpr char fieldMark = '\t';

// What the texts of a column's codes were, by the keys of the records.
using SeenTexts = std::unordered_map<std::string, std::size_t>;

struct CodeBook {
    std::map<std::string, CodeRule, std::less<>> columns;
    std::map<std::string, SeenTexts, std::less<>> seen; // of those that are followed
    std::string file;                                   // that they are kept for
    bool isBusy = false, isRenamed = false;             // the settings have other names
};

CodeBook& bookOf(const App& app) {
    return app.rooms.of<CodeBook>();
}

CodeOrder orderOf(const std::string& column, const CodeRule& rule) {
    return {column, rule.kind, rule.source};
}

// The records whose texts are others than they were, or were not there; what they are now is noted.
std::vector<Item*> changedRecords(App& app, const CodeRule& rule, SeenTexts& seen) {
    std::vector<Item*> changed;
    const CodeSource source(app.document, rule.source);
    app.document.LV.forEach([&](Item& record) {
        if (record.isTotals()) return;
        const std::size_t text = std::hash<std::string>()(source.textOf(record));
        const auto [entry, isNew] = seen.try_emplace(record.Key.str(), text);
        if (isNew || entry->second != text) changed.push_back(&record);
        entry->second = text;
    });
    return changed;
}

void noteTexts(App& app, const std::string& column, const CodeRule& rule) {
    CodeBook& book = bookOf(app);
    book.seen.erase(column);
    if (rule.isFollowed && !faultOf(app.document, orderOf(column, rule)))
        changedRecords(app, rule, book.seen[column]);
}

void noteAll(App& app) {
    for (const auto& [column, rule] : bookOf(app).columns) noteTexts(app, column, rule);
}

void tellFaulty(App& app, const std::string& column, const std::vector<FaultyText>& faulty) {
    const std::string text =
        core::tr("%n record has no code in %1 now.  %2: %3.", "%n records have no code in %1 now.  %2: %3.",
                 static_cast<int>(faulty.size()));
    app::warn(
        app, core::fill(text, {column, nameOf(app.document, *faulty.front().record), faulty.front().reason}));
}

void makeAnew(App& app, const std::string& column, const CodeRule& rule, SeenTexts& seen) {
    std::vector<Item*> records;
    const core::Column& pictures = app.document.LV.columns[column];
    for (Item* record : changedRecords(app, rule, seen)) {
        const core::CellText& cell = RecordsList::cell(*record, pictures);
        if (cell.empty() || codes::isCodeEntryName(cell.view())) records.push_back(record);
    }
    if (records.empty()) return;
    MadeCodes made = makeCodes(app, orderOf(column, rule), records);
    for (const FaultyText& each : made.faulty) made.cells.emplace_back(each.record, std::string());
    writeCodes(app, column, made, false);
    if (!made.faulty.empty()) tellFaulty(app, column, made.faulty);
}

} // namespace

std::string ruleText(const CodeRule& rule) {
    std::string text = rule.isFollowed ? "1" : "0";
    text.append(1, fieldMark).append(codes::kindWord(rule.kind)).append(1, fieldMark).append(rule.source);
    return text;
}

std::optional<CodeRule> codeRuleFrom(std::string_view text) {
    const std::size_t first = text.find(fieldMark);
    const std::size_t second = first == std::string_view::npos ? first : text.find(fieldMark, first + 1);
    if (second == std::string_view::npos) return std::nullopt;
    const auto kind = codes::kindOf(text.substr(first + 1, second - first - 1));
    if (!kind) return std::nullopt;
    return CodeRule{*kind, std::string(text.substr(second + 1)), text.substr(0, first) == "1"};
}

std::optional<CodeRule> codeRuleOf(const App& app, const std::string& column) {
    const CodeBook& book = bookOf(app);
    const auto found = book.columns.find(column);
    return found == book.columns.end() ? std::nullopt : std::optional(found->second);
}

bool setCodeRule(App& app, const std::string& column, const CodeRule& rule) {
    CodeBook& book = bookOf(app);
    book.columns[column] = rule;
    book.file = app.document.currentFile;
    noteTexts(app, column, rule);
    return app::setFileSetting(app, std::string(codeSetting) + column, ruleText(rule));
}

void readCodeRules(App& app) {
    CodeBook& book = bookOf(app);
    book = {};
    book.file = app.document.currentFile;
    for (const std::string& column : app::fileSettingNames(app, codeSetting))
        if (const auto rule = codeRuleFrom(app::fileSetting(app, std::string(codeSetting) + column)))
            book.columns[column] = *rule;
    noteAll(app);
}

void renameInCodeRules(App& app, const std::string& from, const std::string& to) {
    CodeBook& book = bookOf(app);
    const auto rename = [&](auto& byColumn) {
        if (auto entry = byColumn.extract(from)) {
            entry.key() = to;
            byColumn.insert(std::move(entry));
        }
    };
    rename(book.columns);
    rename(book.seen);
    for (auto& [column, rule] : book.columns) rule.source = withColumnRenamed(rule.source, from, to);
    book.isRenamed = true;
}

void followStoredCodeRules(App& app) {
    CodeBook& book = bookOf(app);
    if (!std::exchange(book.isRenamed, false) && book.file == app.document.currentFile) return;
    for (const std::string& column : app::fileSettingNames(app, codeSetting))
        if (!book.columns.contains(column)) app::setFileSetting(app, std::string(codeSetting) + column, "");
    book.file = app.document.currentFile;
    for (const auto& [column, rule] : book.columns)
        app::setFileSetting(app, std::string(codeSetting) + column, ruleText(rule));
}

void followRecordsForCodes(App& app) {
    CodeBook& book = bookOf(app);
    if (book.seen.empty() || book.isBusy || !app.document.bModified || app.document.currentFile.empty())
        return;
    const CodesAsTheyAre busy(app);
    for (auto& [column, seen] : book.seen) {
        const CodeRule& rule = book.columns[column];
        try {
            // A column that has gone, or one that it is made of, may come back with undo.
            if (!faultOf(app.document, orderOf(column, rule))) makeAnew(app, column, rule, seen);
        } catch (const core::RunTimeError& error) {
            if (error.number != core::errors::cancelled)
                app::warn(app, core::fill(core::tr("The codes could not be made anew: %1"), {error.what()}));
        }
    }
}

CodesAsTheyAre::CodesAsTheyAre(App& app) : app_(app), before_(std::exchange(bookOf(app).isBusy, true)) {}

CodesAsTheyAre::~CodesAsTheyAre() {
    try {
        bookOf(app_).isBusy = before_;
        if (!before_) noteAll(app_);
    } catch (...) { // without memory for it; the codes are made anew once more then
        return;
    }
}

} // namespace search
