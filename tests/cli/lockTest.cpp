#include "fwkProgram.h"
#include "platform/headlessPlatform.h"

#include <stdexcept>

namespace {

// What standard input says.
class Locks : public FwkTest {
protected:
    Outcome runWith(const std::string& input, const std::string& line) const {
        const std::filesystem::path typed = program.platform.folder / "typed";
        ScriptedPlatform::write(typed, input);
        if (std::freopen(typed.c_str(), "r", stdin) == nullptr) throw std::runtime_error("no input");
        return run(line);
    }
};

TEST_F(Locks, lockAndUnlock) {
    copyOf("books.fwk", "a.fwk");
    const std::string open = dataFileOf("a.fwk");
    const auto refuse = [&](const char* input, const char* line, const std::string& error) {
        const auto before = state();
        const Outcome outcome = runWith(input, line);
        EXPECT_EQ(outcome.code, 1) << line;
        EXPECT_EQ(outcome.err, error);
        EXPECT_TRUE(state() == before) << line;
    };
    refuse("x\n", "unlock a.fwk", "fwk: a.fwk: its design is not locked\n");
    refuse("", "lock a.fwk", "fwk: a.fwk: there is no password on standard input\n");
    refuse("  \n", "lock a.fwk", "fwk: a.fwk: there is no password on standard input\n");
    refuse("\xFF\n", "lock a.fwk", "fwk: a.fwk: the password is not UTF-8\n");
    for (const char* line : {"lock a.fwk", "lock a.fwk --yes"}) {
        const Outcome locked = runWith("zc \xC3\xA9\r\nmore\n", line);
        EXPECT_EQ(locked.code, 0) << locked.err;
        EXPECT_EQ(locked.err, "Ferrowick: Database Locked.\n");
        EXPECT_NE(dataFileOf("a.fwk").find("[Lock          ]\r\nN\x9D\r\n"), std::string::npos)
            << "as the bytes of the file";
        EXPECT_NE(outputOf("info a.fwk --json").find("\"locked\": true"), std::string::npos);
        refuse("x", "lock a.fwk", "fwk: a.fwk: its design is locked already\n");
        refuse("ZC \xC3\xA9", "unlock a.fwk",
               "Ferrowick: Incorrect Password.\nfwk: a.fwk: its design stays locked\n");
        EXPECT_EQ(runWith("zc \xC3\xA9", "unlock a.fwk").err, "");
        EXPECT_EQ(dataFileOf("a.fwk"), open);
    }
}

TEST_F(Locks, clean) {
    make("a.fwk", DataFile{}.text(), {"old.jpg", "Bolt.JPG", "old.gif"});
    EXPECT_EQ(outputOf("update a.fwk i1 Name=bolt.jpg"), "");
    EXPECT_EQ(outputOf("clean a.fwk"), "old.jpg\n");
    const auto before = state();
    EXPECT_EQ(outputOf("clean a.fwk"), "");
    EXPECT_TRUE(state() == before);
    std::filesystem::resize_file(path("a.fwk"), 100);
    EXPECT_EQ(run("clean a.fwk").code, 1);
}

TEST(HeadlessPlatform, tellsAMessageInOneLine) {
    std::ostringstream messages;
    platform::HeadlessPlatform machine(messages);
    machine.msgBox("one\r\ntwo\nthree\r", platform::Icon::None, "Title", platform::Buttons::Ok);
    EXPECT_EQ(messages.str(), "Title: one two three \n");
}

} // namespace
