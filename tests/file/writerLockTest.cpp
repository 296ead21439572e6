#include "file/writerLock.h"
#include "folderFixture.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using file::WriterLock;
using std::chrono::milliseconds;

namespace {

struct Locking : FolderTest {
    Locking() { writeBytes(database, "records"); }

    [[nodiscard]] static std::string name(WriterLock::Result result) {
        constexpr const char* names[] = {"taken", "held", "elsewhere", "impossible", "obstructed"};
        return names[static_cast<int>(result)];
    }
    [[nodiscard]] static std::string take(const fs::path& file,
                                          WriterLock::Force force = WriterLock::Force::No, int wait = 0) {
        return name(WriterLock::take(file, force, milliseconds(wait)).result);
    }
    // Another process; its exit code is what the act answers. A lock that it holds stays behind.
    [[nodiscard]] static pid_t start(const std::function<int()>& act) {
        const pid_t child = ::fork();
        if (child == 0) ::_exit(act());
        return child;
    }
    [[nodiscard]] static int finish(pid_t child) {
        int status = -1;
        ::waitpid(child, &status, 0);
        return WEXITSTATUS(status);
    }
    // The shell's acts in the folder, where $L is the lock and $H this machine.
    void act(const std::string& acts) const {
        const std::string line = "cd " + folder.string() + " && L='.~lock.a.fwk#' H=$(uname -n) && " + acts;
        EXPECT_EQ(std::system(line.c_str()), 0) << acts;
    }

    fs::path database = folder / "a.fwk";
};

TEST_F(Locking, OneHoldsItAndTheOthersAreToldWho) {
    const mode_t mask = ::umask(0077);
    auto first = WriterLock::take(database);
    ::umask(mask);
    ASSERT_TRUE(first.lock && first.lock->isStillHeld());
    EXPECT_EQ(fs::status(first.path).permissions(), fs::perms(0644));
    auto second = WriterLock::take(database, WriterLock::Force::Yes);
    EXPECT_EQ(name(second.result) + " " + std::to_string(second.owner.process),
              "held " + std::to_string(::getpid()));
    EXPECT_FALSE(readBytes(first.path).empty()); // to open and close it gives no lock back
    WriterLock moved = std::move(*first.lock);
    first.lock.reset();
    act("ln -s a.fwk link.fwk");
    EXPECT_EQ(take(folder / "link.fwk") + take(folder / "b.fwk"), "heldtaken");
    std::thread later([&] {
        std::this_thread::sleep_for(milliseconds(60));
        moved.release();
    });
    EXPECT_EQ(take(database, WriterLock::Force::No, 20), "held");
    EXPECT_EQ(take(database, WriterLock::Force::No, 9999), "taken");
    later.join();
    EXPECT_EQ(tree(), "a.fwk link.fwk@ ");
    first = WriterLock::take(database);
    fs::remove(first.path);
    second.lock = WriterLock::take(database).lock;
    EXPECT_FALSE(first.lock->isStillHeld());
    first.lock->release();
    EXPECT_TRUE(second.lock->isStillHeld());
}

// What lies there, and how it ends without force and with it. No link is followed, and no other file written.
TEST_F(Locking, WhatLiesInTheLocksPlace) {
    for (const auto& each :
         table("printf ann,$H,1,now >$L -> elsewhere -> taken; "
               "printf 'ann,%s,1,now;' $H >$L -> taken -> taken; : >$L -> taken -> taken; "
               "printf 'ann,else,1,now;' >$L -> elsewhere -> taken; "
               "head -c 9999 /dev/zero >$L -> elsewhere -> taken; "
               "echo own >b && ln b $L -> elsewhere -> taken; "
               "ln -s a.fwk $L -> obstructed -> obstructed; "
               "ln -s nothing $L -> obstructed -> obstructed; "
               "mkdir $L -> obstructed -> obstructed; mkfifo $L -> obstructed -> obstructed",
               3)) {
        act("rm -rf $L b && " + each[0]);
        EXPECT_EQ(take(database), each[1]) << each[0];
        act("rm -rf $L b && " + each[0]);
        EXPECT_EQ(take(database, WriterLock::Force::Yes), each[2]) << each[0];
        act("[ \"$(cat a.fwk)\" = records ] && [ ! -e nothing ] && [ ! -e b -o -s b ]");
    }
    act("ln -s circle circle");
    EXPECT_EQ(take(folder / "circle") + take(folder / "none" / "a.fwk"), "impossibleimpossible");
    EXPECT_EQ(take(folder / std::string(255, 'x')), "taken");
}

// Who may neither write a folder nor another user's lock file.
TEST_F(Locking, OfOtherUsers) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be another user";
    const auto asNobody = [&] {
        return name(static_cast<WriterLock::Result>(finish(start([&] {
            return ::setuid(65534) == 0 ? static_cast<int>(WriterLock::take(database).result) : 99;
        }))));
    };
    act("chmod 755 .");
    EXPECT_EQ(asNobody(), "impossible");
    auto taken = WriterLock::take(database);
    act("chmod 777 .");
    EXPECT_EQ(asNobody(), "held");
    EXPECT_TRUE(taken.lock->isStillHeld());
    taken.lock.reset();
    for (const auto& each :
         table("chmod 777 . -> taken; chmod 1777 . -> obstructed; chmod 600 $L -> obstructed")) {
        (void)finish(start([&] {
            const auto kept = WriterLock::take(database);
            ::_exit(0);
            return 0;
        }));
        act(each[0]);
        EXPECT_EQ(asNobody(), each[1]) << each[0];
    }
}

// A third of them end with the lock in their hands. Two at once would see each other's mark.
TEST_F(Locking, ManyProcessesAndNeverTwoAtOnce) {
    std::vector<pid_t> children(120);
    for (pid_t& child : children)
        child = start([&, isKilled = (&child - children.data()) % 3 == 0] {
            auto taken = WriterLock::take(database, WriterLock::Force::No, milliseconds(60000));
            if (!taken.lock || ::mkdir((folder / "mark").c_str(), 0700) != 0) return 1;
            std::this_thread::sleep_for(std::chrono::microseconds(300));
            fs::remove(folder / "mark");
            if (!isKilled) taken.lock->release();
            return 0;
        });
    for (const pid_t child : children) EXPECT_EQ(finish(child), 0);
}

TEST(LockLine, IsOneLineWhateverTheNames) {
    const std::string line =
        file::lockLine({"O'Neil, \"Ann\";\n%2C", "desk\x1b[2J", 4711, "2026-03-14T09:26:53Z"});
    EXPECT_EQ(line, "O'Neil%2C \"Ann\"%3B%0A%252C,desk%1B[2J,4711,2026-03-14T09:26:53Z;\n");
    EXPECT_EQ(file::readLockLine(line).text(),
              "O'Neil, \"Ann\"; %2C on desk [2J (process 4711) since 2026-03-14 09:26:53 UTC");
    for (const char* wrong : {"", ";", "a,b,1;", "a,b,1,d", "a,b,c,d;", "a,b,0,d;", "a,b,-1,d;", "a,b,1,d,e;",
                              "a,b,99999999999999999999,d;", "a,,1,d;"})
        EXPECT_EQ(file::readLockLine(wrong).text(), "another program") << wrong;
    EXPECT_EQ(file::readLockLine("a%,%b%4,1,%2;").machine, "%b%4");
}

} // namespace
