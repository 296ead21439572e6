#include "file/fileState.h"
#include "folderFixture.h"

using file::FileState;
using Change = FileState::Change;

namespace {

struct StateOfFile : FolderTest {
    FileState make(const std::string& name, const char* data, const char* image) const {
        file::Zip Zip;
        Zip.CreateArchive(folder / name, "of its own");
        Zip.addBuffer("data.dat", data, "Main Data File");
        Zip.addBuffer("a.jpg", image, "");
        return Zip.CloseArchive();
    }
    [[nodiscard]] std::string after(const FileState& state, const std::string& acts) const {
        EXPECT_EQ(std::system(("cd " + folder.string() + " && " + acts).c_str()), 0) << acts;
        constexpr const char* names[] = {"none", "changed", "gone"};
        return names[static_cast<int>(state.changeOf(folder / "a"))];
    }
};

TEST_F(StateOfFile, OtherBytesAreAChangeAndNothingElseIs) {
    (void)make("one", "one", "image");
    (void)make("two", "two", "image");
    (void)make("three", "one", "IMAGE");
    const FileState made = make("a", "one", "image");
    for (const auto& each :
         table(": -> none; touch -d tomorrow a -> none; chmod 600 a -> none; cp a b && mv b a -> none; "
               "cp one a -> none; cp two a -> changed; cp three a -> changed; cp one a -> none; "
               "head -c $(stat -c %s one) /dev/zero >a && touch -r one a -> changed; : >a -> changed; "
               "rm a -> gone; mkdir a -> gone; rmdir a && cp one a -> none"))
        EXPECT_EQ(after(made, each[0]), each[1]) << each[0];
    // The file that is read, when another has taken its place, and the one that is written.
    file::Zip Zip;
    Zip.OpenArchive(folder / "a");
    EXPECT_EQ(after(Zip.state(), "cp two b && mv b a"), "changed");
    EXPECT_EQ(after(Zip.CloseArchiveAs(folder / "a"), ":"), "none");
}

TEST_F(StateOfFile, ThereWasNoneOrNoArchive) {
    const FileState none = FileState::of(folder / "a");
    EXPECT_EQ(after(none, ":"), "none");
    // Of such a file nothing but its status is known. Some lie about where their directories are.
    for (const char* bytes :
         {"text", "PK\\1\\2PK\\5\\6\\0\\0\\0\\0\\1\\0\\1\\0\\1\\0\\0\\0\\377\\377\\377\\177\\0\\0",
          "PK\\1\\2PK\\5\\6\\0\\0\\0\\0\\1\\0\\1\\0\\4\\0\\0\\0\\0\\0\\0\\0\\0\\0",
          "PK\\5\\6\\0\\0\\0\\0\\1\\0\\1\\0\\377\\377\\377\\377\\0\\0\\0\\0\\0\\0"}) {
        EXPECT_EQ(after(none, "printf '" + std::string(bytes) + "' >a"), "changed");
        const FileState state = FileState::of(folder / "a");
        EXPECT_EQ(after(state, ":"), "none") << bytes;
        EXPECT_EQ(after(state, "touch -d tomorrow a"), "changed") << bytes;
    }
}

} // namespace
