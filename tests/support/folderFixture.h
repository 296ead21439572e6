#pragma once

#include "core/text.h"
#include "file/zip.h"
#include "raised.h"
#include "table.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
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
