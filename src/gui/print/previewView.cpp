#include "gui/print/previewView.h"
#include "print/previewPage.h"

#include "gui/widgets/icon.h"
#include "gui/widgets/measures.h"
#include "gui/widgets/qtText.h"
#include "print/previewNavigation.h"

#include <QGridLayout>
#include <QScopedValueRollback>

#include <cmath>

namespace gui {

namespace {} // namespace

PreviewView::PreviewView(app::App& app, EventBoundary& events, QWidget* parent)
    : QWidget(parent), app_(app), events_(events), reportToolbar_(makeToolbar()), port_(new PreviewPort(app)),
      rptHScroll1_(makeScrollBar(Qt::Horizontal)), rptVScroll1_(makeScrollBar(Qt::Vertical)) {
    setObjectName(QStringLiteral("previewPage"));
    connect(port_, &PreviewPort::resized, this, &PreviewView::portResized);
    connect(port_, &PreviewPort::scrolled, this, [this](int horizontal, int vertical) {
        rptHScroll1_->setValue(rptHScroll1_->value() + horizontal);
        rptVScroll1_->setValue(rptVScroll1_->value() + vertical);
    });
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(reportToolbar_, 0, 0, 1, 2);
    grid->addWidget(port_, 1, 0);
    grid->addWidget(rptVScroll1_, 1, 1);
    grid->addWidget(rptHScroll1_, 2, 0);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(0, 1);
}

QToolBar* PreviewView::makeToolbar() {
    auto* bar = new QToolBar;
    bar->setObjectName(QStringLiteral("reportToolbar"));
    bar->setAccessibleName(tr("Preview"));
    bar->setIconSize({pageIconSize, pageIconSize});
    for (const print::PreviewButton& button : print::previewButtons()) {
        QAction* action = bar->addAction(familyIcon(toQt(button.icon)), toQt(button.tip));
        action->setObjectName(QStringLiteral("reportToolbar.") + toQt(button.key));
        connect(action, &QAction::triggered, this, [this, key = button.key] {
            events_.run([&] { print::reportToolbar_ButtonClick(app_, key); });
        });
    }
    return bar;
}

QScrollBar* PreviewView::makeScrollBar(Qt::Orientation orientation) {
    const bool vertical = orientation == Qt::Vertical;
    auto* bar = new QScrollBar(orientation);
    bar->setObjectName(vertical ? QStringLiteral("rptVScroll1") : QStringLiteral("rptHScroll1"));
    bar->setSingleStep(scrollStep);
    connect(bar, &QScrollBar::valueChanged, this, [this, vertical](int value) {
        if (refreshing_) return;
        events_.run([&] {
            vertical ? print::rptVScroll1_Change(app_, value) : print::rptHScroll1_Change(app_, value);
        });
    });
    return bar;
}

void PreviewView::portResized() {
    const auto twips = [this](int pixels) {
        return static_cast<float>(std::lround(pixels / port_->pixelsPerTwip()));
    };
    events_.run([&] {
        print::rptPreview2_Resize(app_, twips(port_->width()), twips(port_->height()),
                                  twips(rptVScroll1_->sizeHint().width()));
    });
}

void PreviewView::show(QScrollBar& bar, const print::PreviewPage::ScrollBar& state, float visible) {
    bar.setRange(0, state.Max);
    bar.setPageStep(static_cast<int>(visible));
    bar.setValue(state.Value);
    bar.setVisible(state.Max > 0);
}

void PreviewView::refresh() {
    if (refreshing_) return;
    const QScopedValueRollback guard(refreshing_, true);
    const print::PreviewPage& page = print::previewPage(app_);
    show(*rptHScroll1_, page.rptHScroll1, page.rptPreview2.Width);
    show(*rptVScroll1_, page.rptVScroll1, page.rptPreview2.Height);
    port_->refresh();
}

} // namespace gui
