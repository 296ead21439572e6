#pragma once

#include "core/recordsList.h"

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace app {

enum Tab { reportTab = 0, layoutTab = 1, previewTab = 2 };

enum PrintMode { printReport = 1, printLayout = 2, printMultipleLayouts = 3 };

// Where the list on view stands when it is shown anew.
enum class ListScroll { ToCurrent, Stay, ToTop };

// The status bar's panels, by their numbers.
enum Panel { recordsPanel = 1, datePanel, calculationPanel, fileSizePanel, documentPanel, stylePanel };

// A button or a menu item: what a view needs to show it.
struct Control {
    bool Enabled = true;
    bool Visible = true;
    bool Value = false;  // pressed, or checked
    std::string Caption; // only where it changes: the recent files
};

// What the main window shows. It is state alone: the view draws it, the handlers change it.
struct MainFrm {
    explicit MainFrm(core::RecordsList& records) : theListView(&records) {}

    std::string Caption;
    int SSTab1 = reportTab;
    bool SSTab1Enabled = true;

    // Toolbar buttons and menu items by their keys ("Save", "mnuSave"); a key that is not in the
    // table yet stands for an enabled control.
    std::map<std::string, Control, std::less<>> controls;
    Control& control(std::string_view key) { return controls[std::string(key)]; }

    std::array<std::string, 7> panels; // SB1; element 0 is not used

    struct Slider {
        int Max = 1;
        int Value = 1;
    } Slider1;

    bool invoiceFrameVisible = false;
    int viewOpt = 1; // 1 the invoice view, 0 the item view

    core::RecordsList* theListView; // the list that commands work on
    std::vector<int> selectedRows;  // 1-based; filled by collectSelected
    bool bCtrlDown = false;
    // What the list on view does when it is shown next; the view takes both back.
    ListScroll listScroll = ListScroll::ToCurrent;
    bool bListFocus = false; // it takes the keys
    int iPrintMode = printReport;
    int iFieldFocus = 0;     // Index of the layout field that last had the focus
    bool bCalcError = false; // a calculation has failed; a recalculation of all rows reads and clears it

    // The user's settings.
    bool bConfirmDelete = true;
    bool bSnapToGrid = true;
    bool bAutoLoad = false;
    bool bDisclaimerSeen = false;
    bool bLayoutDblClick = false;
    bool bHighlightCalc = false;
    bool bSavePrompt = true;

    bool bReadOnly = false; // the open file is another's to write

    bool bDatabaseTypeChosen = false; // the format dialog ended with OK

    int hourglasses = 0; // that are shown, one within the other

    bool unloaded = false; // the window has been asked to close and has done its part
};

} // namespace app
