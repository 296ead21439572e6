#include "gui/print/previewView.h"
#include "app/looks.h"
#include "core/translate.h"
#include "print/previewPage.h"

#include "gui/widgets/icon.h"
#include "gui/widgets/measures.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/zoomWheel.h"
#include "print/previewNavigation.h"
#include "print/previewPlace.h"

#include <QApplication>
#include <QGridLayout>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <utility>

namespace gui {

PreviewView::PreviewView(app::App& app, EventBoundary& events, CommandActions& actions, QWidget* parent)
    : QWidget(parent), app_(app), events_(events), reportToolbar_(makeToolbar(actions)),
      fitBar_(new FitBar(app, events)), port_(new PreviewPort(app)), hint_(new EmptyHint(app, events, port_)),
      rptHScroll1_(makeScrollBar(Qt::Horizontal)), rptVScroll1_(makeScrollBar(Qt::Vertical)) {
    setObjectName(QStringLiteral("previewPage"));
    connect(port_, &PreviewPort::resized, this, &PreviewView::portResized);
    connect(port_, &PreviewPort::zoomTurned, this, [this](QWheelEvent* event) {
        zoomAnchor_ = event->position();
        zoomByWheel(app_, events_, *event);
    });
    connect(port_, &PreviewPort::scrolled, this, [this](int horizontal, int vertical) {
        rptHScroll1_->setValue(rptHScroll1_->value() + horizontal);
        rptVScroll1_->setValue(rptVScroll1_->value() + vertical);
    });
    connect(port_, &PreviewPort::paged, this, &PreviewView::turnPage);
    connect(port_, &PreviewPort::wentToEnd, this, &PreviewView::goToEnd);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(reportToolbar_, 0, 0, 1, 2);
    grid->addWidget(fitBar_, 1, 0, 1, 2);
    grid->addWidget(port_, 2, 0);
    grid->addWidget(rptVScroll1_, 2, 1);
    grid->addWidget(rptHScroll1_, 3, 0);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
}

QToolBar* PreviewView::makeToolbar(CommandActions& actions) {
    auto* bar = new QToolBar;
    bar->setObjectName(QStringLiteral("reportToolbar"));
    bar->setAccessibleName(tr("Preview"));
    bar->setIconSize({pageIconSize, pageIconSize});
    for (const print::PreviewButton& button : print::previewButtons()) {
        QAction* action = bar->addAction(familyIcon(toQt(button.icon)), toQt(core::tr(button.tip)));
        action->setObjectName(QStringLiteral("reportToolbar.") + toQt(button.key));
        connect(action, &QAction::triggered, this, [this, key = button.key] {
            events_.run([&] { print::reportToolbar_ButtonClick(app_, key); });
        });
    }
    place_ = new QLabel;
    place_->setObjectName(QStringLiteral("previewPlace"));
    place_->setContentsMargins(8, 0, 8, 0);
    // With room, so that the buttons behind it stay where they are when pages are turned.
    place_->setMinimumWidth(place_->fontMetrics().horizontalAdvance(tr("Record 888 of 888")) + 16);
    bar->addWidget(place_);
    bar->addSeparator();
    for (const char* key : {"mnuZoomOut", "mnuZoomIn", "mnuFitPage", "mnuFitWidth"})
        bar->addAction(actions.action(key));
    percent_ = new QLabel;
    percent_->setObjectName(QStringLiteral("previewZoom"));
    percent_->setContentsMargins(8, 0, 8, 0);
    bar->addWidget(percent_);
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

// How large the page is shown, and in what port. While it fits, both are found out from the room that port
// and bars share, so that a bar that is still there, or comes, changes nothing.
PreviewView::Fitted PreviewView::fitted() const {
    const app::Looks& looks = app::looks(app_);
    const drawing::RecordedPage& page = print::previewPage(app_).rptPreview1;
    if (looks.previewFit == app::Fit::None || page.Width <= 0 || page.Height <= 0)
        return {looks.previewZoom / 100.0, port_->size()};
    constexpr qreal least = 0.1, most = 5;
    constexpr int edge = 2; // pixels of the frame around the page
    const auto shown = [](const QScrollBar& bar, int thickness) { return bar.isHidden() ? 0 : thickness; };
    QSize room(port_->width() + shown(*rptVScroll1_, rptVScroll1_->width()),
               port_->height() + shown(*rptHScroll1_, rptHScroll1_->height()));
    const qreal plain = logicalDpiX() / static_cast<qreal>(twipsPerInch);
    const auto zoomFor = [&](int pixels, float twips) { return (pixels - edge) / (twips * plain); };
    qreal zoom = zoomFor(room.width(), page.Width);
    const qreal high = zoomFor(room.height(), page.Height);
    if (looks.previewFit == app::Fit::Page) {
        zoom = std::min(zoom, high);
    } else if (zoom > high) {
        room.rwidth() -= rptVScroll1_->sizeHint().width();
        zoom = zoomFor(room.width(), page.Width);
    }
    return {std::clamp(zoom, least, most), room};
}

// What stands at the anchor stays there.
void PreviewView::followZoom() {
    const QPointF anchor = std::exchange(zoomAnchor_, {}).value_or(QRectF(port_->rect()).center());
    const qreal zoom = fitted().zoom;
    app::looks(app_).previewZoom = static_cast<int>(std::lround(zoom * 100));
    percent_->setText(tr("%1 %").arg(app::looks(app_).previewZoom));
    if (zoom == port_->zoom()) return;
    print::PreviewPage& page = print::previewPage(app_);
    const QPointF place = anchor / port_->pixelsPerTwip() - QPointF(page.Left, page.Top);
    port_->setZoom(zoom);
    tellPortSize();
    const QPointF value = place - anchor / port_->pixelsPerTwip();
    if (page.rptHScroll1.Max > 0) print::rptHScroll1_Change(app_, static_cast<int>(std::lround(value.x())));
    if (page.rptVScroll1.Max > 0) print::rptVScroll1_Change(app_, static_cast<int>(std::lround(value.y())));
}

// To the end of the page first, then on to the beginning of the next one, and backwards likewise.
void PreviewView::turnPage(bool forward) {
    const int step = rptVScroll1_->pageStep() - scrollStep;
    const int before = rptVScroll1_->value();
    if (rptVScroll1_->maximum() > 0) rptVScroll1_->setValue(before + (forward ? step : -step));
    if (rptVScroll1_->value() != before) return;
    events_.run([&] {
        if (print::turnPreview(app_, forward))
            print::rptVScroll1_Change(app_, forward ? 0 : print::previewPage(app_).rptVScroll1.Max);
    });
}

void PreviewView::goToEnd(bool last) {
    events_.run([&] {
        const print::PreviewPage& page = print::previewPage(app_);
        if (!page.Visible) return;
        print::reportToolbar_ButtonClick(app_, last ? "Last" : "First");
        print::rptVScroll1_Change(app_, last ? page.rptVScroll1.Max : 0);
    });
}

void PreviewView::portResized() {
    events_.run([this] { tellPortSize(); });
}

void PreviewView::tellPortSize() {
    const auto twips = [this](int pixels) {
        return static_cast<float>(std::lround(pixels / port_->pixelsPerTwip()));
    };
    const QSize port = fitted().port;
    print::rptPreview2_Resize(app_, twips(port.width()), twips(port.height()),
                              twips(rptVScroll1_->sizeHint().width()));
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
    const bool bKeysInBar = fitBar_->isAncestorOf(QApplication::focusWidget());
    fitBar_->refresh();
    if (bKeysInBar && !fitBar_->hasButton()) port_->setFocus(); // as its button has done its work
    followZoom();
    const print::PreviewPage& page = print::previewPage(app_);
    show(*rptHScroll1_, page.rptHScroll1, page.rptPreview2.Width);
    show(*rptVScroll1_, page.rptVScroll1, page.rptPreview2.Height);
    place_->setText(toQt(print::previewPlaceText(app_)));
    port_->setAccessibleName(place_->text().isEmpty() ? tr("Page") : place_->text());
    port_->refresh();
    hint_->show(shell::emptyPreview(app_));
}

} // namespace gui

#include "moc_previewView.cpp"
