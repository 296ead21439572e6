#pragma once

#include "core/text.h"
#include "platform/zip.h"
#include "raised.h"
#include "table.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

inline std::string readBytes(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

inline void writeBytes(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

// Bytes that deflate cannot make smaller.
inline std::string noise(std::size_t count) {
    std::mt19937 random(7);
    std::string bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

class FolderTest : public ::testing::Test {
protected:
    FolderTest() {
        std::string name = (fs::temp_directory_path() / "platform-XXXXXX").string();
        if (::mkdtemp(name.data())) folder = name;
    }
    ~FolderTest() override { fs::remove_all(folder); }

    // All that is below the folder, "a.fwk link@ out/ out/x.jpg ".
    [[nodiscard]] std::string tree() const {
        std::set<std::string> names;
        for (const auto& each : fs::recursive_directory_iterator(folder)) {
            const char* mark = each.is_symlink() ? "@ " : each.is_directory() ? "/ " : " ";
            names.insert(each.path().lexically_relative(folder).string() + mark);
        }
        std::string all;
        for (const std::string& name : names) all += name;
        return all;
    }

    fs::path folder;
};

class ArchiveTest : public FolderTest {
protected:
    ArchiveTest() : archive(folder / "a.fwk") { fs::create_directory(folder / "out"); }

    // Does "open a.fwk, put data.dat text#comment, close" and the like. Files are named from the folder, and
    // those to add or to extract from its out/; the entry "*" is each of all, and the text "*" the
    // bytes. Comes back with what "read" and "list" tell, or with the kind of error that it ended
    // with.
    [[nodiscard]] std::string act(std::string_view script, const std::string& bytes = {}) const {
        platform::Zip Zip;
        Zip.SetBaseFolder(folder / "out");
        std::string told, verb, name, text;
        const auto one = [&] {
            const std::size_t mark = std::min(text.find('#'), text.size());
            if (verb == "create") Zip.CreateArchive(folder / name, text == "*" ? bytes : "");
            if (verb == "open") Zip.OpenArchive(folder / name);
            if (verb == "put")
                Zip.addBuffer(name, text == "*" ? bytes : text.substr(0, mark), text.substr(mark));
            if (verb == "add") Zip.AddFile(name, text);
            if (verb == "delete") Zip.DeleteFile(name);
            if (verb == "extract") Zip.ExtractFile(name);
            if (verb == "read") told += Zip.readEntry(name, 1 << 21).value_or("(none)") + " ";
            if (verb == "close") Zip.CloseArchive();
            if (verb == "save") Zip.CloseArchiveAs(folder / name);
        };
        try {
            for (const auto& each : table(core::replaceAll(script, ", ", "; "))) {
                std::istringstream words(each[0]);
                text.clear();
                std::getline(words >> verb >> name >> std::ws, text);
                const bool all = name == "*";
                for (int i = 0; all && i < Zip.FileCount(); ++i, one()) {
                    name = Zip.FileNameAt(i);
                    if (verb == "list")
                        told += name + ":" + std::to_string(Zip.sizeAt(i)) + Zip.commentAt(i) + " ";
                }
                if (!all) one();
            }
        } catch (const core::RunTimeError& error) {
            return std::string(core::split(error.what(), ':')[0]);
        }
        return told;
    }

    void patchText(const std::string& from, const std::string& to) const {
        writeBytes(archive, core::replaceAll(readBytes(archive), from, to));
    }

    fs::path archive;
};
