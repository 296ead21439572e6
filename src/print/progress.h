#pragma once

#include "app/hourglass.h"
#include "core/translate.h"

namespace print {

// The hourglass, and in the status bar how far a print has come, as long as it lives.
class Progress {
public:
    Progress(app::App& app, int total) : app_(app), hourglass_(app), total_(total), before_(panel()) {}
    ~Progress() { panel() = before_; }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void reached(int record) {
        constexpr int step = 500; // often enough to be followed, too seldom to cost time
        if (record < next_) return;
        next_ = record + step;
        panel() =
            core::fill(core::tr("Printing: %1 of %2"), {std::to_string(record), std::to_string(total_)});
        app_.platform.paintStatus();
    }

private:
    std::string& panel() { return app_.mainFrm.panels[app::calculationPanel]; }

    app::App& app_;
    app::Hourglass hourglass_;
    int total_;
    int next_ = 500;
    std::string before_;
};

} // namespace print
