#pragma once

#include "app/app.h"
#include "search/manyRecords.h"
#include "tables/exportPictures.h"

#include <array>
#include <string>
#include <vector>

namespace tables {

// File > Export...: shows the form, or says that there is nothing to export.
void mnuExportTable_Click(app::App& app);

// "Export": which records and columns go into a table for other programs, and into which kind of file.
class exportFrm {
public:
    explicit exportFrm(app::App& app); // Load

    struct Column {
        std::string Name;
        bool Checked = true;
    };

    std::array<search::ScopeButton, 3> Opt1; // by search::Scope
    int scope = 0;
    std::vector<Column> List1; // as they stand on screen, then those that do not
    bool Check1 = false;       // with the Totals row
    bool Check1Enabled = true;
    bool Check2 = false; // calculated columns as formulas
    bool Check2Enabled = true;
    bool Check3 = false; // with the pictures
    bool Check3Enabled = true;
    bool bPicturesInside = false; // in the file itself, not in a folder beside it
    std::vector<std::string> formatCbo;
    int ListIndex = 0;
    bool OKButtonEnabled = true;
    bool unloaded = false;

    void Opt1_Click(int chosen);
    void List1_ItemCheck(std::size_t column, bool checked);
    void Command1_Click() { checkAll(true); }  // all columns
    void Command2_Click() { checkAll(false); } // none
    void Check1_Click(bool checked) { Check1 = checked; }
    void Check2_Click(bool checked) { Check2 = checked; }
    void Check3_Click(bool checked) { Check3 = checked; }
    void formatCbo_Click(int entry);
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    void checkAll(bool checked);
    void show();
    exchange::Format format() const;
    bool isPictureChosen() const;
    bool isFormulaChosen() const;
    exchange::OutTable table();
    core::Item* totals() const;
    std::string expressionOf(const core::Column& column) const;
    std::optional<std::string> askForFile() const;
    bool isOpenFile(const std::string& target) const;
    void write(const std::string& target, ExportPictures& pictures);

    app::App& app_;
    std::array<std::vector<core::Item*>, 3> records_;
    std::vector<const core::Column*> columns_; // of List1
};

} // namespace tables
