#include "file/fileState.h"
#include "folderFixture.h"

using file::FileState;

namespace {

struct StateOfFile : FolderTest {
    FileState make(const std::string& name, const char* data, const char* image) const {
        file::Zip Zip;
        Zip.CreateArchive(folder / name);
        Zip.addBuffer("data.dat", data, "Main Data File");
        Zip.addBuffer("a.jpg", image, "");
        return Zip.CloseArchive();
    }
    // What has become of "a" by the shell's acts.
    [[nodiscard]] std::string after(const std::string& acts, const FileState& state) const {
        EXPECT_EQ(std::system(("cd " + folder.string() + " && " + acts).c_str()), 0) << acts;
        constexpr const char* names[] = {"none", "changed", "gone"};
        return names[static_cast<int>(state.changeOf(folder / "a"))];
    }
};

TEST_F(StateOfFile, OtherBytesAreAChangeAndNothingElseIs) {
    (void)make("two", "two", "image");
    (void)make("three", "one", "IMAGE");
    const FileState made = make("a", "one", "image");
    for (const auto& each : table(
             "cp a one -> none; touch -d tomorrow a -> none; chmod 600 a -> none; cp a b && mv b a -> none; "
             "cp two a -> changed; cp three a -> changed; cp one a -> none; rm a -> gone; mkdir a -> gone; "
             "rmdir a && head -c $(stat -c %s one) /dev/zero >a && touch -r one a -> changed; cp one a -> "
             "none"))
        EXPECT_EQ(after(each[0], made), each[1]) << each[0];
    // The file that is read, when another has taken its place, and the one that is written.
    file::Zip Zip;
    Zip.OpenArchive(folder / "a");
    EXPECT_EQ(after("cp two b && mv b a", Zip.state()), "changed");
    EXPECT_EQ(after(":", Zip.CloseArchiveAs(folder / "a")), "none");
    // Of what is no archive nothing but its status is known. These lie about where their directories are.
    for (const std::string lie : {"\\377\\377\\377\\177", "\\0\\0\\0\\0"}) {
        const std::string makes =
            "printf 'PK\\1\\2PK\\5\\6\\0\\0\\0\\0\\1\\0\\1\\0\\4\\0\\0\\0" + lie + "\\0\\0' >a";
        EXPECT_EQ(after(makes, FileState()), "changed");
        const FileState state = FileState::of(folder / "a");
        EXPECT_EQ(after(":", state), "none") << lie;
        EXPECT_EQ(after("touch -d tomorrow a", state), "changed") << lie;
    }
}

} // namespace
