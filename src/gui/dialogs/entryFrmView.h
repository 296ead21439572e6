#pragma once

#include "entry/entryFrm.h"
#include "entry/valueBoxes.h"
#include "gui/frame/eventBoundary.h"
#include "gui/widgets/suggestionList.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolBar>

#include <functional>
#include <vector>

namespace gui {

// The Entry Form. The pane's controls stand where the form's logic places them; a twip is as large as
// it takes for the desktop's text boxes and check boxes to fit into the places that they have.
class entryFrmView : public QDialog {
    Q_OBJECT

public:
    entryFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void showModal() { exec(); }
    // Shows the state of the form as it is now.
    void refresh();
    // Escape and the close button of the window.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void on(const std::function<void()>& handler);

    QToolBar* makeToolbar();
    QWidget* makeFindBox();
    QWidget* makePane();
    void makeRow(int index);
    void makeTabOrder();
    void openAtSize();

    int pixels(float twips) const;
    void place(QWidget& control, const entry::entryFrm::Place& at) const;
    void changed(int index, const QString& text);
    void showRow(std::size_t index);
    void showScrollBar();
    void moveFocus();

    bool boxEvent(int index, QEvent& event);
    SuggestedBox suggestedBox(int index);
    void focusArrives(int index, QEvent& event);
    void pageScrolled(int action);

    entry::entryFrm form_;
    app::App& app_;
    EventBoundary& events_;
    entry::ValueBoxes values_;
    SuggestionList* suggestions_;
    float pixelsPerTwip_ = 0;
    std::vector<QAction*> Toolbar1_;
    QLineEdit* srchTxt_;
    QWidget* Picture1_;
    QWidget* Picture2_;
    QScrollBar* VScroll1_;
    std::vector<QLabel*> editlbl_;
    std::vector<QLineEdit*> FieldBox_;
    std::vector<QCheckBox*> prevChk_;
    bool showing_ = false;
};

} // namespace gui
