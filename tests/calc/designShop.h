#pragma once

#include "calc/designFrm.h"
#include "recordsProgram.h"

#include <gtest/gtest.h>

#include <algorithm>

// A database with a column of nearly each type, and what a user does with them in Database Properties.
struct DesignShop : RecordsProgram {
    DesignShop() : RecordsProgram({{"Name", "3"}, {"Price", "2"}, {"Qty", "4"}, {"Day", "1"}, {"Sum", "5"}}) {
        record({"Bolt", "$1.50", "2", "01/02/2003", "$3.00"});
        record({"Nut", "$.25", "4", "", "$1.00"});
        formula("Sum", "Price * Qty");
    }

    void type(calc::designFrm& form, const std::string& name) {
        form.fieldTxt_Change(name);
        form.addBtn_Click();
    }
    void rename(const char* from, const char* to) {
        calc::designFrm form(app);
        select(form, from);
        form.fieldTxt_Change(to);
        form.changeBtn_Click();
    }
    void remove(const char* name, std::initializer_list<platform::Answer> answers = {platform::Answer::Yes,
                                                                                     platform::Answer::Yes}) {
        platform.answers = answers;
        calc::designFrm form(app);
        select(form, name);
        form.deleteBtn_Click();
    }
    static void select(calc::designFrm& form, std::string_view name) {
        const auto row = std::ranges::find(form.List1, name, &calc::designFrm::Row::Name);
        form.selectedRow = static_cast<int>(row - form.List1.begin());
    }
    static std::string rows(const calc::designFrm& form) {
        std::string all;
        for (const calc::designFrm::Row& row : form.List1)
            all += row.Name + " " + row.Type + " " + row.AutoDate + " " + row.AutoSerial + ";";
        return all;
    }
    std::string serials() {
        std::string all;
        document.SerialsLV.forEach([&](const core::Item& serial) {
            all += serial.Text.str() + "=" + serial.subItem(1).str() + ";";
        });
        return all;
    }
    void expectMessage(const std::string& text, platform::Icon icon) {
        ASSERT_FALSE(platform.messages.empty());
        EXPECT_EQ(platform.messages.back().text, text);
        EXPECT_EQ(platform.messages.back().icon, icon);
        EXPECT_EQ(platform.messages.back().caption, "Ferrowick");
        platform.messages.clear();
    }
};
