#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

// What a user has set for one database and the database itself does not hold: named texts by the absolute
// path of its file, in one text file beside the settings. Of at most 200 databases, those that were written
// last. A file that is absent or damaged counts as empty; a file that cannot be written is told to nobody,
// stays as it was, and what was set holds for this run.
class FileSettings {
public:
    static constexpr std::size_t maxDatabases = 200;
    static constexpr std::size_t maxText = 4096; // bytes

    // Beside the user's settings; empty when the user has no home.
    static std::filesystem::path defaultFile();

    explicit FileSettings(std::filesystem::path file = {}) : file_(std::move(file)) {}

    // Empty for what was never set, and for an empty database path.
    [[nodiscard]] std::string get(std::string_view database, std::string_view name) const;
    // Sets the text, or removes it when it is empty. False when nothing was set: no path of a database, or
    // a name or text longer than maxText. Other programs' changes of other names stay.
    bool set(std::string_view database, std::string_view name, std::string_view text);
    // In the order of the names' first setting.
    [[nodiscard]] std::vector<std::string> names(std::string_view database) const;

private:
    using Texts = std::vector<std::pair<std::string, std::string>>; // name, text
    struct Database {
        std::string path;
        Texts texts;
    };

    // False when the file is there and cannot be read.
    bool read() const; // NOLINT(modernize-use-nodiscard): it is done all the same
    void write() const;
    Database* find(std::string_view path) const;

    std::filesystem::path file_;              // empty: kept for this run only
    mutable std::vector<Database> databases_; // the one written last is the last
    mutable bool isRead_ = false;
};

} // namespace platform
