#pragma once

#include "gui/dialogs/formView.h"
#include "storage/mailFrm.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace gui {

// Email Currently Opened Database File.
class mailFrmView : public FormView {
    Q_OBJECT

public:
    mailFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QLineEdit* makeBox(const char* name, std::string& text);
    QPlainTextEdit* makeMessageBox();
    void showMessage();

    storage::mailFrm form_;
    QLineEdit *Text1_, *Text2_;
    QPlainTextEdit* Text3_;
};

} // namespace gui
