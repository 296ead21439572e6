#include "folderFixture.h"

#include "platform/fileSettings.h"

namespace {

using platform::FileSettings;

struct FileSettingsTest : FolderTest {};

TEST_F(FileSettingsTest, KeepsTextsByDatabaseAndForgetsTheOldest) {
    const auto file = folder / "files.conf";
    FileSettings first(file), second(file);
    const std::string odd = "[a]=b;\\\n\tend ";
    EXPECT_TRUE(first.set("/x/./a [1].fwk", odd, odd));
    EXPECT_TRUE(second.set("/x/b.fwk", "n", "2")) << "by another window";
    EXPECT_TRUE(first.set("/x/a [1].fwk", "m", std::string(4096, 'x')));
    EXPECT_FALSE(first.set("/x/b.fwk", "n", std::string(4097, 'x')));
    EXPECT_FALSE(first.set("", "n", "x"));
    const FileSettings read(file);
    EXPECT_EQ(read.get("/x/a [1].fwk", odd) + read.get("/x/b.fwk", "n"), odd + "2");
    EXPECT_EQ(read.names("/x/a [1].fwk"), (std::vector<std::string>{odd, "m"}));
    EXPECT_TRUE(first.set("/x/b.fwk", "n", ""));
    for (int i = 0; i < 200; ++i) first.set("/y/" + std::to_string(i), "n", "v");
    EXPECT_EQ(FileSettings(file).get("/x/a [1].fwk", "m") + FileSettings(file).get("/y/0", "n"), "v");
}

TEST_F(FileSettingsTest, ADamagedFileIsEmptyAndAFailedWriteLosesNothing) {
    const auto file = folder / "files.conf";
    for (const std::string& text : {std::string("[/a]\nn=1\0", 10), std::string("\\[=]\n[/a\nn=1\n=2")}) {
        writeBytes(file, text);
        EXPECT_EQ(FileSettings(file).get("/a", "n"), "");
    }
    for (const fs::path& impossible : {file / "x.conf", fs::path(), folder}) {
        FileSettings settings(impossible);
        EXPECT_TRUE(settings.set("/a", "n", "2"));
        EXPECT_EQ(settings.get("/a", "n"), "2") << "for this run";
    }
    EXPECT_EQ(tree(), "files.conf ");
}

} // namespace
