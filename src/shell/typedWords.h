#pragma once

#include "app/app.h"

#include <string>
#include <utility>
#include <vector>

namespace shell {

// What was typed on the layout page and is stored nowhere yet, from the record that is on it. It outlives
// what changes that record behind the page.
class TypedWords {
public:
    explicit TypedWords(app::App& app);
    // The page stays at its record, if that is still there.
    void stay() const;
    // Once the record has been shown anew.
    void putBack() const;

private:
    app::App& app_;
    std::string key_;
    std::vector<std::pair<int, std::string>> fields_;
};

} // namespace shell
