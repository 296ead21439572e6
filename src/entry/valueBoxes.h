#pragma once

#include "app/appearance.h"

#include <string>
#include <string_view>

namespace entry {

// What a window shows of the value of a column, in the form that the user has chosen.
std::string shownValue(const app::App& app, std::string_view column, std::string_view value);

// The edge between the boxes of a window and the values behind them. Handlers are given values and leave
// values in their fields, whatever form the user sees them in. The box that is being typed in keeps what was
// typed as long as that means the value of its field; all others show their values.
class ValueBoxes {
public:
    explicit ValueBoxes(const app::App& app) : app_(app) {}

    // The user has changed the text of a box: the value that a handler is told.
    std::string typed(int box, std::string_view column, std::string_view text);
    // What the box has to show.
    std::string shown(int box, std::string_view column, std::string_view value) const;
    // The form's decimal point is the point to the handlers of keys.
    char32_t key(char32_t character) const;
    void left() { box_ = none; }
    bool isTyped(int box) const { return box == box_; }
    bool isInUse() const { return app::formInUse(app_) != nullptr; }

private:
    static constexpr int none = -1;

    const app::App& app_;
    int box_ = none; // that is typed in
    std::string text_;
};

} // namespace entry
