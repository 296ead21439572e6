#pragma once

#include "core/number.h"
#include "core/text.h"
#include "file/layoutLines.h"
#include "layout/dragging.h"
#include "layout/layoutPage.h"
#include "layout/selection.h"
#include "layout/sheet.h"
#include "layout/toolbar.h"
#include "search/searchProgram.h"
#include "shell/mainWindow.h"
#include "shell/menuCommands.h"

#include <cmath>
#include <sstream>

using core::Family;
using core::ObjectRef;
using layout::MouseButton;

// A database of all kinds of columns with its layout page in front, in a viewport of 6000 x 5000 twips, where
// a pixel is 15. What a user does is a text for after(): see there.
struct Sheet : testing::Test, SearchProgram {
    layout::LayoutPage& page = layout::layoutPage(app);
    core::LayoutObjects& objects = app.document.layout;
    ObjectRef it;     // the object named last
    int X = 0, Y = 0; // the pointer

    static DataFile records() {
        return DataFile("Name Qty:4 Price:2 Made:1 Sum:5 Photo:7 Second_Photo:7",
                        "Bolt|12|$1.50|05/04/2001|18|bolt.jpg|;Nut|7|$.25||1.75||;Pin|1|$2.00||2|gone.jpg|");
    }
    void openSheet(std::string_view lines = {}, bool designing = false, DataFile file = records()) {
        app.mainFrm.bSnapToGrid = false;
        open(make("sheet.fwk", file.objects(lines).text(), {"bolt.jpg", "art.gif"}));
        layout::layoutPic1_Resize(app, 6000, 5000);
        shell::SSTab1_Click(app, app::layoutTab);
        if (layout::isDesignMode(app) != designing) shell::pressDesign(app);
    }
    static ObjectRef ref(std::string_view name) {
        const std::size_t comma = name.find(',');
        for (const Family family : core::allFamilies)
            if (nameOf(family) == name.substr(0, comma))
                return {family, std::stoi(std::string(name.substr(comma + 1)))};
        return {};
    }
    // Plays acts one after the other, "pBox,1 take by 300 300 drop": an object is named, and meant by what
    // follows; words that are no acts are the toolbar's buttons, or columns of their menus.
    std::string after(const std::string& text) {
        std::istringstream words(text);
        int a = 0, b = 0;
        const std::map<std::string, std::function<void()>> acts = {
            {"take", [&] { take(MouseButton::Left); }},
            {"grip",
             [&] { layout::Handle_MouseDown(app, X = int(page.Handle.Left), Y = int(page.Handle.Top)); }},
            {"by", [&] { layout::dragTo(app, X += a, Y += b); }},
            {"drop", [&] { layout::object_MouseUp(app, it, MouseButton::Left); }},
            {"release", [&] { layout::Handle_MouseUp(app); }},
            {"key", [&] { layout::Form_KeyDown(app, a, b); }},
            {"select", [&] { layout::select(app, it); }},
            {"click", [&] { layout::object_Click(app, it); }},
            {"dblclick", [&] { layout::object_DblClick(app, it); }},
            {"design", [&] { shell::pressDesign(app); }}};
        for (std::string word; words >> word;) {
            if (word == "by" || word == "key") words >> a >> b;
            if (word.find(',') != std::string::npos)
                it = ref(word);
            else if (acts.contains(word))
                acts.at(word)();
            else if (word == "AutoLabel" || app.document.LV.columns.find(word) != nullptr)
                layout::layoutToolbar_ButtonMenuClick(app, word);
            else
                layout::layoutToolbar_ButtonClick(app, word);
        }
        return state();
    }
    void expect(std::string_view cases) {
        for (const auto& c : table(cases)) EXPECT_EQ(after(c[0]), c[1]) << c[0];
    }
    // Takes the object at (50, 40) inside it.
    void take(MouseButton button) {
        const bool border = it.family == Family::layoutField || it.family == Family::imgHolder;
        X = int(object().Left) + 50;
        Y = int(object().Top) + 40;
        layout::object_MouseDown(app, it, button, border ? 20 : 50, border ? 10 : 40, X, Y);
    }
    core::LayoutObject& object() { return *core::findObject(objects, it); }
    // The object's place and size, the grip, and the rulers: "1000 1000 1800 900, grip locked, rulers". Their
    // places follow where they are not those of the object's lower right and upper left corner.
    std::string state() {
        const core::LayoutObject none, *at = core::findObject(objects, it);
        if (at == nullptr) at = &none;
        const auto beside = [](const char* what, float x, float y, float usualX, float usualY) {
            return std::string(what) + (x == usualX && y == usualY ? "" : " " + texts({x, y}));
        };
        std::string all = place();
        if (page.Handle.Visible)
            all += beside(", grip", page.Handle.Left, page.Handle.Top, at->Left + at->Width,
                          at->Top + at->Height) +
                   (page.Handle.bLocked ? " locked" : "");
        if (page.ruler1.line)
            all += beside(", rulers", *page.ruler1.line, *page.ruler2.line, at->Left, at->Top);
        return all;
    }
    std::string place() {
        const core::LayoutObject* at = core::findObject(objects, it);
        return at == nullptr ? "none" : texts({at->Left, at->Top, at->Width, at->Height});
    }
    // All objects as they would be saved.
    std::string lines() const {
        std::string all;
        file::writeLayoutLines(all, objects, "; ");
        return all;
    }
    static std::string texts(std::initializer_list<float> numbers) {
        std::string all;
        for (const float number : numbers) all += (all.empty() ? "" : " ") + core::numberText(number);
        return all;
    }
    // An entry of the archive.
    std::string entry(const std::string& name) const {
        file::Zip Zip;
        Zip.OpenArchive(app.document.currentFile);
        return Zip.readEntry(name, 1 << 20).value_or("(none)");
    }
};
