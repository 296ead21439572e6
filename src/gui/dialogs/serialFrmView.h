#pragma once

#include "calc/serialFrm.h"
#include "gui/dialogs/formView.h"

#include <QLineEdit>
#include <QTreeWidget>

namespace gui {

// Adjust Serial Number Values.
class serialFrmView : public FormView {
    Q_OBJECT

public:
    serialFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    void makeList();

    calc::serialFrm form_;
    QTreeWidget* List1_;
    QLineEdit* Text1_;
};

} // namespace gui
