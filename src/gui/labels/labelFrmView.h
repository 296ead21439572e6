#pragma once

#include "gui/dialogs/formView.h"
#include "gui/labels/labelPreview.h"
#include "gui/labels/labelSheetPicture.h"
#include "labels/labelFrm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTreeWidget>

#include <array>

namespace gui {

// Label Wizard.
class labelFrmView : public FormView {
    Q_OBJECT

public:
    labelFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QWidget* makeSheetPage();
    QWidget* makeOwnSize();
    QWidget* makeTextPage();
    QLayout* makeColumns();
    QWidget* makePrintPage();
    QLayout* makeButtons();
    QComboBox* makeChoice(const char* name, const std::vector<std::string>& entries,
                          void (labels::labelFrm::*chosen)(int));
    QCheckBox* makeCheck(const char* name, const QString& caption, void (labels::labelFrm::*checked)(bool));
    void insertColumn(bool bNewLine);
    void showSheetPage();
    void showTextPage();
    void showPrintPage();
    void fillStocks();
    void focusPage();

    labels::labelFrm form_;
    int findingsShown_ = 0, pageShown_ = -1;
    QLabel* stepLbl_;
    QStackedWidget* pages_;
    QLabel* faultLbl_;
    QPushButton* backBtn_ = nullptr;
    QPushButton* nextBtn_ = nullptr;
    // The sheet.
    QLineEdit* searchTxt_;
    QTreeWidget* List1_;
    QCheckBox* ownChk_ = nullptr;
    QWidget* ownFrame_ = nullptr;
    std::array<QLineEdit*, labels::labelFrm::OwnBoxes> ownTxt_{};
    QComboBox* paperCbo_ = nullptr;
    LabelSheetPicture* sheet_;
    QLabel* sheetLbl_;
    // The label.
    QPlainTextEdit* linesTxt_;
    QListWidget* columnList_;
    QComboBox* pictureCbo_ = nullptr;
    QComboBox* sizeCbo_ = nullptr;
    QCheckBox* centredChk_ = nullptr;
    QLabel* sizeLbl_;
    LabelPreview* preview_;
    QLabel* recordLbl_;
    // The print.
    QSpinBox* startTxt_;
    QSpinBox* copiesTxt_;
    QComboBox* copiesCbo_ = nullptr;
    QCheckBox* outlinesChk_ = nullptr;
    QCheckBox* closedUpChk_ = nullptr;
    QLabel* aboutLbl_;
    QLabel* exactLbl_;
    LabelSheetPicture* used_;
};

} // namespace gui
