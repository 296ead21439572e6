#include "entry/masks.h"

#include "app/appearance.h"
#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>

namespace entry {

void completeCurrencyText(app::App& app, EntryBox& box) {
    const std::string_view trimmed = core::trim(box.Text);
    if (trimmed.empty()) return;
    if (!core::isNumeric(box.Text)) {
        app.platform.msgBox(core::tr("You entered a non numeric value."), platform::Icon::Exclamation,
                            core::tr("Verify Data"));
        return;
    }
    if (box.Text.find('.') != std::string::npos) return;
    const std::size_t size = core::length(box.Text);
    // Measured on the trimmed text, cut from the text as it stands.
    if (core::length(trimmed) < 3)
        box.Text += ".00";
    else
        box.Text = std::string(core::left(box.Text, size - 2)) + "." + std::string(core::right(box.Text, 2));
}

void insertDateSlashes(const app::App& app, EntryBox& box) {
    if (app::formInUse(app) != nullptr) return;
    for (const std::size_t place : {2U, 5U}) {
        if (core::length(box.Text) != place) continue;
        box.Text += "/";
        box.SelStart = static_cast<int>(place) + 1;
    }
}

core::Item* findItemContaining(app::App& app, std::string_view text, int startRow) {
    core::RecordsList& list = *app.mainFrm.theListView;
    const std::string wanted = core::upper(core::trim(text));
    std::string upperCell; // one for all cells: a list has hundreds of thousands
    for (int row = std::max(startRow, 1); row <= list.count(); ++row) {
        core::Item& item = list.at(row);
        const bool found = std::ranges::any_of(item.cells, [&](const core::CellText& cell) {
            core::upperInto(upperCell, core::trim(cell));
            return upperCell.find(wanted) != std::string::npos;
        });
        if (found) return &item;
    }
    return nullptr;
}

} // namespace entry
