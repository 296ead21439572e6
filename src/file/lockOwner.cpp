#include "core/encoding.h"
#include "core/translate.h"
#include "file/writerLock.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ctime>
#include <pwd.h>
#include <unistd.h>

namespace file {

namespace {

constexpr std::string_view hex = "0123456789ABCDEF";

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
}

// The fields are divided by commas and the line ends in a semicolon, so that neither may stand in a name.
std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (!isControl(c) && c != ',' && c != ';' && c != '%') {
            out.push_back(c);
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        out.append({'%', hex[byte >> 4U], hex[byte & 15U]});
    }
    return out;
}

// Whatever was escaped: a name is shown to people, so that nothing in it breaks a line or drives a terminal.
std::string unescaped(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t high = i + 2 < text.size() ? hex.find(text[i + 1]) : std::string_view::npos;
        const std::size_t low = i + 2 < text.size() ? hex.find(text[i + 2]) : std::string_view::npos;
        const bool isEscape = text[i] == '%' && high < hex.size() && low < hex.size();
        out.push_back(isEscape ? static_cast<char>(high * 16 + low) : text[i]);
        if (isEscape) i += 2;
    }
    std::ranges::replace_if(out, isControl, ' ');
    return core::sanitizeUtf8(out);
}

std::string userName() {
    std::array<char, 4096> buffer{};
    struct passwd entry {};
    struct passwd* found = nullptr;
    const uid_t user = ::geteuid();
    if (::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr)
        return found->pw_name;
    return "user " + std::to_string(user);
}

std::string machineName() {
    std::array<char, 256> name{};
    if (::gethostname(name.data(), name.size() - 1) != 0 || name.front() == '\0') return "localhost";
    return name.data();
}

std::string timeNow() {
    const std::time_t now = std::time(nullptr);
    struct tm parts {};
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", ::gmtime_r(&now, &parts));
    return text.data();
}

} // namespace

LockOwner LockOwner::thisProcess() {
    return {userName(), machineName(), ::getpid(), timeNow()};
}

bool LockOwner::isOfThisMachine() const {
    return machine == machineName();
}

std::string LockOwner::text() const {
    if (!isKnown()) return core::tr("another program");
    std::string time = since;
    if (const std::size_t place = time.find('T'); place != std::string::npos) time[place] = ' ';
    if (time.ends_with('Z')) time.replace(time.size() - 1, 1, " UTC");
    return core::fill(core::tr("%1 on %2 (process %3) since %4"),
                      {user, machine, std::to_string(process), time});
}

std::string lockLine(const LockOwner& owner) {
    return escaped(owner.user) + ',' + escaped(owner.machine) + ',' + std::to_string(owner.process) + ',' +
           escaped(owner.since) + ";\n";
}

LockOwner readLockLine(std::string_view line) {
    const std::size_t end = line.find(';');
    if (end == std::string_view::npos) return {};
    std::array<std::string_view, 4> fields;
    std::size_t place = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::size_t comma = std::min(line.find(',', place), end);
        if ((comma == end) != (i + 1 == fields.size())) return {};
        fields.at(i) = line.substr(place, comma - place);
        place = comma + 1;
    }
    LockOwner owner{unescaped(fields[0]), unescaped(fields[1]), 0, unescaped(fields[3])};
    const char* last = fields[2].data() + fields[2].size();
    const auto [stopped, error] = std::from_chars(fields[2].data(), last, owner.process);
    if (error != std::errc() || stopped != last || owner.process <= 0) return {};
    return owner;
}

} // namespace file
