#pragma once

#include "app/app.h"
#include "file/versions.h"

#include <memory>
#include <string>
#include <vector>

namespace storage {

// The states of the open database that saves have replaced: shows one, restores it as unsaved work, or saves
// it under another name. What is set about keeping them holds at once, for all databases.
class versionsFrm {
public:
    explicit versionsFrm(app::App& app); // Load

    struct Entry {
        std::string Time, Size, Records;
    };
    std::vector<Entry> List1; // the newest first
    int selected = -1;        // in List1, from 0
    std::string Label1;       // what the list is of, or why it is empty
    bool Check1 = true;       // whether versions are kept
    std::string Text1;        // the megabytes that they may take
    bool showBtnEnabled = false, restoreBtnEnabled = false, copyBtnEnabled = false;
    // The version on view, for who shows its records.
    std::shared_ptr<const core::Document> shown;
    bool unloaded = false;

    void List1_Click(int entry);
    void showBtn_Click();
    void restoreBtn_Click();
    void copyBtn_Click();
    void Check1_Click(bool checked);
    void Text1_LostFocus(); // what is no number of megabytes becomes the one that holds
    void CloseButton_Click();

private:
    void enableButtons();
    void restore(const file::Version& version);
    void tellMissing(const std::vector<std::string>& pictures);
    std::shared_ptr<core::Document> read(const file::Version& version);

    app::App& app_;
    std::vector<file::Version> versions_;
};

} // namespace storage
