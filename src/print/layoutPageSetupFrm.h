#pragma once

#include "app/app.h"

#include <optional>
#include <string>
#include <vector>

namespace print {

// Layout Page Setup.
class layoutPageSetupFrm {
public:
    // Load. Raises keyNotUnique when the printer has two papers of one name.
    explicit layoutPageSetupFrm(app::App& app);

    struct PaperList {
        struct Row {
            std::string Text;
            std::string Tag;           // the code
            drawing::Extent size = {}; // of a printer's own size, which the database keeps as a custom one
        };
        std::vector<Row> ListItems;
        std::optional<std::size_t> SelectedItem;
    } paperList;
    bool PortraitOpt = false; // otherwise LandscapeOpt
    std::string leftTxt, rightTxt, TopTxt, bottomTxt;
    std::string spacingTxt;
    struct CustomFrame {
        bool Visible = false;
    } customFrm;
    std::string lengthTxt, heightTxt;
    std::string paperNotice; // about the paper of the database; empty where there is nothing to say
    bool unloaded = false;

    void paperList_ItemClick(std::size_t row);
    void customOkBtn_Click();
    // A spacing that is no number ends in the message of a missing printer, and the form stays.
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    void loadPaperList();
    void chooseRowOf(const core::LayoutOptions& options);
    void showCustomFrame();
    void saveSettings();
    void showPage();

    app::App& app_;
};

} // namespace print
