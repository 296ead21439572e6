#pragma once

#include "core/text.h"
#include "databases.h"
#include "drawing/recordedPage.h"
#include "print/previewNavigation.h"

#include <cmath>
#include <memory>
#include <utility>

// Texts measured by plain rules: a character is half as wide as the font is high, and a line as high as the
// font. So every place on a page can be told without a font.
class PlainMetrics : public drawing::TextMetrics {
public:
    float textWidth(const drawing::TextFont& font, std::string_view text) override {
        return static_cast<float>(core::length(text)) * font.FontSize * 10;
    }
    float textHeight(const drawing::TextFont& font) override { return font.FontSize * 20; }
};

// What came out of a printer: for each sheet what stands on it.
struct PrintedSheets {
    std::vector<std::vector<drawing::Drawn>> sheets;
    std::vector<std::size_t> jobs; // sheets of each
    std::vector<drawing::PageSetup> papers;
    bool closed = false;
};

// A printer that keeps its sheets.
class RecordingPrinter : public drawing::RecordedPage {
public:
    RecordingPrinter(PrintedSheets& printed, drawing::TextMetrics& metrics) : printed_(printed) {
        measureWith(metrics);
    }
    bool isPrinter() const override { return true; }
    bool close() override {
        printed_.closed = true;
        return true;
    }

protected:
    void pageSet(const drawing::PageSetup& setup) override {
        RecordedPage::pageSet(setup);
        printed_.papers.push_back(setup);
    }
    void startSheet() override {
        finish();
        ++sheetsOfJob_;
    }
    void endDocument() override {
        finish();
        printed_.jobs.push_back(std::exchange(sheetsOfJob_, 0) + 1);
    }

private:
    void finish() {
        printed_.sheets.push_back(drawn());
        const float x = CurrentX, y = CurrentY;
        Cls();
        CurrentX = x;
        CurrentY = y;
    }

    PrintedSheets& printed_;
    std::size_t sheetsOfJob_ = 0;
};

// A machine with such a printer.
class PrintingPlatform : public ScriptedPlatform {
public:
    bool hasPrinter = true;
    PlainMetrics metrics;
    PrintedSheets printed;
    std::optional<platform::PrintChoice> dialogAnswer = platform::PrintChoice{1, 1};
    std::vector<platform::PrintChoice> dialogsShown;
    bool fileCancelled = false;
    std::vector<platform::PaperName> paperNames = {{"A4", 9}, {"Letter", 1}, {"Custom", 256}};

    std::string printerDeviceName() override {
        if (!hasPrinter) core::raise(core::errors::deviceIO);
        return "Recorder";
    }
    drawing::TextMetrics& textMetrics() override { return metrics; }
    std::vector<platform::PaperName> printerPapers() override { return paperNames; }
    std::optional<platform::PrintChoice> showPrinterDialog(const platform::PrintChoice& present) override {
        dialogsShown.push_back(present);
        return dialogAnswer;
    }
    std::unique_ptr<drawing::DrawTarget> openPrinter(const std::string&) override {
        if (fileCancelled) return nullptr;
        return std::make_unique<RecordingPrinter>(printed, metrics);
    }
};

// What stands on a page, picked by kind.
template <typename Kind>
std::vector<Kind> drawnOf(const std::vector<drawing::Drawn>& page) {
    std::vector<Kind> found;
    for (const drawing::Drawn& each : page)
        if (const auto* drawn = std::get_if<Kind>(&each)) found.push_back(*drawn);
    return found;
}

// A place on a page in whole twips, "left,top".
inline std::string placeOf(float x, float y) {
    return std::to_string(std::lround(x)) + "," + std::to_string(std::lround(y));
}

// The texts of a page, "text@left,top".
inline std::vector<std::string> textsOf(const std::vector<drawing::Drawn>& page) {
    std::vector<std::string> texts;
    for (const auto& each : drawnOf<drawing::DrawnText>(page))
        texts.push_back(each.text + "@" + placeOf(each.Left, each.Top));
    return texts;
}

// The lines of a page, "x1,y1-x2,y2", dotted ones with a "." in front.
inline std::vector<std::string> linesOf(const std::vector<drawing::Drawn>& page) {
    std::vector<std::string> lines;
    for (const auto& each : drawnOf<drawing::DrawnLine>(page))
        lines.push_back((each.pen.DrawStyle == drawing::LineStyle::Dotted ? "." : "") +
                        placeOf(each.x1, each.y1) + "-" + placeOf(each.x2, each.y2));
    return lines;
}

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
    const std::vector<drawing::Drawn>& preview() const { return app.mainFrm.previewPage.rptPreview1.drawn(); }
    const std::vector<drawing::Drawn>& sheet(std::size_t number) const {
        return platform.printed.sheets.at(number);
    }
    // What stands on each sheet printed since the last look, "r1 r2/r3".
    std::string printed() {
        std::string all;
        for (const auto& page : platform.printed.sheets)
            all += (&page == platform.printed.sheets.data() ? "" : "/") + wordsOf(page);
        platform.printed = {};
        return all;
    }
    // The texts of a page alone, without the blanks behind them.
    static std::string wordsOf(const std::vector<drawing::Drawn>& page) {
        std::string words;
        for (const drawing::DrawnText& text : drawnOf<drawing::DrawnText>(page))
            words += (words.empty() ? "" : " ") + std::string(core::rtrim(text.text));
        return words;
    }
    // The buttons of the preview one after the other, and what is to tell of the page behind each: "a; b; c".
    template <typename Tell>
    std::string walk(std::string_view buttons, Tell&& tell) {
        std::string all;
        for (const std::string_view key : core::split(buttons, ' ')) {
            print::reportToolbar_ButtonClick(app, key);
            all += std::string(all.empty() ? "" : "; ") + tell();
        }
        return all;
    }
    std::string selection() const {
        std::string rows;
        app.document.LV.forEach([&](const core::Item& item) { rows += item.Selected ? '1' : '0'; });
        return rows;
    }
};
