#include "search/replaceFrm.h"

#include "core/translate.h"
#include "search/replaceWords.h"

namespace search {

bool mayReplace(app::App& app) {
    if (app.document.bInvoiceStyle) {
        app::inform(app, core::tr("This feature is only available for normal non-invoice style databases."));
        return false;
    }
    if (app.mainFrm.theListView->Name == "searchLV") {
        app::inform(
            app,
            core::tr("You cannot globally relace items in a search window, please use the normal view."));
        return false;
    }
    return true;
}

void mnuReplace_Click(app::App& app) {
    if (mayReplace(app)) app.platform.showForm("replaceFrm");
}

replaceFrm::replaceFrm(app::App& app) : app_(app) {
    for (const core::Column& column : app.document.LV.columns) List1.push_back({column.Text});
}

int replaceFrm::Command1_Click() {
    return replaceIn([](int) { return true; });
}

int replaceFrm::Command3_Click() {
    // Entry 0 is the hidden column, which no sub-item belongs to.
    return replaceIn([&](int subItem) { return List1.at(static_cast<std::size_t>(subItem)).Selected; });
}

int replaceFrm::replaceIn(const std::function<bool(int subItem)>& takesPart) {
    const int changed = WordReplacer(Text1, Text2).replaceInList(app_.document.LV, takesPart);
    // Or the next update of the sheet would put the old words back.
    if (changed == 0) return 0;
    app_.changes.announce(app_, app::Change::CurrentRecord);
    app_.changes.announce(app_, app::Change::Unsaved);
    return changed;
}

} // namespace search
