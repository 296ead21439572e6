#include "core/encoding.h"

#include "core/text.h"

#include <gtest/gtest.h>

using namespace core;

namespace {

TEST(EncodingTest, knowsTheCharactersOfTheCodePage) {
    const char* cases[][2] = {{"plain \t\r\n", "plain \t\r\n"},
                              {"\x80 5", "€ 5"},
                              {"\x93smart\x94 \x96 it\x92s\x85", "“smart” – it’s…"},
                              {"\x8A\x8C\x8E\x9A\x9C\x9E\x9F\x99", "ŠŒŽšœžŸ™"},
                              {"\xA0\xBF\xD7\xDF\xE9\xFF", "\u00A0¿×ßéÿ"},
                              {"\x81\x8D\x8F\x90\x9D", "\u0081\u008D\u008F\u0090\u009D"}};
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(fromWindows1252(bytes), text);
        EXPECT_EQ(toWindows1252(text), bytes);
    }
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
    EXPECT_EQ(length(fromWindows1252(all)), 256U);
    EXPECT_EQ(toWindows1252(fromWindows1252(all)), all);
    for (const char* text : {"Ā", "a long ascii head Ж", "日本", "😀", "\u0080", "\u0085", "\uFEFFa"})
        EXPECT_EQ(toWindows1252(text), std::nullopt) << text;
}

TEST(EncodingTest, repairsWhatIsNoUtf8) {
    const char* cases[][2] = {{"", ""},
                              {"ok é日😀\uFFFD\U0010FFFF", "ok é日😀\uFFFD\U0010FFFF"},
                              {"a\xE9z", "a\uFFFDz"},
                              {"\x80", "\uFFFD"},
                              {"cut \xE2\x82", "cut \uFFFD\uFFFD"},
                              {"\xE2\x82z", "\uFFFD\uFFFDz"},
                              {"\xC0\x80", "\uFFFD\uFFFD"},     // overlong
                              {"\xE0\x80\x80.", "\uFFFD."},     // overlong
                              {"\xED\xA0\x80.", "\uFFFD."},     // half a surrogate pair
                              {"\xF4\x90\x80\x80.", "\uFFFD."}, // beyond the last character
                              {"\xF5\x80", "\uFFFD\uFFFD"}};
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(sanitizeUtf8(bytes), text);
        EXPECT_EQ(sanitizeUtf8(text), text);
    }
}

TEST(EncodingTest, seesTheMarkAtTheHeadAlone) {
    EXPECT_TRUE(hasUtf8Mark("\xEF\xBB\xBF"));
    EXPECT_TRUE(hasUtf8Mark("\xEF\xBB\xBF"
                            "abc"));
    for (const char* bytes : {"", "\xEF\xBB", "abc", " \xEF\xBB\xBF"}) EXPECT_FALSE(hasUtf8Mark(bytes));
    EXPECT_TRUE(isAscii("all \x7F of it"));
    EXPECT_FALSE(isAscii("not \x80 it"));
}

} // namespace
