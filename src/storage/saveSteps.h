#pragma once

#include "app/app.h"
#include "core/runTimeError.h"
#include "file/archive/zip.h"

#include <functional>
#include <optional>
#include <string>

namespace storage {

// What the commands that write a database have in common.

// Asks before a file is overwritten; true also when there is none.
[[nodiscard]] bool mayWriteTo(app::App& app, const std::string& target);
// Every database that is made beside the open one is written in here: asks before a file is overwritten, has
// its place locked until it is there, and asks when somebody else has it open. False when the user has kept
// it from being written. Lets through what the writing raises.
[[nodiscard]] bool writeNewFile(app::App& app, const std::string& target, const std::function<void()>& write);
// Writes the text of the database into the work folder, where the platform keeps one.
void keepDataFile(app::App& app, const std::string& bytes);
// Puts it into the open archive.
void addData(file::Zip& Zip, const std::string& bytes);
// A new archive that holds the text of the database alone. Made from the one that is open, it is as private.
void packAlone(app::App& app, const std::string& target, const std::string& bytes);
// Says that the database could not be written, and answers why.
[[nodiscard]] core::RunTimeError tellFailure(app::App& app, bool bSaveAs, const std::exception& error);

// Behind that message, in a front end that shows it: the file and what the system said.
void tellReason(app::App& app, const std::optional<core::RunTimeError>& error);

} // namespace storage
