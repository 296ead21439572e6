#include "search/codes/makeCodeFrm.h"

#include "core/text.h"
#include "core/translate.h"
#include "search/codes/codeRules.h"
#include "search/codes/codeSource.h"

#include <algorithm>

namespace search {

using app::App;
using core::ColumnType;

namespace {

struct CodeOpening {
    std::string column;
};

std::vector<std::string> columnNames(const core::Document& document, bool bPictures) {
    std::vector<std::string> names;
    for (const int index : document.LV.columns.displayOrder()) {
        const core::Column& column = document.LV.columns.at(index);
        if (index != 1 && column.isType(ColumnType::Picture) == bPictures) names.push_back(column.Text);
    }
    return names;
}

std::string inBraces(std::string_view column) {
    std::string text = "{";
    return text.append(column).append("}");
}

} // namespace

bool hasPictureColumn(const core::Document& document) {
    return std::ranges::any_of(document.LV.columns, [](const core::Column& column) {
        return column.Index != 1 && column.isType(ColumnType::Picture);
    });
}

bool canMakeCode(const App& app) {
    return hasPictureColumn(app.document) && app.document.LV.count() > 1 &&
           !app.document.currentFile.empty() && !app.mainFrm.bReadOnly;
}

void mnuMakeCode_Click(App& app) {
    app.platform.showForm("makeCodeFrm");
}

void makeCodeFor(App& app, const std::string& column) {
    app.rooms.of<CodeOpening>().column = column;
    mnuMakeCode_Click(app);
    app.rooms.of<CodeOpening>().column.clear();
}

makeCodeFrm::makeCodeFrm(App& app)
    : List1(columnNames(app.document, true)), columns(columnNames(app.document, false)), app_(app) {
    for (const codes::Kind kind : codes::allKinds) List2.push_back(core::tr(codes::kindName(kind)));
    for (const Scope each : {selectedRecords, foundRecords, allRecords}) {
        const auto place = static_cast<std::size_t>(each);
        if (each != foundRecords || app.document.searchLV.Visible) records_.at(place) = recordsIn(app, each);
        Opt1.at(place) = {!records_.at(place).empty(), records_.at(place).size()};
    }
    if (Opt1[selectedRecords].Enabled) scope = selectedRecords;
    if (List1.empty()) return;
    const auto wanted = std::ranges::find(List1, app.rooms.of<CodeOpening>().column);
    ListIndex = wanted == List1.end() ? 0 : static_cast<int>(wanted - List1.begin());
    takeRule();
    show();
}

// What was made for the column last, or its first column of texts.
void makeCodeFrm::takeRule() {
    const auto rule = codeRuleOf(app_, List1.at(static_cast<std::size_t>(ListIndex)));
    bFollow = rule && rule->isFollowed;
    if (rule) {
        KindIndex = static_cast<int>(rule->kind);
        Text1 = rule->source;
    } else if (Text1.empty() && !columns.empty()) {
        const auto text = std::ranges::find_if(columns, [this](const std::string& name) {
            return app_.document.LV.columns[name].isType(ColumnType::Text);
        });
        Text1 = inBraces(text == columns.end() ? columns.front() : *text);
    }
    SelStart = static_cast<int>(core::length(Text1));
}

CodeOrder makeCodeFrm::order() const {
    return {List1.at(static_cast<std::size_t>(ListIndex)),
            codes::allKinds.at(static_cast<std::size_t>(KindIndex)), Text1};
}

void makeCodeFrm::List1_Click(int entry) {
    ListIndex = entry;
    takeRule();
    show();
}

void makeCodeFrm::List2_Click(int entry) {
    KindIndex = entry;
    show();
}

void makeCodeFrm::Text1_Change(const std::string& text) {
    Text1 = text;
    SelStart = -1;
    show();
}

void makeCodeFrm::Insert_Click(const std::string& column, int selStart, int selLength) {
    const auto start = static_cast<std::size_t>(std::max(selStart, 0));
    const auto length = static_cast<std::size_t>(std::max(selLength, 0));
    const std::string piece = inBraces(column);
    std::string text(core::left(Text1, start));
    text.append(piece).append(core::mid(Text1, start + length + 1, core::length(Text1)));
    Text1 = text;
    SelStart = static_cast<int>(start + core::length(piece));
    show();
}

void makeCodeFrm::Opt1_Click(int chosen) {
    if (Opt1.at(static_cast<std::size_t>(chosen)).Enabled) scope = chosen;
    show();
}

void makeCodeFrm::Check2_Click(bool checked) {
    bLeaveOut = checked;
    OKButtonEnabled = List3.empty() || bLeaveOut;
}

void makeCodeFrm::show() {
    List3.clear();
    bLeaveOut = false;
    picture.clear();
    pictureText.clear();
    Label1.clear();
    Label2.clear();
    OKButtonEnabled = false;
    const std::vector<core::Item*>& records = records_.at(static_cast<std::size_t>(scope));
    if (ListIndex < 0 || records.empty()) return;
    if (core::trim(Text1).empty()) {
        Label2 = core::tr("There is no text to make codes of");
        return;
    }
    if (const auto fault = faultOf(app_.document, order())) {
        Label2 = *fault;
        return;
    }
    OKButtonEnabled = true;
    const core::Item* current = app_.document.LV.selectedItem();
    if (std::ranges::find(records, current) == records.end()) current = records.front();
    Label1 = core::fill(core::tr("Code of %1"), {nameOf(app_.document, *current)});
    const std::string text = CodeSource(app_.document, Text1).textOf(*current);
    try {
        if (core::trim(text).empty()) {
            Label2 = core::tr("This record has no text, and gets no code");
            return;
        }
        pictureText = codes::encodedText(order().kind, text);
        picture = codes::makeCode(order().kind, text);
    } catch (const core::RunTimeError& error) {
        Label2 = error.what();
    }
    if (records.size() == 1) OKButtonEnabled = Label2.empty();
}

void makeCodeFrm::showRefused(const std::vector<FaultyText>& faulty) {
    for (const FaultyText& each : faulty)
        List3.push_back({std::to_string(app_.document.LV.indexOf(*each.record)),
                         nameOf(app_.document, *each.record), each.reason});
    Label2 = core::tr("Nothing has been made.  %n record has a text that gives no code",
                      "Nothing has been made.  %n records have texts that give no code",
                      static_cast<int>(faulty.size()));
    OKButtonEnabled = false;
}

void makeCodeFrm::write(const MadeCodes& made) {
    const std::string column = order().column;
    {
        const CodesAsTheyAre asMade(app_);
        writeCodes(app_, column, made, true);
    }
    setCodeRule(app_, column, {order().kind, Text1, bFollow});
    unloaded = true;
}

void makeCodeFrm::OKButton_Click() {
    if (!OKButtonEnabled) return;
    try {
        const MadeCodes made = makeCodes(app_, order(), records_.at(static_cast<std::size_t>(scope)));
        if (made.faulty.empty() || bLeaveOut)
            write(made);
        else
            showRefused(made.faulty);
    } catch (const core::RunTimeError& error) {
        if (error.number != core::errors::cancelled)
            app::warn(app_, core::fill(core::tr("The codes could not be stored: %1"), {error.what()}));
    }
}

} // namespace search
