#pragma once

#include "gui/dialogs/formView.h"
#include "gui/widgets/wrappedRadioButton.h"
#include "storage/databaseTypeFrm.h"

namespace gui {

// Asks for the style of a new database.
class databaseTypeFrmView : public FormView {
    Q_OBJECT

public:
    databaseTypeFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    void choose(bool invoice);

    storage::databaseTypeFrm form_;
    WrappedRadioButton* Option1_;
    WrappedRadioButton* Option2_;
};

} // namespace gui
