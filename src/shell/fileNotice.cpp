#include "shell/fileNotice.h"

#include "core/runTimeError.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "storage/saveSteps.h"

#include <filesystem>

namespace shell {

using app::App;

namespace {

FileNotice changedNotice(const App& app, const std::string& name) {
    const std::string text = name + " was changed by somebody else. ";
    if (!storage::hasUnsavedWork(app))
        return {text + "What is shown here is as it was opened.",
                {{"Read &Again", storage::readOpenedAgain}, {"Not &Now", storage::acceptForeignState}}};
    return {text + "It is not what your unsaved work is based on.",
            {{"Save as Another &File...",
              [](App& window) { storage::tellReason(window, storage::SaveFile(window, true, false)); }},
             {"&Overwrite at the Next Save", storage::replaceAtNextSave},
             {"Read the Other &State", storage::readOpenedAgain}}};
}

FileNotice goneNotice(const std::string& name) {
    return {name + " is no longer there. It may have been renamed or deleted.",
            {{"&Write It Again", storage::writeOpenedAgain}, {"Not &Now", storage::acceptForeignState}}};
}

FileNotice notKeptNotice(const App& app) {
    const bool isFull = storage::unsavedWork(app).keepFailure == core::errors::diskFull;
    return {std::string("Unsaved work could not be kept for the case of a crash") +
                (isFull ? ", because the disk is full" : "") + ". Please save soon.",
            {{"Not &Now", [](App& window) { storage::unsavedWork(window).isFailureTold = true; }}}};
}

} // namespace

std::optional<FileNotice> fileNotice(const App& app) {
    const std::string name = std::filesystem::path(app.document.currentFile).filename().string();
    switch (storage::changeOfOpened(app)) {
    case file::FileState::Change::Changed:
        return changedNotice(app, name);
    case file::FileState::Change::Gone:
        return goneNotice(name);
    case file::FileState::Change::None:
        break;
    }
    if (hasOwnNotice(app)) return notKeptNotice(app);
    return std::nullopt;
}

bool hasOwnNotice(const App& app) {
    return storage::unsavedWork(app).keepFailure != 0 && !storage::unsavedWork(app).isFailureTold;
}

} // namespace shell
