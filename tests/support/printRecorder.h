#pragma once

#include "core/number.h"
#include "core/text.h"
#include "databases.h"
#include "drawing/recordedPage.h"
#include "print/previewNavigation.h"
#include "print/previewPage.h"

#include <cmath>
#include <gtest/gtest.h>

using Page = std::vector<drawing::Drawn>;

// Texts measured by plain rules: a character is half as wide as the font is high, and a line as high as the
// font. So every place on a page can be told without a font.
struct PlainMetrics : drawing::TextMetrics {
    float blank = 1; // of the width of a letter
    float textWidth(const drawing::TextFont& font, std::string_view text) override {
        const auto blanks = static_cast<float>(std::ranges::count(text, ' '));
        return (static_cast<float>(core::length(text)) + (blank - 1) * blanks) * font.FontSize * 10;
    }
    float textHeight(const drawing::TextFont& font) override { return font.FontSize * 20; }
};

// A place or a size in whole twips, "left,top".
inline std::string placeOf(auto x, auto y) {
    return std::to_string(std::lround(x)) + "," + std::to_string(std::lround(y));
}
// All that stands on a page, "a; b": a text as "text@left,top", with what it looks like behind it, "Arial 10
// bu 255", unless that is as the text before or plain; a line as "x1,y1-x2,y2", a dotted one with "." in
// front; a picture as "left,top width,height", and a rectangle so too, with the width and the color of its
// pen.
inline std::string drawnOn(const Page& page) {
    std::string all, looks = " Arial 10  0";
    for (const drawing::Drawn& each : page) {
        if (!all.empty()) all += "; ";
        if (const auto* text = std::get_if<drawing::DrawnText>(&each)) {
            const drawing::TextFont& font = text->font;
            const std::string now = " " + font.FontName + " " + core::numberText(font.FontSize) + " " +
                                    (font.FontBold ? "b" : "") + (font.FontItalic ? "i" : "") +
                                    (font.FontUnderline ? "u " : " ") + std::to_string(text->ForeColor);
            all += text->text + "@" + placeOf(text->Left, text->Top) + (now == looks ? "" : now);
            looks = now;
        } else if (const auto* line = std::get_if<drawing::DrawnLine>(&each)) {
            all += line->pen.DrawStyle == drawing::LineStyle::Dotted ? "." : "";
            all += placeOf(line->x1, line->y1) + "-" + placeOf(line->x2, line->y2);
        } else if (const auto* box = std::get_if<drawing::DrawnRectangle>(&each)) {
            all += placeOf(box->Left, box->Top) + " " + placeOf(box->Width, box->Height) + " " +
                   placeOf(box->pen.DrawWidth, box->pen.ForeColor);
        } else if (const auto* picture = std::get_if<drawing::DrawnPicture>(&each)) {
            all += placeOf(picture->Left, picture->Top) + " " + placeOf(picture->Width, picture->Height);
        }
    }
    return all;
}
// The texts of a page alone, without the blanks behind them.
inline std::string wordsOf(const Page& page) {
    std::string all;
    for (const drawing::Drawn& each : page)
        if (const auto* text = std::get_if<drawing::DrawnText>(&each))
            all.append(all.empty() ? "" : " ").append(core::rtrim(text->text));
    return all;
}

// What came out of a printer.
struct Printed {
    std::vector<Page> sheets;
    std::string ends;  // "/" for a sheet that another follows, "|" for the last of a job, "." when closed
    std::string paper; // the last size
    drawing::SheetEnds unprintable;
};

struct RecordingPrinter : drawing::RecordedPage {
    Printed& printed;
    std::ptrdiff_t done = 0; // of what is drawn

    explicit RecordingPrinter(Printed& into) : printed(into) {}
    bool isPrinter() const override { return true; }
    drawing::SheetEnds unprintable() const override { return printed.unprintable; }
    bool close() override { return !(printed.ends += '.').empty(); }
    void pageSet(const drawing::PageSetup& setup) override {
        RecordedPage::pageSet(setup);
        done = 0;
        printed.paper = placeOf(setup.Width, setup.Height);
    }
    void startSheet() override { finish('/'); }
    void endDocument() override { finish('|'); }
    void finish(char end) {
        const auto from = drawn().begin() + std::exchange(done, std::ssize(drawn()));
        printed.sheets.emplace_back(from, drawn().end());
        printed.ends += end;
    }
};

// A machine with such a printer. Its print dialog is among the forms, with paper and orientation as shown.
struct PrintingPlatform : ScriptedPlatform {
    bool hasPrinter = true, fileCancelled = false;
    PlainMetrics metrics;
    Printed printed;
    std::optional<platform::PrintChoice> dialogAnswer = platform::PrintChoice{1, 1};
    std::vector<platform::PaperName> paperNames = {{"A4", 9}, {"Letter", 1}, {"Custom", 256}};

    std::string printerDeviceName() override {
        return hasPrinter ? "Recorder" : (core::raise(core::errors::deviceIO), "");
    }
    drawing::TextMetrics& textMetrics() override { return metrics; }
    std::vector<platform::PaperName> printerPapers() override { return paperNames; }
    std::optional<platform::PrintChoice> showPrinterDialog(const platform::PrintChoice& now) override {
        forms.push_back("printer " + placeOf(now.PaperSize, now.Orientation));
        return dialogAnswer;
    }
    std::unique_ptr<drawing::DrawTarget> openPrinter(const std::string&) override {
        if (fileCancelled) return nullptr;
        auto printer = std::make_unique<RecordingPrinter>(printed);
        printer->measureWith(metrics);
        return printer;
    }
};

// A program with that machine, and what it printed.
struct PrintProgram : ProgramOn<PrintingPlatform> {
    using ProgramOn::ProgramOn;

    // Records "r1", "r2", ... of one text column "Name" that is 1600 wide, on portrait paper.
    void openRecords(int count, std::string_view objects = {}) {
        std::string rows;
        for (int i = 1; i <= count; ++i) rows += "r" + std::to_string(i) + ";";
        DataFile file("Name", rows);
        file.widths = "1600|";
        open(file.objects(objects).section("Printed Cols", "Name|"));
        app.document.reportData.reportOrientation = 1;
    }
    const Page& preview() const { return print::previewPage(app).rptPreview1.drawn(); }
    const Page& sheet(std::size_t number) const { return platform.printed.sheets.at(number); }
    // The words on each sheet printed since the last look, "r1 r2/r3|."; for the marks see Printed.
    std::string printed() {
        const Printed last = std::exchange(platform.printed, {});
        std::string all;
        for (std::size_t sheet = 0; const char end : last.ends)
            all += (end == '.' ? "" : wordsOf(last.sheets.at(sheet++))) + end;
        return all;
    }
    // The buttons of the preview one after the other, with the first and the last row of each page, title and
    // headings left out, and the row that the next one begins with: "r64..r126>127; ".
    std::string turn(std::string_view buttons) {
        const print::PreviewPage& page = print::previewPage(app);
        const bool isReport = app.mainFrm.iPrintMode == app::printReport;
        std::string all;
        for (const std::string_view key : core::split(buttons, ' ')) {
            print::reportToolbar_ButtonClick(app, key);
            const int next = isReport ? page.iReportStartRow : page.iLayoutIndex;
            all += rowsOf(preview()) + ">" + std::to_string(next) + "; ";
        }
        return all;
    }
    static std::string rowsOf(const Page& page) {
        std::string first, last;
        const std::string words = wordsOf(page);
        for (const std::string_view word : core::split(words, ' '))
            if (word.starts_with("r") || word.starts_with("-")) (first.empty() ? first : last) = word;
        return first + (last.empty() ? "" : ".." + last);
    }
};
