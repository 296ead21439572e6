#pragma once

#include "calc/totalsFrm.h"
#include "gui/dialogs/formView.h"

#include <QTreeWidget>

namespace gui {

// Choose Columns To Total.
class TotalsFrmView : public FormView {
    Q_OBJECT

public:
    TotalsFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    calc::TotalsFrm form_;
    QTreeWidget* LV_;
};

} // namespace gui
