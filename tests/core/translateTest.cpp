#include "core/translate.h"

#include <gtest/gtest.h>

#include <map>

namespace {

// A catalogue of a few texts, for as long as it lives.
struct Spoken {
    std::map<std::string, std::vector<std::string>> texts;
    std::string asked;

    explicit Spoken(std::map<std::string, std::vector<std::string>> those) : texts(std::move(those)) {
        core::setCatalogue([this](const std::string& text, const std::string& many, int n) {
            asked += text + "/" + many + "/" + std::to_string(n) + ";";
            const auto found = texts.find(text);
            if (found == texts.end()) return std::string();
            return found->second[n == 1 || n < 0 ? 0 : 1];
        });
    }
    ~Spoken() { core::setCatalogue({}); }
    Spoken(const Spoken&) = delete;
    Spoken& operator=(const Spoken&) = delete;
};

TEST(Translate, FillsAllPlacesAtOnce) {
    struct Case {
        const char* pattern;
        std::initializer_list<std::string_view> values;
        const char* wanted;
    };
    for (const auto& [pattern, values, wanted] :
         std::initializer_list<Case>{{"Page %1 of %2", {"3", "8"}, "Page 3 of 8"},
                                     {"%2 Seiten, davon %1", {"3", "8"}, "8 Seiten, davon 3"},
                                     {"%1 and %1", {"a"}, "a and a"},
                                     {"%1: %2", {"50%2", "%1"}, "50%2: %1"},
                                     {"%1%", {"5"}, "5%"},
                                     {"100% of %1", {"x"}, "100% of x"},
                                     {"%3 stays", {"a", "b"}, "%3 stays"},
                                     {"%0%n%", {"a"}, "%0%n%"},
                                     {"%1", {""}, ""},
                                     {"\xc3\xa4%1\xc3\xa4", {"\xc3\xb6"}, "\xc3\xa4\xc3\xb6\xc3\xa4"},
                                     {"%9", {"1", "2", "3", "4", "5", "6", "7", "8", "9"}, "9"},
                                     {"", {"a"}, ""}})
        EXPECT_EQ(core::fill(pattern, values), wanted) << pattern;
}

TEST(Translate, CountsInEnglishWithoutACatalogue) {
    EXPECT_EQ(core::tr("&Open"), "&Open");
    EXPECT_EQ(core::tr(core::marked("Day")), "Day");
    std::string told;
    for (const int n : {0, 1, 2, 21}) told += core::tr("%n record", "%n records", n) + ";";
    EXPECT_EQ(told, "0 records;1 record;2 records;21 records;");
    EXPECT_EQ(core::tr("the only one", "%n of them", 1), "the only one");
}

TEST(Translate, WhatTheCatalogueDoesNotHaveStaysEnglish) {
    Spoken german({{"&Open",
                    {"&\xc3\x96"
                     "ffnen"}},
                   {"%n record", {"%n Datensatz", "%n Datens\xc3\xa4tze"}},
                   {"empty", {""}}});
    EXPECT_EQ(core::tr("&Open"), "&\xc3\x96"
                                 "ffnen");
    EXPECT_EQ(core::tr("&Close"), "&Close");
    EXPECT_EQ(core::tr("empty"), "empty");
    EXPECT_EQ(core::tr("%n record", "%n records", 1), "1 Datensatz");
    EXPECT_EQ(core::tr("%n record", "%n records", 0), "0 Datens\xc3\xa4tze");
    EXPECT_EQ(core::tr("%n group", "%n groups", 3), "3 groups");
    german.asked.clear();
    EXPECT_EQ(core::tr(""), "");
    EXPECT_EQ(german.asked, "") << "Qt's catalogues describe themselves under the empty text";
    core::tr("&Close");
    core::tr("%n row", "%n rows", 4);
    EXPECT_EQ(german.asked, "&Close//-1;%n row/%n rows/4;");
}

} // namespace
