#include "gui/layout/layoutPageView.h"
#include "core/translate.h"
#include "layout/layoutPage.h"

#include "entry/navBar.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/measures.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/textBox.h"
#include "layout/rulers.h"
#include "layout/sheet.h"
#include "layout/toolbar.h"
#include "shell/undo.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QToolButton>

#include <utility>

namespace gui {

namespace {

QToolBar* makeBar(const QString& name, const QString& told) {
    auto* bar = new QToolBar;
    bar->setObjectName(name);
    bar->setAccessibleName(told);
    bar->setIconSize({pageIconSize, pageIconSize});
    return bar;
}

} // namespace

LayoutPageView::LayoutPageView(app::App& app, EventBoundary& events, QWidget* parent)
    : QWidget(parent), app_(app), events_(events), bars_(new QStackedWidget), marginLbl_(new QLabel),
      clearRulesBtn_(new QPushButton(tr("Clear &Guides"))), sheet_(new SheetView(app, events)),
      hint_(new EmptyHint(app, events, sheet_)), layoutHScroll_(makeScrollBar(Qt::Horizontal)),
      layoutVScroll_(makeScrollBar(Qt::Vertical)) {
    setObjectName(QStringLiteral("layoutPage"));
    bars_->addWidget(makeNavBar());
    bars_->addWidget(makeToolbar());
    bars_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    marginLbl_->setObjectName(QStringLiteral("marginLbl"));
    clearRulesBtn_->setObjectName(QStringLiteral("clearRulesBtn"));
    clearRulesBtn_->setFocusPolicy(Qt::TabFocus);
    connect(clearRulesBtn_, &QPushButton::clicked, this,
            [this] { events_.run([&] { layout::clearGuides(app_); }); });
    takeKeysOf(*this);
    takeKeysOf(*clearRulesBtn_);
    connect(sheet_, &SheetView::scrolled, this, [this](int horizontal, int vertical) {
        layoutHScroll_->setValue(layoutHScroll_->value() + horizontal);
        layoutVScroll_->setValue(layoutVScroll_->value() + vertical);
    });

    auto* top = new QHBoxLayout;
    top->setContentsMargins(0, 0, 8, 0);
    top->setSpacing(12);
    top->addWidget(bars_, 1);
    top->addWidget(clearRulesBtn_);
    top->addWidget(marginLbl_);
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    grid->addWidget(sheet_, 0, 0);
    grid->addWidget(layoutVScroll_, 0, 1);
    grid->addWidget(layoutHScroll_, 1, 0);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(top);
    column->addLayout(grid, 1);
}

QWidget* LayoutPageView::makeNavBar() {
    layoutNavBar_ = makeBar(QStringLiteral("layoutNavBar"), tr("Record"));
    for (const entry::NavButton& button : entry::navButtons()) {
        QAction* action = layoutNavBar_->addAction(familyIcon(toQt(button.icon)), toQt(core::tr(button.tip)));
        action->setObjectName(QStringLiteral("layoutNavBar.") + toQt(button.key));
        connect(action, &QAction::triggered, this, [this, key = button.key] {
            events_.run([&] { entry::layoutNavBar_ButtonClick(app_, key); });
            if (key == "New" || (key == "Add" && entry::isSheetNew(app_))) sheet_->takeFirstField();
        });
        if (button.key == "Delete") layoutNavBar_->addSeparator();
    }
    layoutNavBar_->addSeparator();
    Slider1_ = new QSlider(Qt::Horizontal);
    Slider1_->setObjectName(QStringLiteral("Slider1"));
    Slider1_->setAccessibleName(tr("Record"));
    Slider1_->setMinimum(1);
    Slider1_->setMaximumWidth(fontMetrics().height() * 20);
    connect(Slider1_, &QSlider::valueChanged, this, [this](int value) {
        if (!refreshing_) events_.run([&] { entry::Slider1_Change(app_, value); });
    });
    layoutNavBar_->addWidget(Slider1_);
    position_ = new QLabel;
    position_->setObjectName(QStringLiteral("recordPosition"));
    position_->setContentsMargins(8, 0, 8, 0);
    layoutNavBar_->addWidget(position_);
    return layoutNavBar_;
}

QToolBar* LayoutPageView::makeToolbar() {
    layoutToolbar_ = makeBar(QStringLiteral("layoutToolbar"), tr("Design"));
    for (const layout::ToolbarButton& button : layout::toolbarButtons()) {
        if (button.key == "-") {
            layoutToolbar_->addSeparator();
            continue;
        }
        QAction* action =
            layoutToolbar_->addAction(familyIcon(toQt(button.icon)), toQt(core::tr(button.tip)));
        action->setObjectName(QStringLiteral("layoutToolbar.") + toQt(button.key));
        action->setCheckable(button.checkable);
        if (button.hasMenu) addMenu(*layoutToolbar_, *action, button.key);
        if (button.key == "Field" || button.key == "Picture") continue; // their menus alone
        connect(action, &QAction::triggered, this, [this, key = button.key] {
            events_.run([&] { layout::layoutToolbar_ButtonClick(app_, key); });
        });
    }
    // The keys stay with the sheet.
    for (QToolButton* button : layoutToolbar_->findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::NoFocus);
    return layoutToolbar_;
}

void LayoutPageView::addMenu(QToolBar& bar, QAction& action, std::string_view key) {
    auto* menu = new QMenu(&bar);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(&action));
    button->setMenu(menu);
    button->setPopupMode(key == "Label" ? QToolButton::MenuButtonPopup : QToolButton::InstantPopup);
    if (key == "Label") {
        QAction* automatic = menu->addAction(tr("Auto Name Label"));
        automatic->setObjectName(QStringLiteral("AutoLabel"));
        connect(automatic, &QAction::triggered, this,
                [this] { events_.run([&] { layout::layoutToolbar_ButtonMenuClick(app_, "AutoLabel"); }); });
    }
    if (key == "Field") fieldMenu_ = menu;
    if (key == "Picture") pictureMenu_ = menu;
}

QScrollBar* LayoutPageView::makeScrollBar(Qt::Orientation orientation) {
    const bool vertical = orientation == Qt::Vertical;
    auto* bar = new QScrollBar(orientation);
    bar->setObjectName(vertical ? QStringLiteral("layoutVScroll") : QStringLiteral("layoutHScroll"));
    bar->setSingleStep(scrollStep);
    connect(bar, &QScrollBar::valueChanged, this, [this, vertical](int value) {
        if (refreshing_) return;
        events_.run([&] {
            vertical ? layout::layoutVScroll_Change(app_, value) : layout::layoutHScroll_Change(app_, value);
        });
    });
    return bar;
}

void LayoutPageView::fillMenu(QMenu& menu, const std::vector<std::string>& columns) {
    QStringList wanted, shown;
    for (const std::string& column : columns) wanted << toQt(column);
    for (const QAction* action : menu.actions()) shown << action->data().toString();
    if (wanted == shown) return;
    menu.clear();
    for (const QString& column : wanted) {
        QAction* action = menu.addAction(withoutMnemonics(column));
        action->setData(column);
        connect(action, &QAction::triggered, this, [this, column] {
            events_.run([&] { layout::layoutToolbar_ButtonMenuClick(app_, fromQt(column)); });
        });
    }
}

void LayoutPageView::refreshBars() {
    const layout::LayoutPage& page = layout::layoutPage(app_);
    const bool designing = page.layoutToolbarInFront;
    bars_->setCurrentIndex(designing ? 1 : 0);
    clearRulesBtn_->setVisible(designing);
    clearRulesBtn_->setEnabled(page.rulePic.count() + page.rulePic2.count() > 0);
    marginLbl_->setText(toQt(page.marginLbl));
    for (const layout::ToolbarButton& button : layout::toolbarButtons()) {
        auto* action =
            layoutToolbar_->findChild<QAction*>(QStringLiteral("layoutToolbar.") + toQt(button.key));
        if (action == nullptr) continue;
        action->setEnabled(layout::isButtonEnabled(app_, button.key));
        if (button.checkable)
            action->setChecked(app_.mainFrm.control("layoutToolbar." + std::string(button.key)).Value);
    }
    for (const entry::NavButton& button : entry::navButtons())
        layoutNavBar_->findChild<QAction*>(QStringLiteral("layoutNavBar.") + toQt(button.key))
            ->setEnabled(entry::isNavButtonEnabled(app_, button.key));
    fillMenu(*fieldMenu_, page.fieldMenu);
    fillMenu(*pictureMenu_, page.pictureMenu);
    Slider1_->setMaximum(app_.mainFrm.Slider1.Max);
    const core::RecordsList& list = *app_.mainFrm.theListView;
    const core::Item* current = list.selectedItem();
    const int records = std::max(list.count() - 1, 0);
    const int row = current == nullptr ? 0 : list.indexOf(*current);
    Slider1_->setValue(row);
    position_->setText(entry::isSheetNew(app_)      ? tr("New record")
                       : row >= 1 && row <= records ? tr("Record %1 of %2").arg(row).arg(records)
                                                    : QString());
}

void LayoutPageView::refreshScrollBar(QScrollBar& bar, const layout::LayoutPage::ScrollBar& state,
                                      int visible) {
    bar.setRange(0, state.Max);
    bar.setPageStep(visible);
    bar.setValue(state.Value);
}

void LayoutPageView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    arriving_ = true;
}

// The tabs would give the keys back to the field that had them, before the page shows another record.
void LayoutPageView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    QWidget* keyHolder = focusWidget();
    if (!event->spontaneous() && keyHolder != nullptr) keyHolder->clearFocus();
}

void LayoutPageView::refresh() {
    if (refreshing_) return;
    const QScopedValueRollback guard(refreshing_, true);
    const layout::LayoutPage& page = layout::layoutPage(app_);
    sheet_->followZoom();
    // The keys are for the sheet as soon as it is designed.
    if (std::exchange(designing_, page.layoutToolbarInFront) != designing_) sheet_->takeFocus();
    refreshBars();
    refreshScrollBar(*layoutHScroll_, page.layoutHScroll, static_cast<int>(page.viewportWidth));
    refreshScrollBar(*layoutVScroll_, page.layoutVScroll, static_cast<int>(page.viewportHeight));
    sheet_->refresh();
    hint_->show(shell::emptyLayoutPage(app_));
    // What was typed before a step cannot be taken back after it, or the box would show what is stored
    // nowhere.
    if (std::exchange(steps_, shell::stepsTaken(app_)) != steps_)
        for (TextBox* box : sheet_->findChildren<TextBox*>()) box->forgetTyped();
    // Whoever comes by the mouse goes on with the sheet, once the record is there; the tabs keep the keys of
    // whoever walks them.
    if (std::exchange(arriving_, false) && qobject_cast<QTabBar*>(QApplication::focusWidget()) == nullptr)
        entry::isSheetNew(app_) ? sheet_->takeFirstField() : sheet_->takeFocus();
}

} // namespace gui

#include "moc_layoutPageView.cpp"
