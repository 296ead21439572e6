#pragma once

#include "app/app.h"

#include <cstdint>
#include <string_view>

namespace shell {

// Undo and redo of whatever changes the document. A front end that offers them calls these two around each of
// its events, those of dialogs too; what the event has changed is a step.
void beforeEvent(app::App& app);
void afterEvent(app::App& app);

// Raised by every step that is made, undone or redone.
std::uint64_t stepsTaken(const app::App& app);

void undo(app::App& app);
void redo(app::App& app);

// While it lives, what is changed is named after that command.
class RunningCommand {
public:
    RunningCommand(app::App& app, std::string_view key);
    ~RunningCommand();
    void end(); // what it has changed is its step
    RunningCommand(const RunningCommand&) = delete;
    RunningCommand& operator=(const RunningCommand&) = delete;

private:
    app::App& app_;
    std::string_view before_;
};

// The changes that a step can come from.
void followForUndo(app::Changes& changes);

} // namespace shell
