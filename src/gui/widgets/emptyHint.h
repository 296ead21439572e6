#pragma once

#include "gui/frame/eventBoundary.h"
#include "shell/start/emptyPages.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>

namespace gui {

// In the middle of a page that is empty, what can be done about it (see shell/start/emptyPages.h). The mouse
// goes past it where it has no button.
class EmptyHint : public QFrame {
    Q_OBJECT

public:
    EmptyHint(app::App& app, EventBoundary& events, QWidget* page);

    void show(const std::optional<shell::Hint>& hint);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void place();
    void takeColours();

    app::App& app_;
    EventBoundary& events_;
    QLabel *title_, *text_;
    QHBoxLayout* buttons_;
    QStringList shown_;
    bool colouring_ = false;
};

} // namespace gui
