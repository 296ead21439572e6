#include "file/lineReader.h"
#include "raised.h"

#include <gtest/gtest.h>

namespace {

// "a/b/" of a text's lines, and the number of the last one.
std::string told(std::string_view text) {
    file::LineReader reader(text);
    std::string all;
    while (const auto ahead = reader.peek()) {
        const std::string_view line = reader.next();
        EXPECT_EQ(line, *ahead);
        EXPECT_EQ(text.substr(reader.offsetOf(line), line.size()), line);
        all += std::string(line) + "/";
    }
    return all + std::to_string(reader.number());
}

// Which character ends a line is told by the text as a whole, and how often by its first line.
TEST(LineReader, EndsOfLines) {
    const std::pair<const char*, const char*> cases[] = {{"", "0"},
                                                         {"a", "a/1"},
                                                         {"a\nb\n", "a/b/2"},
                                                         {"a\n\nb", "a//b/3"},
                                                         {"a\r\nb\r\n", "a/b/2"},
                                                         {"a\rb\r", "a/b/2"},
                                                         {"a\nx\r\nb\r\n", "a\nx/b/2"},
                                                         {"a\r\r\nb\r\r\n\r\r\nc\r\r\n", "a/b//c/4"},
                                                         {"a\r\r\nb\r\nc\rd", "a/b/c/d/4"},
                                                         {"a\r\nb\r\r\nc", "a/b//c/4"},
                                                         {"\r\n\r\n", "//2"}};
    for (const auto& [text, lines] : cases) EXPECT_EQ(told(text), lines) << testing::PrintToString(text);
    EXPECT_EQ(raisedBy([] { (void)file::LineReader("").next(); }), core::errors::badFileFormat);
}

} // namespace
