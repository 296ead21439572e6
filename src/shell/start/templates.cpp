#include "shell/start/templates.h"

#include "core/text.h"
#include "core/translate.h"
#include "platform/programFiles.h"
#include "storage/fromTemplate.h"

#include <array>
#include <system_error>

namespace shell {

using core::marked;

std::span<const Template> templates() {
    static constexpr std::array<Template, 6> all = {{
        {"mnuTemplateAddresses", "addresses.fwk", marked("&Addresses"), "sampleAddresses"},
        {"mnuTemplateBooks", "books.fwk", marked("&Books"), "sampleLibrary"},
        {"mnuTemplateInventory", "inventory.fwk", marked("In&ventory"), "sampleInventory"},
        {"mnuTemplateRecipes", "recipes.fwk", marked("&Recipes"), "templateRecipes"},
        {"mnuTemplateMembers", "members.fwk", marked("&Members"), "templateMembers"},
        {"mnuTemplateInvoices", "invoices.fwk", marked("&Invoices"), "sampleInvoices"},
    }};
    return all;
}

std::optional<std::filesystem::path> templateFolder() {
    return platform::programFile("templates");
}

void findTemplates(app::App& app, const std::optional<std::filesystem::path>& folder) {
    bool isAnyThere = false;
    for (const Template& each : templates()) {
        std::error_code error;
        const bool isThere = folder && std::filesystem::is_regular_file(*folder / each.file, error);
        app.mainFrm.control(each.item).Enabled = isThere;
        isAnyThere = isAnyThere || isThere;
    }
    app.mainFrm.control("mnuTemplates").Enabled = isAnyThere;
}

void newFromTemplate(app::App& app, const Template& chosen, const std::filesystem::path& folder) {
    storage::newFromTemplate(app, folder / chosen.file, core::replaceAll(core::tr(chosen.caption), "&", ""));
}

} // namespace shell
