#pragma once

#include "app/app.h"
#include "search/codes/makeCodes.h"
#include "search/manyRecords.h"

#include <array>
#include <string>
#include <vector>

namespace search {

bool hasPictureColumn(const core::Document& document);
// There are records and a place for their codes.
bool canMakeCode(const app::App& app);
// Opens the dialog, for the column of a picture box where one is named.
void mnuMakeCode_Click(app::App& app);
void makeCodeFor(app::App& app, const std::string& column);

// "Make Code": QR and bar codes into a column of pictures. The code of the current record is in the dialog
// before any is made.
class makeCodeFrm {
public:
    struct Refused {
        std::string Row, Record, Reason;
    };

    explicit makeCodeFrm(app::App& app); // Load

    std::vector<std::string> List1; // columns of pictures
    int ListIndex = -1;
    std::vector<std::string> List2; // kinds
    int KindIndex = 0;
    std::string Text1;                // "{Name}, {Phone}"
    int SelStart = -1;                // of Text1, in characters, where it is to be set
    std::vector<std::string> columns; // that can be put into it
    std::array<ScopeButton, 3> Opt1;  // by Scope
    int scope = allRecords;
    bool bFollow = false;   // Check1: made anew when the text changes
    bool bLeaveOut = false; // Check2: without those that are refused
    std::string Label1;     // "Code of Bolt", above the picture
    std::string Label2;     // what is wrong; empty while nothing is
    std::string picture;    // a GIF, or empty
    std::string pictureText;
    std::vector<Refused> List3; // after a try, until something is changed
    bool OKButtonEnabled = false;
    bool unloaded = false;

    void List1_Click(int entry);
    void List2_Click(int entry);
    void Text1_Change(const std::string& text);
    // Puts a column into the text, in place of characters of it.
    void Insert_Click(const std::string& column, int selStart, int selLength);
    void Opt1_Click(int scope);
    void Check1_Click(bool checked) { bFollow = checked; }
    void Check2_Click(bool checked);
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    CodeOrder order() const;
    void takeRule();
    void show();
    void showRefused(const std::vector<FaultyText>& faulty);
    void write(const MadeCodes& made);

    app::App& app_;
    std::array<std::vector<core::Item*>, 3> records_;
};

} // namespace search
