#include "cli/printing/paperOption.h"

#include "drawing/papers.h"

#include <CLI/CLI.hpp>

namespace cli {

CLI::Option* addPaperOption(CLI::App& command, std::string& paper, const char* about) {
    const auto whyNot = [](const std::string& name) {
        std::string reason;
        if (drawing::findPaper(std::string_view(name)) != nullptr) return reason;
        reason.append("\"").append(name).append("\" is none of the papers");
        char separator = ':';
        for (const drawing::PaperSize& each : drawing::papers()) {
            reason.append(1, separator).append(1, ' ').append(each.name);
            separator = ',';
        }
        return reason;
    };
    return command.add_option("--paper", paper, about)->check(whyNot)->type_name("NAME");
}

} // namespace cli
