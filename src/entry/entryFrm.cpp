#include "entry/entryFrm.h"

#include "calc/serialNumbers.h"
#include "core/text.h"
#include "entry/editRecord.h"
#include "entry/invoiceRecords.h"
#include "entry/retrieveData.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"

#include <algorithm>
#include <utility>

namespace entry {

using core::Column;
using core::ColumnType;
using core::Item;
using core::RecordsList;

namespace {

// Rows and the steps of the pane, in twips. The loaded rows stand a little left of the first one, and a
// row takes a little more of the pane's height than the next one is away. Both are wanted so.
constexpr float loadedLeft = 105;
constexpr float rowStep = 600;
constexpr float checkAboveLabel = 15;
constexpr int heightOfRow = 615;
constexpr int smallChangesInStep = 6;
constexpr float roomBelow = 350; // from the top of a box to where it counts as shown
constexpr float roomAbove = 150;

bool isTypedInto(const Column& column) {
    return column.Index != 1 && !column.isType(ColumnType::Calculation) &&
           !column.isType(ColumnType::Picture);
}

std::vector<BoxText> textsOf(const std::vector<entryFrm::TextBox>& boxes) {
    std::vector<BoxText> texts;
    texts.reserve(boxes.size());
    for (const entryFrm::TextBox& box : boxes) texts.push_back({box.Tag, box.Text});
    return texts;
}

} // namespace

// --- loading and unloading ---

entryFrm::entryFrm(app::App& app) : app_(app) {
    list().MultiSelect = false;
    list().setSelectedItem(list().selectedItem()); // several rows cannot be selected any more
    if (&list() == &app.document.searchLV)
        for (Button& button : Toolbar1)
            if (button.Key == "New" || button.Key == "Add" || button.Key == "Delete") button.Enabled = false;
    RefreshEditBoxes();
    // A form of one box starts empty. It is wanted so.
    if (list().count() >= 2 && count() >= 2) RetrieveData();
    if (std::exchange(formOpening(app).bNew, false)) newRecord();
    takeTypedBefore();
}

entryFrm::~entryFrm() {
    storage::unsavedWork(app_).typedInForm = nullptr;
}

// What is typed and not stored is kept for the case of a crash.
void entryFrm::tellTyped() {
    storage::unsavedWork(app_).typedInForm = [this] {
        storage::TypedInForm typed;
        const RecordsList& shown = list();
        if (const Item* record = currentRecord(app_))
            typed.key = &shown == &app_.document.LV ? record->Key : record->Tag;
        for (const TextBox& box : FieldBox) typed.boxes.emplace_back(box.Tag, box.Text);
        return typed;
    };
    app_.changes.announce(app_, app::Change::Unsaved);
}

void entryFrm::takeTypedBefore() {
    const storage::BoxTexts typed = std::exchange(app_.rooms.of<TypedBefore>().boxes, {});
    for (const auto& [column, text] : typed)
        for (TextBox& box : FieldBox)
            if (box.Tag == column) setText(box, text);
    if (!typed.empty()) tellTyped();
}

void entryFrm::Form_QueryUnload() {
    storage::unsavedWork(app_).typedInForm = nullptr; // given up
    list().MultiSelect = true;
    unloaded = true;
}

void entryFrm::makeTemplates() {
    Label label;
    static_cast<Place&>(label) = {120, 120, 3255, 225, false};
    TextBox box;
    static_cast<Place&>(box) = {120, 360, 6765, 285, false};
    CheckBox check;
    static_cast<Place&>(check) = {4800, 105, 2055, 255, false};
    editlbl.assign(1, label);
    FieldBox.assign(1, box);
    prevChk.assign(1, check);
}

// Element 0 is hidden until the first column takes it.
void entryFrm::loadRow(const std::string& title) {
    if (FieldBox.front().Visible) {
        editlbl.push_back(Label(editlbl.back()));
        editlbl.back().Left = loadedLeft;
        editlbl.back().Top += rowStep;
        prevChk.push_back(CheckBox(prevChk.front()));
        prevChk.back().Top = editlbl.back().Top - checkAboveLabel;
        FieldBox.push_back(TextBox(FieldBox.back()));
        FieldBox.back().Left = loadedLeft;
        FieldBox.back().Top += rowStep;
    }
    editlbl.back().Caption = title;
    FieldBox.back().Tag = title;
    editlbl.back().Visible = prevChk.back().Visible = FieldBox.back().Visible = true;
}

void entryFrm::RefreshEditBoxes() {
    makeTemplates();
    const core::ColumnHeaders& columns = app_.document.LV.columns;
    for (const int index : columns.displayOrder())
        if (isTypedInto(columns.at(index))) loadRow(columns.at(index).Text);
    layOutPane();
}

void entryFrm::layOutPane() {
    Picture2.Height = static_cast<float>(heightOfRow * count());
    VScroll1.Max =
        Picture2.Height > Picture1.Height ? static_cast<int>(Picture2.Height - Picture1.Height) : 1;
    VScroll1_Change(std::clamp(VScroll1.Value, VScroll1.Min, VScroll1.Max));
}

// A wider window has wider boxes, and the check boxes stay at their right ends.
void entryFrm::Picture1_Resize(float width, float height) {
    const float wider = width - Picture1.Width;
    Picture1.Width = width;
    Picture1.Height = height;
    Picture2.Width += wider;
    for (TextBox& box : FieldBox) box.Width += wider;
    for (CheckBox& check : prevChk) check.Left += wider;
    layOutPane();
}

// --- the pane ---

void entryFrm::VScroll1_Change(int Value) {
    VScroll1.Value = Value;
    Picture2.Top = static_cast<float>(-Value);
}

void entryFrm::scrollFields(bool bUp) {
    const int step = smallChangesInStep * VScroll1.SmallChange;
    VScroll1_Change(bUp ? std::max(VScroll1.Value - step, VScroll1.Min)
                        : std::min(VScroll1.Value + step, VScroll1.Max));
}

bool entryFrm::isBelowSight(int Index) {
    return Picture2.Top + box(Index).Top + roomBelow > Picture1.Height;
}

bool entryFrm::isAboveSight(int Index) {
    return Picture2.Top + box(Index).Top - roomAbove < 0;
}

void entryFrm::showBox(int Index) {
    while (isAboveSight(Index) && VScroll1.Value > VScroll1.Min) scrollFields(true);
    while (isBelowSight(Index) && VScroll1.Value < VScroll1.Max) scrollFields(false);
}

// --- the boxes ---

const Column* entryFrm::columnOf(int Index) const {
    return list().columns.find(editlbl.at(static_cast<std::size_t>(Index)).Caption);
}

bool entryFrm::isPreviousEntry(std::string_view text) const {
    const std::string wanted = core::upper(core::trim(text));
    std::string upperCell; // one for all cells: a list has hundreds of thousands
    for (int row = 1; row <= list().count(); ++row) {
        const bool bFound = std::ranges::any_of(list().at(row).cells, [&](const core::CellText& cell) {
            core::upperInto(upperCell, core::trim(cell));
            return upperCell == wanted;
        });
        if (bFound) return true;
    }
    return false;
}

void entryFrm::FieldBox_LostFocus(int Index) {
    const Column* column = columnOf(Index);
    if (column != nullptr && column->isType(ColumnType::Currency)) completeCurrencyText(app_, box(Index));
}

void entryFrm::FieldBox_Change(int Index, std::string_view text) {
    box(Index).Text = text;
    tellTyped();
    if (bFieldChanged) {
        bFieldChanged = false;
        return;
    }
    const Column* column = columnOf(Index);
    if (column != nullptr && column->isType(ColumnType::Date)) insertDateSlashes(app_, box(Index));
}

void entryFrm::FieldBox_KeyDown(int Index, int KeyCode) {
    switch (KeyCode) {
    case keyBack:
        bFieldChanged = true;
        break;
    case keyDown:
        if (Index == count() - 1) break;
        if (isBelowSight(Index + 1)) scrollFields(false);
        boxToFocus = Index + 1;
        break;
    case keyUp:
        if (Index == 0) break;
        if (isAboveSight(Index - 1)) scrollFields(true);
        boxToFocus = Index - 1;
        break;
    case keyReturn:
        enterKey(Index);
        break;
    default:
        break;
    }
}

void entryFrm::enterKey(int Index) {
    // A checked box takes only what the database does not hold yet, and says nothing about it.
    if (prevChk.at(static_cast<std::size_t>(Index)).Value && isPreviousEntry(box(Index).Text)) {
        setText(box(Index), {});
        boxToFocus = Index;
        return;
    }
    if (Index < count() - 1)
        FieldBox_KeyDown(Index, keyDown);
    else if (!app_.document.searchLV.Visible)
        addFromLastBox();
}

void entryFrm::addFromLastBox() {
    FieldBox_LostFocus(count() - 1);
    EditRecord(app_, false, textsOf(FieldBox));
    clearBoxes();
    VScroll1_Change(1);
    boxToFocus = 0;
}

// Another text than what is typed: it ends what Backspace has begun.
void entryFrm::setText(EntryBox& box, std::string text) {
    bFieldChanged = false;
    box.Text = std::move(text);
    box.SelStart = 0;
}

void entryFrm::clearBoxes() {
    for (TextBox& box : FieldBox) setText(box, {});
}

// --- records ---

void entryFrm::RetrieveData() {
    const Item* record = currentRecord(app_);
    if (record == nullptr) return;
    storage::unsavedWork(app_).typedInForm = nullptr; // another record takes its place
    for (TextBox& box : FieldBox)
        if (const Column* column = app_.document.LV.columns.find(box.Tag))
            setText(box, shownText(*column, RecordsList::cell(*record, *column)));
}

void entryFrm::show(Item& item) {
    list().setSelectedItem(&item);
    RetrieveData();
}

// 0 when no row has the focus.
int entryFrm::currentRow() const {
    const Item* item = list().selectedItem();
    return item == nullptr ? 0 : list().indexOf(*item);
}

struct entryFrm::Routine {
    std::string_view key;
    void (entryFrm::*run)();
};

const std::array<entryFrm::Routine, 9>& entryFrm::routines() {
    static constexpr std::array<Routine, 9> all = {{{"Save", &entryFrm::save},
                                                    {"New", &entryFrm::newRecord},
                                                    {"Add", &entryFrm::add},
                                                    {"Delete", &entryFrm::deleteRecord},
                                                    {"Update", &entryFrm::update},
                                                    {"First", &entryFrm::goFirst},
                                                    {"Back", &entryFrm::goBack},
                                                    {"Next", &entryFrm::goNext},
                                                    {"Last", &entryFrm::goLast}}};
    return all;
}

bool entryFrm::isButtonEnabled(std::string_view key) const {
    const auto button = std::ranges::find(Toolbar1, key, &Button::Key);
    return button != Toolbar1.end() && button->Enabled;
}

void entryFrm::Toolbar1_ButtonClick(std::string_view key) {
    if (!isButtonEnabled(key)) return;
    (this->*std::ranges::find(routines(), key, &Routine::key)->run)();
}

void entryFrm::save() {
    storage::SaveFile(app_, false, false);
}

void entryFrm::newRecord() {
    for (std::size_t i = 0; i < FieldBox.size(); ++i)
        setText(FieldBox[i], calc::proposedValue(app_, editlbl[i].Caption).value_or(std::string()));
}

void entryFrm::add() {
    FieldBox_LostFocus(iBoxFocus);
    if (!FieldBox.front().Visible) return;
    EditRecord(app_, false, textsOf(FieldBox));
    clearBoxes();
    boxToFocus = 0;
}

void entryFrm::update() {
    FieldBox_LostFocus(iBoxFocus);
    if (FieldBox.front().Visible) EditRecord(app_, true, textsOf(FieldBox));
}

// What stands in the boxes is gone then, and an Update would write it into another record. So the one
// that has taken its place is shown, or the last one.
void entryFrm::deleteRecord() {
    const int row = currentRow();
    const int before = list().count();
    if (app_.mainFrm.control("Delete").Enabled) Delete_ButtonClick(app_);
    const int after = list().count();
    if (after == before) return;
    if (after < 2)
        clearBoxes();
    else
        show(list().at(std::clamp(row, 1, after - 1)));
}

void entryFrm::goFirst() {
    if (!list().empty()) show(list().at(1));
}

void entryFrm::goBack() {
    if (currentRow() > 1) show(list().at(currentRow() - 1));
}

// The last row, the Totals row, is never reached.
void entryFrm::goNext() {
    if (currentRow() + 1 < list().count()) show(list().at(currentRow() + 1));
}

void entryFrm::goLast() {
    if (list().count() > 1) show(list().at(list().count() - 1));
}

// --- find ---

void entryFrm::find(int startRow) {
    Item* item = findItemContaining(app_, srchTxt, startRow);
    if (item == nullptr) return;
    iFindRow = list().indexOf(*item);
    show(*item);
}

void entryFrm::searchBtn_Click() {
    iFindRow = 0;
    find(1);
}

void entryFrm::againBtn_Click() {
    if (iFindRow != 0 && iFindRow + 1 < list().count()) find(iFindRow + 1);
}

void entryFrm::srchTxt_KeyDown(int KeyCode) {
    if (KeyCode == keyReturn) searchBtn_Click();
}

} // namespace entry
