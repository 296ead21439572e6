#include "platform/workFolder.h"
#include "programTest.h"
#include "storage/saveFile.h"

namespace {

namespace fs = std::filesystem;

// A machine with the work folder of a real program.
class RunningPlatform : public ScriptedPlatform {
public:
    explicit RunningPlatform(const fs::path& base) : work_(base) {}
    fs::path workFolder() override { return work_.path(); }
    fs::path tempFolder() override { return work_.temp(); }
    void clearWorkFiles() override {
        work_.clearTemp();
        work_.removeDataFile();
    }

private:
    platform::WorkFolder work_;
};

TEST(TwoPrograms, doNotTouchEachOthersWorkFiles) {
    const Program program;
    const fs::path base = program.platform.folder / "base";
    RunningPlatform machines[] = {RunningPlatform(base), RunningPlatform(base)};
    app::App first{machines[0]}, second{machines[1]};
    const auto open = [](app::App& opening, const std::string& file) {
        opening.document.currentFile = file;
        storage::OpenFile(opening, true);
    };
    open(first, program.copyOf("books.fwk"));
    const fs::path logo = machines[0].tempFolder() / "logo.gif";
    ASSERT_TRUE(fs::exists(logo));
    open(second, program.copyOf("invoices.fwk"));
    EXPECT_NE(machines[0].workFolder(), machines[1].workFolder());
    EXPECT_TRUE(fs::exists(logo)) << "the second open has cleared its own folder";
    storage::SaveFile(second, false, false);
    storage::SaveFile(first, false, false);
    for (app::App* saved : {&first, &second})
        EXPECT_EQ(ScriptedPlatform::read(saved->platform.workFolder() / "data.dat"),
                  Program::dataFileOf(saved->document.currentFile));
    EXPECT_NE(Program::dataFileOf(first.document.currentFile),
              Program::dataFileOf(second.document.currentFile));
}

} // namespace
