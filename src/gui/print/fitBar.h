#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace gui {

// A quiet bar above the page of the preview: the columns that are too narrow, with a button that widens them.
// It is there for a report only, while something does not fit.
class FitBar : public QFrame {
    Q_OBJECT

public:
    FitBar(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void refresh();
    bool hasButton() const { return !isHidden() && !widen_->isHidden(); }

private:
    app::App& app_;
    QLabel* text_;
    QPushButton* widen_;
};

} // namespace gui
