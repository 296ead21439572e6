#include "file/writerLock.h"
#include "folderFixture.h"
#include "transcript.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using file::WriterLock;

namespace {

// "take ann a" and "force ann a" are acts, which end what she had before; "nobody" is another user. All
// others are the shell's, where $L is the lock of "a" and $H this machine. Behind what comes of it stand who
// holds one and all files.
struct Locking : FolderTest {
    std::map<std::string, std::optional<WriterLock>> locks;

    std::string play(const std::string& line) {
        std::istringstream words(line);
        std::string verb, who, file, told = "$ " + line + "\n";
        words >> verb >> who >> file;
        if (verb != "take" && verb != "force") {
            const std::string begin = "cd " + folder.string() + " && L='.~lock.a#' H=$(uname -n) && ";
            EXPECT_EQ(std::system((begin + line).c_str()), 0) << line;
            return told;
        }
        const mode_t mask = ::umask(0077);
        EXPECT_EQ(::seteuid(who == "nobody" ? 65534 : ::getuid()), 0);
        auto outcome = WriterLock::take(folder / file, static_cast<WriterLock::Force>(verb == "force"));
        EXPECT_EQ(::seteuid(::getuid()), 0);
        ::umask(mask);
        locks[who] = std::move(outcome.lock);
        constexpr const char* names[] = {"taken", "held", "elsewhere", "impossible", "obstructed"};
        told += names[static_cast<int>(outcome.result)];
        told += outcome.owner.process == ::getpid() ? " by us" : "";
        for (const auto& [name, lock] : locks) told += lock && lock->isStillHeld() ? " " + name : "";
        return told + ": " + core::replaceAll(core::rtrim(tree()), ".~lock.a#", "L") + "\n";
    }
};

TEST_F(Locking, OneHoldsItAndNothingElseInItsPlaceIsTouched) {
    expectTranscript(R"sh(
$ echo records >a; ln -s a link; ln -s circle circle && $ take ann a -> taken ann: L a circle@ link@
$ force bob a -> held by us ann: L a circle@ link@ && $ take bob link -> held by us ann: L a circle@ link@
$ take bob b -> taken ann bob: L .~lock.b# a circle@ link@ && $ rm $L
$ take bob a -> taken bob: L a circle@ link@ && $ take ann no/a -> impossible bob: L a circle@ link@
$ take ann circle -> impossible bob: L a circle@ link@
# A dead owner's, one that is just being made, another machine's, and what nobody understands.
$ rm $L circle link; printf "ann,$H,1,now;" >$L && $ take ann a -> taken ann: L a
$ rm $L; touch $L && $ take ann a -> taken ann: L a
$ rm $L; printf 'ann,els' >$L && $ take ann a -> taken ann: L a
$ rm $L; head -c 40 /dev/zero >$L && $ take ann a -> taken ann: L a
$ rm $L; echo 'ann,else,1,now;' >$L && $ take ann a -> elsewhere: L a && $ force ann a -> taken ann: L a
$ rm $L; echo own >b; ln b $L && $ take ann a -> elsewhere: L a b && $ force ann a -> taken ann: L a b
$ ln -sf b $L && $ force ann a -> obstructed: L@ a b && $ ln -sf no $L && $ force ann a -> obstructed: L@ a b
$ rm $L; mkdir $L && $ force ann a -> obstructed: L/ a b
$ rmdir $L; mkfifo $L && $ force ann a -> obstructed: L a b && $ [ "$(cat a b | xargs)" = 'records own' ]
)sh",
                     std::bind_front(&Locking::play, this));
}

TEST_F(Locking, OfAnotherUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be another user";
    expectTranscript(R"(
$ touch a; chmod 755 . && $ take nobody a -> impossible: a && $ chmod 777 . && $ take nobody a -> taken nobody: L a
$ rm $L && $ take ann a -> taken ann: L a && $ take nobody a -> held by us ann: L a
$ rm $L; echo "root,$H,1,now;" >$L; chmod 644 $L && $ take nobody a -> taken nobody: L a
$ rm $L; echo "root,$H,1,now;" >$L; chmod 644 $L; chmod 1777 . && $ take nobody a -> obstructed: L a
$ chmod 777 .; chmod 600 $L && $ take nobody a -> obstructed: L a
)",
                     std::bind_front(&Locking::play, this));
}

// Two at once would see each other's mark. At last each ends with the lock in its hands, if it gets it.
TEST_F(Locking, ManyProcessesAndNeverTwoAtOnce) {
    for (int i = 0; i < 8; ++i) {
        for (int tries = ::fork() == 0 ? 1500 : 0; tries > 0; --tries) {
            const auto outcome = WriterLock::take(folder / "a");
            if (outcome.lock && !(fs::create_directory(folder / "mark") && fs::remove(folder / "mark")))
                ::_exit(1);
            if (tries == 1 || (outcome.lock && tries < 100)) ::_exit(0);
        }
    }
    for (int i = 0, status = 0; i < 8; ++i) EXPECT_TRUE(::wait(&status) > 0 && status == 0) << status;
}

TEST(LockLine, IsOneLineWhateverTheNames) {
    const std::string line = file::lockLine({"O'Neil, \"A\";\n%2C", "%b\x1b[2J", 47, "2026-03-14T09:26:53Z"});
    EXPECT_EQ(line, "O'Neil%2C \"A\"%3B%0A%252C,%25b%1B[2J,47,2026-03-14T09:26:53Z;\n");
    EXPECT_EQ(file::readLockLine(line).text(),
              "O'Neil, \"A\"; %2C on %b [2J (process 47) since 2026-03-14 09:26:53 UTC");
    EXPECT_EQ(file::readLockLine(file::lockLine({"me;", "here%", 1, "2026-03-14T09:26:53Z"})).text(),
              "me; on here% (process 1) since 2026-03-14 09:26:53 UTC"); // what is escaped ends the name
    for (const char* wrong : {"", "a,b,1;", "a,b,1,d", "a,b,c,d;", "a,b,0,d;", "a,b,1,d,e;", "a,,1,d;"})
        EXPECT_FALSE(file::readLockLine(wrong).isKnown()) << wrong;
}

} // namespace
