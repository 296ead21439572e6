#pragma once

#include "core/number.h"
#include "core/text.h"
#include "databases.h"
#include "drawing/recordedPage.h"
#include "print/previewNavigation.h"
#include "print/previewPage.h"

#include <cmath>

using Page = std::vector<drawing::Drawn>;

// Texts measured by plain rules: a character is half as wide as the font is high, and a line as high as the
// font. So every place on a page can be told without a font.
struct PlainMetrics : drawing::TextMetrics {
    float textWidth(const drawing::TextFont& font, std::string_view text) override {
        return static_cast<float>(core::length(text)) * font.FontSize * 10;
    }
    float textHeight(const drawing::TextFont& font) override { return font.FontSize * 20; }
};

// A place or a size in whole twips, "left,top".
inline std::string placeOf(double x, double y) {
    return std::to_string(std::lround(x)) + "," + std::to_string(std::lround(y));
}
// All of one kind that stands on a page, "a; b".
template <typename Kind, typename Tell>
std::string allOf(const Page& page, const Tell& tell) {
    std::string all;
    for (const drawing::Drawn& each : page)
        if (const auto* it = std::get_if<Kind>(&each)) all.append(all.empty() ? "" : "; ").append(tell(*it));
    return all;
}
// "text@left,top".
inline std::string textsOf(const Page& page) {
    return allOf<drawing::DrawnText>(page,
                                     [](const auto& it) { return it.text + "@" + placeOf(it.Left, it.Top); });
}
// "x1,y1-x2,y2", dotted ones with a "." in front.
inline std::string linesOf(const Page& page) {
    return allOf<drawing::DrawnLine>(page, [](const auto& it) {
        const char* mark = it.pen.DrawStyle == drawing::LineStyle::Dotted ? "." : "";
        return mark + placeOf(it.x1, it.y1) + "-" + placeOf(it.x2, it.y2);
    });
}
// How each text looks, "Arial 10 bi 255".
inline std::string facesOf(const Page& page) {
    return allOf<drawing::DrawnText>(page, [](const auto& it) {
        const std::string style = std::string(it.font.FontBold ? " b" : " ") +
                                  (it.font.FontItalic ? "i" : "") + (it.font.FontUnderline ? "u " : " ");
        return it.font.FontName + " " + core::numberText(it.font.FontSize) + style +
               std::to_string(it.ForeColor);
    });
}

// What came out of a printer.
struct Printed {
    std::vector<Page> sheets;
    std::string ends;  // "/" for a sheet that another follows, "|" for the last of a job, "." when closed
    std::string paper; // the last size
};

class RecordingPrinter : public drawing::RecordedPage {
public:
    explicit RecordingPrinter(Printed& printed) : printed_(printed) {}
    bool isPrinter() const override { return true; }
    bool close() override { return !(printed_.ends += '.').empty(); }

protected:
    void pageSet(const drawing::PageSetup& setup) override {
        RecordedPage::pageSet(setup);
        done_ = 0;
        printed_.paper = placeOf(static_cast<double>(setup.Width), static_cast<double>(setup.Height));
    }
    void startSheet() override { finish('/'); }
    void endDocument() override { finish('|'); }

private:
    void finish(char end) {
        printed_.sheets.emplace_back(drawn().begin() + std::exchange(done_, std::ssize(drawn())),
                                     drawn().end());
        printed_.ends += end;
    }

    Printed& printed_;
    std::ptrdiff_t done_ = 0; // of what is drawn
};

// A machine with such a printer. Its print dialog is among the forms, with paper and orientation as shown.
struct PrintingPlatform : ScriptedPlatform {
    bool hasPrinter = true;
    bool fileCancelled = false;
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
        forms.push_back("printer " + std::to_string(now.PaperSize) + " " + std::to_string(now.Orientation));
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
    // The texts of a page alone, without the blanks behind them.
    static std::string wordsOf(const Page& page) {
        const auto word = [](const auto& it) { return core::rtrim(it.text); };
        return core::replaceAll(allOf<drawing::DrawnText>(page, word), "; ", " ");
    }
    // The buttons of the preview one after the other, and what is to tell of the page behind each: "a; b; c".
    template <typename Tell>
    std::string walk(std::string_view buttons, Tell&& tell) {
        std::string all;
        for (const std::string_view key : core::split(buttons, ' ')) {
            print::reportToolbar_ButtonClick(app, key);
            all.append(all.empty() ? "" : "; ").append(tell());
        }
        return all;
    }
    std::string selection() const {
        std::string rows;
        app.document.LV.forEach([&](const core::Item& item) { rows += item.Selected ? '1' : '0'; });
        return rows;
    }
};
