#include "gui/frame/mainFrmView.h"
#include "search/filter/filterMode.h"
#include "search/filter/filterSearch.h"
#include "shell/mainWindow.h"
#include "shell/program.h"
#include "times.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>
#include <string>

// Somebody types into the filter bar over 32,000 records of 10 columns, letter by letter, and sqlite3 looks
// for the same words in the same table in memory.

namespace {

// What stands in the bar after each of the keys.
std::vector<std::string> keysOf(const std::vector<std::string>& texts) {
    std::vector<std::string> keys;
    for (const std::string& text : texts)
        for (std::size_t end = 1; end <= text.size(); ++end) keys.push_back(text.substr(0, end));
    return keys;
}

const std::vector<std::string> words = {
    "library",     "perl",    "documentation", "gnome",  "transitional", "python",   "kernel",    "debian",
    "server",      "runtime", "development",   "fonts",  "database",     "common",   "graphical", "editor",
    "translation", "plugin",  "amd64",         "module", "compiler",     "audio",    "network",   "interface",
    "client",      "debug",   "examples",      "static", "headers",      "utilities"};
const std::vector<std::string> comparisons = {"library -perl", "gnome | python",
                                              "section:libs installed_kb>1000", "since:1998..2004 fee<10",
                                              "\"shared library\" bytes:..50000"};

double median(std::vector<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

double timeOf(const std::function<void()>& act) {
    const std::clock_t start = std::clock();
    act();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// The table of the records in memory, as sqlite3 has it.
class Table {
public:
    explicit Table(const core::RecordsList& records) : columns_(records.columns.count() - 1) {
        sqlite3_open(":memory:", &database_);
        std::string names, places;
        for (int i = 0; i < columns_; ++i) {
            names.append(i == 0 ? "" : ",").append("c").append(std::to_string(i));
            places.append(i == 0 ? "?" : ",?");
        }
        run("CREATE TABLE t(" + names + ")");
        run("BEGIN");
        sqlite3_stmt* insert = nullptr;
        sqlite3_prepare_v2(database_, ("INSERT INTO t VALUES(" + places + ")").c_str(), -1, &insert, nullptr);
        records.forEach([&](const core::Item& record) {
            if (record.isTotals()) return;
            for (int i = 0; i < columns_; ++i) {
                const std::string_view cell = record.subItem(i + 1);
                sqlite3_bind_text(insert, i + 1, cell.data(), static_cast<int>(cell.size()),
                                  SQLITE_TRANSIENT);
            }
            sqlite3_step(insert);
            sqlite3_reset(insert);
        });
        sqlite3_finalize(insert);
        run("COMMIT");
    }
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;
    ~Table() { sqlite3_close(database_); }

    std::string condition(const std::string& word) const {
        std::string text;
        for (int i = 0; i < columns_; ++i)
            text.append(i == 0 ? "" : " OR ")
                .append("c")
                .append(std::to_string(i))
                .append(" LIKE '%")
                .append(word)
                .append("%'");
        return text;
    }
    // How many, and the table of those found.
    int count(const std::string& word) const {
        int rows = 0;
        sqlite3_exec(
            database_, ("SELECT rowid FROM t WHERE " + condition(word)).c_str(),
            [](void* counted, int, char**, char**) {
                ++*static_cast<int*>(counted);
                return 0;
            },
            &rows, nullptr);
        return rows;
    }
    void keep(const std::string& word) const {
        run("CREATE TEMP TABLE found AS SELECT * FROM t WHERE " + condition(word));
    }
    void forget() const { run("DROP TABLE IF EXISTS found"); }

private:
    void run(const std::string& statement) const {
        sqlite3_exec(database_, statement.c_str(), nullptr, nullptr, nullptr);
    }

    sqlite3* database_ = nullptr;
    int columns_;
};

bool isAhead(const char* what, double ours, double theirs) {
    std::cout << what << ": " << ours << " ms, sqlite3 " << theirs << " ms, ratio " << ours / theirs
              << (ours < theirs ? " PASS\n" : " FAIL\n");
    return ours < theirs;
}

bool isAheadOfSqlite(app::App& app, const std::vector<std::string>& keys) {
    const Table table(app.document.LV);
    const search::FilterColumns columns = search::filterColumns(app.document, app.document.LV);
    const auto today = app.platform.today();
    search::FoldedTexts texts;
    texts.follow(app.document.LV, columns);
    std::vector<double> ours, theirs, oursKept, theirsKept;
    bool isSame = true;
    for (const std::string& key : keys) {
        int found = 0, theirsFound = 0;
        ours.push_back(timeOf([&] {
            const auto passed = search::passing(search::parseFilter(key, columns, today), texts, today);
            found = static_cast<int>(std::ranges::count(passed, 1));
        }));
        theirs.push_back(timeOf([&] { theirsFound = table.count(key); }));
        oursKept.push_back(timeOf([&] { search::setFilter(app, key); }));
        theirsKept.push_back(timeOf([&] { table.keep(key); }));
        table.forget();
        // It knows no accents, and a word of digits stands in some.
        isSame = isSame && found >= theirsFound && found - theirsFound <= 60;
    }
    search::leaveFilter(app);
    bool within = isAhead("a key's records found, without the former result", median(ours), median(theirs));
    within &= isAhead("a key's results as a table", median(oursKept), median(theirsKept));
    std::cout << "the same records but for accents: " << (isSame ? "PASS\n" : "FAIL\n");
    return within && isSame;
}

} // namespace

// filter_times DATABASE: how long a key takes that is typed into the filter bar; 1 when one is beyond its
// limit, or behind sqlite3.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(variable, QFile::encodeName(folder.path()));
    QApplication application(argc, argv);
    platform::SettingsFile settings;
    settings.SaveSetting("StartUp", "Disclaimer", "True");
    settings.flush();
    const std::string file = folder.filePath(QStringLiteral("large.fwk")).toStdString();
    QFile::copy(QStringLiteral(TEST_DATA_DIR "/packages-32000.fwk"), QString::fromStdString(file));
    gui::QtPlatform platform;
    shell::Program app(platform);
    gui::MainFrmView window(app, platform);
    window.load(shell::commandLineFor(file));

    const std::vector<std::string> keys = keysOf(words), more = keysOf(comparisons);
    const search::FilterColumns columns = search::filterColumns(app.document, app.document.LV);
    const auto today = platform.today();
    search::FoldedTexts texts;
    bool within =
        isWithin("the folded copy of all texts", 1, 60, [&](int) { texts.follow(app.document.LV, columns); });
    const auto findAll = [&](const char* what, const std::vector<std::string>& typed) {
        return isWithin(what, static_cast<int>(typed.size()), 16, [&](int i) {
            search::passing(search::parseFilter(typed[static_cast<std::size_t>(i)], columns, today), texts,
                            today);
        });
    };
    within &= findAll("a key of a word, found", keys);
    within &= findAll("a key of a comparison, found", more);
    window.events().run([&] { search::prepareFilter(app); });
    const auto paintAll = [&](const char* what, const std::vector<std::string>& typed) {
        return isWithin(what, static_cast<int>(typed.size()), 50, [&](int i) {
            window.events().run([&] { search::setFilter(app, typed[static_cast<std::size_t>(i)]); });
            window.repaint();
        });
    };
    within &= paintAll("a key of a word, painted", keys);
    within &= paintAll("a key of a comparison, painted", more);
    within &= isWithin("all records again", 1, 50,
                       [&](int) { window.events().run([&] { search::leaveFilter(app); }); });
    within &= isWithin("a key after a change of a record, painted", 20, 50, [&](int i) {
        app.document.LV.at(1 + i).subItem(2) = "changed";
        app.changes.announce(app, app::Change::Unsaved);
        window.events().run([&] { search::setFilter(app, i % 2 == 0 ? "library" : "librar"); });
        window.repaint();
    });
    within &= isAheadOfSqlite(app, keys);
    return within ? 0 : 1;
}
