#include "calc/recalculation.h"
#include "databases.h"
#include "drawing/papers.h"
#include "layout/layoutPage.h"
#include "shell/mainWindow.h"
#include "shell/settings.h"
#include "shell/start/emptyPages.h"
#include "shell/start/recentFiles.h"
#include "shell/start/templates.h"
#include "storage/saveFile.h"

#include <gtest/gtest.h>

namespace {

using platform::Answer;

struct HomePlatform : ScriptedPlatform {
    int paper = 1;
    int localePaper() override { return paper; }
};

struct FirstHour : testing::Test, ProgramOn<HomePlatform> {
    const fs::path templates = fs::path(SAMPLES_DIR).parent_path() / "templates";

    std::vector<const core::LayoutObject*> objects() const {
        std::vector<const core::LayoutObject*> all;
        const auto add = [&](const core::LayoutObject& object) { all.push_back(&object); };
        const core::LayoutObjects& page = app.document.layout;
        page.layoutField.forEach(add), page.tLabel.forEach(add), page.pbLine.forEach(add);
        page.pBox.forEach(add), page.imgHolder.forEach(add), page.clipPic.forEach(add);
        return all;
    }
    // Between the margins, on both papers.
    void expectFits(const drawing::PaperSize& paper) const {
        const core::LayoutOptions& page = app.document.layoutOptions;
        for (const core::LayoutObject* each : objects()) {
            EXPECT_GE(each->Left, 1440 * page.layoutLeftMargin);
            EXPECT_LE(each->Left + each->Width, paper.Width - 1440 * page.layoutRightMargin);
            EXPECT_LE(each->Top + each->Height, paper.Height - 1440 * page.layoutBottomMargin);
        }
        const core::ReportData& report = app.document.reportData;
        float width = 1440 * (report.reportLeftMargin + report.reportRightMargin);
        for (const auto& column : app.document.printedCols)
            width += app.document.LV.columns[column.item].Width;
        EXPECT_LE(width, report.reportOrientation == core::landscape ? paper.Height : paper.Width);
    }
};

TEST_F(FirstHour, TemplatesBecomeDatabasesOnThePaperOfTheCountry) {
    for (platform.paper = 1; platform.paper <= 9; platform.paper += 8) {
        for (const shell::Template& each : shell::templates()) {
            const std::string made = path(each.file);
            fs::remove(made);
            platform.files = {made};
            shell::newFromTemplate(app, each, templates);
            EXPECT_EQ(app.document.currentFile + told(), made);
            EXPECT_EQ(app.document.layoutOptions.layoutPaperSize, platform.paper);
            EXPECT_EQ(app.document.reportData.reportPaperSize, platform.paper);
            EXPECT_EQ(app.document.LV.count(), 1) << "the Totals row";
            EXPECT_EQ(app.document.layout.clipPic.count(), 1);
            for (const int code : {1, 9}) expectFits(*drawing::findPaper(code));
            const std::string before = dataFileOf(made);
            calc::RecalculateAll(app, app.document.LV);
            storage::SaveFile(app, false, false);
            EXPECT_EQ(dataFileOf(made), before);
        }
    }
    // What is open stays when it is kept, or when there is no template.
    const std::string open = openCopyOf("books.fwk"), bytes = ScriptedPlatform::read(open);
    app::setDocumentModified(app, true);
    platform.files = {open, path("new.fwk")};
    platform.answers = {Answer::No, Answer::No};
    shell::newFromTemplate(app, shell::templates()[0], templates);
    EXPECT_EQ(told(), "- Save current file " + open + "?\n- Overwrite Existing File?");
    app::setDocumentModified(app, false);
    shell::newFromTemplate(app, shell::templates()[0], platform.folder / "none");
    EXPECT_TRUE(told().starts_with("! The database could not be made:\n"));
    EXPECT_FALSE(fs::exists(path("new.fwk")));
    EXPECT_EQ(app.document.currentFile + ScriptedPlatform::read(open), open + bytes);
    shell::findTemplates(app, platform.folder / "none");
    EXPECT_FALSE(shell::isCommandEnabled(app, "mnuTemplates"));
}

TEST_F(FirstHour, TenRecentFilesEachOnce) {
    const auto names = [&](const app::App& of, bool isEnabled) {
        std::string all;
        for (std::size_t place = 0; place < shell::RecentFiles::most; ++place) {
            const app::Control& item = of.mainFrm.controls.find(shell::recentItem(place))->second;
            if (item.Enabled == isEnabled) all += fs::path(item.Caption).stem().string();
        }
        return all;
    };
    for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "c", "k"}) {
        fs::copy_file(fs::path(TEST_DATA_DIR) / "books.fwk", path(name),
                      fs::copy_options::overwrite_existing);
        open(path(name));
    }
    EXPECT_EQ(names(app, true), "kcjihgfedb");
    shell::writeSettings(app);
    shell::Program next(platform);
    shell::readSettings(next);
    fs::remove(path("h"));
    shell::checkRecentFiles(next);
    EXPECT_EQ(names(next, true) + "-" + names(next, false), "kcjigfedb-h");
    shell::runCommand(next, "mnuRecent5"); // h
    shell::runCommand(next, "mnuRecent2");
    EXPECT_EQ(next.document.currentFile, path("c"));
    EXPECT_EQ(names(next, true), "ckjihgfedb");
    app::setDocumentModified(next, true);
    platform.answers = {Answer::No};
    shell::runCommand(next, "mnuRecent3");
    EXPECT_EQ(told(), "- Save current file " + path("c") + "?");
    const std::string told3 = next.mainFrm.control("mnuFile1").Caption;
    shell::runCommand(next, "mnuRecentClear");
    shell::writeSettings(next);
    shell::readSettings(app);
    EXPECT_EQ(names(app, true), "");
    EXPECT_FALSE(shell::isCommandEnabled(app, "mnuOpenRecent"));
    EXPECT_EQ(app.mainFrm.control("mnuFile1").Caption, told3);
}

TEST_F(FirstHour, AllColumnsArePlacedBesideEachOther) {
    for (const int boxes : {1, 10, 31, 50}) {
        for (const int pictures : {0, 1, 4}) {
            std::string columns;
            for (int i = 0; i < boxes + pictures; ++i)
                columns += "C_" + std::to_string(i) + (i < pictures ? ":7 " : i % 2 == 0 ? ":3 " : ":2 ");
            open(DataFile(columns));
            app.mainFrm.SSTab1 = app::layoutTab;
            app.mainFrm.control("Design").Value = false;
            shell::emptyLayoutPage(app)->buttons.back().run(app);
            const auto placed = objects();
            EXPECT_EQ(placed.size(), static_cast<std::size_t>(2 * boxes + pictures));
            expectFits(*drawing::findPaper(1));
            for (const auto* one : placed)
                for (const auto* other : placed)
                    EXPECT_TRUE(one == other || one->Left + one->Width <= other->Left ||
                                other->Left + other->Width <= one->Left ||
                                one->Top + one->Height <= other->Top ||
                                other->Top + other->Height <= one->Top)
                        << boxes << "+" << pictures;
        }
    }
}

// What an empty page says, by what there is: columns, objects, invoices, the mode.
TEST_F(FirstHour, EmptyPagesSayWhatComesNext) {
    const auto said = [&] {
        const auto hint = shell::emptyLayoutPage(app);
        return hint ? hint->title + "/" + std::to_string(hint->buttons.size()) : "-";
    };
    const auto designing = [&](bool isOn) {
        app.mainFrm.SSTab1 = app::layoutTab;
        app.mainFrm.control("Design").Value = isOn;
        return said();
    };
    open(DataFile("", ""));
    EXPECT_EQ(designing(false), "There are no columns yet/1");
    open(DataFile("Name Qty:4", "a|1"));
    EXPECT_EQ(designing(false), "The layout page is empty/2");
    shell::emptyLayoutPage(app)->buttons.back().run(app);
    EXPECT_EQ(designing(true) + designing(false), "--");
    layout::layoutPage(app).layoutPic2.Visible = false;
    EXPECT_EQ(said(), "-") << "only invoices put their sheet away";
    app.document.bInvoiceStyle = true;
    EXPECT_EQ(said(), "There are no records yet/1");
    layout::layoutPage(app).layoutPic2.Visible = true;
    EXPECT_EQ(said(), "-");
}

// What lists and the preview say, by the end of the text and the commands that are offered.
TEST_F(FirstHour, EmptyListsAndPreviewsSayWhatComesNext) {
    const auto said = [](const std::optional<shell::Hint>& hint) {
        std::string all = hint ? hint->text.substr(hint->text.rfind(' ') + 1) : "-";
        for (const auto& button : hint ? hint->buttons : std::vector<shell::Hint::Button>())
            all += " " + button.key;
        return all;
    };
    // The list / the preview of a report / that of layouts.
    const auto openSays = [&](const DataFile& data) {
        std::string all = said(shell::emptyList((open(data), app), app.document.LV));
        for (const int mode : {app::printReport, app::printMultipleLayouts})
            all += "/" + said(shell::emptyPreview((app.mainFrm.iPrintMode = mode, app)));
        return all;
    };
    const std::string columns = "price. mnuDatabaseProperties", fill = "them. mnuNewRecord",
                      name = "F|Name|0|0|9|3";
    EXPECT_EQ(openSays(DataFile("", "")),
              "program. mnuDatabaseProperties mnuImportTable/" + columns + "/" + columns);
    EXPECT_EQ(openSays(DataFile("Name", "a")), "-/printed. PageSetup/it. Design");
    EXPECT_EQ(openSays(DataFile("Name", "").objects(name).section("Printed Cols", "Name|")),
              "program. mnuNewRecord mnuImportTable/" + fill + "/" + fill);
    EXPECT_EQ(openSays(DataFile("Name", "a").objects(name).section("Printed Cols", "Name|")), "-/-/-");
    EXPECT_EQ(said(shell::emptyList(app, app.document.searchLV)), "for. Search");
    EXPECT_TRUE(
        openSays(DataFile("Name", "").section("DatabaseStyle", "True")).starts_with("page. mnuNewRecord/"));
    open(DataFile("Name", ""));
    app.mainFrm.SSTab1 = app::previewTab;
    shell::emptyList(app, app.document.LV)->buttons[0].run(app);
    EXPECT_TRUE(app.mainFrm.SSTab1 == app::reportTab && platform.forms.back() == "entryFrm");
}

} // namespace
