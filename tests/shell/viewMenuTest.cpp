#include "app/appearance.h"
#include "app/looks.h"
#include "databases.h"
#include "shell/looks.h"
#include "table.h"

namespace {

struct ViewMenu : testing::Test, Program {};
// Steps of the zoom and commands, on "Tab 2", from a "Size" of an earlier version; Width is the routine
// itself. Behind it what has changed: the sizes of list, page and preview, how that fits, the theme, texts,
// the country's form, the frozen column, whether PDFs are opened, and how many items are marked.
TEST_F(ViewMenu, SizesAndChoices) {
    app::Looks& looks = app::looks(app);
    app::Appearance& look = app::appearance(app);
    open(DataFile("Name", "a"));
    look.localeForm.emplace();
    std::array<long, 10> before = {100, 100, 100};
    for (const auto& c :
         table("0 -> ; 3 -> l150; -4 -> l90; 99 -> l500; -1 -> l400; -99 -> l50; ZoomIn -> l67; Size 130 -> "
               "l130; 1 -> l150; Size 130 -> l130; -1 -> l125; Width -> ; Tab 1 -> ; ZoomOut -> s90; Tab 2 "
               "-> ; FitPage -> f1; ZoomNormal -> f0; FitWidth -> f2; Tab 1 -> ; ZoomNormal -> s100; Tab 2 "
               "-> ; 99 -> p500 f0; FitPage -> f1; 1 -> ; -1 -> p400 f0; ThemeDark -> t2 m1; ThemeLight -> "
               "t1; TextsUnder -> x2 m2; TextsNone -> x0; TextsBeside -> x1; ThemeDesktop -> t0; LocaleForm "
               "-> c1 m3; Tab 0 -> ; FreezeColumn -> z1 m4; LocaleForm -> c0 m3; OpenPdf -> o1 m4; "
               "FreezeColumn -> z0 m3; OpenPdf -> o0 m2; Close -> ; -1 -> ; Width -> ")) {
        const std::string key = "mnu" + c[0];
        if (c[0].starts_with("Tab")) app.mainFrm.SSTab1 = c[0].back() - '0';
        if (c[0] == "Size 130") looks.listZoom = 130;
        if (c[0] == "Width") shell::fitWidth(app);
        if (c[0] == "Close") app::enableControls(app, false);
        if (key.back() <= '9') shell::zoomBy(app, std::atoi(c[0].c_str()));
        look.themeOfRun = app::Theme::Dark;
        if (shell::hasCommand(key)) run(key.c_str());
        EXPECT_NE(look.themeOfRun.has_value(), c[0].starts_with("Theme"));
        EXPECT_EQ(looks.bOpenPdf, platform.settings["OpenPdf"] == "True");
        const auto isMarked = [](const auto& item) { return item.second.Value; };
        std::string changed;
        std::size_t part = 0;
        for (const long now :
             {long(looks.listZoom), long(looks.layoutZoom), long(looks.previewZoom), long(looks.previewFit),
              long(look.theme), long(look.toolbarTexts), long(app::formInUse(app) != nullptr),
              long(looks.bFreezeColumn), long(looks.bOpenPdf),
              long(std::ranges::count_if(app.mainFrm.controls, isMarked))}) {
            if (before.at(part) != now) (changed += "lspftxczom"[part]) += std::to_string(now) + " ";
            before.at(part++) = now;
        }
        EXPECT_EQ(core::rtrim(changed), c[1]) << c[0];
    }
}

} // namespace
