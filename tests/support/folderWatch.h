#pragma once

#include "databases.h"
#include "file/values.h"

#include <regex>
#include <utility>

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
    explicit FolderWatch(fs::path folder) : folder_(std::move(folder)), seen_(look()) {}

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
            const auto from = isCopy ? model : old;
            const std::string lines =
                difference(from == before.end() ? Lines{} : linesOf(from->second), linesOf(bytes));
            // An archive that says the same may bear another time.
            const bool isSame = old != before.end() && isArchive(bytes) && lines.empty();
            if ((old != model || old == before.end()) && !isSame) all += "@ " + name + "\n";
            all += lines;
        }
        return all;
    }

private:
    using Lines = std::vector<std::string>;

    std::map<std::string, std::string> look() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
            std::string& bytes = files[entry.path().lexically_relative(folder_)];
            std::error_code error;
            if (entry.is_regular_file(error)) bytes = readBytes(entry.path());
        }
        return files;
    }
    static bool isArchive(std::string_view bytes) { return bytes.starts_with("PK"); }
    static Lines linesOf(const std::string& bytes) {
        Lines lines;
        std::string text = isArchive(bytes) || bytes.starts_with("%PDF") ? "" : bytes;
        if (isArchive(bytes)) {
            const TestFolder place;
            writeBytes(place.folder / "copy", bytes);
            file::Zip Zip;
            Zip.OpenArchive(place.folder / "copy");
            for (int i = 0; i < Zip.FileCount(); ++i) {
                const std::string name = Zip.FileNameAt(i), entry = *Zip.readEntry(name, 1 << 28);
                lines.push_back(name + ":" + Zip.commentAt(i) + ":" + (name == "data.dat" ? "" : entry));
                if (name == "data.dat") text = file::decodeDataFile(entry);
            }
        }
        // Sections that are empty, or as in a database that nobody has changed them in.
        static const std::regex usual(
            R"(\[[^\]]*\](False|4.6.1.1.1.1.1.1.0.15.|1.1.1.1.1.1..False.|(1440.)*|1.2.[3-9|]*)?)");
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            if (line.ends_with('\r')) line.pop_back();
            if (!isArchive(bytes) || !std::regex_match(line, usual)) lines.push_back(line);
        }
        return lines;
    }
    static std::string difference(const Lines& before, const Lines& now) {
        const auto [from, to] = std::ranges::mismatch(before, now);
        const Lines a(from, before.end()), b(to, now.end());
        std::vector<std::vector<int>> common(a.size() + 1, std::vector<int>(b.size() + 1));
        for (std::size_t i = a.size(); i-- > 0;)
            for (std::size_t j = b.size(); j-- > 0;)
                common[i][j] =
                    a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
        std::string all;
        for (std::size_t i = 0, j = 0, gone = 0, come = 0; i < a.size() || j < b.size();
             gone = ++i, come = ++j) {
            while ((i < a.size() || j < b.size()) && (i == a.size() || j == b.size() || a[i] != b[j]))
                ++(j == b.size() || (i < a.size() && common[i + 1][j] >= common[i][j + 1]) ? i : j);
            for (; gone < i || come < j; ++gone, ++come)
                all += come >= j ? "-" + a[gone] + "\n" : (gone < i ? "~" : "+") + b[come] + "\n";
        }
        return all;
    }

    fs::path folder_;
    std::map<std::string, std::string> seen_;
};
