#pragma once

#include "exchange/sheetCollector.h"

#include <filesystem>
#include <string>
#include <vector>

namespace exchange {

// The folder of a table's pictures beside it, "prices_pictures" of "prices.csv".
std::filesystem::path picturesBeside(const std::filesystem::path& file);

// Unpacks the pictures that the Picture columns of a table name out of its database into a folder, which is
// made where there is none, over files of the same names. Answers the names that the database has no picture
// of. Raises what Zip raises, and cancelled; a folder that was made is gone again then.
std::vector<std::string> unpackPictures(const std::filesystem::path& database, const OutTable& table,
                                        const std::filesystem::path& folder, const Progress& progress = {});

} // namespace exchange
