#include "fwkProgram.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

class OwnFileTest : public FwkTest {};

// Whatever the database is called there.
TEST_F(OwnFileTest, NoOutputTakesThePlaceOfTheDatabase) {
    copyOf("books.fwk");
    std::filesystem::create_symlink("books.fwk", path("link.fwk"));
    std::filesystem::create_symlink("books.fwk", path("link.csv"));
    const auto before = state();
    std::vector<std::string> lines = {"export books.fwk -o link.csv"};
    if (std::filesystem::exists(std::string(FWK_PROGRAM) + "-print"))
        for (const char* command : {"report", "layouts", "layouts --many"})
            for (const char* output : {"books.fwk", "./books.fwk", "link.fwk"})
                lines.push_back(std::string(command) + " books.fwk -o " + output);
    for (const std::string& line : lines) {
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.code, 1) << line;
        EXPECT_THAT(outcome.err, HasSubstr("is the database itself\n")) << line;
    }
    EXPECT_TRUE(state() == before);
}

// A word of --where may begin like an option.
TEST_F(OwnFileTest, SearchedWordsMayBeginWithAHyphen) {
    outputOf("new words.fwk Name:Text");
    for (const char* name : {"-x", "--long", "-old", "plain"})
        EXPECT_EQ(run({"add", "words.fwk", std::string("Name=") + name}).code, 0);
    struct Case {
        const char* line;
        const char* found; // nothing: the command line is wrong
    };
    constexpr Case cases[] = {
        {"search words.fwk --csv --where Name is -x", "Name\n-x\n"},
        {"search words.fwk --where=Name is --long --csv", "Name\n--long\n"},
        {"search words.fwk --where Name is -old --csv", "Name\n-old\n"}, // not -o ld
        {"search words.fwk --where Name range -x -z --csv",
         "Name\n"}, // its end is looked for in the next column
        {"search words.fwk --where Name within -x --where Name is -x --csv", "Name\n-x\n"},
        {"search words.fwk --where Name is --csv", ""}, // an option
        {"search words.fwk --where Name is -x -y", ""},
        {"search words.fwk --where Name is -x --unknown", ""},
    };
    for (const Case& each : cases) {
        const Outcome outcome = run(each.line);
        EXPECT_EQ(outcome.code, *each.found == '\0' ? 2 : 0) << each.line << outcome.err;
        EXPECT_EQ(outcome.out, each.found) << each.line;
    }
}

} // namespace
