#pragma once

#include "app/app.h"
#include "core/runTimeError.h"

namespace app {

// A command that the user can give up when it takes long, as long as it lives.
class LongWork {
public:
    LongWork(App& app, std::string what, int total) : app_(app), what_(std::move(what)), total_(total) {
        app_.platform.tellProgress(what_, 0, total_);
    }
    ~LongWork() { app_.platform.tellProgress(what_, total_, total_); }
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    // Raises cancelled.
    void reached(int done) {
        constexpr int step = 100; // often enough for a hand on the button, too seldom to cost time
        if (done < next_ || done >= total_) return;
        next_ = done + step;
        if (!app_.platform.tellProgress(what_, done, total_)) core::raise(core::errors::cancelled);
    }

private:
    App& app_;
    std::string what_;
    int total_;
    int next_ = 1;
};

} // namespace app
