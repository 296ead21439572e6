#pragma once

#include "gui/dialogs/formView.h"
#include "gui/records/recordsModel.h"
#include "storage/versionsFrm.h"

#include <QCheckBox>
#include <QLabel>
#include <QSpinBox>
#include <QTreeWidget>

#include <memory>

namespace gui {

// Versions.
class versionsFrmView : public FormView {
    Q_OBJECT

public:
    versionsFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CloseButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    void makeList();
    void makePreview();
    QLayout* makeButtons();
    QLayout* makeSettings();
    void showRecords();

    storage::versionsFrm form_;
    QLabel* Label1_;
    QTreeWidget* List1_;
    QLabel* Label2_;
    QTreeView* LV_;
    QPushButton *showBtn_ = nullptr, *restoreBtn_ = nullptr, *copyBtn_ = nullptr;
    QCheckBox* Check1_;
    QSpinBox* Text1_;
    std::shared_ptr<const core::Document> shown_; // what LV_ has the records of
    std::unique_ptr<RecordsModel> model_;
};

} // namespace gui
