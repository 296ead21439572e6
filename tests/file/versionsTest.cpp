#include "file/versions.h"
#include "file/archive/checksum.h"
#include "folderFixture.h"

namespace {

constexpr std::uint64_t plenty = 1 << 20;
constexpr std::time_t noon = 1'773'486'000; // somewhere in the middle of a day of March 2026
constexpr std::time_t day = 24 * 60 * 60;

class VersionsTest : public FolderTest {
protected:
    using Pictures = std::map<std::string, std::string>;

    fs::path write(const std::string& name, const std::string& text, const Pictures& pictures = {}) const {
        file::Zip Zip;
        Zip.CreateArchive(folder / name, "");
        Zip.addBuffer("data.dat", text, "Main Data File");
        for (const auto& [picture, bytes] : pictures) Zip.addBuffer(picture, bytes, "Clip Art");
        Zip.CloseArchive();
        return folder / name;
    }
    static file::KnownText known(const std::string& text, int records) {
        return {file::checksum(text), records};
    }
    // "data.dat=text a.jpg=bytes "
    static std::string content(const fs::path& archive) {
        file::Zip Zip;
        Zip.OpenArchive(archive);
        std::string all;
        for (int i = 0; i < Zip.FileCount(); ++i) {
            const std::string name = Zip.FileNameAt(i);
            EXPECT_EQ(Zip.commentAt(i), name == "data.dat" ? "Main Data File" : "Clip Art");
            all += name + "=" + Zip.readEntry(name, plenty).value() + " ";
        }
        return all;
    }
    // "3:text/records 2:..." from the newest to the oldest.
    static std::string listed(const file::VersionStore& store, const fs::path& database) {
        std::string all;
        for (const file::Version& version : store.versionsOf(database))
            all += std::to_string(version.number) + ":" + file::VersionStore::textOf(version) + "/" +
                   (version.records ? std::to_string(*version.records) : "?") + " ";
        return all;
    }
    std::uint64_t storedBytes() const {
        std::uint64_t bytes = 0;
        for (const auto& each : fs::recursive_directory_iterator(folder / "kept"))
            if (each.is_regular_file()) bytes += each.file_size();
        return bytes;
    }
};

TEST_F(VersionsTest, EachStateIsKeptOnceAndPrivately) {
    file::VersionStore store(folder / "kept", plenty);
    const std::string image(60'000, 'i'); // packs well, so its packed bytes are copied and not its own
    const fs::path books = write("books.fwk", "one", {{"a.jpg", image}});
    EXPECT_EQ(listed(store, books), "");
    store.keep(books, known("one", 1), {});
    store.keep(books, known("one", 1), {}); // of a save that failed and is tried again
    write("books.fwk", "two", {{"a.jpg", image}});
    store.keep(books, known("one", 1), {}); // of another text
    EXPECT_EQ(listed(store, folder / "." / "books.fwk"), "2:two/? 1:one/1 ");
    EXPECT_EQ(listed(store, folder / "other" / "books.fwk"), "");
    for (const auto& each : fs::recursive_directory_iterator(folder / "kept")) {
        EXPECT_EQ(each.status().permissions(), fs::perms(each.is_directory() ? 0700 : 0600)) << each.path();
    }
    const file::Version first = store.versionsOf(books).back();
    EXPECT_EQ(first.bytes, fs::file_size(books)); // both states take as many

    // Cut short by a loss of power: gone from the list, and the next state like it is kept.
    fs::resize_file(store.versionsOf(books).front().file, 10);
    EXPECT_EQ(listed(store, books), "1:one/1 ");
    store.keep(books, known("two", 2), {});
    EXPECT_EQ(listed(store, books), "3:two/2 1:one/1 ");

    // What a killed program has left goes with the next one; what is not the store's is passed over.
    for (const char* name :
         {"a-b.fwk", "9-1-1-1-1-x-0-z.fwk", "9-1-1-1-1-z-0-0.fwk", "9-1-1-1-1-1-0.fwk", ".new-1"})
        writeBytes(store.folderOf(books) / name, "x");
    for (const char* name : {"x", "0-1-2-z"}) writeBytes(store.folderOf(books) / "pictures" / name, "x");
    store.keep(write("books.fwk", "zero", {{"a.jpg", image}}), known("zero", 0), {});
    EXPECT_EQ(listed(store, books), "4:zero/0 3:two/2 1:one/1 ");
    EXPECT_TRUE(tree().find(".new-1") == std::string::npos && tree().find("0-1-2-z") != std::string::npos);
    EXPECT_EQ(raisedBy([&] { writeBytes(folder / "text", "text"), store.keep(folder / "text", {}, {}); }),
              core::errors::badFileFormat);
}

TEST_F(VersionsTest, WhatIsRestoredIsTheOldArchive) {
    file::VersionStore store(folder / "kept", plenty);
    const Pictures pictures = {{"a.jpg", "first"}, {"b.jpg", std::string(3000, 'b')}};
    const fs::path books = write("books.fwk", "one", pictures);
    const std::string one = content(books), two = "data.dat=two c.jpg=third ";
    store.keep(books, {}, {});
    write("books.fwk", "two", {{"a.jpg", "other"}, {"c.jpg", "third"}});
    const file::Version version = store.versionsOf(books).front();

    EXPECT_EQ(store.write(version, books, folder / "copy.fwk"), std::vector<std::string>{});
    EXPECT_EQ(content(folder / "copy.fwk"), one);
    int calls = 0;
    EXPECT_EQ(store.putPicturesBack(version, books, [&] { ++calls; }), std::vector<std::string>{});
    EXPECT_EQ(content(books), "a.jpg=first b.jpg=" + pictures.at("b.jpg") + " " + two);
    EXPECT_TRUE(
        store.putPicturesBack(version, books, [&] { ++calls; }).empty()); // all there: nothing is written
    EXPECT_EQ(calls, 1);
    // Without the database, too.
    fs::remove(books);
    EXPECT_TRUE(store.write(version, books, books).empty());
    EXPECT_EQ(content(books), one);
    // A picture that is nowhere any more is told, and the rest is there.
    write("books.fwk", "three");
    fs::remove_all(store.folderOf(books) / "pictures");
    EXPECT_EQ(store.write(version, books, folder / "copy.fwk"), (std::vector<std::string>{"a.jpg", "b.jpg"}));
    EXPECT_EQ(content(folder / "copy.fwk"), "data.dat=one ");
}

TEST_F(VersionsTest, TheLastTenAndOneADayForThirtyDays) {
    file::VersionStore store(folder / "kept", plenty);
    for (int i = 0; i < 200; ++i) { // four a day for fifty days
        const fs::path books = write("books.fwk", "t" + std::to_string(i));
        store.keep(books, {}, {}, noon + i / 4 * day + i % 4);
    }
    std::string expected;
    for (int i = 199; i >= 190; --i) expected += std::to_string(i + 1) + " ";
    for (int i = 187; i / 4 > 49 - 30; i -= 4) expected += std::to_string(i + 1) + " ";
    std::string numbers;
    for (const file::Version& version : store.versionsOf(folder / "books.fwk"))
        numbers += std::to_string(version.number) + " ";
    EXPECT_EQ(numbers, expected);
}

TEST_F(VersionsTest, PicturesAreThereOnceAndGoWithTheirLastVersion) {
    file::VersionStore store(folder / "kept", plenty);
    std::string image;
    for (std::size_t i = 0; i < 50'000; ++i) image += static_cast<char>(i * i * i >> 7U);
    fs::path books;
    for (int i = 0; i < 12; ++i) {
        books = write("books.fwk", std::to_string(i), {{"a.jpg", image}});
        store.keep(books, {}, {});
    }
    EXPECT_EQ(store.versionsOf(books).size(), file::VersionStore::newestKept);
    EXPECT_LT(storedBytes(), 60'000U);
    for (int i = 0; i < 10; ++i) store.keep(write("books.fwk", "without " + std::to_string(i)), {}, {});
    EXPECT_LT(storedBytes(), 10'000U);

    // Too large for the budget: what stays in the database is not stored, what leaves it is.
    file::VersionStore small(folder / "kept", 60'000);
    books = write("large.fwk", "one", {{"a.jpg", image}, {"b.jpg", "short"}});
    small.keep(books, {}, {"a.jpg"});
    EXPECT_LT(storedBytes(), 10'000U);
    const file::Version version = small.versionsOf(books).front();
    const std::string one = content(books);
    write("large.fwk", "two", {{"x.jpg", image}});
    EXPECT_TRUE(small.write(version, books, folder / "copy.fwk").empty());
    EXPECT_EQ(content(folder / "copy.fwk"), one);
}

TEST_F(VersionsTest, TheBudgetTakesTheOldestAndTheLastOfEachFileLast) {
    const auto bytes = [](int i) { // too random to pack
        std::string text = std::to_string(i);
        unsigned state = 12345U + static_cast<unsigned>(i);
        while (text.size() < 2000) text += static_cast<char>((state = state * 1103515245U + 12345U) >> 16U);
        return text;
    };
    file::VersionStore store(folder / "kept", 5 * 2300);
    for (int i = 0; i < 3; ++i) store.keep(write("old.fwk", bytes(i)), {}, {}, noon + i);
    for (int i = 0; i < 4; ++i) store.keep(write("new.fwk", bytes(10 + i)), {}, {}, noon + 10 + i);
    const auto numbers = [&](const char* name) {
        std::string all;
        for (const file::Version& version : store.versionsOf(folder / name))
            all += std::to_string(version.number);
        return all;
    };
    EXPECT_EQ(numbers("old.fwk") + " " + numbers("new.fwk"), "3 4321");
    for (int i = 4; i < 9; ++i) store.keep(write("new.fwk", bytes(10 + i)), {}, {}, noon + 10 + i);
    EXPECT_EQ(numbers("old.fwk") + " " + numbers("new.fwk"), "3 9876");
    file::VersionStore(folder / "kept", 2300).keep(write("new.fwk", bytes(30)), {}, {}, noon + 30);
    EXPECT_EQ(numbers("old.fwk") + " " + numbers("new.fwk"), " 10");
}

} // namespace
