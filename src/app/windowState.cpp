#include "app/windowState.h"

#include "core/objectRef.h"
#include "core/translate.h"

#include <filesystem>
#include <system_error>

namespace app {

namespace {

// What follows the document state alone.
constexpr std::string_view documentControls[] = {
    "Save",     "Print",        "PageSetup", "Search",           "Totals",    "Formulas",  "Properties",
    "Design",   "mnuClone",     "mnuEmail",  "mnuCleanDatabase", "mnuSave",   "mnuSaveAs", "mnuEdit",
    "mnuPrint", "mnuPageSetup", "mnuTools",  "mnuVersions",      "mnuOptions"};

constexpr std::string_view layoutPrints[] = {"All_As_Layouts", "Selected_As_Layouts"};
constexpr std::string_view multiplePrints[] = {
    "Print_All_As_Multiple_Layouts", "Print_Selected_Multiple_Layouts", "Multiple_Layout_Preview_All",
    "Multiple_Layout_Preview_Selected"};

} // namespace

void enableControls(App& app, bool bEnable) {
    MainFrm& mainFrm = app.mainFrm;
    const core::Document& document = app.document;
    for (const std::string_view key : documentControls) mainFrm.control(key).Enabled = bEnable;
    mainFrm.SSTab1Enabled = bEnable;

    const bool standard = !document.bInvoiceStyle;
    const bool itemView = document.bInvoiceStyle && document.bInvoiceView;
    mainFrm.control("Delete").Enabled = standard ? bEnable : !itemView;
    for (const std::string_view key : layoutPrints) mainFrm.control(key).Enabled = standard || !itemView;
    for (const std::string_view key : multiplePrints) mainFrm.control(key).Enabled = standard;
    mainFrm.control("mnuDuplicate").Enabled = standard;
    mainFrm.invoiceFrameVisible = document.bInvoiceStyle;
    if (!bEnable) mainFrm.Caption = title;
}

std::string fileSizeText(unsigned long long bytes) {
    const std::string digits = std::to_string(bytes);
    if (bytes >= 10'000'000) return core::fill(core::tr("%1 MB"), {digits.substr(0, 2)});
    if (bytes >= 1'000'000) return core::fill(core::tr("%1 MB"), {digits.substr(0, 1)});
    if (bytes >= 100'000) return core::fill(core::tr("%1 KB"), {digits.substr(0, 3)});
    if (bytes >= 10'000) return core::fill(core::tr("%1 KB"), {digits.substr(0, 2)});
    if (bytes >= 1'000) return core::fill(core::tr("%1 KB"), {digits.substr(0, 1)});
    return core::fill(core::tr("%1 bytes."), {digits});
}

void showFileSize(App& app) {
    std::error_code error;
    const auto bytes = std::filesystem::file_size(app.document.currentFile, error);
    if (!error)
        app.mainFrm.panels[fileSizePanel] = core::fill(core::tr("Filesize: %1"), {fileSizeText(bytes)});
}

void showModified(App& app) {
    app.mainFrm.panels[documentPanel] =
        app.document.bModified ? core::tr("Document Modified") : core::tr("Document Saved");
}

void showCaption(App& app) {
    app.mainFrm.Caption = title;
    if (!app.document.currentFile.empty()) app.mainFrm.Caption += " - " + app.document.currentFile;
    if (app.mainFrm.bReadOnly)
        app.mainFrm.Caption = core::fill(core::tr("%1 (read only)"), {app.mainFrm.Caption});
}

namespace {

template <typename Document>
auto& listOnView(Document& document) {
    if (document.searchLV.Visible) return document.searchLV;
    // Not by the style: a new database that is cancelled half-way has chosen one for the records on view.
    return document.iLV.Visible ? document.iLV : document.LV;
}

} // namespace

core::RecordsList& visibleList(core::Document& document) {
    return listOnView(document);
}

const core::RecordsList& visibleList(const core::Document& document) {
    return listOnView(document);
}

void enableTabButtons(App& app) {
    const bool onReport = app.mainFrm.SSTab1 == reportTab;
    for (const std::string_view key : {"Totals", "Properties"}) app.mainFrm.control(key).Enabled = onReport;
    // What is found is not deleted in its list.
    app.mainFrm.control("Delete").Enabled = onReport && !app.document.searchLV.Visible;
}

void showReportTab(App& app) {
    if (app.mainFrm.SSTab1 != reportTab) {
        app.mainFrm.SSTab1 = reportTab;
        app.mainFrm.iPrintMode = printReport;
        app.mainFrm.theListView->MultiSelect = true;
        app.mainFrm.invoiceFrameVisible = app.document.bInvoiceStyle;
        enableTabButtons(app);
    }
    allowManySelected(app);
}

void allowManySelected(App& app) {
    if (app.mainFrm.SSTab1 == reportTab) app.document.LV.MultiSelect = true;
}

} // namespace app
