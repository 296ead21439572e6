#pragma once

#include "gui/dialogs/formView.h"
#include "invoice/repeatFrm.h"

#include <QLineEdit>
#include <QListWidget>

namespace gui {

// The Item Row Creation Tool.
class repeatFrmView : public FormView {
    Q_OBJECT

public:
    repeatFrmView(app::App& app, EventBoundary& events, QWidget* parent);

private:
    void connectEvents(QPushButton& clear, QPushButton& ok, QPushButton& cancel);
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

    invoice::repeatFrm form_;
    QLineEdit* Text1_;
    QListWidget* List1_;
    QListWidget* List2_;
};

} // namespace gui
