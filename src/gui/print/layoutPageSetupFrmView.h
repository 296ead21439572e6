#pragma once

#include "gui/dialogs/formView.h"
#include "print/layoutPageSetupFrm.h"

#include <QGroupBox>
#include <QTreeWidget>

namespace gui {

// Layout Page Setup.
class layoutPageSetupFrmView : public FormView {
    Q_OBJECT

public:
    layoutPageSetupFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

protected:
    void showMembers() override;
    void closeForm() override { form_.CancelButton_Click(); }
    bool isUnloaded() const override { return form_.unloaded; }

private:
    QTreeWidget* makePaperList();
    QGroupBox* makeCustomFrame();
    QGroupBox* makeSpacingFrame();

    print::layoutPageSetupFrm form_;
    QTreeWidget* paperList_;
    QGroupBox* customFrm_;
};

} // namespace gui
