#pragma once

#include "databases.h"
#include "search/searchFrm.h"
#include "search/searchMode.h"

#include <gtest/gtest.h>

// A program with an open database and the search dialog on it.
struct SearchProgram : Program {
    explicit SearchProgram(const DataFile& data) { open(make("search.fwk", "\xEF\xBB\xBF" + data.text())); }
    explicit SearchProgram(const std::string& sample) { openCopyOf(sample); }

    // What the user does in the dialog. The dialog is over when it returns.
    void inDialog(const std::function<void(search::searchFrm&)>& act) {
        platform.onForm = [&](std::string_view) {
            search::searchFrm form(app);
            act(form);
            form.closeBtn_Click();
        };
        search::mnuSearch_Click(app);
        platform.onForm = nullptr;
    }
    static void type(search::searchFrm& form, int group, const std::string& column, int option,
                     const std::string& value, const std::string& to = {}) {
        const auto& items = form.list(group).items;
        const auto place = std::find(items.begin(), items.end(), column);
        ASSERT_NE(place, items.end()) << column;
        form.List_Click(group, static_cast<int>(place - items.begin()));
        form.Opt_Click(group, option);
        form.SearchText.at(static_cast<std::size_t>(2 * group)).Text = value;
        form.SearchText.at(static_cast<std::size_t>(2 * group + 1)).Text = to;
    }
    // The Tags of the records found, in list order, "i1 i3"; "-" when there is none.
    std::string find(const std::vector<search::Group>& groups) {
        inDialog([&](search::searchFrm& form) {
            int number = 0;
            for (const search::Group& group : groups)
                type(form, number++, group.column, group.comparison, group.value, group.to);
            form.searchBtn_Click();
        });
        return found();
    }
    std::string found() const {
        std::string tags;
        app.document.searchLV.forEach([&](const core::Item& item) {
            if (!item.isTotals()) tags += (tags.empty() ? "" : " ") + item.Tag.str();
        });
        return tags.empty() ? "-" : tags;
    }
    bool isEnabled(const char* key) { return app.mainFrm.control(key).Enabled; }
    bool isDown() { return app.mainFrm.control("Search").Value; }
    std::string recordsPanel() const { return app.mainFrm.panels[app::recordsPanel]; }
};

// One column and its cells, a row each.
inline DataFile oneColumn(const char* type, const std::vector<std::string>& cells) {
    DataFile data({{"C", *type - '0'}});
    for (const std::string& cell : cells) data.rows += cell + "|\r\n";
    data.addTotals();
    return data;
}
