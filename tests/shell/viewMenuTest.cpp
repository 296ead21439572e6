#include "app/appearance.h"
#include "app/looks.h"
#include "labels/labelFrm.h"
#include "printRecorder.h"
#include "shell/looks.h"
#include "shell/start/templates.h"
#include "shell/submenus.h"
#include "shell/tableCommands.h"
#include "table.h"

namespace {

struct ViewMenu : testing::Test, ProgramOn<PrintingPlatform> {
    app::Looks& looks = app::looks(app);
    app::Appearance& look = app::appearance(app);
};

// By steps, to the normal size, as the Page or the Width fits, on "Tab 2", from a "Size" of an earlier
// version, and when nothing is open; behind it the sizes of list, page and preview, and how this fits.
TEST_F(ViewMenu, EachPageIsZoomedInStepsOfItsOwn) {
    open(DataFile("Name", "a"));
    for (const auto& c : table("0 -> 100 100 100 -; 3 -> 150 100 100 -; -4 -> 90 100 100 -; 99 -> 500 100 "
                               "100 -; -1 -> 400 100 100 -; "
                               "-99 -> 50 100 100 -; In -> 67 100 100 -; Size 130 -> 130 100 100 -; 1 -> 150 "
                               "100 100 -; Size 130 -> "
                               "130 100 100 -; -1 -> 125 100 100 -; Width -> 125 100 100 -; Tab 1 -> 125 100 "
                               "100 -; Out -> 125 90 100 "
                               "-; Tab 2 -> 125 90 100 -; Page -> 125 90 100 p; Normal -> 125 90 100 -; "
                               "Width -> 125 90 100 w; Tab 1 "
                               "-> 125 90 100 w; Normal -> 125 100 100 w; Tab 2 -> 125 100 100 w; 99 -> 125 "
                               "100 500 -; Page -> 125 "
                               "100 500 p; 1 -> 125 100 500 p; -1 -> 125 100 400 -; Close -> 125 100 400 -; "
                               "1 -> 125 100 400 -; Width "
                               "-> 125 100 400 -")) {
        if (const int steps = std::atoi(c[0].c_str())) shell::zoomBy(app, steps);
        if (c[0].starts_with("Tab")) app.mainFrm.SSTab1 = c[0].back() - '0';
        if (c[0].starts_with("Size")) looks.listZoom = 130;
        if (c[0] == "0") shell::zoomBy(app, 0);
        if (c[0] == "Width") shell::fitWidth(app);
        if (c[0] == "Close") app::enableControls(app, false);
        for (const std::string& command : {"mnuZoom" + c[0], "mnuFit" + c[0]})
            if (shell::hasCommand(command)) run(command.c_str());
        std::string told;
        for (const int zoom : {looks.listZoom, looks.layoutZoom, looks.previewZoom})
            told += std::to_string(zoom) + " ";
        EXPECT_EQ(told + "-pw"[static_cast<int>(looks.previewFit)], c[1]) << c[0];
    }
}

// The theme, the texts of the toolbar, the country's form, the first column, PDFs; and how many items are
// marked.
TEST_F(ViewMenu, ChoicesAreMarkedAndHold) {
    open(DataFile("Name", "a"));
    look.localeForm.emplace();
    look.themeOfRun = app::Theme::Light;
    for (const auto& c :
         table("ThemeDark -> 20000 1; ThemeLight -> 10000 1; TextsUnder -> 12000 2; TextsNone -> "
               "10000 2; TextsBeside -> 11000 2; ThemeDesktop -> 01000 2; LocaleForm -> 01100 3; "
               "FreezeColumn -> 01110 4; LocaleForm -> 01010 3; OpenPdf -> 01011 4; FreezeColumn -> "
               "01001 3; OpenPdf -> 01000 2")) {
        app::Control& item = app.mainFrm.control("mnu" + c[0]);
        const bool wasMarked = item.Value;
        run(("mnu" + c[0]).c_str());
        std::string told;
        for (const int each : {int(look.theme), int(look.toolbarTexts), int(app::formInUse(app) != nullptr),
                               int(looks.bFreezeColumn), int(platform.settings["OpenPdf"] == "True")})
            told += std::to_string(each);
        const auto isMarked = [](const auto& control) { return control.second.Value; };
        EXPECT_EQ(told + " " + std::to_string(std::ranges::count_if(app.mainFrm.controls, isMarked)), c[1])
            << c[0];
        EXPECT_TRUE(item.Value != wasMarked && !look.themeOfRun && looks.bOpenPdf == (told[4] == '1'));
    }
}

TEST_F(ViewMenu, EveryCommandOfASubmenuIsInOneMenu) {
    std::multiset<std::string_view> listed;
    for (const shell::Menu& menu : shell::menuBar()) listed.insert(menu.items.begin(), menu.items.end());
    for (const shell::Submenu& each : shell::submenus()) {
        listed.insert(each.items.begin(), each.items.end());
        EXPECT_TRUE(shell::findSubmenu(each.key) == &each && shell::findSubmenu("mnuNew") == nullptr);
        EXPECT_EQ(each.isChoice, shell::command(each.items[0]).checkable);
    }
    for (const shell::Command& each : shell::submenuCommands())
        EXPECT_EQ(listed.count(each.key), 1U) << each.key;
    platform.files = {path("made.fwk")};
    run(shell::templates()[1].item);
    EXPECT_EQ(app.document.currentFile + told(), path("made.fwk"));
}

// Labels and imports are of the list, which comes to the front.
TEST_F(ViewMenu, LabelsAndTables) {
    const auto after = [&](const char* command) {
        app.mainFrm.SSTab1 = app::layoutTab;
        *command == '/' ? shell::importDropped(app, command) : run(command);
        std::string all = std::to_string(app.mainFrm.SSTab1);
        for (const std::string& form : std::exchange(platform.forms, {})) all += " " + form;
        return all + " " + told().substr(0, 12) + dialogs().substr(0, 6) + "/";
    };
    openCopyOf("books.fwk");
    EXPECT_EQ(after("mnuImportTable") + after("/t.csv") + after("mnuImportTable") + after("mnuExportTable"),
              "0 Import/0 importFrm /0 Import/1 exportFrm /");
    platform.hasPrinter = false;
    EXPECT_EQ(after("mnuLabels"), "1 i Printer No/");
    platform.hasPrinter = true;
    EXPECT_EQ(after("mnuLabels"), "0 labelFrm /");
    auto& opening = app.rooms.of<labels::LabelOpening>();
    opening.bFinished = opening.stocks.size() > 20;
    EXPECT_EQ(after("mnuLabels"), "2 labelFrm /");
    EXPECT_EQ(app.mainFrm.iPrintMode, app::printMultipleLayouts);
    app.document.lockPassword = "x";
    EXPECT_EQ(after("mnuLabels"), "1 i The databa/");
    openCopyOf("invoices.fwk");
    EXPECT_EQ(after("mnuLabels"), "1 i Labels are/");
    EXPECT_TRUE(shell::isTableFile("T.CSV") && !shell::isTableFile("t.fwk"));
}

} // namespace
