#include "platform/settingsFile.h"

#include "archiveFixture.h"

#include <sys/stat.h>

namespace fs = std::filesystem;
using platform::SettingsFile;

namespace {

class SettingsFileTest : public FolderTest {
protected:
    fs::path file = folder / "config" / "ferrowick.conf";

    void write(const std::string& text) {
        fs::create_directories(file.parent_path());
        writeBytes(file, text);
    }
};

TEST_F(SettingsFileTest, AnyTextComesBack) {
    std::vector<std::string> texts{std::string("zero\0byte", 9)};
    for (const char* text :
         {"", " ", "  both ends\t", "a=b=c", "[x]", "# no comment", "two\nlines\r\n", "C:\\new\\temp\\", "\\",
          "\\ ", " \\n", "\"quoted\"", "\xFF not UTF-8", "\xC3\xBC\xF0\x9F\x98\x80"})
        texts.emplace_back(text);
    SettingsFile settings(file);
    for (const std::string& text : texts) {
        settings.SaveSetting("StartUp", "as value of " + text, text);
        settings.SaveSetting("in " + text, "key", text);
    }
    ASSERT_TRUE(settings.flush());
    const SettingsFile again(file);
    for (const std::string& text : texts) {
        EXPECT_EQ(settings.GetSetting("StartUp", "as value of " + text, "default"), text);
        EXPECT_EQ(again.GetSetting("StartUp", "as value of " + text, "default"), text);
        EXPECT_EQ(again.GetSetting("in " + text, "key", "default"), text);
    }
    EXPECT_EQ(again.GetSetting("StartUp", "absent", "default"), "default");
}

TEST_F(SettingsFileTest, KeepsWhatItDoesNotKnow) {
    write("\xEF\xBB\xBF# mine\r\n[StartUp]\r\n File1 = C:\\docs "
          "\r\nFile1=second\r\nnonsense\r\n\r\n[Other]\r\nx=1\r\n");
    SettingsFile settings(file);
    EXPECT_EQ(settings.GetSetting("StartUp", "File1"), "C:\\docs");
    EXPECT_EQ(settings.GetSetting("Other", "x"), "1");
    settings.SaveSetting("StartUp", "File1", "/a.fwk");
    settings.SaveSetting("StartUp", "File2", "/b.fwk");
    settings.SaveSetting("New", "y", "2");
    EXPECT_EQ(settings.GetSetting("StartUp", "File2"), "/b.fwk") << "told before it is written";
    ASSERT_TRUE(settings.flush());
    EXPECT_EQ(readBytes(file), "# mine\n[StartUp]\nFile1=/a.fwk\nFile1=second\nnonsense\nFile2=/b.fwk\n\n"
                               "[Other]\nx=1\n[New]\ny=2\n");

    write("[StartUp]\nFile1=old\nFile2=old\n"); // two instances keep each other's changes
    SettingsFile first(file), second(file);
    first.SaveSetting("StartUp", "File1", "first");
    second.SaveSetting("StartUp", "File2", "second");
    ASSERT_TRUE(first.flush() && second.flush());
    EXPECT_EQ(readBytes(file), "[StartUp]\nFile1=first\nFile2=second\n");
}

TEST_F(SettingsFileTest, ADamagedFileMeansDefaults) {
    const std::string zeros(100, '\0');
    for (const std::string& damage :
         {"[StartUp]\nFile1=x\n" + zeros, "[StartUp]\nFile1=x\n" + std::string(2 << 20, 'x'),
          std::string("File1=x\n=x\n[StartUp\n]\n[Start"), std::string("\xFF\xFE\n")}) {
        write(damage);
        SettingsFile settings(file);
        EXPECT_EQ(settings.GetSetting("StartUp", "File1", "default"), "default");
        settings.SaveSetting("StartUp", "File1", "saved");
        EXPECT_TRUE(settings.flush());
        EXPECT_EQ(SettingsFile(file).GetSetting("StartUp", "File1"), "saved");
    }
}

TEST_F(SettingsFileTest, SaysWhenItCannotWrite) {
    write("[StartUp]\nFile1=old\n");
    ::chmod(file.c_str(), 0444);
    SettingsFile settings(file);
    EXPECT_TRUE(settings.flush()) << "nothing to write";
    settings.SaveSetting("StartUp", "File1", "new");
    EXPECT_FALSE(settings.flush());
    EXPECT_EQ(settings.GetSetting("StartUp", "File1"), "new") << "for this run";
    EXPECT_EQ(readBytes(file), "[StartUp]\nFile1=old\n");
    for (const fs::path& impossible : {file / "x.conf", fs::path(), folder}) {
        SettingsFile nowhere(impossible);
        nowhere.SaveSetting("StartUp", "File1", "new");
        EXPECT_FALSE(nowhere.flush()) << impossible;
    }
    EXPECT_EQ(filesIn(folder), std::vector<std::string>{"config"});
}

} // namespace
