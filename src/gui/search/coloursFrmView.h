#pragma once

#include "entry/valueBoxes.h"
#include "gui/dialogs/formView.h"
#include "search/coloursFrm.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace gui {

// Colours.
class coloursFrmView : public FormView {
    Q_OBJECT

public:
    coloursFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    struct Row {
        QComboBox* Combo1;
        QLineEdit* Text1;
        QLabel* and_;
        QLineEdit* Text2;
        QComboBox* Combo2;
    };
    void makeRow(QGridLayout& grid, std::size_t index);
    void showRow(std::size_t index);

    std::string columnName() const;
    void showValue(QLineEdit& box, int place, const std::string& value);

    entry::ValueBoxes values_;
    search::coloursFrm form_;
    QComboBox* List1_;
    std::array<Row, search::mostColourRules> rows_{};
    QLabel* Label1_;
};

} // namespace gui
