#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "gui/layout/sheetView.h"
#include "gui/widgets/emptyHint.h"
#include "layout/layoutPage.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QToolBar>

namespace gui {

// The layout tab: the bar that is in use, the sheet, and its scroll bars.
class LayoutPageView : public QWidget {
    Q_OBJECT

public:
    LayoutPageView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void refresh();
    void takeKeysOf(QWidget& other) { sheet_->takeKeysOf(other); }
    // Takes the keys when somebody goes to the page with them.
    QWidget* keyHolder() const { return sheet_->keyHolder(); }

    // The picture box at that place of the screen.
    std::optional<int> pictureBoxAt(QPoint global) const { return sheet_->pictureBoxAt(global); }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeNavBar();
    QToolBar* makeToolbar();
    void addMenu(QToolBar& bar, QAction& action, std::string_view key);
    QScrollBar* makeScrollBar(Qt::Orientation orientation);
    void fillMenu(QMenu& menu, const std::vector<std::string>& columns);
    void refreshBars();
    void refreshScrollBar(QScrollBar& bar, const layout::LayoutPage::ScrollBar& state, int visible);

    app::App& app_;
    EventBoundary& events_;
    QStackedWidget* bars_;
    QToolBar* layoutNavBar_ = nullptr;
    QToolBar* layoutToolbar_ = nullptr;
    QSlider* Slider1_ = nullptr;
    QLabel* position_ = nullptr;
    QLabel* marginLbl_;
    QPushButton* clearRulesBtn_;
    SheetView* sheet_;
    EmptyHint* hint_;
    QScrollBar* layoutHScroll_;
    QScrollBar* layoutVScroll_;
    QMenu* fieldMenu_ = nullptr;
    QMenu* pictureMenu_ = nullptr;
    bool refreshing_ = false;
    bool arriving_ = false; // the page has come to the front and not shown its record yet
    std::uint64_t steps_ = 0;
    bool designing_ = false; // what is shown
};

} // namespace gui
