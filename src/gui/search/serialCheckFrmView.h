#pragma once

#include "gui/dialogs/formView.h"
#include "search/serialCheckFrm.h"

#include <QComboBox>
#include <QLabel>
#include <QTreeWidget>

namespace gui {

// Check Serial Numbers.
class serialCheckFrmView : public FormView {
    Q_OBJECT

public:
    serialCheckFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CloseButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    search::serialCheckFrm form_;
    QComboBox* List1_;
    QTreeWidget* List2_;
    QLabel* Label1_;
    QPushButton* selectBtn_ = nullptr;
};

} // namespace gui
