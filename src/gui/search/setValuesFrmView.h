#pragma once

#include "entry/valueBoxes.h"
#include "gui/dialogs/formView.h"
#include "gui/widgets/scopeButtons.h"
#include "search/setValuesFrm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTreeWidget>

namespace gui {

// Set Values.
class setValuesFrmView : public FormView {
    Q_OBJECT

public:
    setValuesFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QWidget* makeValue();
    QWidget* makePreview();
    void showPreview();
    std::string columnName() const;

    app::App& app_;
    entry::ValueBoxes values_;
    search::setValuesFrm form_;
    QComboBox* List1_;
    QRadioButton *valueOpt_ = nullptr, *expressionOpt_ = nullptr;
    QLineEdit* Text1_;
    ScopeButtons* Opt1_ = nullptr;
    QLabel *Label1_, *Label2_;
    QTreeWidget* preview_;
    QPushButton* OKButton_ = nullptr;
};

} // namespace gui
