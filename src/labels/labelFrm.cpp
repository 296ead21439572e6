#include "labels/labelFrm.h"

#include "app/fileSettings.h"
#include "core/number.h"
#include "core/objectRef.h"
#include "core/text.h"
#include "core/translate.h"
#include "drawing/papers.h"
#include "entry/retrieveData.h"
#include "layout/images.h"
#include "layout/sheet.h"
#include "print/margins.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace labels {

using print::twipsPerInch;

using app::App;

namespace {

constexpr std::array<float, 12> sizes = {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 24, 36};
constexpr std::string_view ownMaker = "Own size";
constexpr std::string_view linesSetting = "labels.lines", centredSetting = "labels.centred",
                           pictureSetting = "labels.picture", sizeSetting = "labels.size";

bool isStock(const LabelStock& a, const LabelStock& b) {
    return labelStockLine(a) == labelStockLine(b);
}

std::string millimetreText(double twips) {
    constexpr double digits = 1000;
    return core::numberText(std::round(millimetresOf(twips) * digits) / digits);
}

// What the user's own sheet begins with.
LabelStock usualStock() {
    return *labelStockOf("Own size\t1\tLabels\tA4\t3\t8\t63.5\t33.9\t7\t12.9\t66\t33.9\trectangle");
}

// As the settings have it.
std::string sizeName(float points) {
    return core::numberText(points) + " points";
}

} // namespace

labelFrm::labelFrm(App& app) : app_(app), opening_(app.rooms.of<LabelOpening>()) {
    opening_.bFinished = false;
    preview.measureWith(app.platform.textMetrics());
    for (const drawing::PaperSize& paper : drawing::papers()) paperCbo.push_back(core::tr(paper.name));
    pictureCbo.push_back(core::tr("None"));
    copiesCbo.push_back(core::tr("the same number of each record"));
    for (const int index : app.document.LV.columns.displayOrder()) {
        const core::Column& column = app.document.LV.columns.at(index);
        if (column.Index == 1) continue;
        const bool isPicture = column.isType(core::ColumnType::Picture);
        (isPicture ? pictureCbo : columnList).push_back(column.Key);
        if (column.isNumeric() || column.isType(core::ColumnType::Text)) copiesCbo.push_back(column.Key);
    }
    sizeCbo.push_back(core::tr("As large as fits"));
    for (const float size : sizes)
        sizeCbo.push_back(core::fill(core::tr("%1 points"), {core::numberText(size)}));
    loadText();
    if (const core::Item* record = entry::currentRecord(app); record != nullptr && !record->isTotals())
        row_ = app.mainFrm.theListView->indexOf(*record);
    const std::optional<LabelChoice> kept = keptLabelChoice(app);
    LabelChoice usual;
    usual.stock = usualStock();
    load(kept ? *kept : usual);
    bOwnSize = kept ? kept->stock.maker == ownMaker : opening_.stocks.empty();
    find();
    show();
}

// What stood on the label last, as long as there are its columns.
void labelFrm::loadText() {
    linesTxt = app::fileSetting(app_, linesSetting);
    bCentred = !app::fileSetting(app_, centredSetting).empty();
    const auto picture = std::ranges::find(pictureCbo, app::fileSetting(app_, pictureSetting));
    pictureIndex = picture == pictureCbo.end() ? 0 : static_cast<int>(picture - pictureCbo.begin());
    const auto* size = std::ranges::find(sizes, app::fileSetting(app_, sizeSetting), sizeName);
    sizeIndex = size == sizes.end() ? 0 : static_cast<int>(size - sizes.begin()) + 1;
    if (faultOf(app_.document, text()).empty()) return;
    linesTxt.clear();
    for (const std::string& line : proposedLabel(app_.document).lines)
        linesTxt.append(linesTxt.empty() ? 0 : 1, '\n').append(line);
}

// One that is too long to be kept is proposed anew.
void labelFrm::keepText() {
    app::setFileSetting(app_, linesSetting, linesTxt);
    app::setFileSetting(app_, centredSetting, bCentred ? "1" : "");
    const LabelText kept = text();
    app::setFileSetting(app_, pictureSetting, kept.pictureColumn);
    app::setFileSetting(app_, sizeSetting, sizeIndex == 0 ? std::string() : sizeName(kept.FontSize));
}

// The sheet that was used last is the one that is proposed.
void labelFrm::load(const LabelChoice& kept) {
    choice = kept;
    choice.stock = {};
    const LabelStock& sheet = kept.stock;
    ownTxt = {millimetreText(sheet.width),
              millimetreText(sheet.height),
              std::to_string(sheet.columns),
              std::to_string(sheet.rows),
              millimetreText(sheet.left),
              millimetreText(sheet.top),
              millimetreText(std::max(sheet.columnPitch - sheet.width, 0.0)),
              millimetreText(std::max(sheet.rowPitch - sheet.height, 0.0))};
    const auto papers = drawing::papers();
    const auto paper = std::ranges::find(papers, sheet.paper, &drawing::PaperSize::name);
    paperIndex = paper == papers.end() ? 0 : static_cast<int>(paper - papers.begin());
    stock = sheet;
    const auto column = std::ranges::find(copiesCbo, kept.copiesColumn);
    copiesIndex = column == copiesCbo.end() ? 0 : static_cast<int>(column - copiesCbo.begin());
    if (copiesIndex == 0) choice.copiesColumn.clear();
}

void labelFrm::find() {
    constexpr std::size_t longest = 200;
    List1 = findLabelStocks(opening_.stocks, core::left(searchTxt, longest));
    ++findings;
    const auto called = std::ranges::find_if(
        List1, [&](const LabelStock* each) { return isCalled(*each, core::trim(searchTxt)); });
    const auto same =
        std::ranges::find_if(List1, [&](const LabelStock* each) { return stock && isStock(*each, *stock); });
    const auto chosen = called != List1.end() ? called : same;
    ListIndex = chosen != List1.end() ? static_cast<int>(chosen - List1.begin()) : List1.empty() ? -1 : 0;
}

std::optional<LabelStock> labelFrm::ownStock() {
    std::array<double, OwnBoxes> lengths{};
    for (std::size_t i = 0; i < ownTxt.size(); ++i) {
        const std::string typed = core::replaceAll(ownTxt.at(i), ",", ".");
        const auto number = core::toDouble(typed);
        if (!number || !(*number >= 0)) {
            fault = core::fill(core::tr("\"%1\" is no length or number."), {core::left(ownTxt.at(i), 30)});
            return std::nullopt;
        }
        lengths.at(i) = *number;
    }
    std::string line(ownMaker);
    line.append("\t").append(ownTxt[Width]).append(" x ").append(ownTxt[Height]).append("\tLabels\t");
    line.append(drawing::papers()[static_cast<std::size_t>(paperIndex)].name);
    for (const double number :
         {lengths[Columns], lengths[Rows], lengths[Width], lengths[Height], lengths[Left], lengths[Top],
          lengths[Width] + lengths[ColumnGap], lengths[Height] + lengths[RowGap]})
        line.append("\t").append(core::numberText(number));
    std::optional<LabelStock> own = labelStockOf(line.append("\trectangle"));
    if (!own)
        fault = core::tr(
            "Labels of this size and number do not find room on the paper.  There are 10000 on a sheet at "
            "most.");
    return own;
}

void labelFrm::show() {
    fault.clear();
    if (page == SheetPage) {
        if (bOwnSize)
            stock = ownStock();
        else if (ListIndex >= 0)
            stock = *List1.at(static_cast<std::size_t>(ListIndex));
        else
            stock.reset();
        if (!stock && fault.empty())
            fault = core::tr("No sheet of labels is called so, or has labels of that size.");
        if (stock) choice.start = std::clamp(choice.start, 1, stock->perSheet());
    }
    if (page == TextPage) fault = faultOf(app_.document, text());
    if (page == TextPage) showLabel();
    if (page == PrintPage) showPrint();
    backEnabled = page > SheetPage;
    nextEnabled = fault.empty();
}

void labelFrm::searchTxt_Change(const std::string& text) {
    searchTxt = text;
    find();
    show();
}

void labelFrm::List1_Click(int entry) {
    ListIndex = entry;
    show();
}

void labelFrm::ownChk_Click(bool checked) {
    if (checked && stock && !bOwnSize) { // from the sheet on view
        LabelChoice from = choice;
        from.stock = *stock;
        load(from);
    }
    bOwnSize = checked;
    show();
}

void labelFrm::ownTxt_Change(int box, const std::string& text) {
    ownTxt.at(static_cast<std::size_t>(box)) = text;
    show();
}

void labelFrm::paperCbo_Click(int entry) {
    paperIndex = entry;
    show();
}

LabelText labelFrm::text() const {
    LabelText text;
    for (const std::string_view line : core::split(linesTxt, '\n')) text.lines.emplace_back(line);
    while (!text.lines.empty() && core::trim(text.lines.back()).empty()) text.lines.pop_back();
    if (pictureIndex > 0) text.pictureColumn = pictureCbo.at(static_cast<std::size_t>(pictureIndex));
    if (sizeIndex > 0) text.FontSize = sizes.at(static_cast<std::size_t>(sizeIndex - 1));
    text.bCentred = bCentred;
    return text;
}

void labelFrm::linesTxt_Change(const std::string& text) {
    linesTxt = text;
    show();
}

void labelFrm::pictureCbo_Click(int entry) {
    pictureIndex = entry;
    show();
}

void labelFrm::sizeCbo_Click(int entry) {
    sizeIndex = entry;
    show();
}

void labelFrm::centredChk_Click(bool checked) {
    bCentred = checked;
    show();
}

void labelFrm::recordBtn_Click(int by) {
    row_ += by;
    show();
}

// The label of a record, as it will be printed.
void labelFrm::showLabel() {
    const core::RecordsList& list = *app_.mainFrm.theListView;
    const int records = std::max(list.count() - 1, 0); // without the Totals row
    row_ = std::clamp(row_, 1, std::max(records, 1));
    recordLbl = records == 0 ? core::tr("No records yet")
                             : core::fill(core::tr("Record %1 of %2."),
                                          {std::to_string(row_), std::to_string(records)});
    drawing::PageSetup setup;
    setup.PaperSize = drawing::customPaperCode;
    setup.Width = std::lround(stock->width);
    setup.Height = std::lround(stock->height);
    preview.setPage(setup);
    sizeLbl.clear();
    if (!fault.empty()) return;
    design_ = designLabel(app_.document, *stock, text(), app_.platform.textMetrics());
    sizeLbl = core::fill(
        design_.bFits
            ? core::tr("Text of %1 points")
            : core::tr("Text of %1 points: the longest texts are printed smaller, or are cut at the edge"),
        {core::numberText(design_.FontSize)});
    LabelDesign shown = designLabel(app_.document, *stock, text(), app_.platform.textMetrics());
    if (records > 0) {
        const core::Item& record = list.at(row_);
        const auto cellOf = [&](const std::string& name) -> std::string {
            const core::Column* column = app_.document.LV.columns.find(name);
            return column == nullptr
                       ? std::string()
                       : entry::shownText(*column, core::RecordsList::cell(record, *column).view());
        };
        shown.objects.layoutField.forEach([&](core::LayoutField& field) { field.Text = cellOf(field.Tag); });
        layout::ImageArchive archive(app_);
        shown.objects.imgHolder.forEach([&](core::ImgHolder& holder) {
            layout::fitImage(app_, holder, holder.viewImage,
                             layout::unpackedImage(app_, cellOf(holder.Tag), archive));
        });
    }
    const core::LayoutOptions sheet = labelPage(*stock);
    drawLabel(app_, shown.objects, preview, -sheet.layoutLeftMargin * static_cast<float>(twipsPerInch),
              -sheet.layoutTopMargin * static_cast<float>(twipsPerInch), choice.bClosedUp,
              static_cast<float>(stock->width));
}

void labelFrm::startTxt_Change(int place) {
    choice.start = std::clamp(place, 1, stock->perSheet());
    show();
}

void labelFrm::copiesTxt_Change(int copies) {
    choice.copies = std::clamp(copies, 1, LabelChoice::mostCopies);
    show();
}

void labelFrm::copiesCbo_Click(int entry) {
    copiesIndex = entry;
    choice.copiesColumn = entry == 0 ? std::string() : copiesCbo.at(static_cast<std::size_t>(entry));
    show();
}

void labelFrm::outlinesChk_Click(bool checked) {
    choice.bOutlines = checked;
    show();
}

void labelFrm::closedUpChk_Click(bool checked) {
    choice.bClosedUp = checked;
    show();
}

void labelFrm::showPrint() {
    LabelChoice whole = choice;
    whole.stock = *stock;
    aboutLbl = aboutLabels(whole, countLabels(app_, whole, false));
    design_ = designLabel(app_.document, *stock, text(), app_.platform.textMetrics());
    constexpr double exact = 0.1; // millimetres
    const auto off = deviation(*stock, design_.objects);
    exactLbl =
        off && *off <= exact
            ? core::tr("The database itself keeps where these labels stand.")
            : core::tr("The database cannot keep where these labels stand to a tenth of a millimetre: this "
                       "computer does, for this file.");
}

void labelFrm::backBtn_Click() {
    if (page > SheetPage) --page;
    show();
}

void labelFrm::nextBtn_Click() {
    show();
    if (!nextEnabled) return;
    if (page == PrintPage) return finish();
    ++page;
    show();
}

void labelFrm::finish() {
    const int objects = app_.document.layout.count();
    int answer = 0;
    if (objects > 0) {
        const std::string question = core::tr(
            "The layout has %n object.  The new label can take its place, or you keep your design and "
            "print it on these labels.",
            "The layout has %n objects.  The new label can take its place, or you keep your design and "
            "print it on these labels.",
            objects);
        answer = app_.platform.choose(question, core::tr("Label Wizard"),
                                      {core::tr("Replace The Layout"), core::tr("Keep The Layout")});
    }
    if (answer < 0) return;
    if (answer == 0)
        replaceDesign();
    else
        keepDesign();
    app_.document.layoutOptions = labelPage(*stock);
    LabelChoice whole = choice;
    whole.stock = *stock;
    keepLabelChoice(app_, whole);
    if (answer == 0) keepText();
    app::setDocumentModified(app_, true);
    layout::InitLayout(app_, layout::isDesignMode(app_));
    opening_.bFinished = true;
    unloaded = true;
}

void labelFrm::replaceDesign() {
    design_ = designLabel(app_.document, *stock, text(), app_.platform.textMetrics());
    placeDesign(app_, design_);
}

// It comes along to where the new label has its corner.
void labelFrm::keepDesign() {
    const core::LayoutOptions before = app_.document.layoutOptions, after = labelPage(*stock);
    const auto twips = [](float inches) { return inches * static_cast<float>(twipsPerInch); };
    for (const core::Family each : core::allFamilies)
        core::visitFamily(app_.document.layout, each, [&](auto& family) {
            family.forEach([&](auto& object) {
                object.Left =
                    std::max(object.Left + twips(after.layoutLeftMargin - before.layoutLeftMargin), 0.0F);
                object.Top =
                    std::max(object.Top + twips(after.layoutTopMargin - before.layoutTopMargin), 0.0F);
            });
        });
}

} // namespace labels
