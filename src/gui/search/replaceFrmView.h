#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "search/replaceFrm.h"

#include <QDialog>
#include <QLineEdit>
#include <QTreeWidget>

namespace gui {

// The window of Find and Replace.
class replaceFrmView : public QDialog {
    Q_OBJECT

public:
    replaceFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void reject() override;

private:
    QTreeWidget* makeList();
    QWidget* makeOptions();
    QLineEdit* makeBox(const char* name, std::string& text);
    // Runs a handler and shows what has become of the form.
    void run(const std::function<void()>& handler);

    EventBoundary& events_;
    search::replaceFrm form_;
};

} // namespace gui
