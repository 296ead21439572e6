#include "searchProgram.h"

#include "shell/listEvents.h"

using namespace search;

namespace {

struct SaveSearch : testing::Test, SearchProgram {
    SaveSearch()
        : SearchProgram(DataFile("Name Qty:4 Price:2", " Bolt | 12|$1.50;Nut|7|$.25;Bolt|7|$2.00")
                            .section("Totaled Cols", "Qty|")
                            .section("Increments", "Qty,41|")) {}
    core::Document& document = app.document;
    const std::string file = document.currentFile, before = dataFileOf(file);
    const std::string target = path("found.fwk");

    void save(const std::string& name) {
        platform.files = {name};
        run("mnuSaveSearch");
    }
    // The rows of the file that was written, as they stand in it.
    std::string rows() const {
        const std::string text = dataFileOf(target), mark = "[Begin Data    ]\r\n";
        return text.substr(text.find(mark) + mark.size());
    }
};

TEST_F(SaveSearch, MakesADatabaseOfItsOwn) {
    save(target); // nothing was ever searched
    EXPECT_EQ(rows(), "");
    std::filesystem::remove(target);
    app::setDocumentModified(app, true);
    ASSERT_EQ(find("Name = bolt"), "i1 i3");
    dialogs();
    save(target);
    EXPECT_TRUE(dialogs().starts_with("Save As.../Untitled Search Results.fwk/"));
    EXPECT_EQ(told(), "");
    // Text as it stands, the rest trimmed; the Totals row is that of the records, and so is the design.
    EXPECT_EQ(rows(), " Bolt |12|$1.50|\r\nBolt|7|$2.00|\r\n------|------|------|\r\n");
    EXPECT_NE(dataFileOf(target).find("[Increments    ]Qty,41|"), std::string::npos);
    EXPECT_FALSE(document.bModified); // shown as saved, which it is not
    EXPECT_EQ(document.currentFile, file);
    EXPECT_EQ(dataFileOf(file), before);
    EXPECT_EQ(document.scratchLV.count(), 0);
    open(target);
    EXPECT_EQ(panel(app::recordsPanel), "2 records.");
    EXPECT_EQ(cell(2, "Name"), "Bolt");
}

TEST_F(SaveSearch, RefusalsAndFailuresLeaveTheFilesAlone) {
    ASSERT_EQ(find("Qty = 7"), "i2 i3");
    run("SaveSearch"); // cancelled
    EXPECT_EQ(told(), "");
    save(file);
    EXPECT_TRUE(told().starts_with("i You cannot save your search results to a file named the same"));
    EXPECT_EQ(dataFileOf(file), before);
    save(path("no/such/folder.fwk"));
    EXPECT_TRUE(told().starts_with("! There was an error writing to the file."));

    make("found.fwk", "other", {"a.jpg"});
    app::setDocumentModified(app, true);
    save(target);
    EXPECT_EQ(dataFileOf(target), "other");
    EXPECT_TRUE(document.bModified);
    platform.answers = {platform::Answer::Yes};
    save(target);
    EXPECT_NE(told().find("Overwrite Existing File?"), std::string::npos);
    EXPECT_EQ(rows(), "Nut|7|$.25|\r\nBolt|7|$2.00|\r\n------|------|------|\r\n");
    file::Zip Zip;
    Zip.OpenArchive(target);
    EXPECT_EQ(Zip.FileCount(), 1); // the images of the old file are gone
}

TEST_F(SaveSearch, RecordsAreTakenByThePlaceInTheirKeyAndInvoicesOnce) {
    ASSERT_EQ(find("Name = nut"), "i2");
    // Descending by price: the place that "i2" had is now that of "i1".
    shell::list_ColumnClick(app, document.LV, document.LV.columns["Price"].Index);
    ASSERT_EQ(document.LV.at(2).Key, "i1");
    save(target);
    EXPECT_EQ(rows(), " Bolt |12|$1.50|\r\n------|------|------|\r\n");
    std::filesystem::remove(target);
    openCopyOf("invoices.fwk");
    takeOverColumns(app.document);
    core::addTotalsRow(document.searchLV);
    for (const char* key : {"i2", "i1", "i2"}) document.searchLV.add("", key).Tag = key;
    core::moveTotals(document.searchLV);
    save(target);
    const std::string wanted = cells(document.LV.at(2)) + ";" + cells(document.LV.at(1)) + ";";
    open(target);
    EXPECT_TRUE(document.bInvoiceStyle && document.LV.count() == 3 && cells().starts_with(wanted));
}

} // namespace
