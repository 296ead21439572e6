#include "fwkProgram.h"

namespace {

struct OneWriter : FwkTest {
    OneWriter() {
        make("a.fwk", DataFile("Name:3 No:4 Sum:5", "Bolt|12|;Nut|7|").section("Formulas", "Sum,No + 1|"));
        make("b.fwk", DataFile("Name:3", "Nut"));
    }
};

TEST_F(OneWriter, IsNamedToTheOthersWhoChangeNothing) {
    ScriptedPlatform::write(path("b.csv"), "Name\nSaw\n");
    ScriptedPlatform::write(path(".~lock.a.fwk#"), "ann,desk%2C2,4711,2026-03-14T09:26:53Z;\n");
    FolderWatch watch(files);
    const char* others = R"sh(
told='fwk: a.fwk: it is being changed by ann on desk,2 (process 4711) since 2026-03-14 09:26:53 UTC; if that is over,'
for act in 'add a.fwk Name=Saw' 'update a.fwk i1 No=1' 'delete a.fwk i1' 'duplicate a.fwk i1 2' 'sort a.fwk Name' \
    'replace a.fwk Bolt Nut' 'column add a.fwk B:Text' 'column rename a.fwk No B' 'column remove a.fwk No --yes' \
    'serial a.fwk No 1' 'expression a.fwk Sum No' 'total a.fwk No' 'recalculate a.fwk' 'lock a.fwk' 'unlock a.fwk' \
    'clean a.fwk' 'import a.fwk b.csv' 'new a.fwk B:Text --yes' 'save-as b.fwk a.fwk --yes' 'save-as a.fwk a.fwk' \
    'clone b.fwk a.fwk --yes' 'search b.fwk --where Name is Nut -o a.fwk --yes'; do
    said=$(fwk $act --wait 0 2>&1); [ "$?$said" = "1$told remove .~lock.a.fwk#" ] || echo "$act: $said"
done)sh";
    EXPECT_EQ(run(others).out + watch.changes(), "");
    expect(R"sh(
$ fwk records a.fwk --csv -> Name,No,Sum // Bolt,12, // Nut,7, && $ fwk expression a.fwk Sum -> No + 1
$1 fwk save-as b.fwk a.fwk -> ! a.fwk: it exists already, --yes overwrites it
$124 timeout 1 fwk add a.fwk && $1 timeout 3 fwk add a.fwk --wait 0.3 2>&- && $ (sleep .3; rm .~lock.a.fwk#) & fwk add a.fwk No=1
i3 // @ .~lock.a.fwk# gone // +|1|2| && $ mkdir .~lock.a.fwk# -> @ .~lock.a.fwk#
$1 fwk add a.fwk -> ! it cannot be locked: .~lock.a.fwk# is in the way (Is a directory)
$ echo ann,desk,1,now\; >.~lock.n.fwk# -> @ .~lock.n.fwk# // +ann,desk,1,now;
$1 fwk save-as b.fwk n.fwk --wait 0
! n.fwk: it is being changed by ann on desk (process 1) since now; if that is over, remove .~lock.n.fwk#
)sh");
}

// The password is asked for when the file has been read.
TEST_F(OneWriter, DoesNotOverwriteWhatAnotherProgramHasWritten) {
    const std::string begin = R"sh(mkfifo typed; fwk lock a.fwk <typed & exec 3>typed
        timeout 5 sh -c "until [ -e .~lock.a.fwk# ] && grep -q ') S ' /proc/$!/stat; do sleep .01; done; sleep .1"; )sh";
    const std::string end = "; wait $!; echo $?; rm typed; ls -A | xargs";
    const std::string held =
        "fwk add a.fwk --wait 0 2>&1 | grep -c \"changed by .*(process $!) since .* UTC$\"; ";
    EXPECT_EQ(run(begin + held + "kill $!" + end).out, "1\n143\na.fwk b.fwk\n");
    const Outcome outcome = run(begin + "cp b.fwk a.fwk; echo secret >&3" + end + "; cmp a.fwk b.fwk");
    EXPECT_EQ(outcome.out, "1\na.fwk b.fwk\n");
    EXPECT_TRUE(outcome.err.ends_with("fwk: a.fwk: it was changed by another program meanwhile\n"));
}

TEST_F(OneWriter, NewFilesAreAsPrivateAsTheDatabase) {
    const char* acts =
        R"(umask 022; for m in 600 664 440; do chmod $m a.fwk; for makes in 'save-as a.fwk new --yes' \
        'clone a.fwk new --yes' 'export a.fwk -o new.json' 'search a.fwk --where Name is Nut -o new --yes' \
        'report a.fwk -o new.pdf'; do for i in 1 2; do fwk $makes; stat -c $m:%a new*; chmod 606 new*; done; rm new*
        done; done | sort -u | xargs)";
    EXPECT_EQ(run(acts).out, "440:606 440:640 600:600 600:606 664:606 664:664\n")
        << "a file that is replaced keeps its own";
}

} // namespace
