#include "fwkProgram.h"

namespace {

class Versions : public FwkTest {
protected:
    // The table of versions without its times.
    std::string listed(const std::string& file) const {
        return run("fwk versions " + file +
                   " | sed -E '1,2d; s/  [0-9]{4}-[0-9-]+ [0-9:]+ +[0-9]+ +/:/; s/^ *//'")
            .out;
    }
};

TEST_F(Versions, ListedAndRestored) {
    make("a.fwk", DataFile("Name Qty:4", "Bolt|12"), {"a.jpg"});
    const std::string first = ScriptedPlatform::read(path("a.fwk")), text = dataFileOf("a.fwk");
    run("chmod 640 a.fwk; fwk add a.fwk Name=Nut; fwk add a.fwk Name=Washer; fwk info a.fwk >/dev/null");
    EXPECT_EQ(listed("a.fwk"), "2:2\n1:1\n");
    expect(R"($ fwk restore a.fwk 1 -o b.fwk -> @ b.fwk // -Nut|0| // -Washer|0|
$1 fwk restore a.fwk 1 -o b.fwk -> ! b.fwk: it exists already, --yes overwrites it
$1 fwk restore a.fwk 3 -o c.fwk -> ! no version 3
$1 fwk restore a.fwk 1 -o no/c.fwk -> ! no/c.fwk: could not be written: its folder does not exist
$1 fwk versions none.fwk -> ! there is no such file, and no version of it)");
    EXPECT_EQ(dataFileOf("b.fwk"), text);
    file::Zip Zip;
    Zip.OpenArchive(path("b.fwk"));
    EXPECT_EQ(Zip.readEntry("a.jpg", 100), "bytes of a.jpg");
    EXPECT_EQ(run("stat -c %a b.fwk").out, "640\n");
    // Over itself: the present state becomes a version, and so comes back.
    EXPECT_EQ(run("fwk restore a.fwk 1 -o a.fwk --yes").code, 0);
    EXPECT_EQ(listed("a.fwk"), "3:3\n2:2\n1:1\n");
    EXPECT_EQ(dataFileOf("a.fwk"), text);
    // The database has gone.
    const Outcome outcome =
        run("rm a.fwk; fwk versions a.fwk --json | grep -c '\"saved\": \"20..-..-..T..:..:..Z\"'; "
            "fwk restore a.fwk 3 -o a.fwk && fwk records a.fwk | grep -c Washer");
    EXPECT_EQ(outcome.out + outcome.err, "3\n1\n");
}

TEST_F(Versions, ASaveWithoutOneIsDoneAndTold) {
    make("a.fwk", DataFile("Name Qty:4", "Bolt|12"));
    const Outcome outcome = run("rm -rf $XDG_DATA_HOME; : >$XDG_DATA_HOME; fwk add a.fwk Name=Nail");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, "i2\n");
    EXPECT_TRUE(outcome.err.starts_with("fwk: no version kept: ")) << outcome.err;
}

} // namespace
