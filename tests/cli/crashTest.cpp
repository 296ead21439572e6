#include "fwkProgram.h"

#include <csignal>
#include <thread>

namespace {

constexpr const char* large = "packages-32000.fwk";

class Crash : public FwkTest {
protected:
    // The bytes of the new file beside the database; -1 while there is none.
    std::intmax_t bytesBeside() const {
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(files))
            if (entry.path().filename().string().starts_with(".a.fwk."))
                return static_cast<std::intmax_t>(entry.file_size(error));
        return -1;
    }
    static bool isRunning(pid_t child) {
        siginfo_t info{};
        return ::waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
               info.si_pid == 0;
    }
};

TEST_F(Crash, AKillAtAnyMomentLeavesAWholeFile) {
    copyOf(large, "a.fwk");
    const std::string old = dataFileOf("a.fwk");
    ASSERT_EQ(run("fwk sort a.fwk Bytes").code, 0);
    const std::string sorted = dataFileOf("a.fwk");
    ASSERT_NE(old, sorted);
    int killed = 0;
    for (const std::intmax_t moment : {-1, 0, 1, 100'000, 400'000, 100'000'000}) {
        copyOf(large, "a.fwk");
        const pid_t child = start("exec fwk sort a.fwk Bytes");
        while (bytesBeside() < moment && isRunning(child)) std::this_thread::yield();
        ::kill(child, SIGKILL);
        const bool early = finish(child).code == 128 + SIGKILL;
        killed += early ? 1 : 0;
        const std::string found = dataFileOf("a.fwk"); // raises when the archive is not whole
        EXPECT_TRUE(found == sorted || (early && found == old)) << moment;
        // A killed writer can leave the file that it wrote beside the database and its lock, and nothing
        // else.
        EXPECT_EQ(run("rm -f .a.fwk.* .~lock.a.fwk#; ls -A . ../home/tmp").out, ".:\na.fwk\n\n../home/tmp:\n")
            << moment;
    }
    EXPECT_GE(killed, 3) << "the kills came too late to show anything";
}

TEST_F(Crash, TwoAtOnceDoNotDisturbEachOther) {
    for (const char* name : {"a.fwk", "b.fwk", "expected.fwk"}) copyOf(large, name);
    const char* sorts =
        "fwk sort expected.fwk Package; for f in a b a; do fwk sort $f.fwk Package & done; wait";
    EXPECT_EQ(run(sorts).err, "");
    for (const char* name : {"a.fwk", "b.fwk"}) EXPECT_EQ(dataFileOf(name), dataFileOf("expected.fwk"));
}

} // namespace
