#include "gui/frame/eventBoundary.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "shell/undo.h"
#include "storage/recovery.h"
#include "storage/recoveryCopies.h"

#include <cstdlib>
#include <new>
#include <optional>

namespace gui {

EventBoundary::EventBoundary(app::App& app, std::function<void()> refresh)
    : endProgram([] { std::_Exit(EXIT_FAILURE); }), app_(app), refresh_(std::move(refresh)) {}

void EventBoundary::run(const std::function<void()>& handler) {
    try {
        shell::beforeEvent(app_);
        handler();
        shell::afterEvent(app_);
        refresh_();
    } catch (const core::RunTimeError& error) {
        fail(core::fill(core::tr("Error %1: %2"), {std::to_string(error.number), error.what()}));
    } catch (const std::bad_alloc&) {
        fail(core::tr("There is not enough memory."));
    } catch (const std::exception& error) {
        // Of the libraries, which throw what they like; it is told as they put it.
        fail(error.what());
    }
}

void EventBoundary::fail(const std::string& what) {
    const std::optional<std::string> copy = storage::keepRecoveryCopy(app_);
    storage::keepUnsavedWork(app_); // for the next start to offer
    try {
        std::string text =
            core::fill(core::tr("%1 has met an error and has to end.\n\n%2"), {app::title, what});
        if (copy)
            text.append("\n\n").append(
                core::fill(core::tr("A copy of your database with all changes is kept in\n%1"), {*copy}));
        else if (!app_.document.currentFile.empty())
            text.append("\n\n").append(
                core::tr("No copy of your database could be kept. The file is as you last saved it."));
        app_.platform.msgBox(text, platform::Icon::Critical, app::title);
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): the copy is kept, and nothing else can
                                      // be done
    }
    endProgram();
}

} // namespace gui
