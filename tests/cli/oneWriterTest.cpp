#include "core/text.h"
#include "file/writerLock.h"
#include "fwkProgram.h"

#include <sys/stat.h>
#include <thread>

namespace {

struct OneWriter : FwkTest {
    OneWriter() {
        make("a.fwk", DataFile("Name:3 No:4 Sum:5", "Bolt|12|;Nut|7|").section("Formulas", "Sum,No + 1|"));
        make("b.fwk", DataFile("Name:3", "Nut"));
    }
};

TEST_F(OneWriter, IsNamedToTheOthersWhoChangeNothing) {
    ScriptedPlatform::write(path(".~lock.a.fwk#"), "ann,desk%2C2,4711,2026-03-14T09:26:53Z;\n");
    FolderWatch watch(files);
    for (const char* writes : {"add a.fwk Name=Saw",
                               "update a.fwk i1 No=1",
                               "delete a.fwk i1",
                               "duplicate a.fwk i1 2",
                               "sort a.fwk Name",
                               "replace a.fwk Bolt Nut",
                               "column add a.fwk B:Text",
                               "column rename a.fwk No B",
                               "serial a.fwk No 1",
                               "column remove a.fwk No --yes",
                               "expression a.fwk Sum 'No + 2'",
                               "total a.fwk No",
                               "recalculate a.fwk",
                               "lock a.fwk",
                               "unlock a.fwk",
                               "clean a.fwk",
                               "import a.fwk b.csv",
                               "new a.fwk B:Text --yes",
                               "save-as b.fwk a.fwk --yes",
                               "save-as a.fwk a.fwk",
                               "clone b.fwk a.fwk --yes",
                               "search b.fwk --where Name is Nut -o a.fwk --yes"}) {
        const Outcome outcome = run("printf 'Name\\nSaw\\n' | fwk " +
                                    core::replaceAll(writes, "b.csv", "/dev/stdin") + " --wait 0");
        EXPECT_EQ(outcome.err,
                  "fwk: a.fwk: it is being changed by ann on desk,2 (process 4711) since 2026-03-14 "
                  "09:26:53 UTC; if that is over, remove .~lock.a.fwk#\n")
            << writes;
        EXPECT_EQ(outcome.code, 1);
    }
    EXPECT_EQ(watch.changes(), "");
    expect(R"sh(
$ fwk records a.fwk --csv -> Name,No,Sum // Bolt,12, // Nut,7, && $ fwk expression a.fwk Sum -> No + 1
$1 fwk save-as b.fwk a.fwk -> ! a.fwk: it exists already, --yes overwrites it
$ rm .~lock.a.fwk#; mkdir .~lock.a.fwk# -> -ann,desk%2C2,4711,2026-03-14T09:26:53Z;
$1 fwk add a.fwk -> ! it cannot be locked: .~lock.a.fwk# is in the way (Is a directory)
)sh");
}

TEST_F(OneWriter, IsWaitedForAsLongAsIsTold) {
    auto taken = file::WriterLock::take(path("a.fwk"));
    EXPECT_EQ(run("timeout 3 fwk add a.fwk --wait 0.3 2>&1 | grep -c ' by .* on .* since '").out, "1\n");
    const pid_t waiting = start("fwk add a.fwk Name=Saw");
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    taken.lock.reset();
    EXPECT_EQ(finish(waiting).out, "i3\n");
    EXPECT_EQ(run("for s in x '' -1 1e9 nan inf 5s 0x5 1,5; do fwk add a.fwk --wait=$s 2>&-; echo $?; done | "
                  "uniq; ls -A")
                  .out,
              "2\na.fwk\nb.fwk\n");
}

// The password is asked for when the file has been read.
TEST_F(OneWriter, DoesNotOverwriteWhatAnotherProgramHasWritten) {
    const auto meanwhile = [&](const std::string& act) {
        return run(
            "mkfifo typed; fwk lock a.fwk <typed & exec 3>typed\n"
            "until [ -e .~lock.a.fwk# ] && grep -q ') S ' /proc/$!/stat; do sleep .01; done; sleep .1\n" +
            act + "; echo secret >&3; wait $!; echo $?; rm typed; ls -A");
    };
    EXPECT_EQ(meanwhile("touch -d tomorrow a.fwk; cp -p a.fwk c; mv c a.fwk").out, "0\na.fwk\nb.fwk\n");
    EXPECT_EQ(run("echo secret | fwk unlock a.fwk").code, 0);
    const Outcome changed = meanwhile("cp b.fwk a.fwk");
    EXPECT_TRUE(changed.err.ends_with("fwk: a.fwk: it was changed by another program meanwhile\n"))
        << changed.err;
    EXPECT_EQ(changed.out, "1\na.fwk\nb.fwk\n");
    EXPECT_EQ(dataFileOf("a.fwk"), dataFileOf("b.fwk"));
    EXPECT_EQ(meanwhile("kill $!").out, "143\na.fwk\nb.fwk\n");
}

TEST_F(OneWriter, NewFilesAreAsPrivateAsTheDatabase) {
    for (const char* makes : {"save-as a.fwk new --yes", "clone a.fwk new --yes", "export a.fwk -o new.json",
                              "search a.fwk --where Name is Nut -o new --yes", "report a.fwk -o new.pdf"})
        EXPECT_EQ(run("umask 022; for m in 600 640 664 440; do chmod $m a.fwk; for i in 1 2; do fwk " +
                      std::string(makes) + "; stat -c %a new*; chmod 606 new*; done; rm new*; done")
                      .out,
                  "600\n606\n640\n606\n664\n606\n640\n606\n")
            << makes;
    EXPECT_EQ(run("umask 022; fwk new c.fwk A:Text; stat -c %a c.fwk").out, "644\n");
}

} // namespace
