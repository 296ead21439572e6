#pragma once

#include "databases.h"
#include "file/values.h"

#include <regex>

// What acts do to the files of a folder. changes() tells, since the last look, a line for each changed line
// of a database's design and records, and for each of its entries ("name:comment:bytes"), or of another file:
//
//     +Nut|7|$.25|       has come
//     -Nut|7|$.25|       has gone
//     ~Bolt|13|$1.50|    stands in the place of another
//
// The lines of other files than the one named stand below "@ name". A database that is new is compared with
// the named one. Sections that say nothing, or what a new database has, do not count.
class FolderWatch {
public:
    explicit FolderWatch(std::filesystem::path folder) : folder_(std::move(folder)), seen_(look()) {}

    std::string changes(const std::string& named = {}) {
        const std::map<std::string, std::string> before = std::exchange(seen_, look());
        const auto model = before.find(named);
        std::string all;
        for (const auto& [name, bytes] : before)
            if (!seen_.contains(name)) all += "@ " + name + " gone\n";
        for (const auto& [name, bytes] : seen_) {
            const auto old = before.find(name);
            if (old != before.end() && old->second == bytes) continue;
            const bool isCopy = old == before.end() && model != before.end() && isArchive(bytes);
            if (old != model || old == before.end()) all += "@ " + name + "\n";
            const auto from = isCopy ? model : old;
            all += difference(from == before.end() ? Lines{} : linesOf(from->second), linesOf(bytes));
        }
        return all;
    }

private:
    using Lines = std::vector<std::string>;

    std::map<std::string, std::string> look() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_)) {
            std::error_code error;
            const bool isFile = std::filesystem::is_regular_file(entry.path(), error);
            files[entry.path().lexically_relative(folder_)] =
                isFile ? ScriptedPlatform::read(entry.path()) : "";
        }
        return files;
    }
    static bool isArchive(std::string_view bytes) { return bytes.starts_with("PK"); }
    static Lines linesOf(const std::string& bytes) {
        Lines lines;
        std::string text = bytes.starts_with("%PDF") ? "" : bytes;
        if (isArchive(bytes)) {
            Program reader;
            ScriptedPlatform::write(reader.path("copy"), bytes);
            text.clear();
            file::Zip Zip;
            Zip.OpenArchive(reader.path("copy"));
            for (int i = 0; i < Zip.FileCount(); ++i) {
                const std::string name = Zip.FileNameAt(i),
                                  content = Zip.readEntry(name, 1 << 28).value_or("");
                if (name == "data.dat") text = file::decodeDataFile(content);
                lines.push_back(name + ":" + Zip.commentAt(i) + ":" + (name == "data.dat" ? "" : content));
            }
        }
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            if (line.ends_with('\r')) line.pop_back();
            if (!isArchive(bytes) || !saysNothing(line)) lines.push_back(line);
        }
        return lines;
    }
    // Sections that are empty, or as in a database that nobody has changed them in.
    static bool saysNothing(const std::string& line) {
        static const std::regex usual(
            R"(\[[^\]]*\](False|4.6.1.1.1.1.1.1.0.15.|1.1.1.1.1.1..False.|(1440.)*|1.2.[3-9|]*)?)");
        return std::regex_match(line, usual);
    }
    static std::string difference(const Lines& before, const Lines& now) {
        const auto [from, to] = std::ranges::mismatch(before, now);
        const Lines a(from, before.end()), b(to, now.end());
        if (a.empty() || b.empty()) return hunk(a, b);
        std::vector<std::vector<int>> common(a.size() + 1, std::vector<int>(b.size() + 1));
        for (std::size_t i = a.size(); i-- > 0;)
            for (std::size_t j = b.size(); j-- > 0;)
                common[i][j] =
                    a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
        std::string all;
        Lines gone, come;
        for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();)
            if (i < a.size() && j < b.size() && a[i] == b[j]) {
                all += hunk(std::exchange(gone, {}), std::exchange(come, {}));
                ++i, ++j;
            } else if (j == b.size() || (i < a.size() && common[i + 1][j] >= common[i][j + 1]))
                gone.push_back(a[i++]);
            else
                come.push_back(b[j++]);
        return all + hunk(gone, come);
    }
    static std::string hunk(const Lines& gone, const Lines& come) {
        std::string all;
        for (std::size_t i = 0; i < std::max(gone.size(), come.size()); ++i) {
            const bool isNew = i < come.size();
            const std::string& line = isNew ? come[i] : gone[i];
            all += (!isNew ? "-" : i < gone.size() ? "~" : "+") + line + "\n";
        }
        return all;
    }

    std::filesystem::path folder_;
    std::map<std::string, std::string> seen_;
};
