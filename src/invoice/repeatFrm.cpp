#include "invoice/repeatFrm.h"

#include "app/windowState.h"
#include "core/number.h"
#include "core/objectRef.h"
#include "core/translate.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace invoice {

using app::App;
using core::LayoutField;

namespace {

// In twips.
constexpr float firstTop = 350;
constexpr float firstLeft = 250;
constexpr float rowPitch = 285;
constexpr float fieldWidth = 1200;
constexpr float gap = 75;

void unloadFieldsOf(core::LayoutObjects& layout, const std::string& name) {
    std::vector<int> gone;
    layout.layoutField.forEach([&](const LayoutField& field) {
        if (field.Tag == name) gone.push_back(field.Index);
    });
    for (const int index : gone) layout.layoutField.unload(index);
}

} // namespace

repeatFrm::repeatFrm(App& app) : app_(app) {
    for (const core::Column& column : app.document.LV.columns)
        if (column.Index != 1) List1.push_back(column.Text);
}

void repeatFrm::List1_Click(int entry) {
    if (entry < 0 || entry >= static_cast<int>(List1.size())) return;
    cColumns_.push_back(List1[static_cast<std::size_t>(entry)]);
    List2 = cColumns_;
}

void repeatFrm::Command1_Click() {
    cColumns_.clear();
    List2.clear();
}

void repeatFrm::OKButton_Click() {
    const double rows = core::val(Text1);
    if (rows == 0) {
        app::inform(app_, core::tr("You did not enter the number of rows to create."));
        return;
    }
    if (!hasRoomFor(rows)) {
        app::inform(app_, core::tr("The layout has no room for so many rows."));
        return;
    }
    repeatItemRows(app_, core::toInt16(rows), cColumns_);
    app::setDocumentModified(app_, true);
    unloaded = true;
}

// Fields are numbered with 16 bits. Those of the chosen columns make room.
bool repeatFrm::hasRoomFor(double rows) const {
    constexpr double mostFields = std::numeric_limits<std::int16_t>::max();
    int kept = 0;
    app_.document.layout.layoutField.forEach([&](const LayoutField& field) {
        if (std::ranges::find(cColumns_, field.Tag) == cColumns_.end()) ++kept;
    });
    return std::abs(rows) <= mostFields && kept + rows * static_cast<double>(cColumns_.size()) <= mostFields;
}

void repeatItemRows(App& app, int iItems, const std::vector<std::string>& cColumns) {
    core::LayoutObjects& layout = app.document.layout;
    for (const std::string& name : cColumns) unloadFieldsOf(layout, name);
    app.changes.announce(
        app, app::Change::Objects); // before another field takes the number of the one that was selected
    float top = firstTop;
    for (int row = 1; row <= iItems; ++row) {
        float left = firstLeft;
        for (const std::string& name : cColumns) {
            const core::Column& column = app.document.LV.columns[name];
            if (column.isType(core::ColumnType::Picture)) continue;
            LayoutField& field = layout.layoutField.load(layout.layoutField.lowestFreeIndex());
            field.Visible = true;
            field.Left = left;
            field.Top = top;
            field.Width = fieldWidth;
            field.Tag = name;
            field.Text = name;
            field.align = column.isNumeric() ? core::Alignment::Right : core::Alignment::Left;
            field.Enabled = row == 1;
            bringToFront(layout, field);
            left += fieldWidth + gap;
        }
        top += rowPitch;
    }
}

} // namespace invoice
