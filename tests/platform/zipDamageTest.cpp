#include "archiveFixture.h"
#include "platform/archiveSource.h"

#include <ctime>
#include <sys/stat.h>

using platform::Zip;

namespace {

struct ZipDamageTest : ArchiveTest {
    // Both ways of unpacking refuse it, and no half of a file stays.
    void expectDamaged() const {
        const std::string names = tree();
        EXPECT_EQ(act("open a.fwk, read data.dat"), "Invalid file format");
        EXPECT_EQ(act("open a.fwk, extract data.dat"), "Invalid file format");
        EXPECT_EQ(tree(), names);
    }
    // Overwrites four bytes of the first entry in its local header and in the directory at the end.
    void patch(std::uint32_t localOffset, std::uint32_t directoryOffset, std::uint32_t value) const {
        std::string file = readBytes(archive);
        for (const std::size_t at :
             {file.find("PK\3\4") + localOffset, file.find("PK\1\2") + directoryOffset})
            file.replace(at, 4, reinterpret_cast<const char*>(&value), 4);
        writeBytes(archive, file);
    }
};

TEST_F(ZipDamageTest, RefusesWhatIsNoArchive) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    writeBytes(folder / "empty", "");
    writeBytes(folder / "text", std::string(100000, 'x'));
    fs::create_symlink("loop", folder / "loop");
    for (const auto& c : table("no -> File not found; text/no -> File not found; out -> Path/file access "
                               "error; pipe -> Path/file access error; loop -> Path/file access error; empty "
                               "-> Invalid file format; text -> Invalid file format"))
        EXPECT_EQ(act("open " + c[0]), c[1]) << c[0];
    const auto unreadable = [] { platform::ArchiveSource(platform::FileHandle(1 << 20), "no size"); };
    EXPECT_EQ(raisedBy(unreadable), core::errors::deviceIO) << "without a size it is not one without entries";
    const std::string whole = readBytes(TEST_DATA_DIR "/books.fwk");
    for (std::size_t length = 1; length < whole.size(); length += length < whole.size() - 300 ? 97 : 1) {
        writeBytes(archive, whole.substr(0, length));
        ASSERT_EQ(act("open a.fwk, read data.dat"), "Invalid file format") << "cut at " << length;
    }
}

TEST_F(ZipDamageTest, UnpacksNoUnsafeNameAndFollowsNoLink) {
    for (const std::string_view name : core::split(
             "|../x.jpg|/x.jpg|a/b.jpg|C:x.jpg|C:|..|.|a\\b.jpg|..\\x.jpg|x\n.jpg|x\x7f.jpg|\\\\s\\x.jpg",
             '|'))
        EXPECT_FALSE(platform::isSafeEntryName(name)) << name;
    EXPECT_FALSE(platform::isSafeEntryName(std::string(256, 'n')) ||
                 platform::isSafeEntryName(std::string_view("\0", 1)));
    const std::string longest(255, 'n');
    EXPECT_EQ(
        act("create a.fwk, put xxxx.jpg evil, put good.jpg good, put x..jpg x, put " + longest + " x, close"),
        "");
    patchText("xxxx.jpg", "../x.jpg");
    writeBytes(folder / "precious", "mine");
    fs::create_symlink("../precious", folder / "out" / "good.jpg");
    EXPECT_EQ(act("open a.fwk, extract *"), "");
    EXPECT_EQ(tree(), "a.fwk out/ out/good.jpg out/" + longest + " out/x..jpg precious ");
    EXPECT_EQ(readBytes(folder / "precious") + readBytes(folder / "out" / "good.jpg"), "minegood");
}

TEST_F(ZipDamageTest, RefusesHeadersThatLie) {
    const std::string text(10000, 'x');
    // Smaller than it is, empty, larger, and larger than deflate can; packed larger than the archive, and
    // smaller than it is; another checksum; an unknown method; encrypted; the directory points elsewhere.
    const std::uint32_t lies[][3] = {
        {22, 24, 16}, {22, 24, 0},          {22, 24, 10001}, {22, 24, 0xC0000}, {18, 20, 0x10000000},
        {18, 20, 10}, {14, 16, 0x64636261}, {8, 10, 99},     {6, 8, 0x80001},   {30, 42, 1}};
    for (const auto& [local, directory, value] : lies) {
        SCOPED_TRACE(std::to_string(local) + " " + std::to_string(value));
        EXPECT_EQ(act("create a.fwk, put data.dat *, close, open a.fwk, read data.dat", text), text + " ");
        patch(local, directory, value);
        expectDamaged();
    }
    EXPECT_EQ(act("create a.fwk, put data.dat *, put dat2.dat second, close", text), "");
    patchText("dat2.dat", "data.dat"); // of two the first counts
    Zip Zip;
    Zip.OpenArchive(archive);
    EXPECT_EQ(Zip.readEntry("data.dat", text.size()), text);
    EXPECT_EQ(raisedBy([&] { (void)Zip.readEntry("data.dat", text.size() - 1); }),
              core::errors::badFileFormat);
    EXPECT_EQ(act("open a.fwk, put data.dat new, close, open a.fwk, read data.dat"), "new ");
}

TEST_F(ZipDamageTest, ZipBombIsRefusedAtOnce) {
    writeBytes(folder / "data.dat", "");
    fs::resize_file(folder / "data.dat", Zip::maxFileBytes);
    EXPECT_EQ(act("create a.fwk, add ../data.dat, close"), "");
    for (const std::uint32_t toldSize : {257U << 20, 1U << 20}) {
        patch(22, 24, toldSize);
        const std::clock_t start = std::clock();
        expectDamaged();
        EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 2);
    }
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
        for (const char* use : {"list *", "extract *", "read *", "put data.dat new, save b.fwk"}) {
            const std::string told = act(std::string("open a.fwk, ") + use);
            refused += told == "Invalid file format";
            EXPECT_TRUE(told.find("error") == std::string::npos || use[0] == 'r') << told;
        }
    }
    EXPECT_GT(refused, 100);
}

} // namespace
