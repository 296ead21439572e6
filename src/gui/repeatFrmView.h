#pragma once

#include "gui/eventBoundary.h"
#include "invoice/repeatFrm.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>

namespace gui {

class repeatFrmView : public QDialog {
    Q_OBJECT

public:
    repeatFrmView(app::App& app, EventBoundary& events, QWidget* parent);

private:
    void refresh();
    // Runs an event of the form and shows the form anew.
    void run(const std::function<void()>& event);

    EventBoundary& events_;
    invoice::repeatFrm form_;
    QLineEdit* Text1_;
    QListWidget* List1_;
    QListWidget* List2_;
};

} // namespace gui
