#pragma once

#include "gui/dialogs/formView.h"
#include "search/duplicatesFrm.h"

#include <QCheckBox>
#include <QLabel>
#include <QTreeWidget>

#include <vector>

namespace gui {

// Find Duplicates.
class duplicatesFrmView : public FormView {
    Q_OBJECT

public:
    duplicatesFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CloseButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QLayout* makeColumns();
    QLayout* makeGroups();
    QLayout* makeButtons();
    std::vector<std::size_t> selectedRows() const;
    void showSelection();

    search::duplicatesFrm form_;
    QTreeWidget *List1_, *List2_;
    QCheckBox* Check1_;
    QLabel* Label1_;
    QPushButton *showBtn_ = nullptr, *previousBtn_ = nullptr, *nextBtn_ = nullptr, *deleteBtn_ = nullptr;
    int shown_ = 0; // the findings that List2 has
};

} // namespace gui
