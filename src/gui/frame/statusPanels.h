#pragma once

#include "app/app.h"

#include <QStatusBar>
#include <QTimer>

#include <array>

namespace gui {

// The six panels of the status bar, and while a page is designed the place of what is selected.
class StatusPanels : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusPanels(app::App& app, QWidget* parent = nullptr);

    void refresh();
    // Behind the panels, for a few seconds.
    void note(const QString& text);
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Panel;
    void shareRoom();

    app::App& app_;
    std::array<Panel*, 6> panels_{};
    Panel* place_;
    Panel* note_;
    QTimer* noteEnd_;
};

} // namespace gui
