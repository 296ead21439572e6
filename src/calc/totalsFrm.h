#pragma once

#include "app/app.h"

#include <string>
#include <vector>

namespace calc {

// Chooses the columns to total.
class TotalsFrm {
public:
    struct Row {
        std::string Text;
        bool Checked = false;
    };

    // Load. Raises elementNotFound for a totaled column that the list does not have.
    explicit TotalsFrm(app::App& app);

    std::vector<Row> LV;
    bool unloaded = false;

    // The document is not marked as modified, though the choice is saved with it. It is wanted so.
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    app::App& app_;
};

} // namespace calc
