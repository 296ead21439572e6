#pragma once

#include "app/app.h"
#include "dataFile.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <random>
#include <vector>

// Random events on the layout page. Each record has a number of its own, which nobody types into, so that the
// number on the sheet says whose record a person sees there.

struct SheetEvent {
    unsigned what, which, how;
};
using SheetEvents = std::vector<SheetEvent>;

inline DataFile numberedRecords(bool invoices) {
    const auto field = [](const char* name, int left, int top) {
        return "F|" + std::string(name) + "|" + std::to_string(left) + "|" + std::to_string(top) +
               "|1200|285|False|False|False|Arial|8|0|\r\n";
    };
    std::string records;
    int number = 0;
    for (const char* name : {"Ann", "Bill", "Zoe", "Abe", "Bob"})
        records += std::to_string(++number) + "|" + name + (invoices ? "|1@2@|3;" : "|1|1;");
    DataFile file("No:4 Name Qty:4 Sum:5", records);
    file.layout =
        field("No", 200, 200) + field("Name", 200, 600) + field("Sum", 200, 1000) + field("Qty", 200, 1400);
    if (invoices) file.layout += field("Qty", 200, 1685);
    file.more = "[Formulas      ]Sum,Qty|\r\n[Optioned Cols ]No|\r\n[Increments    ]No,9|\r\n[Printed Cols  "
                "]Name|\r\n";
    if (invoices) file.more += "[DatabaseStyle ]True\r\n";
    return file;
}

// Says after each event what has gone wrong; nothing when all is well.
class SheetWatch {
public:
    explicit SheetWatch(app::App& app) : app_(app) {}

    bool isPageInFront() const {
        const auto design = app_.mainFrm.controls.find("Design");
        const bool designing = design != app_.mainFrm.controls.end() && design->second.Value;
        return app_.mainFrm.SSTab1 == app::layoutTab && !designing;
    }
    std::string onSheet(const char* column) const {
        std::optional<std::string> text;
        app_.document.layout.layoutField.forEach([&](const core::LayoutField& field) {
            if (!text && field.Tag == column) text = field.Text;
        });
        return text.value_or("");
    }

    void before() {
        before_ = records();
        wasInFront_ = isPageInFront();
        number_ = wasInFront_ ? onSheet("No") : "";
        name_ = onSheet("Name");
    }
    // `stores` is an event that puts what was on the sheet into its record, `deletes` one that takes the
    // record away, and `rowsGo` one that may take away the rows selected in the list.
    std::string after(bool stores, bool deletes, bool rowsGo) {
        const Records now = records();
        std::string wrong;
        for (const auto& [key, cells] : before_) {
            const auto same = now.find(key);
            const bool isShown = wasInFront_ && number_ == cellOf(cells, 0);
            if (same == now.end()) {
                if (!isShown && !rowsGo) wrong += "record " + cellOf(cells, 0) + " has gone; ";
                continue;
            }
            if (same->second != cells && !isShown) wrong += "record " + cellOf(cells, 0) + " has changed; ";
            if (isShown && stores && cellOf(same->second, 1) != name_)
                wrong += "what was typed is not stored; ";
            if (isShown && deletes) wrong += "record " + number_ + " is still there; ";
        }
        return wrong + wrongSheet(now);
    }
    // A number for whatever has none, or the number of another record: new and duplicated ones.
    void number() {
        core::RecordsList& records = app_.document.LV;
        const auto& known = before_;
        records.forEach([&](core::Item& record) {
            if (record.isTotals() || known.contains(record.Key.str())) return;
            const bool isOnSheet = app_.document.bInvoiceStyle && &record == records.selectedItem();
            core::CellText& cell = record.subItem(1);
            if (isOnSheet)
                cell = onSheet("No");
            else if (app_.document.bInvoiceStyle || cell == "0" || isTwice(cell.str()))
                cell = std::to_string(1000 + ++given_);
        });
    }

private:
    using Records = std::map<std::string, std::vector<std::string>>;

    static std::string cellOf(const std::vector<std::string>& cells, std::size_t index) {
        return index < cells.size() ? cells[index] : "";
    }
    Records records() const {
        Records all;
        app_.document.LV.forEach([&](const core::Item& item) {
            if (item.isTotals()) return;
            std::vector<std::string>& cells = all[item.Key.str()];
            for (const core::CellText& cell : item.cells) cells.push_back(cell.str());
        });
        return all;
    }
    bool isTwice(const std::string& number) const {
        int found = 0;
        app_.document.LV.forEach([&](const core::Item& item) { found += item.subItem(1) == number; });
        return found > 1;
    }
    // The sheet shows the record of the row that commands work on, or one that is not there yet.
    std::string wrongSheet(const Records& now) const {
        if (!isPageInFront() || !app_.mainFrm.layoutPage.layoutPic2.Visible) return {};
        const core::Item* row = app_.mainFrm.theListView->selectedItem();
        const std::string number = onSheet("No");
        const bool isRecord =
            std::ranges::any_of(now, [&](const auto& record) { return cellOf(record.second, 0) == number; });
        if (!isRecord || row == nullptr || row->isTotals()) return {};
        std::string key = (row->Key.empty() ? row->Text : row->Key).str();
        return cellOf(now.at(key), 0) == number
                   ? ""
                   : "the sheet shows " + number + " and not " + cellOf(now.at(key), 0) + "; ";
    }

    app::App& app_;
    Records before_;
    bool wasInFront_ = false;
    std::string number_, name_;
    int given_ = 0;
};

// Runs that many events, in runs of some hundred that each begin afresh. `play` plays some and says what went
// wrong. What is returned tells the seed, and the fewest events found that still fail.
template <typename Play>
std::string failureOf(unsigned seed, int count, unsigned kinds, const Play& play) {
    constexpr int each = 200;
    for (int done = 0; done < count; done += each, ++seed) {
        std::mt19937 random(seed);
        SheetEvents events;
        for (int i = 0; i < std::min(each, count - done); ++i)
            events.push_back({static_cast<unsigned>(random()) % kinds, static_cast<unsigned>(random()) % 64,
                              static_cast<unsigned>(random()) % 64});
        std::string wrong = play(events);
        if (wrong.empty()) continue;
        for (std::size_t piece = events.size() / 2; piece > 0; piece /= 2)
            for (std::size_t from = 0; from + piece <= events.size();) {
                SheetEvents fewer = events;
                const auto begin = fewer.begin() + static_cast<std::ptrdiff_t>(from);
                fewer.erase(begin, begin + static_cast<std::ptrdiff_t>(piece));
                const std::string still = play(fewer);
                if (still.empty()) {
                    from += piece;
                    continue;
                }
                events = std::move(fewer);
                wrong = still;
            }
        std::string told = "seed " + std::to_string(seed) + ": " + wrong;
        for (const SheetEvent& event : events)
            told += "\n  " + std::to_string(event.what) + " " + std::to_string(event.which) + " " +
                    std::to_string(event.how);
        return told;
    }
    return {};
}

// How many events a test plays; FERROWICK_EVENTS asks for more.
inline int eventCount(int byDefault) {
    const char* wanted = std::getenv("FERROWICK_EVENTS");
    return wanted == nullptr ? byDefault : std::max(std::atoi(wanted), 1);
}
