#include "sheetWatch.h"

#include "entry/fieldEvents.h"
#include "layout/sheet.h"
#include "printRecorder.h"
#include "search/searchFrm.h"
#include "search/searchMode.h"
#include "shell/mainWindow.h"

#include <gtest/gtest.h>

namespace {

// Without widgets: the handlers are called in the order that a window calls them, and the focus comes back to
// the field that had it before the page has been shown.
struct Hands {
    PrintProgram program;
    app::App& app = program.app;
    PrintingPlatform& platform = program.platform;
    int focus = 0; // the field that has it; 0 for none

    explicit Hands(bool invoices) : program(numberedRecords(invoices)) {
        layout::layoutPic1_Resize(app, 6000, 5000);
    }
    static bool shows(std::string_view) { return true; }
    void showTab(int tab) {
        if (tab == app.mainFrm.SSTab1) return;
        if (app.mainFrm.SSTab1 == app::layoutTab) entry::layoutField_LostFocus(app, focus);
        if (tab == app::layoutTab) entry::layoutField_GotFocus(app, focus);
        shell::SSTab1_Click(app, tab);
    }
    void clickRow(core::RecordsList& list, int row, bool bCtrl) {
        core::Item& item = list.at(row);
        app.mainFrm.bCtrlDown = bCtrl && list.MultiSelect;
        if (!app.mainFrm.bCtrlDown) list.clearSelection();
        const bool wasSelected = item.Selected;
        list.setSelectedItem(&item);
        item.Selected = !wasSelected;
        shell::list_Click(app, list);
    }
    void find(const char* name, bool bAll) {
        platform.onForm = [&](std::string_view) {
            search::searchFrm form(app);
            if (*name == '\0') return form.closeBtn_Click(); // over results, too
            const auto& columns = form.List1.items;
            form.List_Click(0, static_cast<int>(std::ranges::find(columns, "Name") - columns.begin()));
            form.Opt_Click(0, search::within);
            form.SearchText[0].Text = name;
            form.searchBtn_Click();
            if (bAll) form.allBtn_Click();
            form.closeBtn_Click();
        };
        search::mnuSearch_Click(app);
        platform.onForm = nullptr;
    }
    void focusField(int index) {
        entry::layoutField_LostFocus(app, focus);
        focus = index;
        entry::layoutField_GotFocus(app, focus);
    }
    void type(int index, const std::string& text) {
        focusField(index);
        entry::layoutField_Change(app, index, text);
    }
    void navigate(const std::string& key) { entry::layoutNavBar_ButtonClick(app, key); }
    void slide(int value) { entry::Slider1_Change(app, value); }
    void command(const char* key) { program.run(key); }
    void sort(core::RecordsList& list) { shell::list_ColumnClick(app, list, 2); }
    void view(int index) { shell::viewOpt_Click(app, index); }
    void open(core::RecordsList& list) { shell::list_DblClick(app, list); }
};

TEST(SheetEvents, NoRecordChangesButTheOneOnTheSheet) {
    for (const bool invoices : {false, true})
        EXPECT_EQ(failureOf(10'000, Print,
                            [&](const SheetEvents& events) {
                                Hands hands(invoices);
                                return SheetUser(hands).play(events);
                            }),
                  "")
            << (invoices ? "invoices" : "standard");
}

} // namespace
