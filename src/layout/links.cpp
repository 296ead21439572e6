#include "layout/links.h"

#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <vector>

namespace layout {

namespace fs = std::filesystem;

using app::App;

namespace {

// Endings of what a desktop may run when it is told to open it.
constexpr std::array<std::string_view, 41> programEndings = {
    "APP",  "APPIMAGE", "BASH", "BAT", "BIN",  "CMD", "COMMAND", "CPL", "CSH", "DESKTOP", "EXE",
    "FISH", "GADGET",   "HTA",  "JAR", "JNLP", "JS",  "JSE",     "KSH", "LNK", "MSI",     "MSP",
    "PHP",  "PIF",      "PL",   "PS1", "PY",   "PYC", "PYW",     "RB",  "REG", "RUN",     "SCF",
    "SCR",  "SH",       "TCL",  "URL", "VBE",  "VBS", "WSF",     "ZSH"};

bool isPlain(std::string_view link) {
    return std::ranges::all_of(link, [](unsigned char c) { return c >= ' ' && c != 0x7f; });
}

// A web or mail address, or nothing.
std::string addressOf(std::string_view link) {
    const std::string upper = core::upper(link);
    if (upper.starts_with("WWW.")) return "http://" + std::string(link);
    for (const std::string_view scheme : {"HTTP://", "HTTPS://", "MAILTO:"})
        if (upper.starts_with(scheme) && upper.size() > scheme.size()) return std::string(link);
    return {};
}

int hexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    const char upper = static_cast<char>(digit & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

std::string decoded(std::string_view address) {
    std::string text;
    for (std::size_t i = 0; i < address.size(); ++i) {
        const bool isCode = address[i] == '%' && i + 2 < address.size() && hexDigit(address[i + 1]) >= 0 &&
                            hexDigit(address[i + 2]) >= 0;
        text.push_back(isCode ? static_cast<char>(hexDigit(address[i + 1]) * 16 + hexDigit(address[i + 2]))
                              : address[i]);
        if (isCode) i += 2;
    }
    return text;
}

// The path in a "file:" address, with or without a host ahead of it.
std::string pathOf(std::string_view address) {
    std::string_view path = address.substr(std::string_view("file:").size());
    if (path.starts_with("//")) path.remove_prefix(std::min(path.find('/', 2), path.size()));
    return decoded(path.substr(0, path.find_first_of("?#")));
}

bool hasProgramEnding(std::string_view name) {
    const std::size_t end = name.find_last_not_of("./\\ ");
    name = name.substr(0, end == std::string_view::npos ? 0 : end + 1);
    const std::size_t dot = name.find_last_of("./\\:");
    if (dot == std::string_view::npos || name[dot] != '.') return false;
    return std::ranges::find(programEndings, core::upper(name.substr(dot + 1))) != programEndings.end();
}

// By what stands at its beginning; a file without an ending that may be executed counts as well.
bool isProgramFile(const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) return false; // a pipe would keep us waiting
    const fs::path real = fs::canonical(file, error);
    if (!error && hasProgramEnding(real.string())) return true;
    constexpr auto executable = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    const fs::perms perms = fs::status(file, error).permissions();
    if (!error && !file.has_extension() && (perms & executable) != fs::perms::none) return true;
    std::string head(512, '\0');
    std::ifstream stream(file, std::ios::binary);
    stream.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(stream.gcount()));
    return head.starts_with("#!") || head.starts_with("MZ") ||
           head.starts_with("\x7f"
                            "ELF") ||
           head.find("[Desktop Entry]") != std::string::npos;
}

bool isProgram(const std::string& target) {
    for (const std::string& name : {target, decoded(target)})
        if (hasProgramEnding(name) ||
            hasProgramEnding(std::string_view(name).substr(0, name.find_first_of("?#"))))
            return true;
    if (core::upper(target).starts_with("FILE:")) return isProgramFile(pathOf(target));
    return isProgramFile(fs::path("/") / target); // as the desktop is given a name without a folder
}

// A file beside the database by its whole path; anything else as it is.
std::string targetOf(const core::Document& document, std::string_view link) {
    std::error_code error;
    const fs::path beside = fs::absolute(document.currentFile, error).parent_path() / link;
    if (!error && !document.currentFile.empty() && fs::exists(beside, error)) return beside.string();
    return std::string(link);
}

// A text for a message, which a target of any length would drive off the screen.
std::string shown(const std::string& target) {
    constexpr std::size_t most = 300;
    if (core::length(target) <= most) return target;
    return std::string(core::left(target, most / 2)) + " ... " + std::string(core::right(target, most / 2));
}

} // namespace

void followLink(App& app, std::string_view target) {
    const std::string_view link = core::trim(target);
    if (link.empty()) return;
    if (!isPlain(link)) {
        app::warn(app, core::tr("The link cannot be opened: it has characters in it that no address has."));
        return;
    }
    if (const std::string address = addressOf(link); !address.empty()) {
        app.platform.openLink(address);
        return;
    }
    const std::string other = targetOf(app.document, link);
    if (isProgram(other)) {
        app::warn(app, core::fill(core::tr("%1 is a program or a script. Links do not start programs."),
                                  {shown(other)}));
        return;
    }
    if (app.platform.msgBox(core::fill(core::tr("Open %1?"), {shown(other)}), platform::Icon::Question,
                            app::title, platform::Buttons::YesNoDefaultNo) == platform::Answer::Yes)
        app.platform.openLink(other);
}

} // namespace layout
