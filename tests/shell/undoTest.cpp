#include "shell/undo.h"
#include "calc/columns.h"
#include "calc/designFrm.h"
#include "calc/formulateFrm.h"
#include "calc/serialFrm.h"
#include "calc/totalsFrm.h"
#include "entry/fieldEvents.h"
#include "entry/navBar.h"
#include "file/dataWriter.h"
#include "history/undoStack.h"
#include "invoice/repeatFrm.h"
#include "layout/images.h"
#include "layout/sheetFixture.h"
#include "print/layoutPageSetupFrm.h"
#include "print/reportPageSetup.h"
#include "search/filter/filterMode.h"
#include "search/replaceFrm.h"
#include "sheetWatch.h"
#include "shell/listEvents.h"
#include "storage/saveFile.h"

namespace {

struct Undo : Sheet {
    std::mt19937 random{7};

    void openRecords(bool invoices) {
        DataFile file = numberedRecords(invoices);
        if (!invoices) file.names += "Photo|", file.types += "7|", file.widths += "900|", file.spots += "6|";
        file.objects("L|Name|200|2000|1200|285;B|200|3000|1000|500|0|1|");
        openSheet("", false, file);
        app.mainFrm.bConfirmDelete = false;
    }
    template <typename Handler>
    void event(Handler&& handler) {
        shell::beforeEvent(app);
        try {
            handler();
        } catch (const core::RunTimeError&) { // ends the program, and what has been done until then is a step
        }
        shell::afterEvent(app);
    }
    // What a save would write, and which key comes next.
    std::string written() {
        std::string text = file::writeDataFile(app.document, false) + std::to_string(app.document.iLastKey);
        file::Zip Zip;
        Zip.OpenArchive(app.document.currentFile);
        std::set<std::string> pictures;
        for (int i = 0; i < Zip.FileCount(); ++i)
            if (const std::string name = Zip.FileNameAt(i); name != "data.dat")
                pictures.insert(" " + name + std::to_string(Zip.checksumOf(name)));
        for (const std::string& picture : pictures) text += picture;
        return text;
    }
    std::string selected() {
        std::string keys;
        app.document.LV.forEach(
            [&](const core::Item& item) { keys += item.Selected ? item.Key.str() + " " : ""; });
        return keys;
    }
    std::string undoes() {
        return app.mainFrm.control("mnuUndo").Enabled ? app.mainFrm.control("mnuUndo").Caption : "";
    }
    void undo() {
        event([&] { program("mnuUndo"); });
    }
    void redo() {
        event([&] { program("mnuRedo"); });
    }
    void program(const char* key) { run(key); }
    int number(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }
    std::string word() { return std::array{"Ann", "x@y", "Zoë and others", "12", ""}.at(random() % 5); }
    void goTo(int tab) {
        if (app.mainFrm.SSTab1 != tab) shell::SSTab1_Click(app, tab);
    }
    void page(bool designing) {
        goTo(app::layoutTab);
        if (layout::isDesignMode(app) != designing) shell::pressDesign(app);
    }
    std::string someColumn() {
        const core::ColumnHeaders& columns = app.document.LV.columns;
        return columns.count() < 2 ? "" : columns.at(2 + number(columns.count() - 1)).Text;
    }
    core::ObjectRef someObject() {
        std::vector<core::ObjectRef> all;
        for (const core::Family family : core::allFamilies)
            core::visitFamily(objects, family, [&](auto& array) {
                array.forEach([&](const auto& object) { all.push_back({family, object.Index}); });
            });
        return all.empty() ? core::ObjectRef{}
                           : all[static_cast<std::size_t>(number(static_cast<int>(all.size())))];
    }
    void press(const char* button) {
        page(false);
        entry::layoutNavBar_ButtonClick(app, button);
    }
    void type() {
        page(false);
        objects.layoutField.forEach([&](const core::LayoutField& field) {
            if (number(2) == 0) entry::layoutField_Change(app, field.Index, word());
        });
    }
    void designs(const char* acts) {
        page(true);
        if (objects.count() > 40) acts = "Delete";
        it = someObject();
        if (!it.isObject()) return;
        layout::select(app, it);
        after(acts);
    }
    void inProperties(int what) {
        goTo(app::reportTab);
        calc::designFrm form(app);
        form.selectedRow = number(static_cast<int>(form.List1.size()) + 1) - 1;
        form.fieldTxt = std::string("C") + std::to_string(number(30));
        form.typeOpt_Click(number(6));
        if (what == 0 && form.List1.size() < 9) form.addBtn_Click();
        if (what == 1) form.changeBtn_Click();
        if (what == 2 && form.List1.size() > 3) form.deleteBtn_Click();
        if (what == 3) form.List1_DblClick(form.selectedRow);
        form.doneBtn_Click();
    }
    void onList(const char* command, int most) {
        goTo(app::reportTab);
        select({1 + number(app.document.LV.count())});
        const int count = app.document.LV.count();
        if (count > 4 && count < most) run(command);
    }
    void replaceWords() {
        search::replaceFrm form(app);
        form.Text1 = std::array{"Ann", "1", "2", "Zoë and others"}.at(random() % 4);
        form.Text2 = word();
        form.Command1_Click();
    }
    void inExpressions() {
        calc::formulateFrm form(app);
        if (form.colList.empty()) return;
        form.colList_Click(0);
        for (const int key : {number(10), number(10)}) form.NumKey_Click(key);
        form.addCalcBtn_Click();
        form.donebtn_Click();
    }
    void chooseTotals() {
        calc::TotalsFrm form(app);
        for (auto& row : form.LV) row.Checked = number(2) == 0;
        form.OKButton_Click();
    }
    void adjustSerial() {
        calc::serialFrm form(app);
        if (form.List1.empty()) return;
        form.List1_Click(0);
        form.Text1 = std::to_string(number(500));
        form.setBtn_Click();
    }
    void setUpReport() {
        print::reportPageSetup form(app);
        form.allChk_Click(number(2) == 0);
        form.ApplyBtn_Click();
    }
    core::ColumnHeaders& shownColumns() {
        goTo(app::reportTab);
        return shell::visibleList(app.document).columns;
    }
    void choosePicture() {
        const int count = objects.imgHolder.count();
        page(false);
        if (count > 0) layout::imgHolder_DblClick(app, objects.imgHolder.upperBound());
    }
    void act(int what) {
        platform.answers = std::deque<platform::Answer>(6, platform::Answer::Yes);
        platform.inputs = {number(2) == 0 ? "2" : "7"};
        platform.files = {
            platform.pictureFile("art" + std::to_string(number(3)) + ".jpg", {1000, 1000}, word())};
        const bool invoices = app.document.bInvoiceStyle, rarely = number(4) == 0;
        const std::function<void()> acts[] = {
            [&] { invoices&& rarely ? shell::viewOpt_Click(app, number(2)) : goTo(app::reportTab); },
            [&] { press("New"), type(), press("Add"); },
            [&] { press("Last"), press("Back"), type(), press("Update"); },
            [&] {
                if (app.document.LV.count() > 4) press("Delete");
            },
            [&] { onList("Delete", 99); },
            [&] { onList("mnuDuplicate", 12); },
            [&] { replaceWords(); },
            [&] { shownColumns(), shell::list_ColumnClick(app, shell::visibleList(app.document), 2); },
            [&] { inProperties(0); },
            [&] { inProperties(1); },
            [&] {
                if (rarely) inProperties(2);
            },
            [&] { inProperties(3); },
            [&] { inExpressions(); },
            [&] { chooseTotals(); },
            [&] { adjustSerial(); },
            [&] { designs("Label"); },
            [&] { designs("Box SendBack vLine"); },
            [&] { designs("take by 300 200 by 150 60 drop click"); },
            [&] { designs("grip by 300 200 release"); },
            [&] { designs("Delete"); },
            [&] { designs("Bold"); },
            [&] { designs("SendFront"); },
            [&] { designs("Lock"); },
            [&] { designs("AutoLabel"); },
            [&] {
                designs(("ClipArt clipPic," + std::to_string(objects.clipPic.upperBound() + 1) + " dblclick")
                            .c_str());
            },
            [&] { designs(rarely ? "Nuke" : "Italic"); },
            [&] {
                if (!invoices) designs("Photo");
            },
            [&] { choosePicture(); },
            [&] { setUpReport(); },
            [&] { run("mnuDatabaseLock"); },
            [&] { shownColumns().at(2).Width += 100; },
            [&] { shownColumns().setPosition(2, 1 + number(3)); },
            [&] {
                if (invoices && rarely) invoice::repeatItemRows(app, 2 + number(2), {"Qty"});
            },
            [&] { storage::SaveFile(app, false, false); },
            [&] { run("mnuCleanDatabase"); },
            [&] { find(shownColumns().at(2).Text + " ~ " + word()); },
            [&] {
                if (app.document.searchLV.Visible) run("Search");
            },
        };
        acts[static_cast<std::size_t>(what) % std::size(acts)]();
    }
};

TEST_F(Undo, RandomCommandsAreUndoneAndRedoneToTheByte) {
    for (const bool invoices : {false, true}) {
        openRecords(invoices);
        const std::string opened = written();
        for (int i = 0; i < 250; ++i) {
            const std::string before = written(), selectedBefore = selected();
            const int what = number(37);
            event([&] { act(what); });
            const std::string now = written(), selectedNow = selected();
            if (now == before || what == 0) continue;
            const std::string name = undoes();
            undo();
            ASSERT_EQ(written(), before) << i << " " << what << name;
            EXPECT_EQ(selected(), selectedBefore) << i << " " << what << name;
            redo();
            ASSERT_EQ(written(), now) << i << " " << what << name;
            EXPECT_EQ(selected(), selectedNow) << i << " " << what << name;
            ASSERT_EQ(undoes(), name);
        }
        while (!undoes().empty()) undo();
        EXPECT_EQ(written(), opened);
    }
}

TEST_F(Undo, TheCurrentRecordStaysTheCurrentResult) {
    openRecords(false);
    core::RecordsList &LV = app.document.LV, &results = app.document.searchLV;
    find("Qty >= 1");
    ASSERT_GT(results.count(), 3);
    event([&] { LV.cell(LV.at(2), LV.columns.at(2)) = "other", app::setDocumentModified(app, true); });
    for (const int row : {1, 3}) {
        LV.setSelectedItem(&LV.at(row));
        undo();
        EXPECT_EQ(results.selectedItem()->Tag, LV.selectedItem()->Key);
        redo();
    }
}

TEST_F(Undo, AWholeDragIsOneStepAndASaveKeepsTheSteps) {
    openRecords(false);
    event([&] { page(true); });
    it = ref("pBox,1");
    const std::string before = place();
    for (const char* acts : {"select", "take", "by 300 200", "by 30 20", "drop", "click"})
        event([&] { after(acts); });
    EXPECT_EQ(undoes(), "&Undo Move Object");
    event([&] { run("Save"); });
    EXPECT_FALSE(app.document.bModified);
    undo();
    EXPECT_EQ(place() + (app.document.bModified ? " modified " : "") + undoes(), before + " modified ");
    redo();
    EXPECT_FALSE(app.document.bModified);
}

TEST_F(Undo, AColumnGoesWithItsBoxesUnderItsOwnName) {
    openRecords(false);
    event([&] { page(true); });
    event([&] { after("Photo"); });
    EXPECT_EQ(undoes(), "&Undo Add Object");
    const int boxes = objects.layoutField.count();
    platform.answers.assign(6, platform::Answer::Yes);
    event([&] {
        goTo(app::reportTab);
        calc::designFrm form(app);
        form.selectedRow = 1;
        form.deleteBtn_Click();
        form.doneBtn_Click();
    });
    EXPECT_LT(objects.layoutField.count(), boxes);
    EXPECT_EQ(undoes(), "&Undo Remove Column");
}

TEST_F(Undo, LeavesWhatIsTypedAndShowsTheRecordThatCameBack) {
    openRecords(false);
    const auto field = [&](int index) -> std::string& { return objects.layoutField[index].Text; };
    event([&] { press("Delete"); });
    event([&] { press("New"); });
    event([&] { entry::layoutField_Change(app, 2, "Eve"); });
    undo();
    EXPECT_EQ(field(2) + (entry::isSheetNew(app) ? " new " : " ") + cell(1, "Name"), "Eve new Ann");
    event([&] { press("Last"); });
    event([&] { entry::layoutField_Change(app, 2, "Zed"); });
    event([&] { press("Update"); });
    event([&] { press("First"); });
    event([&] { entry::layoutField_Change(app, 2, "Anna"); });
    undo();
    EXPECT_EQ(field(2) + cell(5, "Name"), "AnnaBob");
    openRecords(true);
    event([&] { page(false); });
    event([&] { press("Last"); });
    event([&] { press("Delete"); });
    undo();
    EXPECT_EQ(field(2), "Bob");
    openRecords(false);
    event([&] { (search::setFilter(app, "b -zoe"), press("Delete")); });
    EXPECT_EQ(search::filterBar(app).found * 10 + search::filterBar(app).all, 24);
    undo();
    EXPECT_EQ(search::filterBar(app).found, 3);
}

TEST_F(Undo, APictureThatCannotBePutBackIsToldAndTheStepStays) {
    openSheet("P|Photo|200|200|1000|1000|", false, DataFile("Name Photo:7", "Ann|"));
    for (const char* bytes : {"first", "second"}) {
        platform.files = {platform.pictureFile("art.jpg", {1000, 1000}, bytes)};
        platform.answers = {platform::Answer::Yes};
        event([&] { choosePicture(); });
    }
    const std::string file = app.document.currentFile;
    const auto taken = shell::stepsTaken(app);
    for (const bool isThere : {false, true}) {
        if (!isThere) fs::rename(file, path("away"));
        undo();
        EXPECT_EQ(told().starts_with("! A picture could not be put back: "), !isThere);
        EXPECT_EQ(shell::stepsTaken(app), taken + (isThere ? 1 : 0));
        if (!isThere) fs::rename(path("away"), file);
    }
}

// What was saved among them is known again when it is reached, and never when it is forgotten.
TEST_F(Undo, TheOldestStepsAreForgotten) {
    std::string& title = app.document.reportData.reportTitle;
    for (const std::string saved : {"2", "3"}) {
        openRecords(false);
        for (std::size_t i = 1; i <= history::UndoStack::mostSteps + 3; ++i) {
            event([&] { title = std::to_string(i), app::setDocumentModified(app, true); });
            if (title == saved) event([&] { run("Save"); });
        }
        EXPECT_EQ(undoes(), "&Undo Page Setup");
        for (; !undoes().empty(); undo()) EXPECT_TRUE(app.document.bModified);
        EXPECT_EQ(title + (app.document.bModified ? " modified" : ""), saved == "3" ? "3" : "3 modified");
    }
}

} // namespace
