#pragma once

#include "app/app.h"

#include <functional>
#include <optional>
#include <string_view>

namespace print {

// Who prints many layouts on labels that were chosen for the database. It stands above this room and is
// handed in when the program is put together. Without it, and where no labels are chosen, layouts are as many
// to a page as fit.
struct StockLabels {
    // As PrintMultipleLayouts; nothing where there are no labels.
    std::function<std::optional<bool>(app::App& app, drawing::DrawTarget& target)> print;
    // The preview's buttons. False where there are no labels.
    std::function<bool(app::App& app, std::string_view key)> place;
};

inline StockLabels& stockLabels(app::App& app) {
    return app.rooms.of<StockLabels>();
}

} // namespace print
