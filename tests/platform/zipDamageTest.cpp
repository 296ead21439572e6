#include "archiveFixture.h"
#include "file/archiveSource.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
namespace errors = core::errors;
using file::Zip;

namespace {

class ZipDamageTest : public ArchiveTest {
protected:
    // Reads every entry both ways; what comes is a run-time error or nothing.
    void useAll() {
        Zip Zip;
        Zip.SetBaseFolder(folder / "out");
        Zip.OpenArchive(archive);
        for (int i = 0; i < Zip.FileCount(); ++i) {
            (void)Zip.commentAt(i);
            (void)Zip.sizeAt(i);
            const std::string name = Zip.FileNameAt(i);
            raisedBy([&] { Zip.ExtractFile(name); });
            raisedBy([&] { (void)Zip.readEntry(name, 1 << 20); });
        }
        Zip.addBuffer("data.dat", "new", "");
        Zip.CloseArchiveAs(folder / "rewritten.fwk");
    }

    int errorOfReading(std::uint64_t maxBytes = 1 << 20) {
        return raisedBy([&] {
            Zip Zip;
            Zip.OpenArchive(archive);
            (void)Zip.readEntry("data.dat", maxBytes);
        });
    }

    int errorOfExtracting() {
        const int number = raisedBy([&] {
            Zip Zip;
            Zip.SetBaseFolder(folder / "out");
            Zip.OpenArchive(archive);
            Zip.ExtractFile("data.dat");
        });
        EXPECT_TRUE(number == 0 || filesIn(folder / "out").empty()) << "half a file stayed";
        return number;
    }

    void SetUp() override { fs::create_directory(folder / "out"); }
};

TEST_F(ZipDamageTest, RefusesWhatIsNoArchive) {
    const fs::path pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    writeBytes(folder / "empty", "");
    writeBytes(folder / "text", std::string(100000, 'x'));
    fs::create_symlink("loop", folder / "loop");
    const std::vector<std::pair<std::string, int>> cases = {
        {"absent", errors::fileNotFound}, {"text/absent", errors::fileNotFound},
        {"out", errors::pathAccess},      {"pipe", errors::pathAccess},
        {"empty", errors::badFileFormat}, {"text", errors::badFileFormat},
        {"loop", errors::pathAccess}};
    for (const auto& [name, number] : cases) {
        Zip Zip;
        EXPECT_EQ(raisedBy([&] { Zip.OpenArchive(folder / name); }), number) << name;
    }
    const auto unreadable = [] { file::ArchiveSource(file::FileHandle(1 << 20), "no size"); };
    EXPECT_EQ(raisedBy(unreadable), errors::deviceIO) << "an archive without a size is none without entries";
    const std::string whole = readBytes(TEST_DATA_DIR "/books.fwk");
    for (std::size_t length = 1; length < whole.size(); length += length < whole.size() - 300 ? 97 : 1) {
        writeBytes(archive, whole.substr(0, length));
        ASSERT_EQ(errorOfReading(), errors::badFileFormat) << "cut at " << length;
    }
}

TEST_F(ZipDamageTest, NeverUnpacksAnUnsafeName) {
    std::vector<std::string> names = {folder / "x.jpg", std::string(256, 'n')};
    for (const char* name : {"../x.jpg", "/x.jpg", "a/b.jpg", "C:x.jpg", "..", ".", "a\\b.jpg", "..\\x.jpg",
                             "x\n.jpg", "x\x7f.jpg", "\\\\s\\x.jpg", "folder/"})
        names.emplace_back(name);
    std::vector<std::pair<std::string, std::string>> entries = {{"good.jpg", "picture"},
                                                                {"x..jpg", "picture"}};
    for (const std::string& name : names) entries.emplace_back(name, name.ends_with('/') ? "" : "evil");
    make(entries);
    Zip Zip;
    Zip.SetBaseFolder(folder / "out");
    Zip.OpenArchive(archive);
    ASSERT_EQ(Zip.FileCount(), static_cast<int>(entries.size()));
    for (int i = 0; i < Zip.FileCount(); ++i)
        EXPECT_EQ(raisedBy([&] { Zip.ExtractFile(Zip.FileNameAt(i)); }), 0) << Zip.FileNameAt(i);
    EXPECT_EQ(raisedBy([&] { Zip.ExtractFile(""); }), 0);
    EXPECT_EQ(filesIn(folder).size(), 2U) << "the archive and the folder out";
    EXPECT_EQ(filesIn(folder / "out").size(), 2U);
    EXPECT_FALSE(fs::exists("/x.jpg"));
    EXPECT_FALSE(file::isSafeEntryName(std::string_view("x\0.jpg", 6)));
}

TEST_F(ZipDamageTest, UnpackingReplacesALink) {
    make({{"x.jpg", "picture"}});
    writeBytes(folder / "precious", "mine");
    fs::create_symlink("../precious", folder / "out" / "x.jpg");
    Zip Zip;
    Zip.SetBaseFolder(folder / "out");
    Zip.OpenArchive(archive);
    Zip.ExtractFile("x.jpg");
    EXPECT_EQ(readBytes(folder / "precious"), "mine");
    EXPECT_FALSE(fs::is_symlink(folder / "out" / "x.jpg"));
    EXPECT_EQ(readBytes(folder / "out" / "x.jpg"), "picture");
}

TEST_F(ZipDamageTest, RefusesHeadersThatLie) {
    const std::string text(10000, 'x');
    const struct {
        const char* what;
        std::size_t localOffset, directoryOffset;
        std::string bytes;
    } cases[] = {{"smaller than it is", 22, 24, std::string("\x10\0\0\0", 4)},
                 {"empty", 22, 24, std::string(4, '\0')},
                 {"larger than it is", 22, 24, std::string("\x11\x27\0\0", 4)},
                 {"larger than deflate can", 22, 24, std::string("\0\0\x0c\0", 4)},
                 {"packed larger than the archive", 18, 20, std::string("\0\0\0\x10", 4)},
                 {"packed smaller than it is", 18, 20, std::string("\x0a\0\0\0", 4)},
                 {"another checksum", 14, 16, "abcd"},
                 {"an unknown method", 8, 10, std::string("\x63\0", 2)},
                 {"the directory points elsewhere", 30, 42, std::string("\1\0\0\0", 4)}};
    for (const auto& it : cases) {
        make({{"data.dat", text}});
        ASSERT_EQ(errorOfReading(), 0);
        patch(it.localOffset, it.directoryOffset, it.bytes);
        EXPECT_EQ(errorOfReading(), errors::badFileFormat) << it.what;
        EXPECT_EQ(errorOfExtracting(), errors::badFileFormat) << it.what;
    }
    make({{"data.dat", text}}, "secret");
    EXPECT_EQ(errorOfReading(), errors::badFileFormat) << "encrypted";
    EXPECT_EQ(errorOfExtracting(), errors::badFileFormat) << "encrypted";
    make({{"data.dat", text}});
    EXPECT_EQ(errorOfReading(text.size()), 0);
    EXPECT_EQ(errorOfReading(text.size() - 1), errors::badFileFormat) << "over the cap by one";
}

TEST_F(ZipDamageTest, ZipBombIsRefusedAtOnce) {
    zip_t* zip = zip_open(archive.c_str(), ZIP_CREATE, nullptr);
    writeBytes(folder / "zeros", "");
    fs::resize_file(folder / "zeros", std::uintmax_t{300} << 20); // more than any file may have
    zip_file_add(zip, "data.dat", zip_source_file(zip, (folder / "zeros").c_str(), 0, -1), 0);
    zip_set_file_compression(zip, 0, ZIP_CM_DEFLATE, 1);
    ASSERT_EQ(zip_close(zip), 0);
    const std::vector<std::string> toldSizes = {"", std::string("\0\0\x10\0", 4)}; // the true one, and 1 MiB
    for (const std::string& size : toldSizes) {
        patch(22, 24, size);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(errorOfReading(16 << 20), errors::badFileFormat);
        EXPECT_EQ(errorOfExtracting(), errors::badFileFormat);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500));
    }
}

TEST_F(ZipDamageTest, OfTwoEntriesTheFirstCounts) {
    make({{"data.dat", "first"}, {"dat2.dat", "second"}});
    patchText("dat2.dat", "data.dat");
    EXPECT_EQ(dataOf(archive), "first");
    replaceData("new");
    EXPECT_EQ(dataOf(archive), "new");
}

// Whatever a broken disk makes of an archive, it ends in a run-time error or in bytes, not in a crash.
TEST_F(ZipDamageTest, StandsFlippedBytes) {
    const std::string whole = readBytes(TEST_DATA_DIR "/books.fwk");
    std::mt19937 random(11);
    int refused = 0;
    for (int round = 0; round < 300; ++round) {
        std::string bytes = whole;
        for (int flip = 0; flip < 6; ++flip) { // mostly in the directory, which is the last kilobyte
            const std::size_t end = flip < 4 ? 700 : bytes.size();
            bytes[bytes.size() - 1 - random() % end] ^= static_cast<char>(1U << random() % 8);
        }
        writeBytes(archive, bytes);
        const int number = raisedBy([&] { useAll(); });
        EXPECT_TRUE(number == 0 || number == errors::badFileFormat) << number;
        refused += number != 0;
    }
    EXPECT_GT(refused, 30);
}

} // namespace
