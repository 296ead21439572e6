#include "shell/samples.h"

#include "calc/recalculation.h"
#include "databases.h"
#include "storage/saveFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path samples = SAMPLES_DIR;

std::string dataOf(const std::string& file) {
    platform::Zip Zip;
    Zip.OpenArchive(file);
    return Zip.readEntry("data.dat", 1 << 20).value();
}

TEST(Samples, AreAllThereAndAlreadyCalculated) {
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
        EXPECT_EQ(dataOf(copy), dataOf(sample.file.string()));
    }
}

TEST(Samples, AreOfferedOnlyWhereTheyStand) {
    const Program program;
    EXPECT_THAT(shell::samplesIn(program.path("absent")), testing::IsEmpty());
    fs::copy_file(samples / "invoices.fwk", program.path("invoices.fwk"));
    const std::vector<shell::Sample> found = shell::samplesIn(program.platform.folder);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, "Invoices");
}

TEST(Samples, ACopyThatIsThereIsOpenedAsItWasLeft) {
    Program program;
    const fs::path copy = program.path("Ferrowick/library.fwk");
    fs::create_directories(copy.parent_path());
    fs::copy_file(samples / "garden.fwk", copy);
    shell::openSample(program.app, {samples / "library.fwk", "Library", "", ""}, program.platform.folder);
    EXPECT_NE(program.app.document.LV.columns.find("Plant"), nullptr);
    EXPECT_EQ(program.app.mainFrm.control("mnuFile1").Caption, copy.string());
}

// As it is installed: read-only for the user. The copy is his to change.
TEST(Samples, TheCopyCanBeWritten) {
    Program program;
    const fs::path installed = program.path("garden.fwk");
    fs::copy_file(samples / "garden.fwk", installed);
    fs::permissions(installed, fs::perms::owner_read);
    shell::openSample(program.app, {installed, "Garden", "", ""}, program.platform.folder / "documents");
    const fs::perms perms = fs::status(program.app.document.currentFile).permissions();
    EXPECT_NE(perms & fs::perms::owner_write, fs::perms::none);
}

TEST(Samples, WithoutAPlaceForTheCopyThereIsAMessage) {
    Program program;
    const fs::path blocked = program.path("documents");
    fs::copy_file(samples / "garden.fwk", blocked); // a file where the folder should be
    shell::openSample(program.app, {samples / "garden.fwk", "Garden", "", ""}, blocked);
    EXPECT_THAT(program.platform.lastMessage(),
                testing::StartsWith("The sample could not be copied to " + (blocked / "Ferrowick").string()));
    EXPECT_EQ(program.app.document.currentFile, "");
}

} // namespace
