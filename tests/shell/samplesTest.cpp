#include "shell/samples.h"

#include "calc/recalculation.h"
#include "programTest.h"
#include "storage/saveFile.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

const fs::path samples = SAMPLES_DIR;

using Samples = ProgramTest;

TEST(AllSamples, AreThereAndAlreadyCalculated) {
    const std::vector<shell::Sample> all = shell::samplesIn(samples);
    ASSERT_EQ(all.size(), 5U);
    for (const shell::Sample& sample : all) {
        SCOPED_TRACE(sample.name);
        Program program;
        shell::openSample(program.app, sample, program.path("documents"));
        const std::string copy = program.path("documents/Ferrowick/" + sample.file.filename().string());
        ASSERT_EQ(program.app.document.currentFile, copy);
        ASSERT_GT(program.app.document.LV.count(), 10);
        calc::RecalculateAll(program.app, program.app.document.LV);
        storage::SaveFile(program.app, false, false);
        EXPECT_THAT(program.platform.messages, testing::IsEmpty());
        EXPECT_EQ(Program::dataFileOf(copy), Program::dataFileOf(sample.file.string()));
    }
}

TEST_F(Samples, AreOfferedOnlyWhereTheyStand) {
    EXPECT_THAT(shell::samplesIn(program.path("absent")), testing::IsEmpty());
    fs::copy_file(samples / "invoices.fwk", program.path("invoices.fwk"));
    const std::vector<shell::Sample> found = shell::samplesIn(platform.folder);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, "Invoices");
}

// Installed files are read-only for the user. The copy is his to change, and opened as he left it.
TEST_F(Samples, AreCopiedOnce) {
    const fs::path installed = program.path("garden.fwk"), copy = program.path("Ferrowick/library.fwk");
    fs::create_directories(copy.parent_path());
    fs::copy_file(samples / "garden.fwk", copy);
    shell::openSample(app, {samples / "library.fwk", "Library", "", ""}, platform.folder);
    EXPECT_NE(document.LV.columns.find("Plant"), nullptr);
    EXPECT_EQ(mainFrm.control("mnuFile1").Caption, copy.string());
    fs::copy_file(samples / "garden.fwk", installed);
    fs::permissions(installed, fs::perms::owner_read);
    shell::openSample(app, {installed, "Garden", "", ""}, platform.folder);
    EXPECT_NE(fs::status(document.currentFile).permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(Samples, WithoutAPlaceForTheCopyThereIsAMessage) {
    const fs::path blocked = program.path("documents");
    fs::copy_file(samples / "garden.fwk", blocked); // a file where the folder should be
    shell::openSample(app, {samples / "garden.fwk", "Garden", "", ""}, blocked);
    EXPECT_THAT(platform.lastMessage(),
                testing::StartsWith("The sample could not be copied to " + (blocked / "Ferrowick").string()));
    EXPECT_EQ(document.currentFile, "");
}

} // namespace
