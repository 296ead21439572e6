#pragma once

#include "gui/dialogs/formView.h"
#include "print/reportPageSetup.h"

#include <QCheckBox>
#include <QTreeWidget>

namespace gui {

// Report Page Setup.
class reportPageSetupView : public FormView {
    Q_OBJECT

public:
    reportPageSetupView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.Command2_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QTreeWidget* makeColumnList();

    print::reportPageSetup form_;
    QTreeWidget* LV3_;
    QCheckBox* allChk_;
};

} // namespace gui
