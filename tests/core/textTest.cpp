#include "core/encoding.h"
#include "readings.h"

using namespace core;

namespace {

TEST(Text, UpperCasesLatinGreekAndCyrillic) {
    std::string out = "of before";
    for (const auto& c : table(
             "Plain text, 19 bytes: az{` -> PLAIN TEXT, 19 BYTES: AZ{`; straße à÷þÿ -> STRAßE À÷ÞŸ; "
             "āăķĸĺňŉŋœŵŷźžſı -> ĀĂĶĸĹŇŉŊŒŴŶŹŽſı; άέήίαβςσωϊϋόύώ -> ΆΈΉΊΑΒΣΣΩΪΫΌΎΏ; "
             "абвяѐёџѡҁґңҋҿӂӎӏӑԯ -> АБВЯЀЁЏѠҀҐҢҊҾӁӍӀӐԮ; \u0482\u0487 -> "
             "\u0482\u0487; 日本 a\xE9z \xE2\x82z -> 日本 A\xE9Z \xE2\x82Z")) {
        EXPECT_EQ(upper(c[0]), c[1]);
        EXPECT_EQ(upper(c[1]), c[1]);
        upperInto(out, c[0]);
        appendUpper(out, c[0]);
        EXPECT_EQ(out, c[1] + c[1]);
    }
    // Every character is as long as its upper case, which takes its place among others, and is left by it.
    for (char32_t c = 0x80; c < 0x110000; c += c < 0x3000 ? 1 : 0x101) {
        std::string text = "a";
        appendCodePoint(text, c);
        const std::string wanted = upper(text += "b");
        std::size_t offset = 1;
        ASSERT_EQ(nextCodePoint(text, offset), c);
        EXPECT_EQ(text.size() - 2, c < 0x800 ? 2U : c < 0x10000 ? 3U : 4U) << text;
        EXPECT_TRUE(offset == text.size() - 1 && wanted.size() == text.size() && length(wanted) == 3) << text;
        EXPECT_EQ(upper(wanted), wanted);
    }
}

TEST(Text, ComparesAsUpperCased) {
    const char* rising[] = {"", "1", "a", "AA", "ab", "B", "_", "é", "Ж", "日", "😀", "\xE9"};
    for (std::size_t i = 0; i < std::size(rising); ++i)
        for (std::size_t j = 0; j < std::size(rising); ++j) {
            SCOPED_TRACE(std::string(rising[i]) + " and " + rising[j]);
            EXPECT_EQ(compareNoCase(rising[i], upper(rising[j])), i < j ? -1 : i > j ? 1 : 0);
            EXPECT_EQ(equalsNoCase(upper(rising[i]), rising[j]), i == j);
        }
    EXPECT_TRUE(equalsNoCase("Größe ÿ", "GRÖßE Ÿ") && !equalsNoCase("Größe", "GROSSE"));
}

TEST(Text, CutsByCharacters) {
    const std::string all = "aé日😀z";
    const std::size_t offsets[] = {0, 1, 3, 6, 10, 11, 11}; // of the characters
    for (std::size_t n = 0; n < std::size(offsets); ++n) {
        EXPECT_EQ(left(all, n), all.substr(0, offsets[n]));
        EXPECT_EQ(right(all, n), n > 5 ? all : all.substr(offsets[5 - n]));
        for (std::size_t end = n; end < std::size(offsets); ++end)
            EXPECT_EQ(mid(all, n + 1, end - n), all.substr(offsets[n], offsets[end] - offsets[n]));
    }
    EXPECT_EQ(mid(all, 0, 3), "");
    // A stray byte is a character.
    expectEach("0 -> ; 1 -> \xE9; 2 -> a\xC3|\xE2\x82|\x80\x80|\xFF\xFE|\xC0\x80|\xC1\x80|\xF5\x80; 3 -> "
               "\xE2\x82z|\xF0\x9F\x98|\xE2\xFF\x82; 5 -> \xF0\x9F\x98 é; 12 -> eight by\xE9tes; 1 -> "
               "\xC2\x80|\xDF\xBF|\xE0\xA0\x80|\xEF\xBF\xBF|\xF0\x90\x80\x80|\xF4\x8F\xBF\xBF",
               [](const std::string& text) {
                   EXPECT_EQ(right(text, length(text)), text);
                   EXPECT_EQ(std::string(left(text, 1)) + std::string(mid(text, 2, 99)), text);
                   return std::to_string(length(text));
               });
    for (std::size_t ascii = 0; ascii < 20; ++ascii) {
        std::string text(ascii, '\x7F');
        EXPECT_EQ(asciiLength(text), ascii);
        EXPECT_EQ(asciiLength(text += "\x80 and what follows"), ascii);
    }
}

TEST(Text, TrimsSplitsAndReplaces) {
    // Blanks alone are trimmed.
    for (const auto& c : table(
             "  a b  -> a b -> a b  ->   a b; \ta\n\u00A0 -> \ta\n\u00A0 -> \ta\n\u00A0 -> \ta\n\u00A0;    ",
             4))
        EXPECT_EQ(c, (std::vector{c[0], std::string(trim(c[0])), std::string(ltrim(c[0])),
                                  std::string(rtrim(c[0]))}));
    for (const auto& c : table("a.b.c -> . -> .. -> a..b..c; aaa -> aa -> b -> ba; abc -> x -> y -> abc; abc "
                               "->  -> y -> abc; abab -> ab;  -> a -> b",
                               4))
        EXPECT_EQ(replaceAll(c[0], c[1], c[2]), c[3]);
    EXPECT_EQ(split("", '@'), std::vector<std::string_view>{""});
    EXPECT_EQ(split("1@@3@", '@'), (std::vector<std::string_view>{"1", "", "3", ""}));
}

TEST(Encoding, KnowsTheCharactersOfTheCodePage) {
    for (const auto& c :
         table("plain \t\r\n -> plain \t\r\n; \x80 5 -> € 5; \x93smart\x94 \x96 it\x92s\x85 -> “smart” – "
               "it’s…; \x8A\x8C\x8E\x9A\x9C\x9E\x9F\x99 -> ŠŒŽšœžŸ™; \xA0\xBF\xD7\xDF\xE9\xFF -> "
               "\u00A0¿×ßéÿ; \x81\x8D\x8F\x90\x9D -> \u0081\u008D\u008F\u0090\u009D")) {
        EXPECT_EQ(fromWindows1252(c[0]), c[1]);
        EXPECT_EQ(toWindows1252(c[1]), c[0]);
    }
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
    EXPECT_EQ(length(fromWindows1252(all)), 256U);
    EXPECT_EQ(toWindows1252(fromWindows1252(all)), all);
    for (const std::string_view text : split("Ā|a long ascii head Ж|日本|😀|\u0080|\u0085|\uFEFFa", '|'))
        EXPECT_EQ(toWindows1252(text), std::nullopt) << text;
}

TEST(Encoding, SeesAndRepairsWhatIsNoUtf8) {
    // Among the rest overlong characters, half a surrogate pair, and what lies beyond the last character.
    expectEach(
        " -> ; ok é日😀\uFFFD\U0010FFFF -> ok é日😀\uFFFD\U0010FFFF; a\uFFFDz -> a\xE9z; \uFFFD -> \x80; cut "
        "\uFFFD\uFFFD -> cut \xE2\x82; \uFFFD\uFFFDz -> \xE2\x82z; \uFFFD\uFFFD -> \xC0\x80|\xF5\x80; "
        "\uFFFD. -> \xE0\x80\x80.|\xED\xA0\x80.|\xED\xBF\xBF.|\xF0\x8F\xBF\xBF.|\xF4\x90\x80\x80.; "
        "\u0800\uD7FF\uE000\U00010000 -> \u0800\uD7FF\uE000\U00010000",
        [](const std::string& bytes) {
            EXPECT_EQ(sanitizeUtf8(sanitizeUtf8(bytes)), sanitizeUtf8(bytes));
            return sanitizeUtf8(bytes);
        });
    for (const char* marked : {"\xEF\xBB\xBF", "\xEF\xBB\xBF abc"}) EXPECT_TRUE(hasUtf8Mark(marked));
    for (const char* bytes : {"", "\xEF\xBB", "abc", " \xEF\xBB\xBF"}) EXPECT_FALSE(hasUtf8Mark(bytes));
    EXPECT_TRUE(isAscii("all \x7F of it") && !isAscii("not \x80 it"));
}

} // namespace
