#include "platform/workFolder.h"
#include "folderFixture.h"
#include "platform/fileSettings.h"

#include <sys/wait.h>
#include <unistd.h>

using platform::WorkFolder;

namespace {

struct WorkFolderTest : FolderTest {
    WorkFolderTest() { ::setenv("TMPDIR", folder.c_str(), 1); }
    ~WorkFolderTest() override { ::unsetenv("TMPDIR"); }
    fs::path base = folder / "data" / "ferrowick";
};

TEST_F(WorkFolderTest, EachRunningInstanceHasItsOwn) {
    if (::fork() == 0) {
        WorkFolder held(base);
        ::_exit(0); // as one that is killed: nobody cleans up
    }
    ::wait(nullptr);
    std::vector<WorkFolder> running;
    for (int i = 0; i < 101; ++i) running.emplace_back(base);
    EXPECT_EQ(running[0].path(), base);
    EXPECT_EQ(running[99].path(), base / "instance-100");
    EXPECT_EQ(running[100].path().parent_path(), folder) << "beyond the last there are private ones";
    for (const char* name : {"Temp/x.jpg", "data.dat"}) writeBytes(base / "instance-2" / name, "x");
    running[0].clearTemp();
    running[0].removeDataFile();
    EXPECT_TRUE(fs::exists(base / "instance-2" / "Temp" / "x.jpg"));
    for (const auto& c : table(" -> 448; Temp -> 448; instance-2 -> 448; lock -> 384"))
        EXPECT_EQ(static_cast<int>(fs::status(base / c[0]).permissions()), std::stoi(c[1])) << c[0];
    running.clear();
    EXPECT_EQ(WorkFolder(base).path(), base) << "free again, and its files stay for the next";
    EXPECT_TRUE(fs::exists(base / "instance-2" / "data.dat"));
    EXPECT_EQ(tree().find("ferrowick-"), std::string::npos) << tree();
}

TEST_F(WorkFolderTest, ClearingFollowsNoLink) {
    fs::create_directories(base);
    fs::create_directory(folder / "mine");
    writeBytes(folder / "mine" / "precious", "mine");
    fs::create_symlink(folder / "mine", base / "Temp");
    WorkFolder work(base);
    for (const char* name : {"Temp/x.jpg", "Temp/.hidden", "data.dat"}) writeBytes(base / name, "x");
    fs::create_symlink(folder / "mine" / "precious", work.temp() / "link.jpg");
    fs::create_symlink(folder / "mine", work.temp() / "folderLink");
    fs::create_directory(work.temp() / "sub");
    work.clearTemp();
    work.removeDataFile();
    const std::string kept = "data/ data/ferrowick/ data/ferrowick/Temp/ ";
    EXPECT_EQ(tree(), kept + "data/ferrowick/Temp/sub/ data/ferrowick/lock mine/ mine/precious ");
    fs::remove_all(work.temp());
    fs::create_symlink(folder / "mine", work.temp()); // put there while we run
    work.clearTemp();
    EXPECT_EQ(tree(), kept + "data/ferrowick/lock mine/ mine/precious ");
}

TEST_F(WorkFolderTest, FallsBackToAPrivateFolder) {
    writeBytes(folder / "file", "");
    for (const fs::path& unusable :
         {folder / "file" / "ferrowick", fs::path(), fs::path("/proc/ferrowick")}) {
        WorkFolder work(unusable);
        EXPECT_EQ(work.path().parent_path(), folder) << unusable;
        writeBytes(work.temp() / "x.jpg", "x");
    }
    WorkFolder scratch = WorkFolder::scratch();
    scratch.clearTemp();
    scratch.removeDataFile();
    EXPECT_EQ(tree(), "file ") << "made before anyone asked";
    EXPECT_TRUE(fs::is_directory(scratch.temp()));
}

TEST(UserFolders, FollowTheDesktopStandard) {
    for (const auto& c : table(
             "/xdg -> /ann -> /xdg/ferrowick; xdg -> /ann -> /ann/.local/share/ferrowick;  -> ann -> ", 3)) {
        ::setenv("XDG_DATA_HOME", c[0].c_str(), 1);
        ::setenv("HOME", c[1].c_str(), 1);
        EXPECT_EQ(WorkFolder::defaultDataFolder(), c[2]);
        ::setenv("XDG_CONFIG_HOME", c[0].c_str(), 1);
        const fs::path conf = platform::FileSettings::defaultFile();
        EXPECT_EQ(conf, c[2].empty() ? ""
                                     : (c[0][0] == '/' ? c[0] : c[1] + "/.config") +
                                           "/ferrowick/ferrowick-files.conf");
    }
}

} // namespace
