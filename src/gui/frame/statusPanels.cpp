#include "gui/frame/statusPanels.h"

#include "gui/widgets/qtText.h"
#include "layout/selection.h"

#include <QDate>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace gui {

// One panel. A text that is too long is cut with dots, and the tip has all of it.
class StatusPanels::Panel final : public QLabel {
public:
    explicit Panel(const QString& name) {
        setObjectName(name);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        setTextFormat(Qt::PlainText);
        setIndent(fontMetrics().averageCharWidth() / 2);
    }

    // As wide as the text: in a narrow window the shares must not leave one panel empty room while they cut
    // the text of another. Where not all find room, the longest are cut.
    QSize minimumSizeHint() const override {
        return {std::min(textWidth(), most_), QLabel::minimumSizeHint().height()};
    }
    int textWidth() const { return fontMetrics().horizontalAdvance(text()) + 2 * indent() + 1; }
    void setMost(int pixels) {
        if (std::exchange(most_, pixels) != pixels) updateGeometry();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRect room = contentsRect().adjusted(indent(), 0, -indent(), 0);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
        setToolTip(shown == text() ? QString() : text());
        style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                              foregroundRole());
    }

private:
    int most_ = QWIDGETSIZE_MAX; // of the width that it insists on
};

namespace {

// How the panels share the width, by the longest texts that they show.
constexpr std::array<int, 6> shares = {14, 10, 26, 16, 18, 22};
constexpr int placeShare = 24;

} // namespace

StatusPanels::StatusPanels(app::App& app, QWidget* parent)
    : QStatusBar(parent), app_(app), place_(new Panel(QStringLiteral("selectionPlace"))),
      note_(new Panel(QStringLiteral("statusNote"))), noteEnd_(new QTimer(this)) {
    setObjectName(QStringLiteral("SB1"));
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new Panel(QStringLiteral("SB1_%1").arg(i + 1));
        addWidget(panels_[i], shares[i]);
    }
    addWidget(place_, placeShare);
    addWidget(note_);
    note_->hide();
    noteEnd_->setSingleShot(true);
    connect(noteEnd_, &QTimer::timeout, note_, &QWidget::hide);
}

void StatusPanels::note(const QString& text) {
    constexpr int milliseconds = 8000;
    note_->setText(text);
    note_->setMost(width() / 3);
    note_->show();
    noteEnd_->start(milliseconds);
}

// The window may become narrower than the texts.
QSize StatusPanels::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 40, QStatusBar::minimumSizeHint().height()};
}

void StatusPanels::refresh() {
    for (std::size_t i = 0; i < panels_.size(); ++i) panels_[i]->setText(toQt(app_.mainFrm.panels[i + 1]));
    const auto today = app_.platform.today();
    const QDate date(static_cast<int>(today.year()), static_cast<int>(static_cast<unsigned>(today.month())),
                     static_cast<int>(static_cast<unsigned>(today.day())));
    panels_[app::datePanel - 1]->setText(QLocale().toString(date, QLocale::ShortFormat));
    place_->setText(toQt(layout::selectionText(app_)));
    place_->setVisible(!place_->text().isEmpty());
    place_->setMinimumWidth(place_->textWidth());
    shareRoom();
}

void StatusPanels::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    shareRoom();
}

// The place of an object is read while it is dragged: where room is short, the longest of the others are cut.
void StatusPanels::shareRoom() {
    constexpr int gap = 8; // pixels between two panels, and around them
    int most = QWIDGETSIZE_MAX;
    if (!place_->isHidden()) {
        std::array<int, 6> widths{};
        std::ranges::transform(panels_, widths.begin(), &Panel::textWidth);
        std::ranges::sort(widths);
        auto left = static_cast<int>(widths.size());
        int room = width() - place_->textWidth() - (left + 2) * gap;
        for (const int wanted : widths) {
            if (wanted > room / left) {
                most = std::max(room / left, 1);
                break;
            }
            room -= wanted;
            --left;
        }
    }
    for (Panel* panel : panels_) panel->setMost(most);
}

} // namespace gui

#include "moc_statusPanels.cpp"
