#pragma once

#include "platform/headlessPlatform.h"
#include "shell/program.h"

#include <iostream>
#include <string>

namespace bench {

// The databases that are measured, as the argument of a benchmark.
enum Database : int {
    packages = 0, // 32,000 records of 10 columns, as people have them
    largest = 1,  // 32,767 records of 50 columns
};

const char* databaseName(int database);
// A copy on disk for this run, which a benchmark may write to; removed at the end.
const std::string& databasePath(int database);
const std::string& dataFileOf(int database); // its data.dat

// A document with the database open.
struct OpenDatabase {
    explicit OpenDatabase(int database);

    platform::HeadlessPlatform machine{std::cerr};
    shell::Program app{machine};
};

} // namespace bench
