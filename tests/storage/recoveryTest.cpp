#include "storage/recovery.h"
#include "programTest.h"

#include <fstream>

namespace {

namespace fs = std::filesystem;

class RecoveryTest : public ProgramTest {
protected:
    std::string nameOfCopy() {
        const std::optional<std::string> copy = storage::keepRecoveryCopy(app);
        return copy ? fs::relative(*copy, platform.workFolder()).string() : "(none)";
    }
};

TEST_F(RecoveryTest, keepsTheDocumentAndItsImagesAndNothingElseChanges) {
    const std::string file = openChanged(), before = Program::dataFileOf(file);
    const std::optional<std::string> copy = storage::keepRecoveryCopy(app);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(document.bModified);
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(Program::dataFileOf(file), before);
    EXPECT_EQ(nameOfCopy(), "Recovered/books (recovered 2).fwk") << "an earlier copy stays";

    program.open(*copy);
    EXPECT_EQ(document.currentFile, *copy) << "an open does not clear it away";
    EXPECT_EQ(document.LV.at(1).cells[1], "changed");
    auto entries = entriesOf(*copy, false), originals = entriesOf(file, false);
    std::ranges::sort(entries);
    std::ranges::sort(originals);
    EXPECT_EQ(entries, originals);
}

TEST_F(RecoveryTest, needsNoArchiveAndNeverRaises) {
    EXPECT_EQ(nameOfCopy(), "(none)") << "nothing is open";
    const std::string file = program.openCopyOf("books.fwk");
    fs::remove(file);
    EXPECT_EQ(nameOfCopy(), "Recovered/books (recovered 1).fwk");
    std::ofstream(file) << "no archive any more";
    EXPECT_EQ(nameOfCopy(), "Recovered/books (recovered 2).fwk");
    document.currentFile.clear();
    EXPECT_EQ(nameOfCopy(), "Recovered/Untitled (recovered 1).fwk") << "a document that has lost its name";
    for (const auto& copy : fs::directory_iterator(program.path("work/Recovered"))) {
        program.open(copy.path().string());
        EXPECT_EQ(document.LV.count(), 43) << copy.path();
    }
    fs::remove_all(program.path("work/Recovered"));
    std::ofstream(program.path("work/Recovered")) << "a file where the folder should be";
    EXPECT_EQ(nameOfCopy(), "(none)");
}

} // namespace
