#pragma once

#include "app/app.h"

#include <functional>
#include <string>
#include <vector>

namespace search {

// Whether words may be replaced now; tells the user when not.
bool mayReplace(app::App& app);
void mnuReplace_Click(app::App& app);

// "Find and Replace". The cells are changed directly. Nothing marks the document as modified, nothing
// is recalculated, nothing tells how many cells changed, and the dialog stays open. It is wanted so:
// the change reaches the file with the next save.
class replaceFrm {
public:
    struct Entry {
        std::string Text;
        bool Selected = false;
    };

    explicit replaceFrm(app::App& app); // Load

    std::vector<Entry> List1; // every column, the hidden one too
    std::string Text1;        // what to find
    std::string Text2;        // the replacement
    bool unloaded = false;

    // Answer how many cells have changed, which the dialog itself keeps quiet about.
    int Command1_Click(); // in all columns
    int Command3_Click(); // in the selected columns
    void Command2_Click() { unloaded = true; }

private:
    int replaceIn(const std::function<bool(int subItem)>& takesPart);

    app::App& app_;
};

} // namespace search
