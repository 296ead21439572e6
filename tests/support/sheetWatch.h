#pragma once

#include "app/app.h"
#include "dataFile.h"
#include "entry/navBar.h"
#include "layout/layoutPage.h"
#include "shell/listEvents.h"

#include <array>
#include <cstdlib>
#include <map>
#include <random>

enum Act { Tab, Row, Find, Leave, Focus, Type, Go, Slide, Copy, Sort, View, Remove, Open, Design, Print };
struct SheetEvent {
    std::mt19937::result_type what, which, how;
};
using SheetEvents = std::vector<SheetEvent>;

// Records that each have a number of their own, which nobody types into, so that the number on the sheet,
// field 1, says whose record a person sees there. The name is field 2.
inline DataFile numberedRecords(bool invoices) {
    std::string records;
    for (const std::string name : {"1|Ann", "2|Bill", "3|Zoe", "4|Abe", "5|Bob"})
        records += name + (invoices ? "|1@2@|3;" : "|1|1;");
    DataFile file("No:4 Name Qty:4 Sum:5", records);
    file.objects("F|No|200|200|1200|285;F|Name|200|600|1200|285;F|Sum|200|1000|1200|285;F|Qty|200|1400|1200|"
                 "285");
    if (invoices) file.objects("F|Qty|200|1685|1200|285").section("DatabaseStyle", "True");
    return file.sections("Formulas=Sum,Qty|;Optioned Cols=No|;Increments=No,9|;Printed Cols=Name|");
}

// A user who goes to and fro between the pages, searches, types and stores, as random events say. The Hands
// of a test reach the handlers or the widgets: showTab, clickRow, find, focusField, type, navigate, slide,
// command, sort, view and open. shows() says whether the window has that number on the sheet.
template <typename Hands>
class SheetUser {
public:
    explicit SheetUser(Hands& hands) : hands_(hands), app_(hands.app) {}

    // Plays events until something has gone wrong, and says what, and which events it has taken.
    std::string play(const SheetEvents& events) {
        std::string wrong, acts;
        for (const SheetEvent& event : events) {
            for (const auto number : {event.what, event.which, event.how})
                acts += std::to_string(number) + " ";
            const Records before = records();
            const bool bYes = event.how % 4 != 0, wasInFront = isPageInFront();
            const std::string number = onSheet(1) + "|", name = onSheet(2) + "|", key = keyOf(event);
            const bool rowsGo = event.what == Remove && app_.mainFrm.SSTab1 == app::reportTab;
            hands_.platform.answers = {bYes ? platform::Answer::Yes : platform::Answer::No};
            hands_.platform.inputs = {"1"};
            act(event, key);
            const Records now = records();
            for (const auto& [of, cells] : before) {
                const auto same = now.find(of);
                const bool isGone = same == now.end(), isShown = wasInFront && cells.starts_with(number);
                if (isGone ? !isShown && !rowsGo : !isShown && same->second != cells)
                    wrong += cells + " has changed or gone; ";
                if (isShown && !isGone && key == "Delete" && bYes) wrong += cells + " is still there; ";
                if (isShown && key == "Update" && !same->second.starts_with(number + name))
                    wrong += name + " is not stored; ";
            }
            wrong += wrongSheet(now);
            if (!wrong.empty()) return wrong + acts;
            numberNew(before);
        }
        return {};
    }

private:
    using Records = std::map<std::string, std::string>; // the cells, "1|Ann|1|1|", by the key

    Records records() const {
        Records all;
        app_.document.LV.forEach([&](const core::Item& item) {
            for (const core::CellText& cell : item.cells)
                if (!item.isTotals()) all[item.Key.str()] += cell.str() + "|";
        });
        return all;
    }
    bool isPageInFront() const {
        return app_.mainFrm.SSTab1 == app::layoutTab && !app_.mainFrm.control("Design").Value;
    }
    std::string onSheet(int field) const { return app_.document.layout.layoutField.find(field)->Text; }
    std::string keyOf(const SheetEvent& event) const {
        const std::string key(entry::navButtons()[event.which % entry::navButtons().size()].key);
        const bool isFull = (key == "New" || key == "Add") && app_.document.LV.count() > 12;
        return event.what == Go && isPageInFront() && !isFull ? key : "";
    }
    void act(const SheetEvent& event, const std::string& key) {
        const auto which = static_cast<int>(event.which);
        const int count = app_.document.LV.count();
        core::RecordsList* list =
            app_.mainFrm.SSTab1 == app::reportTab ? &shell::visibleList(app_.document) : nullptr;
        const bool isPage = isPageInFront();
        const char* name = std::array{"a", "b", "zoe", "none"}.at(event.which % 4);
        if (event.what == Tab) hands_.showTab(which % 3);
        if (event.what == Row && list != nullptr && !list->empty())
            hands_.clickRow(*list, which % list->count() + 1, event.how % 2 == 1);
        if (event.what == Find) hands_.find(event.how % 8 == 1 ? "" : name, event.how % 8 == 0);
        if (event.what == Leave && app_.mainFrm.control("Search").Value) hands_.command("Search");
        if (event.what == Focus && isPage) hands_.focusField(1 + which % 4);
        if (event.what == Type && isPage)
            event.how % 2 == 0 ? hands_.type(2, name) : hands_.type(4, std::to_string(which));
        if (!key.empty()) hands_.navigate(key);
        if (event.what == Slide && isPage) hands_.slide(which % 8);
        if (event.what == Copy && !app_.document.bInvoiceStyle && count < 12) hands_.command("mnuDuplicate");
        if (event.what == Sort && list != nullptr) hands_.sort(*list);
        if (event.what == View && list != nullptr && app_.document.bInvoiceStyle) hands_.view(which % 2);
        if (event.what == Remove && count > 4) hands_.command("Delete");
        if (event.what == Open && list != nullptr && list->selectedItem() != nullptr) hands_.open(*list);
        if (event.what == Design && event.how % 4 == 0) hands_.command("Design");
        if (event.what == Print) hands_.command(which % 2 == 1 ? "All_As_Layouts" : "Selected_As_Layouts");
    }
    // The sheet shows the record of the row that commands work on, or one that is not there yet.
    std::string wrongSheet(const Records& now) const {
        if (!isPageInFront() || !layout::layoutPage(app_).layoutPic2.Visible) return {};
        const std::string number = onSheet(1);
        if (!hands_.shows(number)) return "the window does not show " + number + "; ";
        const core::Item* row = app_.mainFrm.theListView->selectedItem();
        if (row == nullptr || row->isTotals()) return {};
        const std::string& cells = now.at((row->Key.empty() ? row->Text : row->Key).str());
        const auto isShown = [&](const auto& each) { return each.second.starts_with(number + "|"); };
        if (std::ranges::none_of(now, isShown) || cells.starts_with(number + "|")) return {};
        return "the sheet shows " + number + " and not " + cells + "; ";
    }
    // What is new and has no number, or that of the record it is a copy of, gets one of its own.
    void numberNew(const Records& before) {
        core::RecordsList& LV = app_.document.LV;
        LV.forEach([&](core::Item& record) {
            if (record.isTotals() || before.contains(record.Key.str())) return;
            core::CellText& cell = record.subItem(1);
            const auto isSame = [&](const auto& each) { return each.second.starts_with(cell.str() + "|"); };
            if (app_.document.bInvoiceStyle && &record == LV.selectedItem())
                cell = onSheet(1);
            else if (app_.document.bInvoiceStyle || cell == "0" ||
                     std::ranges::count_if(records(), isSame) > 1)
                cell = std::to_string(1000 + ++given_);
        });
    }

    Hands& hands_;
    app::App& app_;
    int given_ = 0;
};

// Plays that many events up to a kind, in runs that each begin afresh.
template <typename Play>
std::string failureOf(int count, Act last, const Play& play) {
    std::mt19937 random(1);
    std::string wrong;
    if (const char* wanted = std::getenv("FERROWICK_EVENTS")) count = std::atoi(wanted);
    for (constexpr int each = 200; count >= 0 && wrong.empty(); count -= each) {
        SheetEvents events;
        while (events.size() < each) events.push_back({random() % (last + 1U), random() % 64, random() % 64});
        wrong = play(events);
    }
    return wrong;
}
