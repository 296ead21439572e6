#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace drawing {

// Of a page or a picture, in twips.
struct Extent {
    long Width = 0, Height = 0;
};

struct TextFont {
    std::string FontName = "MS Sans Serif";
    float FontSize = 8.25F; // points
    bool FontBold = false, FontItalic = false, FontUnderline = false, FontStrikethru = false;

    bool operator==(const TextFont&) const = default;
};

enum class LineStyle { Solid = 0, Dotted = 2 };

constexpr int twipsPerLinePixel = 15; // a line's width is told in pixels of the usual screen

struct Pen {
    std::int32_t ForeColor = 0; // 0x00BBGGRR; of texts too
    int DrawWidth = 1;          // pixels
    LineStyle DrawStyle = LineStyle::Solid;

    bool operator==(const Pen&) const = default;
};

// How large texts are, in twips. There is one answer for every target, so that preview and paper break
// alike.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;
    virtual float textWidth(const TextFont& font, std::string_view text) = 0;
    virtual float textHeight(const TextFont& font) = 0;
};

// The paper of a print as it lies in the printer's hands. Lengths in twips, turned already.
struct PageSetup {
    int PaperSize = 1;   // code of the paper, see papers.h; 256 is custom
    int Orientation = 1; // 1 portrait, 2 landscape
    long Width = 12240, Height = 15840;
};

// What stays free at the top and the bottom of a sheet, in twips.
struct SheetEnds {
    float top = 0, bottom = 0;
};

// A page that one draws on: of the printer, or of the preview. Lengths in twips from its top left corner.
class DrawTarget : public TextFont, public Pen {
public:
    virtual ~DrawTarget() = default;
    DrawTarget() = default;
    DrawTarget(const DrawTarget&) = delete;
    DrawTarget& operator=(const DrawTarget&) = delete;

    float Width = 0, Height = 0;
    float CurrentX = 0, CurrentY = 0;
    bool bOneSheet = false; // a printer does as a preview does: what passes the bottom is cut off
    SheetEnds overflowEnds; // of the sheets that a printer takes by itself

    // A printer goes on to the next sheet by itself; a preview is one page.
    virtual bool isPrinter() const = 0;
    // The paper of what is drawn next. Font, pen and place become those of a fresh page.
    void setPage(const PageSetup& setup);

    float TextWidth(std::string_view text) { return metrics().textWidth(*this, text); }
    float TextHeight(std::string_view text);

    // What the printer cannot print of a sheet; nothing where it reaches the edges, as a file does.
    virtual SheetEnds unprintable() const { return {}; }

    // Prints at the current place, one line. Without a line end the place moves behind the text, with it
    // to the start of the next line. A printer takes a new sheet when the line would pass the bottom,
    // unless all is to be on one.
    void Print(std::string_view text, bool lineEnd);
    // The current place ends up at the second point.
    void Line(float x1, float y1, float x2, float y2);
    void Rectangle(float left, float top, float width, float height) {
        drawRectangle(left, top, width, height);
    }
    void PaintPicture(const std::filesystem::path& picture, float left, float top, float width,
                      float height) {
        drawPicture(picture, left, top, width, height);
    }
    void NewPage();
    // Ends the print job; what is drawn next belongs to another one.
    void EndDoc();
    // Finishes the output of all jobs. False when it could not be written.
    virtual bool close() { return true; }
    // Why not, where that is known.
    virtual std::string failure() const { return {}; }

protected:
    virtual TextMetrics& metrics() = 0;
    virtual void pageSet(const PageSetup& setup) = 0;
    virtual void drawText(float x, float y, std::string_view text) = 0;
    virtual void drawLine(float x1, float y1, float x2, float y2) = 0;
    virtual void drawRectangle(float left, float top, float width, float height) = 0;
    virtual void drawPicture(const std::filesystem::path& picture, float left, float top, float width,
                             float height) = 0;
    virtual void startSheet() {}
    virtual void endDocument() {}

private:
    float sheetEnd() const; // what is below it goes onto the next sheet
    void beginOverflowSheet();

    float sheetTop_ = 0; // where the sheet's first line stands, if the printer has taken it by itself
    bool isOverflow_ = false;
    bool isFirst_ = true;
};

} // namespace drawing
