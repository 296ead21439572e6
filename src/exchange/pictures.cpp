#include "exchange/pictures.h"

#include "exchange/outCells.h"
#include "file/archive/entryName.h"
#include "file/archive/zip.h"
#include "file/fileHandle.h"

#include <set>
#include <system_error>

namespace exchange {

namespace {

std::set<std::string> namesIn(const OutTable& table) {
    std::set<std::string> names;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i].type != core::ColumnType::Picture) continue;
        for (std::size_t row = 0; row < table.rows.size(); ++row)
            if (const std::string_view name = cellIn(table, row, i); !name.empty()) names.emplace(name);
    }
    return names;
}

} // namespace

std::filesystem::path picturesBeside(const std::filesystem::path& file) {
    std::filesystem::path folder = file;
    return folder.replace_filename(file.stem().string().append("_pictures"));
}

std::vector<std::string> unpackPictures(const std::filesystem::path& database, const OutTable& table,
                                        const std::filesystem::path& folder, const Progress& progress) {
    std::error_code error;
    const bool bMade = std::filesystem::create_directory(folder, error);
    if (error) file::raiseSystemError(error.value(), folder.string());
    std::vector<std::string> missing;
    try {
        file::Zip zip;
        zip.OpenArchive(database);
        zip.SetBaseFolder(folder);
        const std::set<std::string> names = namesIn(table);
        std::size_t done = 0;
        for (const std::string& name : names) {
            tellProgress(progress, done++, names.size());
            if (file::isSafeEntryName(name) && zip.contains(name))
                zip.ExtractFile(name);
            else
                missing.push_back(name);
        }
    } catch (...) {
        if (bMade) std::filesystem::remove_all(folder, error);
        throw;
    }
    return missing;
}

} // namespace exchange
