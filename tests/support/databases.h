#pragma once

#include "core/totalsRow.h"
#include "dataFile.h"
#include "file/archive/zip.h"
#include "scriptedPlatform.h"
#include "shell/commands.h"
#include "shell/program.h"
#include "storage/openFile.h"

#include <utility>

// A program with a scripted machine, and databases to work on. The usual test:
//
//     Program program(DataFile("Name Qty:4", "Bolt|12;Nut|7"));   // opened from a file; see dataFile.h
//     program.platform.answers = {platform::Answer::Yes};        // what the user will answer
//     program.run("Delete");                                     // a command, by its key
//     EXPECT_EQ(program.cells(), "Nut|7|;------|------|;");
//     EXPECT_EQ(program.told(), "? Confirm Deletion: Are you sure?");
//
// record(), formula() and total() add to what is open; cell(), totals(), panel() and dialogs() tell of it.
template <typename Machine>
struct ProgramOn {
    Machine platform;
    shell::Program app{platform};

    ProgramOn() = default;
    explicit ProgramOn(const DataFile& data) { open(data); }
    explicit ProgramOn(const char* sample) { openCopyOf(sample); }

    std::string path(const std::string& name) const { return (platform.folder / name).string(); }

    // A copy of a database that comes with the tests.
    std::string copyOf(const std::string& name) const {
        fs::copy_file(fs::path(TEST_DATA_DIR) / name, path(name), fs::copy_options::overwrite_existing);
        return path(name);
    }
    std::string open(const std::string& file) {
        app.document.currentFile = file;
        storage::OpenFile(app, true);
        return file;
    }
    std::string open(const DataFile& data) { return open(make("test.fwk", "\xEF\xBB\xBF" + data.text())); }
    std::string openCopyOf(const std::string& name) { return open(copyOf(name)); }

    // An archive with that data.dat, and entries of the given names.
    std::string make(const std::string& name, std::string_view dataFile,
                     std::initializer_list<const char*> images = {}) const {
        file::Zip Zip;
        Zip.CreateArchive(path(name));
        Zip.addBuffer("data.dat", dataFile, "Main Data File");
        for (const char* image : images) Zip.addBuffer(image, std::string("bytes of ") + image, "");
        Zip.CloseArchive();
        return path(name);
    }
    static std::string dataFileOf(const std::string& archive) {
        file::Zip Zip;
        Zip.OpenArchive(archive);
        return Zip.readEntry("data.dat", std::uint64_t{1} << 30).value_or("(none)");
    }

    void run(const char* command) { shell::runCommand(app, command); }

    core::Item& record(std::initializer_list<const char*> cells) {
        const std::string key = app.document.nextKey();
        std::ranges::copy(cells, app.document.LV.add(key).cells.begin());
        core::moveTotals(app.document.LV);
        return app.document.LV.byKey(key);
    }
    void formula(const std::string& name, const std::string& expression) {
        app.document.formulas.add(name + "," + expression, name);
    }
    void total(std::initializer_list<const char*> columns) {
        for (const char* column : columns) app.document.totaledCols.add(column, column);
    }
    void select(std::initializer_list<int> rows) {
        app.document.LV.clearSelection();
        for (const int row : rows) app.document.LV.at(row).Selected = true;
    }

    // The cells of a list's rows, "a|b|;c|d|;".
    static std::string cells(const core::RecordsList& list) {
        std::string all;
        list.forEach([&](const core::Item& item) { all += cells(item) + ";"; });
        return all;
    }
    static std::string cells(const core::Item& item) {
        std::string all;
        for (const core::CellText& cell : item.cells) all += cell.str() + "|";
        return all;
    }
    std::string cells() const { return cells(app.document.LV); }
    std::string totals() { return cells(*app.document.LV.totals()); }
    std::string cell(int row, const char* column) {
        return core::RecordsList::cell(app.document.LV.at(row), app.document.LV.columns[column]).str();
    }
    // "a|b|" of the items of a collection.
    static std::string text(const core::NamedCollection& collection) {
        std::string all;
        for (const auto& entry : collection) all += entry.item + "|";
        return all;
    }
    std::string panel(int number) const { return app.mainFrm.panels.at(static_cast<std::size_t>(number)); }

    // What the user was told since the last look, a line for each message; see ScriptedPlatform.
    std::string told() {
        std::string all;
        for (const std::string& message : std::exchange(platform.messages, {}))
            all += (all.empty() ? "" : "\n") + message;
        return all;
    }
    // The file dialogs since the last look, "title/proposed name/filter" each.
    std::string dialogs() {
        std::string all;
        for (const platform::FileDialog& dialog : std::exchange(platform.dialogs, {}))
            all += (all.empty() ? "" : "\n") + dialog.title + "/" + dialog.fileName + "/" + dialog.filter;
        return all;
    }
};

struct Program : ProgramOn<ScriptedPlatform> {
    using ProgramOn::ProgramOn;
};
