#pragma once

#include "gui/dialogs/formView.h"
#include "gui/widgets/scopeButtons.h"
#include "search/codes/makeCodeFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

namespace gui {

// Make Code.
class makeCodeFrmView : public FormView {
    Q_OBJECT

public:
    makeCodeFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QWidget* makeSource();
    QWidget* makePicture();
    QWidget* makeRefused();
    void showPicture();
    void makeRoom();
    void showRefused();

    search::makeCodeFrm form_;
    QComboBox *List1_, *List2_;
    QLineEdit* Text1_;
    ScopeButtons* Opt1_ = nullptr;
    QCheckBox *Check1_, *Check2_;
    QLabel *Label1_, *Label2_, *picture_, *pictureText_;
    QTreeWidget* List3_;
    QWidget* refused_ = nullptr;
    QPushButton* OKButton_ = nullptr;
};

} // namespace gui
