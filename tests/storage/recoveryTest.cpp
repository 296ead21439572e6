#include "storage/recovery.h"
#include "databases.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;

class RecoveryTest : public testing::Test {
protected:
    Program program;
    app::App& app = program.app;
    core::Document& document = app.document;

    std::string nameOfCopy() {
        const std::optional<std::string> copy = storage::keepRecoveryCopy(app);
        return copy ? fs::relative(*copy, program.platform.workFolder()).string() : "(none)";
    }
};

TEST_F(RecoveryTest, keepsTheDocumentAndItsImagesAndNothingElseChanges) {
    const std::string file = program.openCopyOf("books.fwk");
    const std::string before = Program::dataFileOf(file);
    document.LV.at(1).cells[1] = "not yet saved";
    app::setDocumentModified(app, true);
    const std::optional<std::string> copy = storage::keepRecoveryCopy(app);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(document.bModified);
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(Program::dataFileOf(file), before);
    EXPECT_EQ(nameOfCopy(), "Recovered/books (recovered 2).fwk") << "an earlier copy stays";

    program.open(*copy);
    EXPECT_EQ(document.currentFile, *copy) << "an open does not clear it away";
    EXPECT_EQ(document.LV.at(1).cells[1], "not yet saved");
    platform::Zip Zip;
    Zip.OpenArchive(*copy);
    EXPECT_TRUE(Zip.contains("cover1.jpg") && Zip.contains("logo.gif"));
    EXPECT_EQ(Zip.commentAt(0), "Main Data File");
}

TEST_F(RecoveryTest, needsNoArchive) {
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
}

TEST_F(RecoveryTest, neverRaises) {
    program.openCopyOf("books.fwk");
    std::ofstream(program.path("work/Recovered")) << "a file where the folder should be";
    EXPECT_EQ(nameOfCopy(), "(none)");
}

} // namespace
