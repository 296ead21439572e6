#pragma once

#include "core/number.h"
#include "core/text.h"
#include "databases.h"
#include "layout/objects.h"
#include "layout/selection.h"
#include "layout/sheet.h"
#include "objectAt.h"
#include "shell/mainWindow.h"
#include "shell/menuCommands.h"

#include <gtest/gtest.h>

// A database of all kinds of columns with its layout page in front. The viewport is 6000 x 5000 twips and a
// pixel 15 twips, unless a test says otherwise.
class Sheet : public testing::Test {
protected:
    Program program;
    app::App& app = program.app;
    app::LayoutPage& page = app.mainFrm.layoutPage;
    core::LayoutObjects& objects = app.document.layout;
    ScriptedPlatform& platform = program.platform;

    void open(const std::string& layoutLines = "", const std::string& more = "") {
        DataFile file({{"Name", 3},
                       {"Qty", 4},
                       {"Price", 2},
                       {"Made", 1},
                       {"Sum", 5},
                       {"Photo", 7},
                       {"Second_Photo", 7}});
        file.layout = layoutLines;
        file.more = more;
        file.rows = "Bolt|12|$1.50|05/04/2001|18|bolt.jpg||\r\nNut|7|$.25||1.75|||\r\n"
                    "Pin|1|$2.00||2|gone.jpg||\r\n";
        file.addTotals();
        program.open(program.make("sheet.fwk", file.text(), {"bolt.jpg", "art.gif"}));
        page.TwipsPerPixelX = page.TwipsPerPixelY = 15;
        layout::layoutPic1_Resize(app, 6000, 5000);
        shell::SSTab1_Click(app, app::layoutTab);
    }
    void design() {
        if (!layout::isDesignMode(app)) shell::pressDesign(app);
    }
    void browse() {
        if (layout::isDesignMode(app)) shell::pressDesign(app);
    }
    static std::string place(const core::LayoutObject& object) {
        return core::numberText(object.Left) + " " + core::numberText(object.Top) + " " +
               core::numberText(object.Width) + " " + core::numberText(object.Height);
    }
    std::string entry(const std::string& name) const {
        file::Zip Zip;
        Zip.OpenArchive(app.document.currentFile);
        return Zip.readEntry(name, 1 << 20).value_or("(none)");
    }
};

using core::Family;
using core::ObjectRef;
using layout::MouseButton;
