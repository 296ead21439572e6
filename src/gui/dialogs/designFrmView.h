#pragma once

#include "calc/designFrm.h"
#include "gui/dialogs/formView.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTreeWidget>

#include <array>

namespace gui {

// Database Properties.
class designFrmView : public FormView {
    Q_OBJECT

public:
    designFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.Form_QueryUnload(); }
    bool isUnloaded() const override { return form_.unloaded; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QGroupBox* makeTypes();
    bool chooseType(int key);
    QLayout* makeLeftSide();
    QLayout* makeRightSide();
    void showRows();

    calc::designFrm form_;
    QLineEdit* fieldTxt_;
    std::array<QRadioButton*, 6> typeOpt_{};
    QTreeWidget* List1_;
    QLabel* note_; // under the list
};

} // namespace gui
