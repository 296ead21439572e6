#pragma once

#include "app/app.h"
#include "core/runTimeError.h"
#include "file/zip.h"

#include <string>

namespace storage {

// What the commands that write a database have in common.

// Asks before a file is overwritten; true also when there is none.
[[nodiscard]] bool mayWriteTo(app::App& app, const std::string& target);
// Writes the text of the database into the work folder, where the platform keeps one.
void keepDataFile(app::App& app, const std::string& bytes);
// Puts it into the open archive.
void addData(file::Zip& Zip, const std::string& bytes);
// A new archive that holds the text of the database alone. Made from the one that is open, it is as private.
void packAlone(const app::App& app, const std::string& target, const std::string& bytes);
// Says that the database could not be written, and answers why.
[[nodiscard]] core::RunTimeError tellFailure(app::App& app, bool bSaveAs, const std::exception& error);

} // namespace storage
