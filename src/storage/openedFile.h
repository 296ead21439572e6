#pragma once

#include "app/app.h"
#include "file/fileState.h"
#include "file/writerLock.h"

#include <optional>
#include <string>

namespace storage {

// What a window knows of the file that is open: that it alone may write it, and what the file was when it was
// read or written last. A front end that does not guard its files (see platform::Platform) has none of it.
struct OpenedFile {
    std::string path; // empty for none
    file::FileState state;
    std::optional<file::WriterLock> lock;
    std::optional<file::FileState> written; // by the save that is about to be announced
    bool isForeign = false;                 // the user knows that it is not what was opened here
    bool mayReplace = false;                // that answer, for the next save

    // Of the file that is about to be opened, or saved as.
    struct Next {
        std::string path;
        std::optional<file::WriterLock> lock;
        bool bReadOnly = false;
        bool isSame = false;   // as the open one, perhaps by another name: its lock is the one
        file::FileState state; // ahead of reading it
    };
    std::optional<Next> next;
};
inline OpenedFile& openedFile(const app::App& app) {
    return app.rooms.of<OpenedFile>();
}

// Ahead of the steps of an open: takes the lock, or asks what to do without. Answers the path to open, which
// is another when the user wants a copy; nothing when the user cancels.
[[nodiscard]] std::optional<std::string> guardOpening(app::App& app, const std::string& path);
// Another file is the open one, or none.
void followOpened(app::App& app);

// Ahead of the steps of a save over the open file: what is to become of it. Asks only when there is something
// to ask.
enum class SaveWay { Save, SaveAs, None };
[[nodiscard]] SaveWay waySave(app::App& app);
// The same when the user has named the open file himself.
[[nodiscard]] SaveWay waySaveOver(app::App& app);
// Ahead of a save to another name: false when somebody has that file open and the user does not insist.
[[nodiscard]] bool guardTarget(app::App& app, const std::string& target);
// The open file, perhaps under another name now, holds the document.
void followStored(app::App& app);
// The open file is written by ourselves, though not its records.
void followWriting(app::App& app);
void followWritten(app::App& app);

// What has become of the open file by somebody else's hand. A change that was answered is none any more.
[[nodiscard]] file::FileState::Change changeOfOpened(const app::App& app);

// The answers to that.
void readOpenedAgain(app::App& app);    // unsaved work of this window is kept for recovery
void acceptForeignState(app::App& app); // leaves it; the next save asks all the same
void replaceAtNextSave(app::App& app);
void writeOpenedAgain(
    app::App& app); // where it has gone: the records, without the pictures that went with it

} // namespace storage
