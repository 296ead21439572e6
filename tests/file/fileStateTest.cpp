#include "file/fileState.h"
#include "file/atomicFile.h"
#include "file/zip.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using file::FileState;
using Change = FileState::Change;

class StateOfFile : public ::testing::Test {
protected:
    StateOfFile() {
        std::string name = (fs::temp_directory_path() / "fileState.XXXXXX").string();
        folder = ::mkdtemp(name.data());
        database = folder / "a.fwk";
    }
    ~StateOfFile() override { fs::remove_all(folder); }
    FileState make(std::string_view data, std::string_view image = "image") const {
        file::Zip Zip;
        Zip.CreateArchive(database, "");
        Zip.addBuffer("data.dat", data, "Main Data File");
        Zip.addBuffer("a.jpg", image, "");
        return Zip.CloseArchive();
    }

    fs::path folder, database;
};

TEST_F(StateOfFile, OtherBytesAreAChangeAndNothingElseIs) {
    const FileState made = make("one");
    EXPECT_EQ(made.changeOf(database), Change::None);
    EXPECT_EQ(FileState::of(database).changeOf(database), Change::None);
    fs::last_write_time(database, fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_EQ(made.changeOf(database), Change::None);
    fs::permissions(database, fs::perms(0600));
    EXPECT_EQ(made.changeOf(database), Change::None);
    // Another file of the same bytes, as out of a backup.
    fs::copy_file(database, folder / "copy");
    fs::rename(folder / "copy", database);
    EXPECT_EQ(made.changeOf(database), Change::None);
    (void)make("one");
    EXPECT_EQ(made.changeOf(database), Change::None);

    (void)make("two");
    EXPECT_EQ(made.changeOf(database), Change::Changed);
    (void)make("one", "IMAGE");
    EXPECT_EQ(made.changeOf(database), Change::Changed);
    // A file that was written through and keeps its time and size.
    const FileState again = make("one");
    const auto time = fs::last_write_time(database);
    const auto size = fs::file_size(database);
    std::ofstream(database) << std::string(size, 'x');
    fs::last_write_time(database, time);
    EXPECT_EQ(again.changeOf(database), Change::Changed);
    fs::resize_file(database, 0);
    EXPECT_EQ(again.changeOf(database), Change::Changed);
    fs::remove(database);
    EXPECT_EQ(again.changeOf(database), Change::Gone);
    fs::create_directory(database);
    EXPECT_EQ(again.changeOf(database), Change::Gone);
}

TEST_F(StateOfFile, ThereWasNoneOrNoArchive) {
    EXPECT_EQ(FileState::of(folder / "none").changeOf(folder / "none"), Change::None);
    const FileState none = FileState::of(database);
    EXPECT_FALSE(none.isThere());
    std::ofstream(database) << "no archive";
    EXPECT_EQ(none.changeOf(database), Change::Changed);
    // Of such a file nothing but its status is known, so that a touch is a change.
    const FileState text = FileState::of(database);
    EXPECT_EQ(text.changeOf(database), Change::None);
    fs::last_write_time(database, fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_EQ(text.changeOf(database), Change::Changed);
    // Ends of archives that lie about where their directories are.
    for (const char* tail :
         {"\x01\0\0\0\xff\xff\xff\x7f", "\xff\xff\xff\xff\0\0\0\0", "\x05\0\0\0\0\0\0\0"}) {
        std::ofstream(database) << "PK\1\2" + std::string("PK\5\6\0\0\0\0\1\0\1\0", 12) +
                                       std::string(tail, 8) + std::string(2, '\0');
        const FileState broken = FileState::of(database);
        EXPECT_TRUE(broken.isThere());
        EXPECT_EQ(broken.changeOf(database), Change::None);
    }
}

TEST_F(StateOfFile, IsThatOfTheFileThatIsRead) {
    (void)make("one");
    file::Zip Zip;
    Zip.OpenArchive(database);
    const FileState made = make("two"); // takes its place
    EXPECT_EQ(made.changeOf(database), Change::None);
    EXPECT_EQ(Zip.state().changeOf(database), Change::Changed);
    EXPECT_EQ(Zip.CloseArchiveAs(folder / "b.fwk").changeOf(folder / "b.fwk"), Change::None);
}

TEST_F(StateOfFile, ANewFileIsAsPrivateAsTheOneItIsMadeFrom) {
    (void)make("one");
    const mode_t mask = ::umask(0022);
    const auto written = [&](mode_t source, mode_t target) {
        fs::permissions(database, fs::perms(source));
        const fs::path out = folder / "out";
        fs::remove(out);
        if (target != 0) {
            std::ofstream(out) << "old";
            fs::permissions(out, fs::perms(target));
        }
        file::AtomicFile file(out, database);
        file.commit();
        return static_cast<unsigned>(fs::status(out).permissions());
    };
    for (const auto& [source, target, expected] : std::vector<std::array<unsigned, 3>>{{0600, 0, 0600},
                                                                                       {0644, 0, 0644},
                                                                                       {0664, 0, 0664},
                                                                                       {0440, 0, 0640},
                                                                                       {02770, 0, 0770},
                                                                                       {0600, 0644, 0644}})
        EXPECT_EQ(written(source, target), expected) << std::oct << source;
    ::umask(mask);
}

} // namespace
