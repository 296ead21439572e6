#pragma once

#include "databases.h"
#include "search/searchFrm.h"
#include "search/searchMode.h"
#include "table.h"

#include <gtest/gtest.h>

// A program with an open database and the search dialog on it. Searches are texts, "Name = bolt & Qty >= 7":
// a column, what it is compared by ("~" is within, and ".." a range, "Qty .. 5 to 7"), and the value as
// typed.
struct SearchProgram : Program {
    using Program::Program;

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
    static void type(search::searchFrm& form, int group, const std::string& wanted) {
        using namespace search;
        const std::map<std::string, int> comparisons = {
            {">=", greaterOrEqual}, {"<=", lessOrEqual}, {"=", exact}, {"~", within}, {"..", range}};
        const std::size_t column = wanted.find(' '), option = wanted.find(' ', column + 1);
        const auto& items = form.list(group).items;
        form.List_Click(group,
                        static_cast<int>(std::ranges::find(items, wanted.substr(0, column)) - items.begin()));
        form.Opt_Click(group, comparisons.at(wanted.substr(column + 1, option - column - 1)));
        const std::string value = wanted.substr(option + 1);
        const std::size_t to = std::min(value.find(" to "), value.size());
        form.SearchText.at(static_cast<std::size_t>(2 * group)).Text = value.substr(0, to);
        form.SearchText.at(static_cast<std::size_t>(2 * group + 1)).Text =
            to < value.size() ? value.substr(to + 4) : "";
    }
    // The Tags of the records found, in list order, "i1 i3"; "-" when there is none.
    std::string find(std::string groups) {
        inDialog([&](search::searchFrm& form) {
            for (int group = 0; !groups.empty(); ++group) {
                const std::size_t end = std::min(groups.find(" & "), groups.size());
                type(form, group, groups.substr(0, end));
                groups.erase(0, end + 3);
            }
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
};
