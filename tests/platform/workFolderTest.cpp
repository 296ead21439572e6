#include "platform/workFolder.h"

#include "archiveFixture.h"

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using platform::WorkFolder;

namespace {

class WorkFolderTest : public FolderTest {
protected:
    fs::path base = folder / "data" / "ferrowick";
};

TEST_F(WorkFolderTest, EachRunningInstanceHasItsOwn) {
    std::optional<WorkFolder> first(base);
    WorkFolder second(base);
    WorkFolder third(base);
    EXPECT_EQ(first->path(), base);
    EXPECT_EQ(second.path(), base / "instance-2");
    EXPECT_EQ(third.path(), base / "instance-3");
    writeBytes(second.temp() / "x.jpg", "x");
    writeBytes(second.path() / "data.dat", "x");
    first->clearTemp();
    first->removeDataFile();
    EXPECT_TRUE(fs::exists(second.temp() / "x.jpg") && fs::exists(second.path() / "data.dat"));
    first.reset();
    EXPECT_EQ(WorkFolder(base).path(), base) << "free again, and its files stay for the next";
    struct stat status {};
    for (const fs::path& made : {base, base / "Temp", second.path()}) {
        ASSERT_EQ(::stat(made.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0700U) << made;
    }
}

TEST_F(WorkFolderTest, AKilledInstanceFreesItsFolder) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        WorkFolder held(base);
        (void)!::write(ready[1], "x", 1);
        for (;;) ::pause();
    }
    char byte = 0;
    ASSERT_EQ(::read(ready[0], &byte, 1), 1);
    EXPECT_EQ(WorkFolder(base).path(), base / "instance-2");
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_EQ(WorkFolder(base).path(), base);
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST_F(WorkFolderTest, ClearingFollowsNoLink) {
    fs::create_directory(folder / "mine");
    writeBytes(folder / "mine" / "precious", "mine");
    fs::create_directories(base);
    fs::create_symlink(folder / "mine", base / "Temp"); // Temp itself a link
    WorkFolder work(base);
    EXPECT_FALSE(fs::is_symlink(base / "Temp"));
    writeBytes(work.temp() / "x.jpg", "x");
    writeBytes(work.temp() / ".hidden", "x");
    fs::create_symlink(folder / "mine" / "precious", work.temp() / "link.jpg");
    fs::create_symlink(folder / "mine", work.temp() / "folderLink");
    fs::create_directory(work.temp() / "sub");
    work.clearTemp();
    EXPECT_EQ(filesIn(work.temp()), std::vector<std::string>{"sub"});
    fs::remove_all(work.temp());
    fs::create_symlink(folder / "mine", work.temp()); // put there while we run
    work.clearTemp();
    EXPECT_TRUE(fs::is_directory(fs::symlink_status(work.temp())));
    writeBytes(work.path() / "data.dat", "x");
    work.removeDataFile();
    EXPECT_FALSE(fs::exists(work.path() / "data.dat"));
    EXPECT_EQ(readBytes(folder / "mine" / "precious"), "mine");
}

TEST_F(WorkFolderTest, FallsBackToAPrivateFolder) {
    ::setenv("TMPDIR", folder.c_str(), 1);
    writeBytes(folder / "file", "");
    for (const fs::path& unusable :
         {folder / "file" / "ferrowick", fs::path(), fs::path("/proc/ferrowick")}) {
        fs::path made;
        {
            WorkFolder work(unusable);
            made = work.path();
            EXPECT_EQ(made.parent_path(), folder) << unusable;
            writeBytes(work.temp() / "x.jpg", "x");
        }
        EXPECT_FALSE(fs::exists(made));
    }
    {
        WorkFolder scratch = WorkFolder::scratch();
        scratch.clearTemp();
        scratch.removeDataFile();
        EXPECT_EQ(filesIn(folder).size(), 1U) << "made before anyone asked";
        EXPECT_TRUE(fs::is_directory(scratch.temp()));
        EXPECT_EQ(filesIn(folder).size(), 2U);
        const WorkFolder moved = std::move(scratch);
    }
    EXPECT_EQ(filesIn(folder).size(), 1U);
    ::unsetenv("TMPDIR");
}

TEST(UserFolders, FollowTheDesktopStandard) {
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    ::setenv("HOME", "/home/ann", 1);
    const std::pair<const char*, const char*> cases[] = {{"/xdg", "/xdg/ferrowick"},
                                                         {"relative", "/home/ann/.local/share/ferrowick"},
                                                         {"", "/home/ann/.local/share/ferrowick"}};
    for (const auto& [variable, expected] : cases) {
        ::setenv("XDG_DATA_HOME", variable, 1);
        EXPECT_EQ(WorkFolder::defaultDataFolder(), expected);
    }
    ::unsetenv("HOME");
    EXPECT_EQ(WorkFolder::defaultDataFolder(), "");
    ::unsetenv("XDG_DATA_HOME");
    if (!home.empty()) ::setenv("HOME", home.c_str(), 1);
}

} // namespace
