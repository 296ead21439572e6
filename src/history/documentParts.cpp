#include "history/documentParts.h"

#include <algorithm>
#include <array>

namespace history {

using core::Document;
using core::RecordsList;

namespace {

template <typename Doc>
auto collectionsOf(Doc& document) {
    return std::array{&document.formulas,    &document.printedCols,  &document.prnInvoiceCols,
                      &document.prnItemCols, &document.invoiceCols,  &document.itemLevelCols,
                      &document.totaledCols, &document.optionedCols, &document.locks};
}

// Without what belongs to the record on the page, or to the mode that the page is in.
core::LayoutField designed(core::LayoutField field) {
    field.Text.clear();
    field.Enabled = field.Locked = true;
    field.BackColor = core::white;
    return field;
}
core::Label designed(core::Label label) {
    label.BackColor = core::white;
    label.Locked = true;
    return label;
}
core::ImgHolder designed(core::ImgHolder holder) {
    holder.BackColor = core::white;
    holder.ToolTipText.clear();
    holder.viewImage = {};
    return holder;
}
core::ClipPic designed(core::ClipPic clip) {
    clip.BorderStyle = 0;
    clip.clipImage = {};
    return clip;
}
template <typename Object>
const Object& designed(const Object& object) {
    return object;
}

template <typename Object>
bool areTheSame(const std::vector<Object>& a, const std::vector<Object>& b) {
    return std::ranges::equal(a, b,
                              [](const Object& x, const Object& y) { return designed(x) == designed(y); });
}

template <typename Object>
std::vector<Object> copyOf(const core::ControlArray<Object>& family) {
    std::vector<Object> objects;
    family.forEach([&](const Object& object) { objects.push_back(object); });
    return objects;
}

template <typename Object>
void replace(core::ControlArray<Object>& family, const std::vector<Object>& objects) {
    family.unloadAll();
    for (const Object& object : objects) family.load(object.Index) = object;
}

} // namespace

Design Design::of(const Document& document) {
    Design design{document.LV.columns,    document.iLV.columns, {},
                  document.layoutOptions, document.reportData,  document.bInvoiceView,
                  document.lockPassword};
    for (const core::NamedCollection* collection : collectionsOf(document))
        design.collections.push_back(*collection);
    if (!document.bInvoiceStyle) return design;
    // The user sizes and drags the columns of iLV, which a save takes over.
    core::NamedCollection& positions = design.collections[design.bInvoiceView ? itemLevelCols : invoiceCols];
    positions.clear();
    for (const core::Column& shown : design.shownColumns) {
        positions.add(std::to_string(shown.Position));
        core::Column* column = design.columns.find(shown.Text);
        if (column != nullptr && column->Index != 1) column->Width = shown.Width;
    }
    return design;
}

void Design::putInto(Document& document) const {
    document.LV.columns = columns;
    document.iLV.columns = shownColumns; // what shows it is built anew, which looks at their widths
    std::size_t next = 0;
    for (core::NamedCollection* collection : collectionsOf(document)) *collection = collections.at(next++);
    document.layoutOptions = layoutOptions;
    document.reportData = reportData;
    document.bInvoiceView = bInvoiceView;
    document.lockPassword = lockPassword;
}

std::size_t Design::bytes() const {
    std::size_t size = sizeof *this;
    for (const core::ColumnHeaders* headers : {&columns, &shownColumns})
        size += static_cast<std::size_t>(headers->count()) * 2 * sizeof(core::Column);
    for (const core::NamedCollection& collection : collections)
        for (const auto& entry : collection) size += sizeof entry + entry.item.size();
    return size;
}

Objects Objects::of(const Document& document) {
    const core::LayoutObjects& layout = document.layout;
    return {copyOf(layout.layoutField), copyOf(layout.tLabel),    copyOf(layout.pbLine), copyOf(layout.vLine),
            copyOf(layout.pBox),        copyOf(layout.imgHolder), copyOf(layout.clipPic)};
}

void Objects::putInto(Document& document) const {
    core::LayoutObjects& layout = document.layout;
    replace(layout.layoutField, layoutField);
    replace(layout.tLabel, tLabel);
    replace(layout.pbLine, pbLine);
    replace(layout.vLine, vLine);
    replace(layout.pBox, pBox);
    replace(layout.imgHolder, imgHolder);
    replace(layout.clipPic, clipPic);
}

bool Objects::operator==(const Objects& other) const {
    return areTheSame(layoutField, other.layoutField) && areTheSame(tLabel, other.tLabel) &&
           areTheSame(pbLine, other.pbLine) && areTheSame(vLine, other.vLine) &&
           areTheSame(pBox, other.pBox) && areTheSame(imgHolder, other.imgHolder) &&
           areTheSame(clipPic, other.clipPic);
}

std::size_t Objects::bytes() const {
    return layoutField.size() * sizeof(core::LayoutField) + tLabel.size() * sizeof(core::Label) +
           (pbLine.size() + vLine.size()) * sizeof(core::LineObject) + pBox.size() * sizeof(core::BoxObject) +
           imgHolder.size() * sizeof(core::ImgHolder) + clipPic.size() * sizeof(core::ClipPic);
}

Counters Counters::of(const Document& document) {
    Counters counters{document.iLastKey, {}, document.LV.Sorted, document.LV.SortKey, document.LV.SortOrder};
    document.SerialsLV.forEach([&](const core::Item& serial) {
        counters.serials.push_back({serial.Key.str(), serial.Text.str(), serial.subItem(1).str()});
    });
    return counters;
}

void Counters::putInto(Document& document) const {
    document.iLastKey = iLastKey;
    document.LV.Sorted = Sorted;
    document.LV.SortKey = SortKey;
    document.LV.SortOrder = SortOrder;
    document.SerialsLV.clear();
    for (const auto& [key, name, counter] : serials) document.SerialsLV.add(key, name).subItem(1) = counter;
}

Selection Selection::of(const RecordsList& list) {
    Selection selection;
    selection.MultiSelect = list.MultiSelect;
    std::uint32_t place = 0;
    list.forEach([&](const core::Item& item) {
        if (item.Selected) selection.places.push_back(place);
        if (&item == list.selectedItem()) selection.current = static_cast<int>(place);
        ++place;
    });
    return selection;
}

void Selection::putInto(RecordsList& list) const {
    list.clearSelection();
    list.MultiSelect = true;
    core::Item* item = current >= 0 && current < list.count() ? &list.at(current + 1) : nullptr;
    list.setSelectedItem(item);
    if (item != nullptr) item->Selected = false;
    for (const std::uint32_t place : places)
        if (static_cast<int>(place) < list.count()) list.at(static_cast<int>(place) + 1).Selected = true;
    list.MultiSelect = MultiSelect;
}

} // namespace history
