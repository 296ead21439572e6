#pragma once

#include "core/text.h"
#include "databases.h"
#include "file/dataWriter.h"
#include "table.h"

#include <gtest/gtest.h>

#include <map>

// What a calculation that fails tells.
const std::string syntaxMessage = "! An error has occured during one of your calculations.";

using SavedState = std::map<std::string, std::string>;

struct CalcTest : testing::Test, Program {
    using Program::Program;
    core::Document& document = app.document;
    core::RecordsList& LV = app.document.LV;

    // What a save would write, by the names of the sections: "Formulas" and its line. Of an object there is
    // what it is and its first element; objects and rows end in ";".
    SavedState saved() const {
        SavedState sections;
        std::string section;
        const std::string file = file::writeDataFile(document, false);
        for (std::string_view line : core::split(file, '\n')) {
            line = line.substr(0, line.find('\r'));
            if (line.starts_with('[')) {
                section = core::trim(line.substr(1, line.find(']') - 1));
                sections[section] = line.substr(line.find(']') + 1);
            } else if (!line.empty()) {
                const std::size_t end = line.find('|', line.find('|') + 1);
                sections[section].append(line.substr(0, section == "LayoutStart" ? end : line.npos)) += ';';
            }
        }
        return sections;
    }
    // The sections that are not as they were, one a line: "Formulas: Sum,Price * Qty|".
    std::string changesSince(const SavedState& before) const {
        std::string all;
        for (const auto& [section, text] : saved())
            if (text != before.at(section)) all += section + ": " + text + "\n";
        return all;
    }
};
