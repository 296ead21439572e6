#pragma once

#include "app/app.h"

#include <filesystem>
#include <string>
#include <vector>

namespace shell {

// A database that the program comes with, to look at and to try things on.
struct Sample {
    std::filesystem::path file;
    std::string name;    // "Library"
    std::string shows;   // what there is to see, in one line
    std::string picture; // name of an icon
};

// The samples that stand in the folder, in the order in which they are offered.
std::vector<Sample> samplesIn(const std::filesystem::path& folder);
// Those that came with the program; none when only the program itself was copied.
std::vector<Sample> installedSamples();

// Opens the user's own copy of the sample, which is made in the folder "Ferrowick" of his documents. A copy
// that is there already is opened as he left it. A message when there can be none; what is open stays open
// then.
void openSample(app::App& app, const Sample& sample, const std::filesystem::path& documents);

} // namespace shell
