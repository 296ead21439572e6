#include "shell/fileNotice.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "storage/saveSteps.h"

#include <filesystem>

namespace shell {

using app::App;

namespace {

FileNotice changedNotice(const App& app, const std::string& name) {
    if (!storage::hasUnsavedWork(app))
        return {
            core::fill(core::tr("%1 was changed by somebody else. What is shown here is as it was opened."),
                       {name}),
            {{core::tr("Read &Again"), storage::readOpenedAgain},
             {core::tr("Not &Now"), storage::acceptForeignState}}};
    return {
        core::fill(core::tr("%1 was changed by somebody else. It is not what your unsaved work is based on."),
                   {name}),
        {{core::tr("Save as Another &File..."),
          [](App& window) { storage::tellReason(window, storage::SaveFile(window, true, false)); }},
         {core::tr("&Overwrite at the Next Save"), storage::replaceAtNextSave},
         {core::tr("Read the Other &State"), storage::readOpenedAgain}}};
}

FileNotice goneNotice(const std::string& name) {
    return {core::fill(core::tr("%1 is no longer there. It may have been renamed or deleted."), {name}),
            {{core::tr("&Write It Again"), storage::writeOpenedAgain},
             {core::tr("Not &Now"), storage::acceptForeignState}}};
}

FileNotice notKeptNotice(const App& app) {
    const bool isFull = storage::unsavedWork(app).keepFailure == core::errors::diskFull;
    return {isFull ? core::tr("Unsaved work could not be kept for the case of a crash, because the disk is "
                              "full. Please save soon.")
                   : core::tr("Unsaved work could not be kept for the case of a crash. Please save soon."),
            {{core::tr("Not &Now"), [](App& window) { storage::unsavedWork(window).isFailureTold = true; }}}};
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
