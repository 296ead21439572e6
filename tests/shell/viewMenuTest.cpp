#include "app/appearance.h"
#include "app/looks.h"
#include "app/windowState.h"
#include "labels/labelFrm.h"
#include "printRecorder.h"
#include "shell/looks.h"
#include "shell/start/templates.h"
#include "shell/submenus.h"
#include "shell/tableCommands.h"
#include "table.h"

namespace {

struct ViewMenu : testing::Test, ProgramOn<PrintingPlatform> {};

// Steps of the zoom and commands without their "mnu", on "Tab 2", from a "Size" of an earlier version; Width
// is the routine itself. Behind it what has changed: the sizes of list, page and preview, how this fits, the
// theme, the toolbar's texts, the country's form, the frozen column, whether PDFs are opened, and how many
// items are marked.
TEST_F(ViewMenu, SizesAndChoices) {
    app::Looks& looks = app::looks(app);
    app::Appearance& look = app::appearance(app);
    open(DataFile("Name", "a"));
    look.localeForm.emplace();
    std::vector<std::string> before;
    for (const auto& c :
         table("0 -> l100 s100 p100 fit0 theme0 texts0 form0 freeze0 pdf0 marks0; 3 -> l150; "
               "-4 -> l90; 99 -> l500; "
               "-1 -> l400; -99 -> l50; ZoomIn -> l67; Size 130 -> l130; 1 -> l150; Size 130 "
               "-> l130; -1 -> l125; "
               "Width -> ; Tab 1 -> ; ZoomOut -> s90; Tab 2 -> ; FitPage -> fit1; ZoomNormal "
               "-> fit0; FitWidth -> fit2; "
               "Tab 1 -> ; ZoomNormal -> s100; Tab 2 -> ; 99 -> p500 fit0; FitPage -> fit1; "
               "1 -> ; -1 -> p400 fit0; "
               "ThemeDark -> theme2 marks1; ThemeLight -> theme1; TextsUnder -> texts2 "
               "marks2; TextsNone -> texts0; "
               "TextsBeside -> texts1; ThemeDesktop -> theme0; LocaleForm -> form1 marks3; Tab 0 -> ; "
               "FreezeColumn -> freeze1 "
               "marks4; LocaleForm -> form0 marks3; OpenPdf -> pdf1 marks4; FreezeColumn -> "
               "freeze0 marks3; OpenPdf -> "
               "pdf0 marks2; Close -> ; -1 -> ; Width -> ")) {
        const std::string key = "mnu" + c[0];
        if (c[0].starts_with("Tab")) app.mainFrm.SSTab1 = c[0].back() - '0';
        if (c[0].starts_with("Size")) looks.listZoom = 130;
        if (c[0] == "Width") shell::fitWidth(app);
        if (c[0] == "Close") app::enableControls(app, false);
        if (key.back() <= '9') shell::zoomBy(app, std::atoi(c[0].c_str()));
        look.themeOfRun = app::Theme::Dark;
        if (shell::hasCommand(key)) run(key.c_str());
        EXPECT_NE(look.themeOfRun.has_value(), c[0].starts_with("Theme"));
        EXPECT_EQ(looks.bOpenPdf, platform.settings["OpenPdf"] == "True");
        const auto isMarked = [](const auto& item) { return item.second.Value; };
        const long values[] = {looks.listZoom,
                               looks.layoutZoom,
                               looks.previewZoom,
                               long(looks.previewFit),
                               long(look.theme),
                               long(look.toolbarTexts),
                               long(app::formInUse(app) != nullptr),
                               looks.bFreezeColumn,
                               looks.bOpenPdf,
                               std::ranges::count_if(app.mainFrm.controls, isMarked)};
        std::vector<std::string> now = {"l",     "s",    "p",      "fit", "theme",
                                        "texts", "form", "freeze", "pdf", "marks"};
        for (std::size_t i = 0; i < now.size(); ++i) now[i] += std::to_string(values[i]);
        std::string changed;
        for (std::size_t i = 0; i < now.size(); ++i)
            if (before.empty() || now[i] != before[i]) changed += (changed.empty() ? "" : " ") + now[i];
        EXPECT_EQ(changed, c[1]) << c[0];
        before = now;
    }
}

TEST_F(ViewMenu, EveryCommandOfASubmenuIsInOneMenu) {
    std::multiset<std::string_view> listed;
    for (const shell::Menu& menu : shell::menuBar()) listed.insert(menu.items.begin(), menu.items.end());
    for (const shell::Submenu& each : shell::submenus()) {
        listed.insert(each.items.begin(), each.items.end());
        EXPECT_TRUE(shell::findSubmenu(each.key) == &each && shell::findSubmenu("mnuNew") == nullptr);
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
        std::string all = std::to_string(app.mainFrm.SSTab1) + " ";
        for (const std::string& form : std::exchange(platform.forms, {})) all += form;
        return all + told().substr(0, 12) + dialogs().substr(0, 6) + "/";
    };
    auto& opening = app.rooms.of<labels::LabelOpening>();
    openCopyOf("books.fwk");
    EXPECT_EQ(after("mnuImportTable") + after("/t.csv") + after("mnuImportTable") + after("mnuExportTable"),
              "0 Import/0 importFrm/0 Import/1 exportFrm/");
    for (const char* wanted : {"1 i Printer No/", "0 labelFrm/", "2 labelFrm/", "1 i The databa/"}) {
        platform.hasPrinter = *(wanted + 4) != 'P';
        opening.bFinished = *wanted == '2' && opening.stocks.size() > 20;
        app.document.lockPassword = *(wanted + 4) == 'T' ? "x" : "";
        EXPECT_EQ(after("mnuLabels"), wanted);
    }
    EXPECT_EQ(app.mainFrm.iPrintMode, app::printMultipleLayouts);
    openCopyOf("invoices.fwk");
    EXPECT_EQ(after("mnuLabels"), "1 i Labels are/");
}

} // namespace
