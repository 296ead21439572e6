#pragma once

#include "app/app.h"
#include "file/fileHandle.h"
#include "storage/backgroundWriter.h"
#include "storage/recoveryNote.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace storage {

// Unsaved work, kept in the user's state folder for the case that the program ends without being asked to: an
// archive with the records and a note (see recoveryNote.h), which takes the place of the one before in one
// step, and beside it a lock file that is held as long as the program that keeps the copy runs. Pictures are
// put into the database at once when they are chosen, so they are left out.

// One that was found, or this program's own. Its lock is held as long as the object lives, so that no two
// programs offer the same.
struct RecoveryCopy {
    std::filesystem::path archive;
    file::FileHandle lock;
    RecoveryNote note;
};

// The unsaved work of the open document: whether there is any, and where it is kept.
struct UnsavedWork {
    using Clock = std::chrono::steady_clock;

    RecoveryCopy copy; // without an archive as long as none was kept
    BackgroundWriter writer;
    bool isStale = false; // changes have come that the copy does not have, the first and the last of them at
    Clock::time_point first, last;
    bool isChanged = false; // as bModified, which outlasts the document that it was said of
    bool isTyped = false;   // the sheet holds what is not stored
    std::string typedKey;   // of the record on it; empty for a new one
    // What stands in the boxes of the Entry Form and is not stored; nothing when nothing does. Asked for when
    // it is kept, so that a key press does not wait for it.
    std::function<TypedInForm()> typedInForm;
    bool isReplaced = false; // records were replaced, which does not make the document modified
    bool isSetAside = false; // the user has just put it aside; the next open is not to offer it
    bool isWriting = false;  // the writer, when it was looked at last
    int keepFailure = 0; // why the last copy could not be kept, as a number of core::errors; 0 when it was
    bool isFailureTold = false; // the user knows
    bool hasSaveFailed = false; // which leaves bModified False
};
inline UnsavedWork& unsavedWork(const app::App& app) {
    return app.rooms.of<UnsavedWork>();
}
// Something that ending now would lose.
[[nodiscard]] bool hasUnsavedWork(const app::App& app);
// The document was changed, or is said to be as it is stored.
void followModified(app::App& app);

// A change has come that the copy does not have.
void markUnsaved(app::App& app, UnsavedWork::Clock::time_point now = UnsavedWork::Clock::now());
// Keeps the work in the background when it is time to: two seconds after the last change, ten after the
// first. True when it is to be called again soon. Never raises.
bool tendUnsavedWork(app::App& app, UnsavedWork::Clock::time_point now = UnsavedWork::Clock::now()) noexcept;
// Keeps it at once, in this process. False when there is nothing to keep or it cannot be kept.
bool keepUnsavedWork(app::App& app) noexcept;
// The file holds the document, though not what is typed and not stored.
void followStoredWork(app::App& app) noexcept;
// The file holds it, or the user has given it up.
void removeUnsavedWork(app::App& app) noexcept;
// Leaves the copy to be offered later, and begins anew.
void leaveUnsavedWork(app::App& app) noexcept;
// Another document takes the place of this one without a question: what is unsaved of it is kept and left.
// With bGivenUp the user has been asked.
void endUnsavedWork(app::App& app, bool bGivenUp) noexcept;

// What programs that no longer run have left, of one file or of all, the newest first.
[[nodiscard]] std::vector<RecoveryCopy> findRecoveryCopies(app::App& app, const std::string& file = {});
void discardRecoveryCopy(RecoveryCopy copy) noexcept;
// The copy is this program's from now on, as it stands.
void adoptRecoveryCopy(app::App& app, RecoveryCopy copy);

} // namespace storage
