#include "file/writerLock.h"

#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using file::LockOwner;
using file::WriterLock;
using Result = WriterLock::Result;
using std::chrono::milliseconds;

class Locking : public ::testing::Test {
protected:
    Locking() {
        std::string name = (fs::temp_directory_path() / "writerLock.XXXXXX").string();
        folder = ::mkdtemp(name.data());
        database = folder / "books.fwk";
        lock = folder / ".~lock.books.fwk#";
        std::ofstream(database) << "records";
    }
    ~Locking() override {
        fs::permissions(folder, fs::perms::owner_all);
        fs::remove_all(folder);
    }
    // What a process leaves behind that ends, as a kill ends it, with the lock in its hands.
    LockOwner leftOver() const {
        const pid_t child = ::fork();
        if (child == 0) {
            const auto taken = WriterLock::take(database);
            ::_exit(taken.result == Result::Taken ? 0 : 1);
        }
        int status = 1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
        return file::readLockLine(contentOf(lock));
    }
    static std::string contentOf(const fs::path& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    void write(const std::string& text) const { std::ofstream(lock) << text; }
    Result result(WriterLock::Force force = WriterLock::Force::No) const {
        return WriterLock::take(database, force).result;
    }

    fs::path folder, database, lock;
};

TEST_F(Locking, OneHoldsItAndTheOthersAreToldWho) {
    const mode_t mask = ::umask(0077);
    auto first = WriterLock::take(database);
    ::umask(mask);
    ASSERT_EQ(first.result, Result::Taken);
    EXPECT_EQ(fs::status(lock).permissions(), fs::perms(0644));
    const auto second = WriterLock::take(database, WriterLock::Force::Yes);
    EXPECT_EQ(second.result, Result::Held);
    EXPECT_EQ(second.owner.process, ::getpid());
    EXPECT_TRUE(second.owner.isOfThisMachine());
    // A look at the file, as another program may take one, and a lock that has moved: still held.
    EXPECT_FALSE(contentOf(lock).empty());
    WriterLock moved = std::move(*first.lock);
    first.lock.reset();
    fs::create_symlink("books.fwk", folder / "link.fwk");
    EXPECT_EQ(WriterLock::take(folder / "link.fwk").result, Result::Held);
    EXPECT_EQ(WriterLock::take(folder / "other.fwk").result, Result::Taken);

    std::thread later([&] {
        std::this_thread::sleep_for(milliseconds(60));
        moved.release();
    });
    EXPECT_EQ(WriterLock::take(database, WriterLock::Force::No, milliseconds(20)).result, Result::Held);
    EXPECT_EQ(WriterLock::take(database, WriterLock::Force::No, milliseconds(5000)).result, Result::Taken);
    later.join();
    EXPECT_FALSE(fs::exists(lock));
}

TEST_F(Locking, WhatIsLeftOverOfThisMachineGoesInSilence) {
    const LockOwner dead = leftOver();
    EXPECT_TRUE(dead.isKnown());
    auto taken = WriterLock::take(database);
    ASSERT_EQ(taken.result, Result::Taken);
    EXPECT_EQ(file::readLockLine(contentOf(lock)).process, ::getpid());
    // A process number that is in use again says nothing: nobody has the file locked.
    taken.lock.reset();
    LockOwner reused = LockOwner::thisProcess();
    reused.process = 1;
    write(file::lockLine(reused));
    EXPECT_EQ(result(), Result::Taken);
    // Ended between making the file and writing into it.
    write("");
    EXPECT_EQ(result(), Result::Taken);
    // Read-only, as another user's.
    write(file::lockLine(dead));
    fs::permissions(lock, fs::perms(0444));
    EXPECT_EQ(result(), Result::Taken);
    EXPECT_FALSE(fs::exists(lock));
}

TEST_F(Locking, AnotherMachineIsAskedAbout) {
    LockOwner other = LockOwner::thisProcess();
    other.machine += "-other";
    for (const std::string& content : {file::lockLine(other), std::string("a page of something else"),
                                       "x,y,1,now;" + std::string(1 << 20, 'x'), std::string(1 << 20, 'x')}) {
        write(content);
        const auto held = WriterLock::take(database);
        EXPECT_EQ(held.result, Result::HeldElsewhere);
        EXPECT_EQ(contentOf(lock), content);
    }
    write(file::lockLine(other));
    EXPECT_EQ(WriterLock::take(database).owner.machine, other.machine);
    EXPECT_EQ(result(WriterLock::Force::Yes), Result::Taken);
}

// What is in the lock's place is never followed, written into, or removed for a link or a folder.
TEST_F(Locking, NothingThatIsNoLockIsTouched) {
    const fs::path victim = folder / "victim";
    std::ofstream(victim) << "";
    fs::create_symlink(victim, lock);
    EXPECT_EQ(result(WriterLock::Force::Yes), Result::Obstructed);
    fs::remove(lock);
    fs::create_symlink(folder / "nothing", lock);
    EXPECT_EQ(result(), Result::Obstructed);
    EXPECT_FALSE(fs::exists(folder / "nothing"));
    fs::remove(lock);
    fs::create_directory(lock);
    EXPECT_EQ(result(), Result::Obstructed);
    fs::remove(lock);
    ::mkfifo(lock.c_str(), 0600);
    EXPECT_EQ(result(), Result::Obstructed);
    fs::remove(lock);
    std::ofstream(victim) << "of the user's own";
    fs::create_hard_link(victim, lock);
    EXPECT_EQ(result(WriterLock::Force::Yes), Result::Taken);
    EXPECT_EQ(contentOf(victim), "of the user's own");
}

TEST_F(Locking, NoLockIsPossible) {
    EXPECT_EQ(WriterLock::take(folder / "nowhere" / "a.fwk").result, Result::Impossible);
    fs::create_symlink("circle.fwk", folder / "circle.fwk");
    EXPECT_EQ(WriterLock::take(folder / "circle.fwk").result, Result::Impossible);
    // The longest name that a file may have still has a lock.
    EXPECT_EQ(WriterLock::take(folder / (std::string(251, 'x') + ".fwk")).result, Result::Taken);
    if (::geteuid() == 0) GTEST_SKIP() << "the superuser may write anywhere";
    fs::permissions(folder, fs::perms(0500));
    EXPECT_EQ(result(), Result::Impossible);
}

// Its lock file can be read, but not opened for writing.
TEST_F(Locking, AnotherUsersLock) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be another user";
    fs::permissions(folder, fs::perms(0777));
    const auto asNobody = [&] {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(::setuid(65534) == 0 ? static_cast<int>(WriterLock::take(database).result) : 99);
        int status = 0;
        ::waitpid(child, &status, 0);
        return static_cast<Result>(WEXITSTATUS(status));
    };
    auto taken = WriterLock::take(database);
    EXPECT_EQ(asNobody(), Result::Held);
    EXPECT_TRUE(taken.lock->isStillHeld());
    taken.lock.reset();
    (void)leftOver();
    EXPECT_EQ(asNobody(), Result::Taken);
    fs::permissions(folder, fs::perms(01777)); // in which nobody removes another's file
    fs::remove(lock);
    (void)leftOver();
    EXPECT_EQ(asNobody(), Result::Obstructed);
    fs::permissions(lock, fs::perms(0600));
    EXPECT_EQ(asNobody(), Result::Obstructed);
}

TEST_F(Locking, AForcedOneIsNoLongerTheFirstOwners) {
    auto first = WriterLock::take(database);
    EXPECT_TRUE(first.lock->isStillHeld());
    fs::remove(lock);
    EXPECT_FALSE(first.lock->isStillHeld());
    const auto second = WriterLock::take(database);
    EXPECT_EQ(second.result, Result::Taken);
    first.lock->release();
    EXPECT_TRUE(second.lock->isStillHeld());
}

// Some are killed with the lock in their hands. Two at once would see each other's mark.
TEST_F(Locking, ManyProcessesAndNeverTwoAtOnce) {
    const fs::path mark = folder / "mark";
    std::vector<pid_t> children;
    for (int child = 0; child < 4; ++child) {
        const pid_t process = ::fork();
        if (process != 0) {
            children.push_back(process);
            continue;
        }
        for (int round = 0; round < 100; ++round) {
            const pid_t inner = ::fork();
            if (inner == 0) {
                auto taken = WriterLock::take(database, WriterLock::Force::No, milliseconds(30000));
                const int own = ::open(mark.c_str(), O_CREAT | O_EXCL | O_WRONLY, 0600);
                if (taken.result != Result::Taken || own < 0) ::_exit(1);
                std::this_thread::sleep_for(std::chrono::microseconds(200));
                ::unlink(mark.c_str());
                if (round % 3 == 0) taken.lock->release();
                ::_exit(0);
            }
            int status = 1;
            ::waitpid(inner, &status, 0);
            if (status != 0) ::_exit(1);
        }
        ::_exit(0);
    }
    for (const pid_t child : children) {
        int status = 1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
}

TEST(LockLine, IsOneLineWhateverTheNames) {
    const LockOwner odd{"O'Neil, \"Ann\";\n%2C", "desk\x1b[2J", 4711, "2026-03-14T09:26:53Z"};
    const std::string line = file::lockLine(odd);
    EXPECT_EQ(std::ranges::count(line, ','), 3);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    const LockOwner read = file::readLockLine(line);
    EXPECT_EQ(read.user, "O'Neil, \"Ann\"; %2C");
    EXPECT_EQ(read.machine, "desk [2J");
    EXPECT_EQ(file::readLockLine("ann,desk,4711,2026-03-14T09:26:53Z;").text(),
              "ann on desk (process 4711) since 2026-03-14 09:26:53 UTC");
    for (const char* wrong : {"", ";", "ann,desk,4711;", "ann,desk,4711,now", "a,b,c,d;", "a,b,0,d;",
                              "a,b,-1,d;", "a,b,1,d,e;", "a,b,99999999999999999999,d;", "a,,1,d;"})
        EXPECT_FALSE(file::readLockLine(wrong).isKnown()) << wrong;
    EXPECT_EQ(file::readLockLine("a%,b%4,1%;").text(), LockOwner().text());
}

} // namespace
