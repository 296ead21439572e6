#include "core/encoding.h"
#include "readings.h"

using namespace core;

namespace {

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
