#pragma once

#include "gui/dialogs/formView.h"
#include "summary/statisticsFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTreeWidget>

namespace gui {

// Column Statistics.
class statisticsFrmView : public FormView {
    Q_OBJECT

public:
    statisticsFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CloseButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QTreeWidget* makeList(const char* name, const QStringList& headings);

    app::App& app_;
    summary::statisticsFrm form_;
    QComboBox* columnCbo_;
    QCheckBox* Check1_;
    QTreeWidget *List1_, *List2_;
    int shown_ = 0;
};

} // namespace gui
