#pragma once

#include "dataFile.h"
#include "platform/zip.h"
#include "scriptedPlatform.h"
#include "storage/openFile.h"

#include <filesystem>
#include <string>

// A program with a scripted machine, and databases to work on.
struct Program {
    ScriptedPlatform platform;
    app::App app{platform};

    std::string path(const std::string& name) const { return (platform.folder / name).string(); }

    // A copy of a database that comes with the tests.
    std::string copyOf(const std::string& name) const {
        std::filesystem::copy_file(std::filesystem::path(TEST_DATA_DIR) / name, path(name),
                                   std::filesystem::copy_options::overwrite_existing);
        return path(name);
    }
    std::string open(const std::string& file) {
        app.document.currentFile = file;
        storage::OpenFile(app, true);
        return file;
    }
    std::string openCopyOf(const std::string& name) { return open(copyOf(name)); }

    // An archive with that data.dat, and entries of the given names.
    std::string make(const std::string& name, std::string_view dataFile,
                     std::initializer_list<const char*> images = {}) const {
        platform::Zip Zip;
        Zip.CreateArchive(path(name));
        Zip.addBuffer("data.dat", dataFile, "Main Data File");
        for (const char* image : images) Zip.addBuffer(image, std::string("bytes of ") + image, "");
        Zip.CloseArchive();
        return path(name);
    }
    static std::string dataFileOf(const std::string& archive) {
        platform::Zip Zip;
        Zip.OpenArchive(archive);
        return Zip.readEntry("data.dat", std::uint64_t{1} << 30).value_or("(none)");
    }

    // The cells of a list's rows, "a|b;c|d;".
    static std::string cells(const core::RecordsList& list) {
        std::string all;
        list.forEach([&](const core::Item& item) {
            for (const core::CellText& cell : item.cells) all += cell.str() + "|";
            all += ";";
        });
        return all;
    }
};
