#include "cli/command.h"
#include "cli/documentCheck.h"
#include "cli/output.h"
#include "cli/session.h"
#include "core/encoding.h"
#include "core/number.h"
#include "core/text.h"
#include "file/archive/zip.h"
#include "file/dataReader.h"
#include "file/lineReader.h"
#include "file/values.h"
#include "invoice/views.h"

#include <CLI/CLI.hpp>
#include <map>

namespace cli {

namespace {

constexpr const char* dataFile = "data.dat";
constexpr int mostFindings = 1000;

class FileCheck {
public:
    explicit FileCheck(const std::string& file) : session_(file) {}

    // Raises Failure for a file that cannot be opened at all; the findings up to there remain.
    void run() {
        try {
            checkAll();
        } catch (const core::RunTimeError& error) {
            throw Failure(session_.file, session_.whyNotOpened(error));
        }
    }

    int count() const { return count_; }
    std::string findings() const {
        if (count_ <= mostFindings) return findings_;
        return findings_ + "and " + std::to_string(count_ - mostFindings) + " more\n";
    }

private:
    // A file that was made to have millions of them is not worth the memory.
    void report(const std::string& finding) {
        if (++count_ <= mostFindings) findings_.append(printable(finding)).push_back('\n');
    }

    void checkAll() {
        file::Zip Zip;
        Zip.OpenArchive(session_.file);
        const std::set<std::string> images = checkEntries(Zip);
        std::optional<std::string> bytes = Zip.readEntry(dataFile, file::Zip::maxFileBytes);
        if (!bytes) core::raise(core::errors::fileNotFound, "data.dat is not in the archive");
        if (core::hasUtf8Mark(*bytes)) checkUtf8(*bytes);
        const file::ReadObserver observer{[this](int line, std::string_view what) {
            report("line " + std::to_string(line) + ": " + std::string(what));
        }};
        core::Document& document = session_.app.document;
        file::readDataFile(*bytes, document, &observer);
        checkSections(file::decodeDataFile(*std::move(bytes)));
        checkDocument(document, images, [this](const std::string& finding) { report(finding); });
        if (document.bInvoiceStyle)
            invoice::rebuildView(session_.app.document); // raises for too many item rows
    }

    // Answers the names of the images.
    std::set<std::string> checkEntries(const file::Zip& Zip) {
        std::set<std::string> names;
        for (int i = 0; i < Zip.FileCount(); ++i) {
            const std::string name = Zip.FileNameAt(i);
            const std::string entry = "entry \"" + name + "\"";
            if (!names.insert(name).second) {
                report(entry + " is there twice");
                continue;
            }
            if (!file::isSafeEntryName(name)) report(entry + " has a name that is never unpacked");
            if (name == dataFile) continue; // read later, where damage ends the check
            try {
                (void)Zip.readEntry(name, file::Zip::maxFileBytes);
            } catch (const core::RunTimeError&) {
                report(entry + " is damaged, or too large");
            }
        }
        names.erase(dataFile);
        return names;
    }

    void checkUtf8(std::string_view bytes) {
        constexpr std::size_t markSize = 3;
        bytes.remove_prefix(markSize);
        if (core::sanitizeUtf8(bytes) != bytes) report("data.dat has bytes that are no UTF-8");
    }

    // The reader takes what it needs and passes over the rest, so the number of elements is counted
    // here once more.
    void checkSections(const std::string& text) {
        constexpr std::size_t markerSize = 16;
        std::map<std::string_view, std::size_t> elements;
        std::string_view widths, spots;
        file::LineReader lines(text);
        while (lines.next() != "[LayoutEnd]") {
        }
        for (;;) {
            const std::string_view line = lines.next();
            const std::string_view marker = line.substr(0, markerSize);
            if (marker == "[Begin Data    ]") break;
            if (marker == "[Column Widths ]") widths = line.substr(markerSize);
            if (marker == "[Column Spots  ]") spots = line.substr(markerSize);
            const auto [known, isNew] = elements.emplace(marker, core::split(line, '|').size() - 1);
            if (!isNew && marker.size() == markerSize && marker.starts_with('['))
                report("line " + std::to_string(lines.number()) + ": section " + std::string(marker) +
                       " is there twice");
        }
        const std::size_t names = elements["[Column Names  ]"];
        const auto compare = [&](const char* marker, std::size_t wanted) {
            const std::size_t found = elements[marker];
            if (found != wanted)
                report("section " + std::string(marker) + " has " + std::to_string(found) +
                       " elements in place of " + std::to_string(wanted));
        };
        compare("[Column Types  ]", names);
        compare("[Column Widths ]", names);
        compare("[Column Spots  ]", names + 1);
        checkWidths(widths);
        if (elements["[Column Spots  ]"] == names + 1) checkSpots(spots);
    }

    // Elements that the reader mends in silence.
    void checkWidths(std::string_view line) {
        for (const std::string_view width : core::split(line, '|'))
            if (!width.empty() &&
                (!core::isNumeric(width) || core::val(width) < 0 || core::val(width) > file::widestColumn))
                report("the width \"" + std::string(width) + "\" of a column is out of range");
    }

    void checkSpots(std::string_view line) {
        std::vector<std::string_view> spots = core::split(line, '|');
        if (!spots.empty()) spots.pop_back();
        std::set<double> places;
        for (const std::string_view spot : spots) places.insert(core::val(spot));
        const bool whole =
            places.size() == spots.size() &&
            (places.empty() || (*places.begin() == 1 && *places.rbegin() == double(places.size())));
        if (!whole) report("section [Column Spots  ] is no order of the columns");
    }

    Session session_;
    std::string findings_;
    int count_ = 0;
};

int checkFile(const std::string& file) {
    FileCheck check(file);
    try {
        check.run();
    } catch (const Failure&) {
        writeOut(check.findings());
        throw;
    }
    writeOut(check.findings());
    if (check.count() == 0) return done;
    throw Failure(file, check.count() == 1 ? "1 finding" : std::to_string(check.count()) + " findings");
}

} // namespace

Run setUpCheck(CLI::App& command) {
    const auto file = std::make_shared<std::string>();
    addFileArgument(command, *file);
    return [file] { return checkFile(*file); };
}

} // namespace cli
