#include "fwkProgram.h"

#include <csignal>
#include <thread>

namespace {

struct Crash : FwkTest {
    Crash() { copyOf("packages-32000.fwk", "old.fwk"); }

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
    EXPECT_EQ(run("cp old.fwk sorted.fwk; fwk sort sorted.fwk Bytes").code, 0);
    const std::string old = dataFileOf("old.fwk"), sorted = dataFileOf("sorted.fwk");
    int killed = 0;
    for (const std::intmax_t moment : {-1, 0, 1, 100'000, 400'000, 100'000'000}) {
        EXPECT_EQ(run("cp old.fwk a.fwk").code, 0);
        const pid_t child = start("exec fwk sort a.fwk Bytes");
        while (bytesBeside() < moment && isRunning(child)) std::this_thread::yield();
        ::kill(child, SIGKILL);
        const bool early = finish(child).code == 128 + SIGKILL;
        killed += early ? 1 : 0;
        const std::string found = dataFileOf("a.fwk"); // raises when the archive is not whole
        EXPECT_TRUE((found == sorted && found != old) || (early && found == old)) << moment;
        // A killed writer can leave the file that it wrote beside the database and its lock, and nothing
        // else.
        EXPECT_EQ(run("rm -f .a.fwk.* .~lock.a.fwk#; ls -A . $HOME/tmp | xargs").out,
                  ".: a.fwk old.fwk sorted.fwk " + temporary.string() + ":\n");
    }
    EXPECT_GE(killed, 3) << "the kills came too late to show anything";
}

} // namespace
