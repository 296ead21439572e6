#pragma once

#include "app/app.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace shell {

// What the window says in a bar, as long as it is so and the user has not answered: that somebody else has
// written the open file, or that unsaved work cannot be kept.
struct FileNotice {
    struct Answer {
        std::string caption;
        std::function<void(app::App&)> act;
    };
    std::string text;
    std::vector<Answer> answers;
};

// Looks at the file; nothing when there is nothing to say.
std::optional<FileNotice> fileNotice(const app::App& app);
// Something of it is to be said that no look at the file is needed for.
bool hasOwnNotice(const app::App& app);

} // namespace shell
