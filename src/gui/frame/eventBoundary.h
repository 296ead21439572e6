#pragma once

#include "app/app.h"

#include <functional>
#include <string>

namespace gui {

// The edge between Qt and the handlers: every event of the window and of its dialogs goes through it.
// After the handler the window shows the state anew. An error that no handler caught is told to the
// user, a copy of the document is kept, and the program ends.
class EventBoundary {
public:
    EventBoundary(app::App& app, std::function<void()> refresh);

    void run(const std::function<void()>& handler);

    // Ends the program at once: handlers further up would go on with a state that nobody knows.
    // Tests put something else here.
    std::function<void()> endProgram;

private:
    void fail(const std::string& what);

    app::App& app_;
    std::function<void()> refresh_;
};

} // namespace gui
