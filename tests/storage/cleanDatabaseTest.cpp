#include "shell/program.h"
#include "storage/cleanDatabase.h"
#include "programTest.h"
#include "raised.h"
#include "shell/commands.h"

namespace {

class CleanDatabase : public testing::Test {
protected:
    // The hourglass, as it is turned.
    class Machine : public ScriptedPlatform {
    public:
        void setMousePointer(platform::MousePointer pointer) override {
            pointers += pointer == platform::MousePointer::Hourglass ? "H" : "d";
        }
        std::string pointers;
    };

    void open(const std::string& file) {
        app.document.currentFile = file;
        storage::OpenFile(app, true);
        ASSERT_TRUE(shell::isCommandEnabled(app, "mnuCleanDatabase"));
    }
    void expectSilentCleaning() {
        machine.pointers.clear();
        shell::runCommand(app, "mnuCleanDatabase");
        EXPECT_EQ(machine.pointers, "Hd");
        EXPECT_EQ(toldBy(machine), "");
        EXPECT_FALSE(app.document.bModified);
    }

    Program files;
    Machine machine;
    shell::Program app{machine};
};

TEST_F(CleanDatabase, whatNothingRefersToGoes) {
    DataFile data({{"Name", 3}, {"Note", 3}, {"Photo", 7}});
    data.layout = "C|clip.jpg|1|2|3|4|\r\nC|Case.jpg|1|2|3|4|\r\n";
    data.rows = "a|see text.jpg|photo.jpg|\r\nb|noted.jpg|DELETED.JPG|\r\nc|x|Twice.jpg@other.jpg@|\r\n"
                "d|y.jpg ||\r\n------|------|------|\r\n";
    const std::string file =
        files.make("a.fwk", data.text(),
                   {"text.jpg", "clip.jpg", "case.jpg", "PHOTO.JPG", "noted.jpg", "deleted.jpg", "other.jpg",
                    "y.jpg", "old.gif", "old.jpeg", "old.JPG", "old.jpg ", "oldjpg"});
    open(file);
    app.document.LV.remove(app.document.LV.byKey("i2")); // and with it two images
    expectSilentCleaning();
    std::string left;
    for (const std::string& entry : entriesOf(file, false)) left += entry.substr(0, entry.find(':')) + " ";
    EXPECT_EQ(left, "data.dat clip.jpg PHOTO.JPG other.jpg old.gif old.jpeg ");
    EXPECT_EQ(app.mainFrm.panels[app::fileSizePanel].find("Filesize: "), 0U);
    const std::string before = ScriptedPlatform::read(file);
    expectSilentCleaning();
    EXPECT_EQ(ScriptedPlatform::read(file), before);
}

TEST_F(CleanDatabase, anArchiveThatCannotBeCleanedIsLeftAlone) {
    const std::string file = files.make("a.fwk", DataFile{}.text(), {"old.jpg"});
    open(file);
    const std::string whole = ScriptedPlatform::read(file);
    for (const std::string& bytes :
         {std::string(), std::string("no archive"), whole.substr(0, whole.size() / 2)}) {
        ScriptedPlatform::write(file, bytes);
        expectSilentCleaning();
        EXPECT_EQ(ScriptedPlatform::read(file), bytes);
        EXPECT_EQ(raisedBy([&] { storage::cleanDatabase(app); }), core::errors::badFileFormat);
    }
    std::filesystem::remove(file);
    expectSilentCleaning();
    EXPECT_FALSE(std::filesystem::exists(file));
}

} // namespace
