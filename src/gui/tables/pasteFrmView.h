#pragma once

#include "gui/dialogs/formView.h"
#include "tables/pasteFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTableWidget>
#include <QTreeWidget>

#include <vector>

namespace gui {

// Paste Records.
class pasteFrmView : public FormView {
    Q_OBJECT

public:
    pasteFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    void makeGrid();
    void makeList();
    void showGrid();
    void showList();
    QString nameOf(std::size_t column) const;

    tables::pasteFrm form_;
    QLabel* Label1_;
    QCheckBox* Check1_;
    QTableWidget* Grid1_; // the choices in its first row, the rows of the table below
    std::vector<QComboBox*> columnCbo_;
    QLabel* Label2_;
    QTreeWidget* List1_;
    QCheckBox* Check2_;
    QPushButton* OKButton_ = nullptr;
};

} // namespace gui
