#pragma once

#include "gui/dialogs/formView.h"
#include "gui/widgets/scopeButtons.h"
#include "tables/exportFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTreeWidget>

namespace gui {

// Export.
class exportFrmView : public FormView {
    Q_OBJECT

public:
    exportFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QWidget* makeColumns();

    tables::exportFrm form_;
    ScopeButtons* Opt1_ = nullptr;
    QTreeWidget* List1_;
    QCheckBox* Check1_;
    QCheckBox* Check2_;
    QCheckBox* Check3_;
    QComboBox* formatCbo_;
    QPushButton* OKButton_ = nullptr;
};

} // namespace gui
