#include "fwkProgram.h"

#include <chrono>
#include <csignal>
#include <thread>

namespace {

using std::chrono::steady_clock;

constexpr const char* large = "packages-32000.fwk";

TEST_F(FwkTest, AKillAtAnyMomentLeavesAWholeFile) {
    constexpr int kills = 12;
    copyOf(large, "a.fwk");
    const std::string old = dataFileOf("a.fwk");
    const auto begin = steady_clock::now();
    ASSERT_EQ(run("sort a.fwk Bytes").code, 0);
    const auto duration = steady_clock::now() - begin;
    const std::string sorted = dataFileOf("a.fwk");
    ASSERT_NE(old, sorted);

    int killed = 0, replaced = 0;
    for (int i = 0; i < kills; ++i) {
        copyOf(large, "a.fwk");
        const pid_t child = start({"sort", "a.fwk", "Bytes"});
        // From where it has read the file to a little beyond its end: most of the writing is at the end.
        std::this_thread::sleep_for(duration * (kills / 2 + i) / (kills + kills / 2 - 3));
        ::kill(child, SIGKILL);
        killed += finish(child).signal == SIGKILL ? 1 : 0;
        const std::string found = dataFileOf("a.fwk"); // raises when the archive is not whole
        EXPECT_TRUE(found == old || found == sorted) << "kill " << i;
        replaced += found == sorted ? 1 : 0;
    }
    EXPECT_GT(killed, kills / 4) << "the kills came too late to show anything";
    EXPECT_LT(replaced, kills) << "the kills came too late to show anything";
    // A killed writer can leave the file that it wrote beside the database, and nothing else.
    int beside = 0;
    for (const auto& entry : std::filesystem::directory_iterator(files)) {
        const std::string name = entry.path().filename();
        EXPECT_TRUE(name == "a.fwk" || name.front() == '.') << name;
        beside += name.front() == '.' ? 1 : 0;
    }
    EXPECT_LE(beside, killed);
    EXPECT_TRUE(std::filesystem::is_empty(outside / "tmp"));
    ASSERT_EQ(run("sort a.fwk Bytes").code, 0);
    EXPECT_EQ(dataFileOf("a.fwk"), sorted);
}

TEST_F(FwkTest, TwoAtOnceDoNotDisturbEachOther) {
    for (const char* name : {"a.fwk", "b.fwk", "expected.fwk"}) copyOf(large, name);
    ASSERT_EQ(run("sort expected.fwk Package").code, 0);
    const pid_t first = start({"sort", "a.fwk", "Package"}, "first");
    const pid_t second = start({"sort", "b.fwk", "Package"}, "second");
    const pid_t third = start({"sort", "b.fwk", "Package"}, "third"); // the same file: one of them is last
    for (const auto& [child, output] : {std::pair(first, "first"), {second, "second"}, {third, "third"}})
        EXPECT_EQ(finish(child, output).code, 0) << output;
    const std::string expected = dataFileOf("expected.fwk");
    EXPECT_EQ(dataFileOf("a.fwk"), expected);
    EXPECT_EQ(dataFileOf("b.fwk"), expected);
    EXPECT_TRUE(std::filesystem::is_empty(outside / "tmp"));
}

} // namespace
