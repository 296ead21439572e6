#pragma once

#include "app/app.h"
#include "core/controlArray.h"
#include "core/objectRef.h"
#include "core/recordsList.h"

#include <optional>
#include <string>
#include <vector>

namespace layout {

// Lengths of the layout page that are not data, in twips.
constexpr int gridStep = 120;   // grid dots, and the step of snapping
constexpr float gripSize = 135; // the resize grip
constexpr float rulerThickness = 285;
constexpr float rulerTick = 150; // the mark that follows a drag on the rulers

// A guide across the sheet with its marker on a ruler.
struct Guide {
    int Index = 0;
    float Left = 0, Top = 0; // the marker, on its ruler
    float line = 0;          // where the line crosses the sheet: its X, or its Y
};

// The layout tab. Lengths in twips; the sheet's place is relative to the viewport.
struct LayoutPage {
    core::ObjectRef selectedObject;

    float viewportWidth = 0, viewportHeight = 0; // layoutPic1
    float TwipsPerPixelX = 15, TwipsPerPixelY = 15;

    struct Sheet {
        float Left = 0, Top = 0, Width = 0, Height = 0;
        bool Visible = false;
    } layoutPic2;
    bool bGrid = false;                                                     // the grid dots have been drawn
    float marginLeft = 0, marginTop = 0, marginRight = 0, marginBottom = 0; // the dotted lines
    std::string marginLbl;

    struct ScrollBar {
        int Max = 0;
        int Value = 0;
    } layoutHScroll, layoutVScroll;

    struct Ruler {
        float Left = 0, Top = 0, Width = 0, Height = 0;
        std::optional<float> line; // the tick that follows a drag
    };
    // Above, and at the left; they begin at the corner piece, Shape1, which is as large as they are thick.
    Ruler ruler1{rulerThickness, 0, 0, rulerThickness, {}};
    Ruler ruler2{0, rulerThickness, rulerThickness, 0, {}};
    bool bRulersVisible = false;
    core::ControlArray<Guide> rulePic{Guide{}};  // on ruler2, with horizontal lines
    core::ControlArray<Guide> rulePic2{Guide{}}; // on ruler1, with vertical lines

    struct Grip {
        float Left = 0, Top = 0;
        bool Visible = false;
        bool bLocked = false; // red in place of black
    } Handle;

    bool layoutToolbarInFront = false; // otherwise layoutNavBar is
    std::vector<std::string> fieldMenu, pictureMenu;

    bool bEditingLabel = false;
    bool bShowSelected = false; // the view is to scroll to the selected object, and to clear this

    // A drag, from the mouse-down to the mouse-up.
    enum class Drag { None, Move, Resize, HorizontalGuide, VerticalGuide };
    Drag drag = Drag::None;
    core::ObjectRef dragged;
    int draggedGuide = 0;
    int iMouseX = 0, iMouseY = 0; // the pointer inside the object at mouse-down
    long lastX = 0, lastY = 0;    // where the pointer last caused a move
};

// That of a window, as layout/ keeps it.
inline LayoutPage& layoutPage(app::App& app) {
    return app.rooms.of<LayoutPage>();
}
inline const LayoutPage& layoutPage(const app::App& app) {
    return app.rooms.of<LayoutPage>();
}

} // namespace layout
