#pragma once

#include "file/zip.h"
#include "raised.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <utility>
#include <vector>
#include <zip.h>

inline std::string readBytes(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

inline void writeBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

class FolderTest : public ::testing::Test {
protected:
    FolderTest() {
        std::string name = (std::filesystem::temp_directory_path() / "platform-XXXXXX").string();
        if (::mkdtemp(name.data())) folder = name;
    }
    ~FolderTest() override { std::filesystem::remove_all(folder); }

    [[nodiscard]] std::vector<std::string> filesIn(const std::filesystem::path& where) const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(where))
            names.push_back(entry.path().filename());
        return names;
    }

    std::filesystem::path folder;
};

class ArchiveTest : public FolderTest {
protected:
    ArchiveTest() : archive(folder / "a.fwk") {}

    // An archive made by libzip itself, which takes every name.
    void make(const std::vector<std::pair<std::string, std::string>>& entries,
              const char* password = nullptr) const {
        zip_t* zip = zip_open(archive.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
        for (const auto& [name, data] : entries) {
            zip_source_t* source = zip_source_buffer(zip, data.data(), data.size(), 0);
            const zip_int64_t index = zip_file_add(zip, name.c_str(), source, ZIP_FL_ENC_GUESS);
            ASSERT_GE(index, 0) << name;
            if (password)
                zip_file_set_encryption(zip, static_cast<zip_uint64_t>(index), ZIP_EM_TRAD_PKWARE, password);
        }
        ASSERT_EQ(zip_close(zip), 0);
    }

    // Overwrites a field of the first entry in its local header and in the directory at the end.
    void patch(std::size_t localOffset, std::size_t directoryOffset, const std::string& bytes) const {
        std::string file = readBytes(archive);
        file.replace(file.find("PK\3\4") + localOffset, bytes.size(), bytes);
        file.replace(file.find("PK\1\2") + directoryOffset, bytes.size(), bytes);
        writeBytes(archive, file);
    }

    void patchText(const std::string& from, const std::string& to) const {
        std::string file = readBytes(archive);
        for (std::size_t at = file.find(from); at != std::string::npos; at = file.find(from, at))
            file.replace(at, from.size(), to);
        writeBytes(archive, file);
    }

    [[nodiscard]] std::string dataOf(const std::filesystem::path& file,
                                     const std::string& name = "data.dat") const {
        file::Zip Zip;
        Zip.OpenArchive(file);
        return Zip.readEntry(name, file::Zip::maxFileBytes).value_or("(absent)");
    }

    void replaceData(const std::string& bytes) const {
        file::Zip Zip;
        Zip.OpenArchive(archive);
        Zip.addBuffer("data.dat", bytes, "Main Data File");
        Zip.CloseArchive();
    }

    std::filesystem::path archive;
};
