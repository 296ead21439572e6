#include "searchProgram.h"

#include "shell/commands.h"
#include "shell/listEvents.h"

using namespace search;

namespace {

class SaveSearch : public ::testing::Test {
protected:
    static DataFile data() {
        DataFile data;
        data.more = "[Totaled Cols  ]Qty|\r\n[Increments    ]Qty,41|\r\n";
        data.rows = " Bolt | 12|$1.50|\r\nNut|7|$.25|\r\nBolt|7|$2.00|\r\n------|26|------|\r\n";
        return data;
    }
    SearchProgram program{data()};
    core::Document& document = program.app.document;
    const std::string file = document.currentFile;
    const std::string target = program.path("found.fwk");

    void save(const std::string& name) {
        program.platform.files = {name};
        shell::runCommand(program.app, "mnuSaveSearch");
    }
    // The rows of a file, as they stand in it.
    static std::string rowsOf(const std::string& archive) {
        const std::string text = Program::dataFileOf(archive);
        const std::string mark = "[Begin Data    ]\r\n";
        return text.substr(text.find(mark) + mark.size());
    }
};

TEST_F(SaveSearch, MakesADatabaseOfItsOwn) {
    app::setDocumentModified(program.app, true);
    ASSERT_EQ(program.find({{"Name", exact, "bolt", ""}}), "i1 i3");
    save(target);
    ASSERT_EQ(program.platform.dialogs.size(), 1U);
    EXPECT_EQ(program.platform.dialogs[0].title, "Save As...");
    EXPECT_EQ(program.platform.dialogs[0].fileName, "Untitled Search Results.fwk");
    EXPECT_TRUE(program.platform.messages.empty());
    // Text as it stands, the rest trimmed; the Totals row is that of the records.
    EXPECT_EQ(rowsOf(target), " Bolt |12|$1.50|\r\nBolt|7|$2.00|\r\n------|26|------|\r\n");
    // The design is the same as that of the records, counters included.
    const std::string found = Program::dataFileOf(target);
    const std::string records = Program::dataFileOf(file);
    EXPECT_NE(found.find("[Increments    ]Qty,41|"), std::string::npos);
    EXPECT_FALSE(document.bModified); // shown as saved, which it is not
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(records, "\xEF\xBB\xBF" + data().text());
    EXPECT_EQ(document.scratchLV.count(), 0);

    program.open(target);
    EXPECT_EQ(program.recordsPanel(), "2 records.");
    EXPECT_EQ(document.LV.at(2).subItem(1), "Bolt");
}

TEST_F(SaveSearch, AnEmptyListMakesAnEmptyDatabase) {
    save(target); // nothing was ever searched
    EXPECT_EQ(rowsOf(target), "");
    program.open(target);
    EXPECT_EQ(document.LV.count(), 1);
    EXPECT_TRUE(document.LV.at(1).isTotals());
}

TEST_F(SaveSearch, RefusalsAndFailuresLeaveTheFilesAlone) {
    ASSERT_EQ(program.find({{"Qty", exact, "7", ""}}), "i2 i3");
    const std::string records = Program::dataFileOf(file);
    program.platform.files = {};
    shell::runCommand(program.app, "SaveSearch"); // cancelled
    EXPECT_TRUE(program.platform.messages.empty());
    save(file);
    EXPECT_EQ(
        program.platform.lastMessage(),
        "You cannot save your search results to a file named the same as the one that is currently open.");
    EXPECT_EQ(Program::dataFileOf(file), records);
    save(program.path("no/such/folder.fwk"));
    EXPECT_TRUE(program.platform.lastMessage().starts_with("There was an error writing to the file."));
    EXPECT_EQ(program.platform.messages.back().icon, platform::Icon::Exclamation);

    program.make("found.fwk", "other", {"a.jpg"});
    app::setDocumentModified(program.app, true);
    save(target);
    EXPECT_EQ(program.platform.lastMessage(), "Overwrite Existing File?");
    EXPECT_EQ(Program::dataFileOf(target), "other");
    EXPECT_TRUE(document.bModified);
    program.platform.answers = {platform::Answer::Yes};
    save(target);
    EXPECT_EQ(rowsOf(target), "Nut|7|$.25|\r\nBolt|7|$2.00|\r\n------|26|------|\r\n");
    platform::Zip Zip;
    Zip.OpenArchive(target);
    EXPECT_EQ(Zip.FileCount(), 1); // the images of the old file are gone
}

TEST_F(SaveSearch, RecordsAreTakenByThePlaceInTheirKey) {
    ASSERT_EQ(program.find({{"Name", exact, "nut", ""}}), "i2");
    // Descending by price: the place that "i2" had is now that of "i1".
    shell::list_ColumnClick(program.app, document.LV, document.LV.columns["Price"].Index);
    ASSERT_EQ(document.LV.at(2).Key, "i1");
    save(target);
    EXPECT_EQ(rowsOf(target), " Bolt |12|$1.50|\r\n------|26|------|\r\n");
}

TEST(SaveSearchOfInvoices, AnInvoiceListedTwiceIsWrittenOnce) {
    SearchProgram program("invoices.fwk");
    core::Document& document = program.app.document;
    takeOverColumns(program.app);
    core::addTotalsRow(document.searchLV);
    for (const char* key : {"i2", "i1", "i2"}) document.searchLV.add("", key).Tag = key;
    core::moveTotals(document.searchLV);
    program.platform.files = {program.path("found.fwk")};
    shell::runCommand(program.app, "mnuSaveSearch");
    const std::string second = document.LV.at(2).subItem(1).str();
    const std::string first = document.LV.at(1).subItem(1).str();
    program.open(program.path("found.fwk"));
    ASSERT_EQ(document.LV.count(), 3);
    EXPECT_TRUE(document.bInvoiceStyle);
    EXPECT_EQ(document.LV.at(1).subItem(1), second);
    EXPECT_EQ(document.LV.at(2).subItem(1), first);
}

} // namespace
