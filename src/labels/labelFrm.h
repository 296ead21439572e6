#pragma once

#include "drawing/recordedPage.h"
#include "labels/labelDesign.h"
#include "labels/labelPrinting.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace labels {

// What the one who shows the wizard gives it, and gets from it.
struct LabelOpening {
    std::vector<LabelStock> stocks;
    bool bFinished = false;
};

// "Label Wizard": the sheet, what stands on a label, and what is printed. Nothing is changed before the end.
class labelFrm {
public:
    explicit labelFrm(app::App& app); // Load

    enum Page { SheetPage, TextPage, PrintPage, Pages };
    int page = SheetPage;
    bool unloaded = false;

    // --- the sheet ---
    std::string searchTxt;
    std::vector<const LabelStock*> List1; // the stocks found
    int findings = 0;                     // goes up whenever there are others
    int ListIndex = -1;
    // The user's own sheet, in millimetres; as typed.
    enum Own { Width, Height, Columns, Rows, Left, Top, ColumnGap, RowGap, OwnBoxes };
    std::array<std::string, OwnBoxes> ownTxt;
    std::vector<std::string> paperCbo;
    int paperIndex = 0;
    bool bOwnSize = false;
    std::string fault;               // why there is no going on; empty
    std::optional<LabelStock> stock; // the chosen one

    void searchTxt_Change(const std::string& text);
    void List1_Click(int entry);
    void ownChk_Click(bool checked);
    void ownTxt_Change(int box, const std::string& text);
    void paperCbo_Click(int entry);

    // --- the label ---
    std::string linesTxt;                // a line of the label each
    std::vector<std::string> columnList; // whose texts can stand there
    std::vector<std::string> pictureCbo; // "None" first
    int pictureIndex = 0;
    std::vector<std::string> sizeCbo; // "As large as fits" first
    int sizeIndex = 0;
    bool bCentred = false;
    std::string sizeLbl;           // "11 points", or that a text is too long
    drawing::RecordedPage preview; // one label
    std::string recordLbl;         // "Record 1 of 12"

    void linesTxt_Change(const std::string& text);
    void pictureCbo_Click(int entry);
    void sizeCbo_Click(int entry);
    void centredChk_Click(bool checked);
    void recordBtn_Click(int by);

    // --- the print ---
    LabelChoice choice;                 // start, copies, outlines; its stock is not in use
    std::vector<std::string> copiesCbo; // "The same number of each" first, then columns
    int copiesIndex = 0;
    std::string aboutLbl; // "120 labels on 6 sheets."
    std::string exactLbl; // whether the file alone has the places

    void startTxt_Change(int place);
    void copiesTxt_Change(int copies);
    void copiesCbo_Click(int entry);
    void outlinesChk_Click(bool checked);
    void closedUpChk_Click(bool checked);

    bool backEnabled = false, nextEnabled = false; // on the last page nextBtn finishes
    void backBtn_Click();
    void nextBtn_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    void find();
    void load(const LabelChoice& kept);
    void loadText();
    void keepText();
    std::optional<LabelStock> ownStock();
    LabelText text() const;
    void show();
    void showLabel();
    void showPrint();
    void finish();
    void replaceDesign();
    void keepDesign();

    app::App& app_;
    LabelOpening& opening_;
    LabelDesign design_;
    int row_ = 1; // whose record the preview shows
};

} // namespace labels
