#pragma once

#include "app/app.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace shell {

// A database without records that a new one can begin with: columns, a page and a report.
struct Template {
    const char* item;    // of the menu
    const char* file;    // in the folder of the templates
    const char* caption; // with its mnemonic, and without one the name that is proposed for the new file
    const char* picture; // name of an icon
};

std::span<const Template> templates();

// Their folder; nothing when only the program itself was copied.
std::optional<std::filesystem::path> templateFolder();
// Disables what is not there. At the start of the program.
void findTemplates(app::App& app, const std::optional<std::filesystem::path>& folder);

void newFromTemplate(app::App& app, const Template& chosen, const std::filesystem::path& folder);

} // namespace shell
