#include "platform/headlessPlatform.h"
#include "print/layoutPrinting.h"
#include "print/previewPage.h"
#include "print/reportChoices.h"
#include "print/reportFit.h"
#include "print/reportPrinting.h"
#include "qtprint/pdfFile.h"
#include "shell/program.h"
#include "storage/openFile.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <iostream>
#include <string>

// Prints into PDF files.

namespace {

// Processor time, in milliseconds, and the least of several runs: other programs count little.
double least(int runs, const std::function<void()>& act) {
    double best = 1e9;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        act();
        best = std::min(best, 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

bool isAtMost(const char* what, double value, double limit) {
    const bool within = value <= limit;
    std::cout << what << ": " << value << ", at most " << limit << (within ? " PASS\n" : " FAIL\n");
    return within;
}

// A field of a damaged layout: all words on one line, which must not be measured anew with each word.
double wordsOnOneLine(drawing::Printer& printer, int words) {
    std::string text;
    for (int i = 0; i < words; ++i) text += "word" + std::to_string(i) + " ";
    constexpr int runs = 5;
    constexpr float width = 50'000'000, height = 1'000;
    return least(runs, [&] {
        const auto page = printer.open("words");
        page->setPage({});
        print::printWrapped(*page, 0, height, width, text);
        page->EndDoc();
        page->close();
    });
}

} // namespace

// print_times DATABASE COLUMN: the ratios are those of one run, so that a slow machine is as good as any; 1
// when one is beyond its limit. The column is what the records are grouped by.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: print_times DATABASE COLUMN\n";
        return 2;
    }
    const std::filesystem::path pdf = std::filesystem::temp_directory_path() / "print_times.pdf";
    const auto printer = qtprint::makePdfPrinter(pdf, {});
    const double few = wordsOnOneLine(*printer, 1'000), many = wordsOnOneLine(*printer, 8'000);
    bool within = isAtMost("8,000 words in the widest field, ms", many, 500);
    within &= isAtMost("8,000 words / 1,000 words", many / few, 12);

    platform::HeadlessPlatform platform(std::cerr);
    shell::Program app(platform);
    platform.setPrinter(printer.get());
    storage::readArchive(app, argv[1]);
    const auto report = [&] {
        const auto target = platform.openPrinter("report");
        print::previewPage(app).iReportStartRow = 1;
        print::drawReport(app, *target, print::reportList(app));
        target->close();
    };
    constexpr int runs = 5;
    const double plain = least(runs, report);
    const double fit = least(runs, [&] { print::fitOf(app, print::reportList(app)); });
    print::setReportChoices(app, {true, true, true, true, argv[2], {}});
    std::cout << "report: " << plain << " ms\n";
    within &= isAtMost("report, looking for narrow columns / all", fit / plain, 0.05);
    within &= isAtMost("report with all choices / without", least(runs, report) / plain, 3);
    std::filesystem::remove(pdf);
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
