#include "archiveFixture.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
namespace errors = core::errors;
using file::Zip;

namespace {

// Bytes that deflate cannot make smaller.
std::string noise(std::size_t count) {
    std::mt19937 random(7);
    std::string bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

class ZipTest : public ArchiveTest {};

TEST_F(ZipTest, ReplacingTheDataLeavesAllElseAsItWas) {
    writeBytes(archive, readBytes(TEST_DATA_DIR "/books.fwk"));
    // The entries behind the first as they are packed, and what the directory tells of all.
    const auto packed = [&] {
        const std::string file = readBytes(archive);
        const std::size_t second = file.find("PK\3\4", 4);
        std::string all = file.substr(second, file.find("PK\1\2") - second);
        Zip Zip;
        Zip.OpenArchive(archive);
        for (int i = 0; i < Zip.FileCount(); ++i) all += Zip.FileNameAt(i) + ":" + Zip.commentAt(i) + ";";
        return all;
    };
    const std::string before = packed();
    const std::string text = dataOf(archive) + "one more line\r\n";
    writeBytes(folder / "data.dat", text);
    Zip Zip;
    Zip.SetBaseFolder(folder);
    Zip.OpenArchive(archive);
    Zip.AddFile("data.dat", "Main Data File");
    Zip.AddFile("data.dat", "given up");
    Zip.AddFile("data.dat", "Main Data File");
    Zip.CloseArchive();

    EXPECT_EQ(dataOf(archive), text);
    EXPECT_TRUE(packed() == before);
    const std::string file = readBytes(archive);
    EXPECT_EQ(file[file.find("PK\1\2") + 8] & 6, 0) << "not packed at the usual level";
}

// Sizes on both sides of those from which data are packed in pieces, and contents whose blocks end at all
// kinds of places.
TEST_F(ZipTest, LargeDataArePackedAsOneStreamThatEveryReaderUnderstands) {
    std::mt19937 random(11);
    std::string words;
    while (words.size() < 1'500'000) words += "word " + std::to_string(random() % 3000) + "|";
    std::string mixed = words;
    mixed.replace(mixed.size() / 4, 200'000, noise(200'000));
    for (const std::string& bytes : {words, mixed, noise(1'500'000), std::string(1'500'000, 'a')}) {
        for (const std::size_t size : {65'536U, 524'287U, 524'288U, 700'001U, 1'234'567U}) {
            Zip Zip;
            Zip.CreateArchive(archive, "");
            Zip.addBuffer("data.dat", std::string_view(bytes).substr(0, size), "");
            Zip.CloseArchive();
            EXPECT_EQ(readBytes(archive)[8], ZIP_CM_DEFLATE);
            EXPECT_TRUE(dataOf(archive) == bytes.substr(0, size)) << size;
        }
    }
}

TEST_F(ZipTest, AddsListsDeletesAndExtracts) {
    const fs::path elsewhere = folder / "elsewhere";
    fs::create_directory(elsewhere);
    writeBytes(elsewhere / "b\xC3\xBCro.jpg", "picture");
    Zip Zip;
    Zip.SetBaseFolder(folder);
    Zip.CreateArchive(archive, "");
    Zip.AddFile(elsewhere / "b\xC3\xBCro.jpg", "Clip Art");
    Zip.addBuffer("empty.jpg", "", "");
    Zip.addBuffer("last.gif", "gif", "");
    Zip.CloseArchive();

    Zip.OpenArchive(archive);
    ASSERT_EQ(Zip.FileCount(), 3);
    EXPECT_EQ(Zip.FileNameAt(0), "b\xC3\xBCro.jpg");
    EXPECT_EQ(Zip.commentAt(0), "Clip Art");
    EXPECT_EQ(Zip.sizeAt(0), 7U);
    EXPECT_EQ(Zip.readEntry("empty.jpg", 10), "");
    Zip.ExtractFile("b\xC3\xBCro.jpg");
    Zip.ExtractFile("absent.jpg");
    EXPECT_EQ(readBytes(folder / "b\xC3\xBCro.jpg"), "picture");
    Zip.DeleteFile("empty.jpg");
    Zip.DeleteFile("absent.jpg");
    EXPECT_EQ(Zip.FileCount(), 2);
    EXPECT_EQ(Zip.FileNameAt(1), "last.gif");
    EXPECT_EQ(raisedBy([&] { (void)Zip.FileNameAt(2); }), errors::subscriptOutOfRange);
    EXPECT_FALSE(Zip.contains("empty.jpg"));
    Zip.CloseArchive();

    Zip.OpenArchive(archive);
    Zip.DeleteFile("last.gif");
    Zip.DeleteFile("b\xC3\xBCro.jpg");
    Zip.CloseArchive();
    Zip.OpenArchive(archive);
    EXPECT_EQ(Zip.FileCount(), 0) << "the last entry's end is not the archive's";
    Zip.addBuffer("data.dat", "again", "");
    Zip.CloseArchive();
    EXPECT_EQ(dataOf(archive), "again");
}

TEST_F(ZipTest, NamesOfOlderToolsAreFoundAsTheyAreListed) {
    make({{"xxx.jpg", "old"}, {"data.dat", "text"}});
    patchText("xxx.jpg", "x\x81x.jpg"); // u umlaut in the code page of the first zip programs
    Zip Zip;
    Zip.OpenArchive(archive);
    ASSERT_EQ(Zip.FileNameAt(0), "x\xC3\xBCx.jpg");
    EXPECT_EQ(Zip.readEntry(Zip.FileNameAt(0), 10), "old");
    Zip.DeleteFile(Zip.FileNameAt(0));
    EXPECT_EQ(Zip.FileCount(), 1);
}

TEST_F(ZipTest, WritesOnlyWhatItShould) {
    make({{"data.dat", "old"}});
    const std::string before = readBytes(archive);
    struct stat first {
    }, second{};
    ::stat(archive.c_str(), &first);
    {
        Zip Zip;
        Zip.OpenArchive(archive);
        Zip.DeleteFile("absent.jpg");
        Zip.CloseArchive();
        ::stat(archive.c_str(), &second);
        EXPECT_EQ(first.st_ino, second.st_ino) << "closed without a change";
        Zip.OpenArchive(archive);
        Zip.addBuffer("data.dat", "given up", "");
    }
    EXPECT_EQ(readBytes(archive), before) << "not closed";

    const fs::path copy = folder / "copy.fwk";
    Zip Zip;
    Zip.OpenArchive(archive);
    Zip.CloseArchiveAs(copy);
    EXPECT_EQ(readBytes(copy), before);
    Zip.OpenArchive(archive);
    Zip.addBuffer("data.dat", "new", "");
    Zip.CloseArchiveAs(copy);
    EXPECT_EQ(readBytes(archive), before);
    EXPECT_EQ(dataOf(copy), "new");
}

TEST_F(ZipTest, KeepsPermissionsOwnerAndLink) {
    make({{"data.dat", "old"}});
    ::chmod(archive.c_str(), 0640);
    const bool given = ::chown(archive.c_str(), 12345, 12345) == 0; // only the superuser can
    const fs::path real = folder / "real" / "b.fwk";
    fs::create_directory(real.parent_path());
    fs::rename(archive, real);
    fs::create_symlink("real/b.fwk", archive);
    replaceData("new");
    EXPECT_TRUE(fs::is_symlink(archive));
    EXPECT_EQ(dataOf(real), "new");
    struct stat status {};
    ::stat(real.c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_TRUE(!given || status.st_uid == 12345U);

    const mode_t mask = ::umask(027);
    Zip Zip;
    Zip.CreateArchive(folder / "fresh.fwk");
    Zip.CloseArchive();
    ::umask(mask);
    ::stat((folder / "fresh.fwk").c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(ZipTest, RefusesToWrite) {
    const std::string before = (make({{"data.dat", "old"}}), readBytes(archive));
    ::chmod(archive.c_str(), 0444);
    EXPECT_EQ(raisedBy([&] { replaceData("new"); }), errors::pathAccess) << "read-only file";
    ::chmod(archive.c_str(), 0644);
    EXPECT_EQ(readBytes(archive), before);
    EXPECT_EQ(filesIn(folder).size(), 1U);

    Zip Zip;
    Zip.OpenArchive(archive);
    Zip.addBuffer("data.dat", "new", "");
    fs::remove(archive);
    EXPECT_EQ(raisedBy([&] { Zip.CloseArchive(); }), errors::fileNotFound) << "vanished while open";
    EXPECT_TRUE(filesIn(folder).empty());
    Zip.CreateArchive(folder / "gone" / "b.fwk");
    EXPECT_EQ(raisedBy([&] { Zip.CloseArchive(); }), errors::fileNotFound) << "no such folder";
    EXPECT_EQ(raisedBy([&] { Zip.CloseArchive(); }), errors::badFileName) << "closed by the failure";

    Zip.CreateArchive(archive);
    EXPECT_EQ(raisedBy([&] { Zip.AddFile(folder / "absent.jpg", ""); }), errors::fileNotFound);
    EXPECT_EQ(raisedBy([&] { Zip.AddFile(folder, ""); }), errors::pathAccess);
    writeBytes(folder / "a\\b.jpg", "x");
    EXPECT_EQ(raisedBy([&] { Zip.AddFile(folder / "a\\b.jpg", ""); }), errors::badFileName);
    EXPECT_EQ(raisedBy([&] { Zip.addBuffer("../x.jpg", "x", ""); }), errors::badFileName);
}

TEST_F(ZipTest, AFailedWriteLeavesTheArchive) {
    make({{"data.dat", "old"}, {"a.jpg", noise(40000)}});
    const std::string before = readBytes(archive);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit narrow{60000, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &narrow);
    EXPECT_EQ(raisedBy([&] { replaceData(noise(100000)); }), errors::deviceIO);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(readBytes(archive), before);
    EXPECT_EQ(filesIn(folder).size(), 1U);

    const fs::path disk = folder / "disk";
    fs::create_directory(disk);
    if (::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=128k") != 0) GTEST_SKIP() << "may not mount";
    fs::rename(archive, folder / "kept.fwk");
    archive = disk / "a.fwk";
    fs::copy_file(folder / "kept.fwk", archive);
    EXPECT_EQ(raisedBy([&] { replaceData(noise(100000)); }), errors::diskFull);
    EXPECT_EQ(readBytes(archive), before);
    EXPECT_EQ(filesIn(disk).size(), 1U);
    ::mount("tmpfs", disk.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "");
    EXPECT_EQ(raisedBy([&] { replaceData("new"); }), errors::pathAccess) << "read-only disk";
    ::umount(disk.c_str());
}

TEST_F(ZipTest, RemovesWhatKilledWritersLeftAndNothingElse) {
    make({{"data.dat", "old"}});
    const std::vector<std::pair<std::string, bool>> cases = {
        {".a.fwk.abc123.saving", false}, // old, no writer
        {".a.fwk.abc124.saving", true},  // young
        {".a.fwk.abc125.saving", true},  // its writer lives
        {".a.fwk.abc12.saving", true},   // not a name of ours
        {".a.fwk.ABC126.saving", true},  {".b.fwk.abc123.saving", true}, {"a.fwk.abc123.saving", true}};
    for (const auto& [name, stays] : cases) {
        writeBytes(folder / name, "x");
        if (name != ".a.fwk.abc124.saving")
            fs::last_write_time(folder / name, fs::file_time_type::clock::now() - std::chrono::hours(1));
    }
    const int writer = ::open((folder / ".a.fwk.abc125.saving").c_str(), O_RDWR | O_CLOEXEC);
    ::flock(writer, LOCK_EX);
    replaceData("new");
    ::close(writer);
    for (const auto& [name, stays] : cases) EXPECT_EQ(fs::exists(folder / name), stays) << name;
}

// A writer that is killed at any moment leaves the old archive or the new one.
TEST_F(ZipTest, SurvivesBeingKilled) {
    const std::string picture = noise(50000);
    const std::string texts[] = {noise(60000) + "A", noise(90000) + "B"};
    make({{"data.dat", texts[0]}, {"a.jpg", picture}});
    std::mt19937 random(std::random_device{}());
    int changes = 0;
    std::string last = texts[0];
    for (int round = 0; round < 30; ++round) {
        const pid_t child = ::fork();
        if (child == 0)
            for (int i = 0;; ++i) replaceData(texts[i % 2]);
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution(0, 30000)(random)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string found = dataOf(archive);
        ASSERT_TRUE(found == texts[0] || found == texts[1]) << "round " << round;
        ASSERT_EQ(dataOf(archive, "a.jpg"), picture) << "round " << round;
        changes += found != last;
        last = found;
    }
    EXPECT_GT(changes, 2) << "the children were killed before they wrote anything";
}

} // namespace
