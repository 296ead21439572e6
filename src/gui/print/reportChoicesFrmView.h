#pragma once

#include "gui/dialogs/formView.h"
#include "print/reportChoicesFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

namespace gui {

// "Report Choices".
class reportChoicesFrmView : public FormView {
    Q_OBJECT

public:
    reportChoicesFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QCheckBox* makeCheck(const char* name, const QString& caption, bool& member);
    QWidget* makeSheetsFrame();
    QWidget* makeGroupsFrame();
    void showSteps();

    print::reportChoicesFrm form_;
    QCheckBox* totalsChk_;
    QComboBox *groupList_, *stepList_;
    QLabel *stepLbl_, *noteLbl_;
    QStringList stepsShown_;
    QPushButton* OKButton_ = nullptr;
};

} // namespace gui
