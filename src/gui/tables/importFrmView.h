#pragma once

#include "gui/dialogs/formView.h"
#include "tables/importFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>
#include <QTreeWidget>

#include <array>

class QHBoxLayout;

namespace gui {

// Import.
class importFrmView : public FormView {
    Q_OBJECT

public:
    importFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    using List = tables::importFrm::List;
    using ListEvent = void (tables::importFrm::*)(int);

    // A list under its caption: which member it shows, and the event of choosing an entry.
    struct Choice {
        List tables::importFrm::*member;
        QLabel* caption;
        QComboBox* box;
    };
    void addChoice(QHBoxLayout& row, const char* name, const QString& caption,
                   List tables::importFrm::*member, ListEvent chosen);
    QLayout* makeFile();
    QLayout* makeTarget();
    QLayout* makeColumns();
    QLayout* makeRows();
    QLayout* makeRefused();
    void showColumns();
    void sizeColumns();
    void showRows();
    void showRefused();

    tables::importFrm form_;
    std::vector<Choice> choices_;
    QLabel* Label1_;
    QCheckBox* Check1_;
    std::array<QRadioButton*, 2> Opt1_{};
    QTreeWidget* List2_;
    QLabel* nameCaption_;
    QLineEdit* Text1_;
    QTableWidget* Grid1_;
    QLabel* Label2_;
    QTreeWidget* List1_;
    QPushButton* Command1_ = nullptr;
    QCheckBox* Check2_;
    QWidget* refused_; // what stands below the rows
    QPushButton* OKButton_ = nullptr;
    bool isSized_ = false; // widths that were chosen stay
};

} // namespace gui
