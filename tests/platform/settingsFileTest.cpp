#include "platform/settingsFile.h"
#include "folderFixture.h"

#include <sys/stat.h>

using platform::SettingsFile;
using namespace std::string_literals;

namespace {

struct SettingsFileTest : FolderTest {
    SettingsFileTest() { fs::create_directory(folder / "config"); }
    fs::path file = folder / "config" / "ferrowick.conf";
};

TEST_F(SettingsFileTest, AnyTextComesBack) {
    file = folder / "made" / "now" / "ferrowick.conf";
    SettingsFile settings(file);
    const std::string all =
        "zero\0byte|| |  both ends\t|a=b=c|[x]|# no comment|;|two\nlines\r\n|C:\\new\\temp\\|\\|"
        "\\ | \\n|\"quoted\"|\xFF not UTF-8|\xC3\xBC\xF0\x9F\x98\x80"s;
    const std::vector<std::string_view> texts = core::split(all, '|');
    for (const auto text : texts)
        settings.SaveSetting("in " + std::string(text), "of " + std::string(text), text);
    ASSERT_TRUE(settings.flush());
    for (const SettingsFile& each : {std::as_const(settings), SettingsFile(file)})
        for (const auto text : texts)
            EXPECT_EQ(each.GetSetting("in " + std::string(text), "of " + std::string(text), "none"), text);
    EXPECT_EQ(settings.GetSetting("in a=b=c", "absent", "default"), "default");
}

TEST_F(SettingsFileTest, KeepsWhatItDoesNotKnow) {
    const std::string StartUp = "\xEF\xBB\xBF# mine\r\n[StartUp]\r\n File1 = C:\\docs \r\nFile1=second\r\n";
    writeBytes(file, StartUp + "nonsense\r\n\r\n[Other]\r\n;y=0\r\nx=1\r\n");
    SettingsFile settings(file), other(file);
    EXPECT_EQ(settings.GetSetting("StartUp", "File1"), "C:\\docs");
    EXPECT_EQ(settings.GetSetting("Other", "x"), "1");
    settings.SaveSetting("StartUp", "File1", "/a.fwk");
    settings.SaveSetting("New", "y", "2");
    EXPECT_EQ(settings.GetSetting("New", "y"), "2") << "told before it is written";
    other.SaveSetting("StartUp", "File2", "/b.fwk"); // of another instance
    ASSERT_TRUE(settings.flush() && other.flush());
    EXPECT_EQ(readBytes(file), "# mine\n[StartUp]\nFile1=/a.fwk\nFile1=second\nnonsense\nFile2=/b.fwk\n\n"
                               "[Other]\n;y=0\nx=1\n[New]\ny=2\n");
}

TEST_F(SettingsFileTest, ADamagedFileMeansDefaultsAndOneThatCannotBeWrittenStays) {
    const std::string head = "[StartUp]\nFile1=x\n", most(1 << 20, 'x');
    const std::string texts[] = {head + most.substr(head.size()), head + most.substr(head.size() - 1),
                                 head + "\0"s, "File1=x\n=x\n[StartUp\n]\n[Start"};
    for (const std::string& text : texts) {
        writeBytes(file, text);
        SettingsFile settings(file);
        EXPECT_EQ(settings.GetSetting("StartUp", "File1", "default"), &text == texts ? "x" : "default");
        settings.SaveSetting("StartUp", "File1", "");
        EXPECT_TRUE(settings.flush());
        EXPECT_EQ(SettingsFile(file).GetSetting("StartUp", "File1", "default"), "");
    }
    writeBytes(file, head);
    ::chmod(file.c_str(), 0444);
    for (const fs::path& impossible : {file, file / "x.conf", fs::path(), folder}) {
        SettingsFile settings(impossible);
        EXPECT_TRUE(settings.flush()) << "nothing to write";
        settings.SaveSetting("StartUp", "File1", "new");
        EXPECT_FALSE(settings.flush()) << impossible;
        EXPECT_EQ(settings.GetSetting("StartUp", "File1"), "new") << "for this run";
    }
    EXPECT_EQ(readBytes(file) + tree(), head + "config/ config/ferrowick.conf ");
}

} // namespace
