#include "fwkProgram.h"

#include "file/writerLock.h"

#include <sys/stat.h>
#include <thread>

namespace {

using file::WriterLock;

class OneWriter : public FwkTest {
protected:
    void makeShop() const {
        make("a.fwk", DataFile("Name:3 No:4 Sum:5", "Bolt|12|;Nut|7|").section("Formulas", "Sum,No + 1|"));
    }
    std::string heldBy() const {
        return " it is being changed by " + WriterLock::take(path("a.fwk")).owner.text() + "\n";
    }
    unsigned modeOf(const std::string& name) const {
        return static_cast<unsigned>(std::filesystem::status(path(name)).permissions());
    }
};

TEST_F(OneWriter, IsNamedToTheOthersWhoChangeNothing) {
    makeShop();
    std::filesystem::copy_file(path("a.fwk"), path("b.fwk"));
    ScriptedPlatform::write(path("t.csv"), "Name\nSaw\n");
    const auto taken = WriterLock::take(path("a.fwk"));
    const std::string refusal = "fwk: a.fwk:" + heldBy();
    FolderWatch watch(files);
    for (const char* writes : {"add a.fwk Name=Saw",
                               "update a.fwk i1 No=1",
                               "delete a.fwk i1",
                               "duplicate a.fwk i1 2",
                               "sort a.fwk Name",
                               "replace a.fwk Bolt Nut",
                               "column add a.fwk B:Text",
                               "column rename a.fwk No B",
                               "column remove a.fwk No --yes",
                               "expression a.fwk Sum 'No + 2'",
                               "total a.fwk No",
                               "recalculate a.fwk",
                               "serial a.fwk No 1",
                               "lock a.fwk",
                               "unlock a.fwk",
                               "clean a.fwk",
                               "import a.fwk t.csv",
                               "new a.fwk B:Text --yes",
                               "save-as b.fwk a.fwk --yes",
                               "save-as a.fwk a.fwk",
                               "clone b.fwk a.fwk --yes",
                               "search b.fwk --where Name is Nut -o a.fwk --yes"}) {
        const Outcome outcome = run("echo secret | fwk " + std::string(writes) + " --wait 0");
        EXPECT_EQ(outcome.code, 1) << writes;
        EXPECT_EQ(outcome.err, refusal) << writes;
        EXPECT_EQ(outcome.out, "") << writes;
    }
    EXPECT_EQ(watch.changes(), "");
    for (const char* reads :
         {"info a.fwk", "records a.fwk", "check a.fwk", "expression a.fwk Sum", "clone a.fwk c.fwk",
          "save-as a.fwk d.fwk", "search a.fwk --where Name is Nut -o e.fwk", "export a.fwk -o a.csv",
          "report a.fwk -o a.pdf"})
        EXPECT_EQ(run("fwk " + std::string(reads)).code, 0) << reads;
    EXPECT_EQ(run("fwk save-as b.fwk a.fwk").err, "fwk: a.fwk: it exists already, --yes overwrites it\n");
}

TEST_F(OneWriter, IsWaitedForAsLongAsIsTold) {
    makeShop();
    auto taken = WriterLock::take(path("a.fwk"));
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(run("fwk add a.fwk Name=Saw --wait 0.3").code, 1);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(300));
    const pid_t waiting = start("fwk add a.fwk Name=Saw");
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    taken.lock.reset();
    const Outcome outcome = finish(waiting);
    EXPECT_EQ(outcome.out, "i3\n") << outcome.err;
    for (const char* nonsense : {"x", "''", "-1", "1e9", "nan", "inf", "5s", "0x5", "1,5"}) {
        EXPECT_EQ(run("fwk add a.fwk --wait " + std::string(nonsense)).code, 2) << nonsense;
        EXPECT_EQ(run("fwk add a.fwk --wait=" + std::string(nonsense)).code, 2) << nonsense;
    }
    EXPECT_EQ(run("ls -A").out, "a.fwk\n");
}

TEST_F(OneWriter, IsOnAnotherMachineOrNotToBeTold) {
    makeShop();
    ScriptedPlatform::write(path(".~lock.a.fwk#"), "ann,desk%2C2,4711,2026-03-14T09:26:53Z;\n");
    EXPECT_EQ(
        run("fwk add a.fwk --wait 0").err,
        "fwk: a.fwk: it is being changed by ann on desk,2 (process 4711) since 2026-03-14 09:26:53 UTC; "
        "if that is over, remove .~lock.a.fwk#\n");
    EXPECT_EQ(run("rm .~lock.a.fwk#; mkdir .~lock.a.fwk#; fwk add a.fwk --wait 0").err,
              "fwk: a.fwk: it cannot be locked: .~lock.a.fwk# is in the way (Is a directory)\n");
    EXPECT_EQ(run("rmdir .~lock.a.fwk#; ln -s a.fwk .~lock.a.fwk#; fwk add a.fwk --wait 0").code, 1);
    EXPECT_EQ(run("rm .~lock.a.fwk#; fwk add a.fwk --wait 0").out, "i3\n");
}

// The password is asked for when the file has been read.
TEST_F(OneWriter, DoesNotOverwriteWhatAnotherProgramHasWritten) {
    makeShop();
    make("b.fwk", DataFile("Other:3", "one;two;three"));
    const char* script =
        "mkfifo typed; fwk lock a.fwk <typed & exec 3>typed\n"
        "until [ -e .~lock.a.fwk# ] && grep -q ') S ' /proc/$!/stat; do sleep .01; done; sleep .1\n"
        "%s; echo secret >&3; wait $!";
    const auto meanwhile = [&](const std::string& act) {
        std::string line = script;
        line.replace(line.find("%s"), 2, act);
        return run(line + "; code=$?; rm -f typed; exit $code");
    };
    const Outcome changed = meanwhile("cp b.fwk a.fwk");
    EXPECT_EQ(changed.code, 1);
    EXPECT_TRUE(changed.err.ends_with("fwk: a.fwk: it was changed by another program meanwhile\n"))
        << changed.err;
    EXPECT_EQ(dataFileOf("a.fwk"), dataFileOf("b.fwk"));
    EXPECT_EQ(meanwhile("rm a.fwk").code, 1);
    EXPECT_EQ(run("cp b.fwk a.fwk").code, 0);
    const Outcome touched = meanwhile("touch -d tomorrow a.fwk; cp -p a.fwk c.fwk; mv c.fwk a.fwk");
    EXPECT_EQ(touched.code, 0) << touched.err;
    EXPECT_NE(dataFileOf("a.fwk"), dataFileOf("b.fwk"));
}

TEST_F(OneWriter, NewFilesAreAsPrivateAsTheDatabase) {
    makeShop();
    const mode_t mask = ::umask(0022);
    for (const unsigned mode : {0600U, 0640U, 0664U}) {
        ::chmod(path("a.fwk").c_str(), mode);
        for (const char* makes :
             {"save-as a.fwk new", "clone a.fwk new", "search a.fwk --where Name is Nut -o new",
              "export a.fwk -o new.csv", "export a.fwk -o new.json", "report a.fwk -o new.pdf"}) {
            const std::string line(makes);
            const std::string name = line.substr(line.rfind(' ') + 1);
            EXPECT_EQ(run("fwk " + line).err, "") << line;
            EXPECT_EQ(modeOf(name), mode) << line;
            std::filesystem::remove(path(name));
            ScriptedPlatform::write(path(name), "older");
            ::chmod(path(name).c_str(), 0606);
            const bool asks = !line.starts_with("export") && !line.starts_with("report");
            EXPECT_EQ(run("fwk " + line + (asks ? " --yes" : "")).err, "") << line;
            EXPECT_EQ(modeOf(name), 0606U) << line;
            std::filesystem::remove(path(name));
        }
    }
    EXPECT_EQ(
        run("fwk new b.fwk A:Text; fwk import c.fwk b.csv; printf 'A\\n1\\n' >b.csv; fwk import c.fwk b.csv")
            .code,
        0);
    EXPECT_EQ(modeOf("b.fwk"), 0644U);
    EXPECT_EQ(modeOf("c.fwk"), 0644U);
    ::umask(mask);
}

} // namespace
