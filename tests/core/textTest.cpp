#include "core/text.h"

#include <gtest/gtest.h>

using namespace core;

namespace {

using Pieces = std::vector<std::string_view>;

std::string characterOf(char32_t c) {
    std::string text;
    appendCodePoint(text, c);
    return text;
}

TEST(TextTest, trimsBlanksAndNothingElse) {
    const char* cases[][4] = {{"  a b ", "a b", "a b ", "  a b"},
                              {"\ta\n", "\ta\n", "\ta\n", "\ta\n"},
                              {"\u00A0a\u00A0", "\u00A0a\u00A0", "\u00A0a\u00A0", "\u00A0a\u00A0"},
                              {"   ", "", "", ""},
                              {"", "", "", ""}};
    for (const auto& [text, both, front, behind] : cases) {
        EXPECT_EQ(trim(text), both);
        EXPECT_EQ(ltrim(text), front);
        EXPECT_EQ(rtrim(text), behind);
    }
}

TEST(TextTest, upperCasesLatinGreekAndCyrillic) {
    const char* cases[][2] = {{"Plain text, 19 bytes: az{`", "PLAIN TEXT, 19 BYTES: AZ{`"},
                              {"straße à÷þÿ", "STRAßE À÷ÞŸ"},
                              {"āăķĸĺňŉŋœŵŷźžſ", "ĀĂĶĸĹŇŉŊŒŴŶŹŽſ"},
                              {"άέήίαβςσωϊϋόύώ", "ΆΈΉΊΑΒΣΣΩΪΫΌΎΏ"},
                              {"абвяѐёџґңӂӏӑԯ", "АБВЯЀЁЏҐҢӁӀӐԮ"},
                              {"日本 a\xE9z \xE2\x82z", "日本 A\xE9Z \xE2\x82Z"}};
    std::string out = "of before";
    for (const auto& [text, wanted] : cases) {
        EXPECT_EQ(upper(text), wanted);
        EXPECT_EQ(upper(wanted), wanted);
        upperInto(out, text);
        EXPECT_EQ(out, wanted);
        appendUpper(out, text);
        EXPECT_EQ(out, std::string(wanted) + wanted);
    }
    // What is written over in place has to fit, in front of and behind other characters.
    for (char32_t c = 0x80; c < 0x3000; ++c) {
        const std::string text = "a" + characterOf(c) + "b";
        const std::string wanted = upper(text);
        EXPECT_EQ(wanted.size(), text.size()) << text;
        EXPECT_EQ(length(wanted), 3U) << text;
    }
}

TEST(TextTest, comparesAsUpperCased) {
    // Each is ahead of the next.
    const char* rising[] = {"", "1", "a", "AA", "ab", "B", "_", "é", "Ж", "日", "😀", "\xE9"};
    for (std::size_t i = 0; i < std::size(rising); ++i)
        for (std::size_t j = 0; j < std::size(rising); ++j) {
            SCOPED_TRACE(std::string(rising[i]) + " and " + rising[j]);
            EXPECT_EQ(compareNoCase(rising[i], rising[j]), i < j ? -1 : i > j ? 1 : 0);
            EXPECT_EQ(equalsNoCase(rising[i], rising[j]), i == j);
            EXPECT_EQ(compareNoCase(rising[i], upper(rising[j])), i < j ? -1 : i > j ? 1 : 0);
        }
    EXPECT_TRUE(equalsNoCase("Größe ÿ", "GRÖßE Ÿ"));
    EXPECT_FALSE(equalsNoCase("Größe", "GROSSE"));
}

TEST(TextTest, splitsIntoOnePieceMoreThanSeparators) {
    EXPECT_EQ(split("", '@'), (Pieces{""}));
    EXPECT_EQ(split("a", '@'), (Pieces{"a"}));
    EXPECT_EQ(split("1@@3@", '@'), (Pieces{"1", "", "3", ""}));
}

TEST(TextTest, cutsByCharacters) {
    const char* text = "aé日😀z";
    EXPECT_EQ(length(text), 5U);
    EXPECT_EQ(length(""), 0U);
    const char* const heads[] = {"", "a", "aé", "aé日", "aé日😀", "aé日😀z", "aé日😀z"};
    const char* const tails[] = {"", "z", "😀z", "日😀z", "é日😀z", "aé日😀z", "aé日😀z"};
    for (std::size_t n = 0; n < std::size(heads); ++n) {
        EXPECT_EQ(left(text, n), heads[n]);
        EXPECT_EQ(right(text, n), tails[n]);
    }
    const struct {
        std::size_t start, count;
        const char* wanted;
    } cases[] = {{1, 2, "aé"}, {3, 2, "日😀"}, {5, 9, "z"}, {6, 1, ""}, {0, 3, ""}, {2, 0, ""}};
    for (const auto& c : cases) EXPECT_EQ(mid(text, c.start, c.count), c.wanted) << c.start;
}

TEST(TextTest, countsAStrayByteAsACharacter) {
    const std::pair<std::string, std::size_t> cases[] = {
        {"\xE9", 1},         {"a\xC3", 2},           {"\xE2\x82", 2}, {"\xE2\x82z", 3},
        {"\x80\x80", 2},     {"\xF0\x9F\x98 é", 5},  {"\xFF\xFE", 2}, {"\xC0\x80", 2},
        {"\xF0\x9F\x98", 3}, {"eight by\xE9tes", 12}};
    for (const auto& [text, characters] : cases) {
        EXPECT_EQ(length(text), characters) << text;
        EXPECT_EQ(right(text, characters), text);
        EXPECT_EQ(std::string(left(text, 1)) + std::string(mid(text, 2, 99)), text);
    }
}

TEST(TextTest, findsTheEndOfAsciiAtEveryPlace) {
    for (std::size_t size = 1; size < 20; ++size)
        for (std::size_t at = 0; at < size; ++at) {
            std::string text(size, 'x');
            EXPECT_EQ(asciiLength(text), size);
            text[at] = '\x80';
            EXPECT_EQ(asciiLength(text), at) << "of " << size;
        }
}

TEST(TextTest, replacesEveryOccurrenceOnce) {
    const char* cases[][4] = {{"a.b.c", ".", "..", "a..b..c"}, {"aaa", "aa", "b", "ba"},
                              {"abc", "x", "y", "abc"},        {"abc", "", "y", "abc"},
                              {"abab", "ab", "", ""},          {"", "a", "b", ""}};
    for (const auto& [text, what, with, wanted] : cases) EXPECT_EQ(replaceAll(text, what, with), wanted);
}

} // namespace
