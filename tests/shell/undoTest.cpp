#include "shell/undo.h"
#include "calc/columns.h"
#include "calc/designFrm.h"
#include "calc/formulateFrm.h"
#include "calc/serialFrm.h"
#include "calc/totalsFrm.h"
#include "entry/fieldEvents.h"
#include "entry/navBar.h"
#include "file/dataWriter.h"
#include "invoice/repeatFrm.h"
#include "layout/sheetFixture.h"
#include "print/layoutPageSetupFrm.h"
#include "print/reportPageSetup.h"
#include "search/replaceFrm.h"
#include "sheetWatch.h"
#include "shell/listEvents.h"
#include "storage/saveFile.h"

namespace {

struct Undo : Sheet {
    std::mt19937 random{std::getenv("FERROWICK_SEED") ? std::strtoul(std::getenv("FERROWICK_SEED"), nullptr, 10) : 7UL};

    void openRecords(bool invoices) {
        DataFile file = numberedRecords(invoices);
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
        return file::writeDataFile(app.document, false) + std::to_string(app.document.iLastKey);
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
        if (it.isObject()) layout::select(app, it);
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
    void act(int what) {
        core::Document& document = app.document;
        core::RecordsList& records = document.LV;
        platform.answers = std::deque<platform::Answer>(6, platform::Answer::Yes);
        platform.inputs = {number(2) == 0 ? "2" : "7"};
        platform.files = {pictureFile()};
        switch (what) {
        case 0:
            press("New"), type(), press("Add");
            break;
        case 1:
            press("Last"), press("Back"), type(), press("Update");
            break;
        case 2:
            if (records.count() > 4) press("Delete");
            break;
        case 3:
            goTo(app::reportTab);
            select({1 + number(records.count())});
            if (records.count() > 4) run("Delete");
            break;
        case 4:
            if (records.count() < 12) goTo(app::reportTab), run("mnuDuplicate");
            break;
        case 5: {
            search::replaceFrm form(app);
            form.Text1 = std::array{"Ann", "1", "2", "Zoë and others"}.at(random() % 4);
            form.Text2 = word();
            form.Command1_Click();
            break;
        }
        case 6:
            goTo(app::reportTab);
            shell::list_ColumnClick(app, shell::visibleList(document), 2);
            break;
        case 7:
            inProperties(0);
            break;
        case 8:
            inProperties(1);
            break;
        case 9:
            if (number(3) == 0) inProperties(2);
            break;
        case 10:
            inProperties(3);
            break;
        case 11: {
            calc::formulateFrm form(app);
            if (form.colList.empty()) break;
            form.colList_Click(0);
            for (const int key : {number(10), number(10)}) form.NumKey_Click(key);
            form.addCalcBtn_Click();
            form.donebtn_Click();
            break;
        }
        case 12: {
            calc::TotalsFrm form(app);
            for (auto& row : form.LV) row.Checked = number(2) == 0;
            form.OKButton_Click();
            break;
        }
        case 13: {
            calc::serialFrm form(app);
            if (form.List1.empty()) break;
            form.List1_Click(0);
            form.Text1 = std::to_string(number(500));
            form.setBtn_Click();
            break;
        }
        case 14:
            designs("Label");
            break;
        case 15:
            designs("vLine");
            break;
        case 16:
            designs("Box SendBack");
            break;
        case 17:
            designs("take by 300 200 by 150 60 drop click");
            break;
        case 18:
            designs("grip by 300 200 release");
            break;
        case 19:
            designs("Delete");
            break;
        case 20:
            designs("Bold");
            break;
        case 21:
            designs("SendFront");
            break;
        case 22:
            designs("Lock");
            break;
        case 23:
            designs("AutoLabel");
            break;
        case 24:
            designs("ClipArt");
            break;
        case 25: {
            print::reportPageSetup form(app);
            form.allChk_Click(number(2) == 0);
            form.ApplyBtn_Click();
            break;
        }
        case 26:
            run("mnuDatabaseLock");
            break;
        case 27:
            goTo(app::reportTab), shell::visibleList(document).columns.at(2).Width += 100;
            break;
        case 28:
            goTo(app::reportTab), shell::visibleList(document).columns.setPosition(2, 1 + number(3));
            break;
        case 29:
            if (document.bInvoiceStyle && number(4) == 0)
                invoice::repeatItemRows(app, 2 + number(2), {"Qty"});
            break;
        case 30:
            designs(number(6) == 0 ? "Nuke" : "Italic");
            break;
        case 31:
            storage::SaveFile(app, false, false);
            break;
        default:
            if (document.bInvoiceStyle) goTo(app::reportTab), shell::viewOpt_Click(app, number(2));
            break;
        }
    }
    std::string pictureFile() {
        return platform.pictureFile("art" + std::to_string(number(3)) + ".gif", {1000, 1000},
                                    word() + "bytes");
    }
};

TEST_F(Undo, RandomCommandsAreUndoneAndRedoneToTheByte) {
    for (const bool invoices : {false, true}) {
        openRecords(invoices);
        const std::string opened = written();
        for (int i = 0; i < 250; ++i) {
            const std::string before = written(), selectedBefore = selected();
            const int tab = app.mainFrm.SSTab1;
            const int what = number(33);
            event([&] { act(what); });
            const std::string now = written(), selectedNow = selected();
            if (now == before || what == 32) continue;
            const std::string name = undoes();
            undo();
            ASSERT_EQ(written(), before) << i << " " << what << name;
            // The page shows one record, and nothing else is selected then.
            EXPECT_TRUE(app.mainFrm.SSTab1 != tab || selected() == selectedBefore) << i << " " << what << name;
            redo();
            ASSERT_EQ(written(), now) << i << " " << what << name;
            EXPECT_EQ(selected(), selectedNow) << i << " " << what << name;
            ASSERT_EQ(undoes(), name);
        }
        while (!undoes().empty()) undo();
        EXPECT_EQ(written(), opened);
    }
}

} // namespace
