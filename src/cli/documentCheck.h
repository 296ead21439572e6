#pragma once

#include "core/document.h"

#include <functional>
#include <set>
#include <string>

namespace cli {

using Report = std::function<void(const std::string& finding)>;

// What does not fit together in a database: names of columns, objects and images that are not there,
// images that nothing names, columns of no known type. `images` are the entries of the archive but
// data.dat.
void checkDocument(const core::Document& document, const std::set<std::string>& images, const Report& report);

} // namespace cli
