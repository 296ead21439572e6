#include "app/app.h"

#include "core/translate.h"

namespace app {

void setDocumentModified(App& app, bool modified) {
    app.document.bModified = modified;
    app.changes.announce(app, Change::Modified);
}

void showRecordCount(App& app, const core::RecordsList& list) {
    app.mainFrm.panels[recordsPanel] = core::tr("%n records.", "%n records.", list.count() - 1);
}

void inform(App& app, const std::string& text) {
    app.platform.msgBox(text, platform::Icon::Information, title);
}

void warn(App& app, const std::string& text) {
    app.platform.msgBox(text, platform::Icon::Exclamation, title);
}

bool askYesNo(App& app, const std::string& text, platform::Icon icon) {
    return app.platform.msgBox(text, icon, title, platform::Buttons::YesNo) == platform::Answer::Yes;
}

} // namespace app
