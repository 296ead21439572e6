#pragma once

#include "calc/formulateFrm.h"
#include "gui/dialogs/formView.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QHash>
#include <QPlainTextEdit>
#include <QTreeWidget>

namespace gui {

// The Expression Editor.
class formulateFrmView : public FormView {
    Q_OBJECT

public:
    formulateFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.Form_QueryUnload(); }
    bool isUnloaded() const override { return form_.unloaded; }
    void activate() override { form_.Form_Activate(); }
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QGroupBox* makeColumns();
    QGroupBox* makeDefinition();
    QLayout* makeNumericColumns();
    QLayout* makeExpression();
    QGroupBox* makeKeypad();
    QGroupBox* makeOperators();
    QPushButton* makeKey(const QString& name, const QString& caption, const std::function<void()>& handler);
    void chooseField(QTreeWidgetItem* item);
    QAbstractButton* buttonFor(const QKeyEvent& event) const;

    calc::formulateFrm form_;
    QTreeWidget* colList_;
    QTreeWidget* fieldList_;
    QPlainTextEdit* expTxt_;
    bool isFolded_ = false;
    QPushButton* backBtn_ = nullptr;
    QPushButton* addCalcBtn_ = nullptr;
    QHash<QChar, QAbstractButton*> keys_; // the buttons that have a key of the keyboard
};

} // namespace gui
