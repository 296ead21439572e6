#pragma once

#include "gui/dialogs/formView.h"
#include "tables/exportFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QTreeWidget>

#include <array>

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
    QWidget* makeScopes();
    QWidget* makeColumns();

    tables::exportFrm form_;
    std::array<QRadioButton*, 3> Opt1_{};
    QTreeWidget* List1_;
    QCheckBox* Check1_;
    QCheckBox* Check2_;
    QCheckBox* Check3_;
    QComboBox* formatCbo_;
    QPushButton* OKButton_ = nullptr;
};

} // namespace gui
