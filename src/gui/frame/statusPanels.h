#pragma once

#include "app/app.h"

#include <QStatusBar>

#include <array>

namespace gui {

// The six panels of the status bar, and while a page is designed the place of what is selected.
class StatusPanels : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusPanels(app::App& app, QWidget* parent = nullptr);

    void refresh();
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Panel;
    void shareRoom();

    app::App& app_;
    std::array<Panel*, 6> panels_{};
    Panel* place_;
};

} // namespace gui
