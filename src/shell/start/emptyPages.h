#pragma once

#include "app/app.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace shell {

// What a page that has nothing to show says in its place: why, and what can be done about it.
struct Hint {
    struct Button {
        std::string key;     // of the command that it stands for
        std::string caption; // with its mnemonic
        std::function<void(app::App&)> run;
    };
    std::string title, text;
    std::vector<Button> buttons;
};

// Nothing while there is something to show.
std::optional<Hint> emptyList(const app::App& app, const core::RecordsList& list);
std::optional<Hint> emptyLayoutPage(const app::App& app);
std::optional<Hint> emptyPreview(const app::App& app);

} // namespace shell
