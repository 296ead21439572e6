#include "core/locale/localeForm.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/number.h"
#include "readings.h"

#include <cmath>
#include <map>
#include <random>

using namespace core;
using Type = ColumnType;
using enum LocaleForm::DateOrder;

namespace {

std::map<std::string, LocaleForm> forms = {
    {"de", {DayMonthYear, '.', ",", ".", "€", true, true}},
    {"fr", {DayMonthYear, '/', ",", "\u202F", "€", true, true}},
    {"ch", {DayMonthYear, '.', ".", "\u2019", "CHF", false, true}},
    {"se", {YearMonthDay, '-', ",", "\u00A0", "kr", true, true}},
    {"us", {}},
};

// Blanks that do not break are "_" in the cases.
std::string visible(std::string text) {
    return replaceAll(replaceAll(text, "\u00A0", "_"), "\u202F", "_");
}

// How cells are shown, and which cells typed texts mean.
void expectShown(const std::string& form, ColumnType type, std::string_view cases) {
    SCOPED_TRACE(form);
    expectEach(cases, [&](const std::string& cell) { return visible(shownIn(forms[form], type, cell)); });
}
void expectMeant(const std::string& form, ColumnType type, std::string_view cases) {
    SCOPED_TRACE(form);
    expectEach(cases, [&](const std::string& typed) {
        return cellFrom(forms[form], type, replaceAll(typed, "_", "\u00A0"));
    });
}

TEST(LocaleForm, Dates) {
    expectShown("de", Type::Date,
                "31.12.2024 -> 12/31/2024; 01.02.2024 -> 02/01/2024|2/1/24|2-1-2024; 25.12.1930 -> 25/12/30; "
                "02/30/2024 -> 02/30/2024; 12/31/2024x -> 12/31/2024x; 1/2 -> 1/2; May 5 -> May 5;  -> ");
    expectMeant(
        "de", Type::Date,
        "12/31/2024 -> 31.12.2024|31.12.24|31. 12. 2024| 31-12-2024|2024-12-31|12/31/2024; 02/01/1930 "
        "-> 1.2.30|1/2/1930|01.02.1930.; 31.2.2024 -> 31.2.2024; 31.12. -> 31.12.; 1.2/2024 -> 1.2/2024");
    expectShown("fr", Type::Date, "01/02/2024 -> 02/01/2024");
    expectMeant("fr", Type::Date, "02/01/2024 -> 01/02/2024");
    expectShown("se", Type::Date, "2024-02-01 -> 02/01/2024|2/1/24");
    expectMeant("se", Type::Date, "02/01/2024 -> 2024-02-01|24-2-1");
    expectShown("us", Type::Date, "02/01/2024 -> 02/01/2024|2/1/24");
}

TEST(LocaleForm, NumbersAndAmounts) {
    expectShown("de", Type::Number,
                "1234,5 -> 1234.5; 1.234,5 -> 1,234.5; ,5 -> .5; 12, -> 12.; 15 -> 1,5; -7 -> 7-|(7)|- 7; "
                "1,5E+20 -> 1.5E+20; 1500 -> 1.5D+03; 5_€ -> 5$; no 1.5 -> no 1.5; 1.2.3 -> 1.2.3");
    expectMeant(
        "de", Type::Number,
        "1234.5 -> 1234,5|1.234,5| 1.234,5 |1234.5; 1.5 -> 1,5|1.5; 1234567 -> 1.234.567; 1.23.456 -> "
        "1.23.456; 1500.5 -> 1.500,5; -5 -> -5|\u22125; - -> -; , -> ,; 12. -> 12,; 1.5E+20 -> 1,5E+20");
    expectShown(
        "de", Type::Currency,
        "1.234,50_€ -> $1,234.50; -0,50_€ -> -$.50|($.50)|$-.50; 0,00_€ -> $.00; 1234,5_€ -> $1234.5; "
        "1,50_€@@2_€@ -> $1.50@@$2@");
    expectMeant("de", Type::Currency,
                "$1,234.50 -> 1.234,50_€|1.234,50 €|€1.234,50|1.234,50€|$1.234,50|$1,234.50; -$.50 -> -0,50 "
                "€|€-0,50; $5 -> 5 €; 5 € € -> 5 € €; $.00 -> 0,00 €");
    expectShown("fr", Type::Calculation, "1_234,50_€ -> $1,234.50; 12 -> 12");
    expectMeant("fr", Type::Currency,
                "$1,234.50 -> 1 234,50 €|1_234,50_€; 1234.5 -> 1 234,5; 12 34 -> 12 34");
    expectShown("ch", Type::Currency, "CHF_1’234.50 -> $1,234.50");
    expectMeant("ch", Type::Currency, "$1,234.50 -> CHF 1'234.50|1’234.50 CHF; 1234 -> 1'234");
    expectMeant("se", Type::Number, "1234 -> 1 234|1_234 |1234");
    for (const ColumnType none : {Type::Text, Type::Picture, Type::None}) {
        expectShown("de", none, "$1,234.50 -> $1,234.50; 12/31/2024 -> 12/31/2024");
        expectMeant("de", none, "1.234,50 -> 1.234,50; 31.12.2024 -> 31.12.2024");
    }
}

TEST(LocaleForm, WhatIsShownMeansTheCellThatItIsShownOf) {
    std::mt19937 random(2024);
    const auto pick = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
    for (const auto& each : forms)
        for (int round = 0; round < 500; ++round) {
            const LocaleForm& form = each.second;
            const auto back = [&](ColumnType type, const std::string& cell) {
                EXPECT_EQ(cellFrom(form, type, shownIn(form, type, cell)), cell) << each.first;
            };
            const double value = pick(-2'000'000, 2'000'000) / std::pow(10, pick(0, 4));
            back(Type::Date, formatDate(pick(1900, 2100), unsigned(pick(1, 12)), unsigned(pick(1, 28))));
            back(Type::Currency, format(value, Mask::Money));
            back(Type::Number, numberText(value));
            back(Type::Number, format(value, Mask::TwoDecimals));
            // A number that a user has grouped loses the groups, and nothing else.
            const std::string grouped = format(value, Mask::WholeCommas);
            EXPECT_EQ(toDouble(cellFrom(form, Type::Number, shownIn(form, Type::Number, grouped))),
                      toDouble(grouped));
        }
}

TEST(LocaleForm, SeparatorsComeAsOneTypes) {
    const auto typed = [](const std::string& form) {
        return [form](const std::string& keys) {
            std::string text;
            for (const char key : keys) text = withDateSeparators(forms[form], text + key);
            return text;
        };
    };
    expectEach("31.12.2024 -> 31122024|31.12.2024; 1.2.2024 -> 1.2.2024; ab -> ab; 31. -> 31|31.",
               typed("de"));
    expectEach("2024-12-31 -> 20241231|2024-12-31; 24-1-2 -> 24-1-2", typed("se"));
}

} // namespace
