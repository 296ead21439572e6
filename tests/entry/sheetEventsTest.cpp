#include "calc/invoiceCalculation.h"
#include "entry/editRecord.h"
#include "entry/fieldEvents.h"
#include "entry/invoiceRecords.h"
#include "entry/navBar.h"
#include "invoice/views.h"
#include "layout/sheet.h"
#include "print/printCommands.h"
#include "printRecorder.h"
#include "search/searchFrm.h"
#include "search/searchMode.h"
#include "sheetWatch.h"
#include "shell/listEvents.h"
#include "shell/mainWindow.h"
#include "shell/menuCommands.h"

#include <gtest/gtest.h>

namespace {

enum Kind {
    Tab,
    Row,
    Find,
    Leave,
    Focus,
    Type,
    Navigate,
    Slide,
    Duplicate,
    Sort,
    View,
    Remove,
    Open,
    Design,
    Print,
    kinds
};

// A window without widgets: it calls the handlers in the order that a window does, and gives the focus back
// to the field that had it before the page has been shown.
struct SheetWindow : PrintProgram {
    SheetWatch watch{app};
    int focus = 0;
    std::string file;

    explicit SheetWindow(bool invoices) {
        app.mainFrm.bConfirmDelete = true;
        open(numberedRecords(invoices));
        layout::layoutPic1_Resize(app, 6000, 5000);
    }
    int count() const { return app.document.LV.count(); }
    bool onReport() const { return app.mainFrm.SSTab1 == app::reportTab; }

    std::string play(const SheetEvents& events) {
        for (const SheetEvent& event : events) {
            platform.messages.clear();
            const bool answer = event.how % 4 != 0;
            platform.answers = {answer ? platform::Answer::Yes : platform::Answer::No};
            watch.before();
            const std::string key = event.what == Navigate ? navKey(event) : "";
            act(event, key);
            const std::string wrong =
                watch.after(key == "Update", key == "Delete" && answer, event.what == Remove && onReport());
            if (!wrong.empty()) return wrong;
            watch.number();
        }
        return {};
    }
    std::string navKey(const SheetEvent& event) const {
        const auto& button = entry::navButtons()[event.which % entry::navButtons().size()];
        const bool adds = button.key == "New" || button.key == "Add";
        const bool isFull = adds && count() > 12;
        return watch.isPageInFront() && !isFull ? std::string(button.key) : std::string();
    }
    void act(const SheetEvent& event, const std::string& key) {
        switch (event.what) {
        case Tab:
            return showTab(static_cast<int>(event.which % 3));
        case Row:
            return clickRow(event);
        case Find:
            return find(event);
        case Leave:
            return search::Search_ButtonClick(app);
        case Focus:
            return focusField(1 + static_cast<int>(event.which % 5));
        case Type:
            return type(event);
        case Navigate:
            return entry::layoutNavBar_ButtonClick(app, key);
        case Slide:
            if (watch.isPageInFront()) entry::Slider1_Change(app, static_cast<int>(event.which % 8));
            return;
        case Duplicate:
            platform.inputs = {"1"};
            if (!app.document.bInvoiceStyle && count() < 12) entry::mnuDuplicate_Click(app);
            return;
        case Sort:
            if (onReport()) shell::list_ColumnClick(app, shell::visibleList(app), 2);
            return;
        case View:
            if (onReport() && app.document.bInvoiceStyle)
                shell::viewOpt_Click(app, static_cast<int>(event.which % 2));
            return;
        case Remove:
            if (count() > 4) entry::Delete_ButtonClick(app);
            return;
        case Open:
            if (onReport() && shell::visibleList(app).selectedItem() != nullptr)
                shell::list_DblClick(app, shell::visibleList(app));
            return;
        case Design:
            if (event.how % 4 == 0) shell::pressDesign(app);
            return;
        case Print:
            print::Toolbar_ButtonMenuClick(app, event.how % 2 ? "All_As_Layouts" : "Selected_As_Layouts");
            return;
        default:
            return;
        }
    }
    void showTab(int tab) {
        if (tab == app.mainFrm.SSTab1) return;
        if (app.mainFrm.SSTab1 == app::layoutTab && focus != 0) entry::layoutField_LostFocus(app, focus);
        if (tab == app::layoutTab && focus != 0) entry::layoutField_GotFocus(app, focus);
        shell::SSTab1_Click(app, tab);
    }
    void clickRow(const SheetEvent& event) {
        core::RecordsList& list = shell::visibleList(app);
        if (!onReport() || list.empty()) return;
        core::Item& row = list.at(1 + static_cast<int>(event.which) % list.count());
        const bool bCtrl = list.MultiSelect && event.how % 2 == 1;
        if (!bCtrl) list.clearSelection();
        const bool selected = bCtrl && row.Selected;
        list.setSelectedItem(&row);
        row.Selected = !selected;
        app.mainFrm.bCtrlDown = bCtrl;
        shell::list_Click(app, list);
    }
    void find(const SheetEvent& event) {
        platform.onForm = [&](std::string_view) {
            search::searchFrm form(app);
            if (event.how % 8 == 1) return form.closeBtn_Click(); // over results, too
            const auto& columns = form.List1.items;
            form.List_Click(0, static_cast<int>(std::ranges::find(columns, "Name") - columns.begin()));
            form.Opt_Click(0, search::within);
            form.SearchText[0].Text = std::array{"a", "b", "zoe", "no such"}.at(event.which % 4);
            form.searchBtn_Click();
            if (event.how % 8 == 0) form.allBtn_Click();
            form.closeBtn_Click();
        };
        search::mnuSearch_Click(app);
        platform.onForm = nullptr;
    }
    void focusField(int index) {
        if (!watch.isPageInFront() || app.document.layout.layoutField.find(index) == nullptr) return;
        if (focus != 0) entry::layoutField_LostFocus(app, focus);
        focus = index;
        entry::layoutField_GotFocus(app, focus);
    }
    void type(const SheetEvent& event) {
        if (!watch.isPageInFront() || focus < 2) return;
        const char* const names[] = {"Ann", "Bill", "Abel", "x"};
        const std::string text = focus == 2 ? names[event.which % 4] : std::to_string(event.which);
        entry::layoutField_Change(app, focus, text);
    }
};

TEST(SheetEvents, NoRecordChangesButTheOneOnTheSheet) {
    for (const bool invoices : {false, true})
        EXPECT_EQ(failureOf(1, eventCount(20'000) / 2, kinds,
                            [&](const SheetEvents& events) { return SheetWindow(invoices).play(events); }),
                  "")
            << (invoices ? "invoices" : "standard");
}

} // namespace
