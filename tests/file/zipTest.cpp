#include "file/fileHandle.h"
#include "folderFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <grp.h>
#include <random>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zip.h>

using file::Zip;

static int failingLook = -1; // counts down to the look at an open file that the disk answers with an error
extern "C" int fstat(int file, struct stat* status) noexcept {
    if (failingLook-- == 0) return errno = EIO, -1;
    return ::fstatat(file, "", status, AT_EMPTY_PATH);
}

namespace {

// Bytes that deflate cannot make smaller.
std::string noise(std::size_t count) {
    std::mt19937 random(7);
    std::string bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

struct ZipTest : FolderTest {
    ZipTest() : archive(folder / "a.fwk") { fs::create_directory(folder / "out"); }

    // Does "open a.fwk, put data.dat text#comment, close" and the like. Files are named from the folder, and
    // those to add or to extract from its out/; the entry "*" is each of all, and the text "*" the
    // bytes. Comes back with what "read" and "list" tell, or with the kind of error that it ended
    // with.
    [[nodiscard]] std::string act(std::string_view script, const std::string& bytes = {}) const {
        Zip Zip;
        Zip.SetBaseFolder(folder / "out");
        std::string told, verb, name, text;
        const auto one = [&] {
            const std::size_t mark = std::min(text.find('#'), text.size());
            if (verb == "create") Zip.CreateArchive(folder / name, text == "*" ? bytes : "");
            if (verb == "open") Zip.OpenArchive(folder / name);
            if (verb == "put")
                Zip.addBuffer(name, text == "*" ? bytes : text.substr(0, mark), text.substr(mark));
            if (verb == "add") Zip.AddFile(name, text);
            if (verb == "delete") Zip.DeleteFile(name);
            if (verb == "extract") Zip.ExtractFile(name);
            if (verb == "read") told += Zip.readEntry(name, 1 << 21).value_or("(none)") + " ";
            if (verb == "close") Zip.CloseArchive();
            if (verb == "save") Zip.CloseArchiveAs(folder / name);
        };
        try {
            for (const auto& each : table(core::replaceAll(script, ", ", "; "))) {
                std::istringstream words(each[0]);
                text.clear();
                std::getline(words >> verb >> name >> std::ws, text);
                const bool all = name == "*";
                for (int i = 0; all && i < Zip.FileCount(); ++i, one()) {
                    name = Zip.FileNameAt(i);
                    if (verb == "list")
                        told += name + ":" + std::to_string(Zip.sizeAt(i)) + Zip.commentAt(i) + " ";
                }
                if (!all) one();
            }
        } catch (const core::RunTimeError& error) {
            return std::string(core::split(error.what(), ':')[0]);
        }
        return told;
    }

    void patchText(const std::string& from, const std::string& to) const {
        writeBytes(archive, core::replaceAll(readBytes(archive), from, to));
    }

    fs::path archive;

    // "owner:group mode", and the number of the file, which each writing changes.
    static std::pair<std::string, ino_t> statusOf(const fs::path& file) {
        struct stat status {};
        EXPECT_EQ(::stat(file.c_str(), &status), 0) << file;
        std::ostringstream text;
        text << status.st_uid << ":" << status.st_gid << " " << std::oct << (status.st_mode & 07777U);
        return {text.str(), status.st_ino};
    }
    void sparseFile(const std::string& name, std::uint64_t size) const {
        writeBytes(folder / "out" / name, "");
        fs::resize_file(folder / "out" / name, size);
    }
};

TEST_F(ZipTest, WhatCanHaveNoSuchNameIsTold) {
    EXPECT_EQ(raisedBy([&] { Zip().OpenArchive(folder / std::string(300, 'x')); }),
              core::errors::badFileName);
    EXPECT_EQ(act("create a.fwk, put \xFF\xFE text"), "Bad file name");
}

TEST_F(ZipTest, ReplacingTheDataLeavesAllElseAsItWas) {
    writeBytes(archive, readBytes(TEST_DATA_DIR "/books.fwk"));
    // The entries behind the first as they are packed, and what the directory tells of them.
    const auto packed = [&] {
        const std::string file = readBytes(archive), list = act("open a.fwk, list *");
        const std::size_t second = file.find("PK\3\4", 4);
        return file.substr(second, file.find("PK\1\2") - second) + list.substr(list.find("File "));
    };
    const std::string before = packed();
    writeBytes(folder / "out" / "data.dat", "one line");
    EXPECT_EQ(
        act("open a.fwk, add data.dat Main, add data.dat given up, add data.dat Main Data File, close, open "
            "a.fwk, read data.dat"),
        "one line ");
    EXPECT_TRUE(packed() == before);
    EXPECT_TRUE(act("open a.fwk, list *").starts_with("data.dat:8Main Data File "));
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
    for (const std::string& bytes : {words, mixed, noise(1'500'000), std::string(1'500'000, 'a')})
        for (const std::size_t size : {65'536U, 524'287U, 524'288U, 700'001U, 1'234'567U}) {
            const std::string text = bytes.substr(0, size);
            EXPECT_EQ(act("create a.fwk, put data.dat *, close", text), "");
            EXPECT_EQ(readBytes(archive)[8], ZIP_CM_DEFLATE);
            EXPECT_TRUE(act("open a.fwk, read data.dat") == text + " ") << size;
        }
}

TEST_F(ZipTest, AddsListsDeletesAndExtracts) {
    writeBytes(folder / "b\xC3\xBCro.jpg", "picture");
    sparseFile("huge.jpg", Zip::maxFileBytes);
    const std::string comment(300, 'c');
    EXPECT_EQ(act("create a.fwk *, close", comment), "");
    for (const auto& c :
         table("open a.fwk, list *; open a.fwk, add ../b\xC3\xBCro.jpg Clip Art, put empty.jpg, put last.gif "
               "gif#x, close; open a.fwk, list *, read empty.jpg, read no.jpg, extract *, extract no.jpg -> "
               "b\xC3\xBCro.jpg:7Clip Art empty.jpg:0 last.gif:3#x  (none) ; open a.fwk, delete empty.jpg, "
               "delete no.jpg, list *, close, open a.fwk, list * -> b\xC3\xBCro.jpg:7Clip Art last.gif:3#x "
               "b\xC3\xBCro.jpg:7Clip Art last.gif:3#x ; open a.fwk, put new.gif x, delete last.gif, delete "
               "b\xC3\xBCro.jpg, delete new.gif, close; open a.fwk, list *, add huge.jpg; open a.fwk, put "
               "data.dat again, close, open a.fwk, read data.dat -> again ")) {
        EXPECT_EQ(act(c[0]), c[1]) << c[0];
        EXPECT_TRUE(readBytes(archive).ends_with("\x2C\1" + comment)) << c[0];
    }
    EXPECT_EQ(readBytes(folder / "out" / "b\xC3\xBCro.jpg"), "picture");
    EXPECT_EQ(tree(),
              "a.fwk b\xC3\xBCro.jpg out/ out/b\xC3\xBCro.jpg out/empty.jpg out/huge.jpg out/last.gif ");
    EXPECT_EQ(act("create a.fwk, put xxx.jpg old, put data.dat text, close"), "");
    patchText("xxx.jpg", "x\x81x.jpg"); // u umlaut in the code page of the first zip programs
    EXPECT_EQ(act("open a.fwk, list *, read x\xC3\xBCx.jpg, delete x\xC3\xBCx.jpg, list *"),
              "x\xC3\xBCx.jpg:3 data.dat:4 old data.dat:4 ");
}

TEST_F(ZipTest, WritesOnlyWhatItShould) {
    for (const auto& c :
         table("delete no.jpg, close -> kept -> old; put data.dat old, close -> kept -> old; put data.dat "
               "new -> kept -> old; put data.dat new, save copy.fwk -> kept -> old; put data.dat new, put "
               "data.dat old, close -> written -> old; put data.dat old#x, close -> written -> old; put "
               "data.dat odd, close -> written -> odd; put x.jpg x, put x.jpg x, close -> written -> old",
               3)) {
        EXPECT_EQ(act("create a.fwk, put data.dat old, close"), "");
        const auto before = statusOf(archive);
        EXPECT_EQ(act("open a.fwk, " + c[0] + ", open a.fwk, read data.dat"), c[2] + " ") << c[0];
        EXPECT_EQ(statusOf(archive) == before ? "kept" : "written", c[1]) << c[0];
    }
    EXPECT_EQ(act("open copy.fwk, read data.dat, save a.fwk"), "new ");
    EXPECT_EQ(readBytes(archive), readBytes(folder / "copy.fwk"));
}

TEST_F(ZipTest, KeepsPermissionsOwnerAndLink) {
    const fs::path real = folder / "real" / std::string(250, 'b');
    fs::create_directory(folder / "real");
    for (const fs::path& open : {folder, folder / "real"}) fs::permissions(open, fs::perms::all);
    fs::create_symlink(fs::path("real") / real.filename(), archive);
    EXPECT_EQ(act("create a.fwk, put data.dat old, close"), "");
    ::chmod(real.c_str(), 04666);
    EXPECT_EQ(act("open a.fwk, put data.dat new, close, open a.fwk, read data.dat"), "new ");
    EXPECT_TRUE(fs::is_symlink(archive) && statusOf(real).first.ends_with(" 4666"));
    const mode_t mask = ::umask(027);
    EXPECT_EQ(act("create fresh.fwk, close"), "");
    ::umask(mask);
    EXPECT_TRUE(statusOf(folder / "fresh.fwk").first.ends_with(" 640"));
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser may give files away";
    // Owner and group before, who saves and belongs to group 12346, and both behind.
    const gid_t member = 12346;
    for (const auto& c :
         table("12345 -> 12346 -> 0 -> 12345:12346; 0 -> 12346 -> 0 -> 0:12346; 12345 -> 0 -> 0 -> 12345:0; "
               "12345 -> 12346 -> 777 -> 777:12346; 12345 -> 0 -> 777 -> 777:777",
               4)) {
        const auto id = [&](std::size_t cell) { return static_cast<uid_t>(std::stoi(c[cell])); };
        ASSERT_EQ(::chown(real.c_str(), id(0), id(1)) | ::chmod(real.c_str(), 04666), 0);
        ASSERT_EQ(::setgroups(1, &member) | ::setegid(id(2)) | ::seteuid(id(2)), 0);
        const std::string told = act("open a.fwk, put data.dat *, close", c[0] + c[1] + c[2]);
        ASSERT_EQ(::seteuid(0) | ::setegid(0) | ::setgroups(0, nullptr), 0);
        EXPECT_EQ(told + statusOf(real).first, c[3] + " 4666");
    }
}

TEST_F(ZipTest, RefusesWhatIsNoArchiveAndWhatCannotBeWritten) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(act("create a.fwk, put data.dat old, close"), "");
    fs::copy_file(archive, folder / "locked.fwk");
    fs::permissions(folder / "locked.fwk", fs::perms::owner_read);
    fs::create_symlink("loop", folder / "loop");
    writeBytes(folder / "empty", "");
    writeBytes(folder / "text", std::string(100000, 'x'));
    writeBytes(folder / "out" / "a\\b.jpg", "x");
    sparseFile("huge.jpg", Zip::maxFileBytes + 1);
    const std::string before = tree();
    for (const auto& c : table(
             "File not found -> open no|open text/no|create no/b.fwk, close|create a.fwk/b.fwk, "
             "close|create b.fwk, add no.jpg; Path/file access error -> open out|open pipe|open loop|open "
             "locked.fwk, put data.dat new, close|create out, close|create loop, close|create b.fwk, add "
             "../out; Bad file name -> close|open a.fwk, close, close|create b.fwk, add a\\b.jpg|create "
             "b.fwk, put ../x.jpg x; Invalid file format -> open empty|open text|create b.fwk, add huge.jpg"))
        for (const std::string_view script : core::split(c[1], '|')) EXPECT_EQ(act(script), c[0]) << script;
    EXPECT_EQ(act("create b.fwk *", std::string(65536, 'c')), "Invalid file format");
    EXPECT_EQ(tree() + act("open locked.fwk, read data.dat"), before + "old ");
    EXPECT_THAT([] { file::raiseSystemError(EACCES, "a"); },
                testing::ThrowsMessage<core::RunTimeError>(testing::HasSubstr("a (Permission denied)")));
    // The disk fails at each look in turn; a file without a size is none without entries.
    int looks = 0;
    for (std::string told = "?"; !told.empty(); ++looks) {
        EXPECT_EQ(tree(), before) << looks;
        failingLook = looks;
        told = act("open a.fwk, add ../text, close");
    }
    EXPECT_GT(looks, 6);
    failingLook = -1;
    Zip Zip;
    Zip.OpenArchive(archive);
    for (const int index : {-1, 2})
        EXPECT_EQ(raisedBy([&] { (void)Zip.FileNameAt(index); }), core::errors::subscriptOutOfRange);
    Zip.addBuffer("data.dat", "new", "");
    fs::remove(archive);
    EXPECT_EQ(raisedBy([&] { Zip.CloseArchive(); }), core::errors::fileNotFound) << "vanished while open";
    EXPECT_FALSE(fs::exists(archive));
}

TEST_F(ZipTest, AFullOrReadOnlyDiskLeavesTheArchive) {
    const fs::path disk = folder / "out";
    if (::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=128k") != 0) GTEST_SKIP() << "may not mount";
    EXPECT_EQ(act("create out/a.fwk, put data.dat old, put a.jpg *, close", noise(40000)), "");
    const std::string before = readBytes(disk / "a.fwk") + tree();
    EXPECT_EQ(act("open out/a.fwk, put data.dat *, close", noise(100000)), "Disk full");
    ::mount("tmpfs", disk.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "");
    EXPECT_EQ(act("open out/a.fwk, put data.dat new, close"), "Path/file access error");
    EXPECT_TRUE(readBytes(disk / "a.fwk") + tree() == before);
    ::umount(disk.c_str());
}

TEST_F(ZipTest, RemovesWhatKilledWritersLeftAndNothingElse) {
    EXPECT_EQ(act("create a.fwk, put data.dat old, close"), "");
    // Old without a writer; young; its writer lives; no names of ours.
    for (const auto& c :
         table(".a.fwk.abc120.saving -> 2; .a.fwk.abc121.saving -> 0; .a.fwk.abc122.saving -> 2; "
               ".a.fwk.abc12.saving -> 2; .a.fwk.ABC126.saving -> 2; .a.fwk.abc1278saving -> 2; "
               ".b.fwk.abc123.saving -> 2; a.fwk.abc1234.saving -> 2")) {
        writeBytes(folder / c[0], "x");
        const auto now = fs::file_time_type::clock::now();
        fs::last_write_time(folder / c[0], now - std::chrono::minutes(std::stoi(c[1])));
    }
    const int writer = ::open((folder / ".a.fwk.abc122.saving").c_str(), O_RDWR | O_CLOEXEC);
    ::flock(writer, LOCK_EX);
    const std::string wanted = core::replaceAll(tree(), ".a.fwk.abc120.saving ", "");
    EXPECT_EQ(act("open a.fwk, put data.dat new, close"), "");
    ::close(writer);
    EXPECT_EQ(tree(), wanted);
}

TEST_F(ZipTest, UnpacksNoUnsafeNameAndFollowsNoLink) {
    const std::string unsafe =
        "|../x.jpg|/x.jpg|a/b.jpg|C:x.jpg|C:|..|.|a\\b.jpg|x\x1f|x\x7f.jpg|" + std::string(256, 'n');
    for (const std::string_view name : core::split(unsafe, '|'))
        EXPECT_FALSE(file::isSafeEntryName(name)) << name;
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

TEST_F(ZipTest, RefusesHeadersThatLie) {
    const std::string text(10000, 'x');
    // Smaller than it is, empty, larger, and larger than deflate can; packed larger than the archive, and
    // smaller than it is; another checksum; an unknown method; encrypted; the directory points elsewhere.
    const std::uint32_t lies[][3] = {
        {22, 24, 16}, {22, 24, 0},          {22, 24, 10001}, {22, 24, 0xC0000}, {18, 20, 0x10000000},
        {18, 20, 10}, {14, 16, 0x64636261}, {8, 10, 99},     {6, 8, 0x80001},   {30, 42, 1}};
    for (const auto& [local, directory, lie] : lies) {
        EXPECT_EQ(act("create a.fwk, put data.dat *, close, open a.fwk, read data.dat", text), text + " ");
        std::string bytes = readBytes(archive);
        for (const std::size_t at : {bytes.find("PK\3\4") + local, bytes.find("PK\1\2") + directory})
            bytes.replace(at, 4, reinterpret_cast<const char*>(&lie), 4);
        writeBytes(archive, bytes);
        for (const std::string use : {"read", "extract"})
            EXPECT_EQ(act("open a.fwk, " + use + " data.dat"), "Invalid file format") << local << " " << lie;
        EXPECT_EQ(tree(), "a.fwk out/ ") << "no half of a file stays";
    }
    EXPECT_EQ(act("create a.fwk, put data.dat *, put dat2.dat second, close", text), "");
    patchText("dat2.dat", "data.dat"); // of two the first counts
    Zip Zip;
    Zip.OpenArchive(archive);
    EXPECT_EQ(Zip.readEntry("data.dat", text.size()), text);
    const auto tooLarge = [&] { (void)Zip.readEntry("data.dat", text.size() - 1); };
    EXPECT_EQ(raisedBy(tooLarge), core::errors::badFileFormat);
    EXPECT_EQ(act("open a.fwk, put data.dat new, close, open a.fwk, read data.dat"), "new ");
}

} // namespace
