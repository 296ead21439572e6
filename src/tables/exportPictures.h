#pragma once

#include "app/app.h"
#include "exchange/sheetCollector.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tables {

// Whether a kind of file takes pictures at all, and whether they stand in the file itself: else they are in a
// folder beside it.
bool takesPictures(exchange::Format format);
bool hasPicturesInside(exchange::Format format);

// The pictures that go along with a table, out of the database's file. What was made for them is gone again
// with this, unless the table has been written.
class ExportPictures {
public:
    explicit ExportPictures(app::App& app) : app_(app) {}
    ~ExportPictures();
    ExportPictures(const ExportPictures&) = delete;
    ExportPictures& operator=(const ExportPictures&) = delete;

    // False when there is a folder of that name already and the user wants it to stay as it is.
    [[nodiscard]] bool mayWriteBeside(const std::filesystem::path& target) const;
    // Unpacks them to where a table of this kind finds them. Raises what Zip raises, and cancelled.
    void unpack(const std::filesystem::path& target, exchange::Format format, exchange::OutTable& table,
                const exchange::Progress& progress);
    // The table is written: a folder beside it stays. Says which pictures the database has not.
    void finish();

private:
    app::App& app_;
    std::filesystem::path folder_; // that goes with this
    bool bInside_ = false;
    std::vector<std::string> missing_;
};

} // namespace tables
