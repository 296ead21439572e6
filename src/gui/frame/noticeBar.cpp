#include "gui/frame/noticeBar.h"

#include "gui/widgets/icon.h"
#include "gui/widgets/palette.h"
#include "gui/widgets/qtText.h"
#include "shell/fileNotice.h"

#include <QAccessible>
#include <QApplication>
#include <QFileInfo>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace gui {

namespace {
constexpr int quietMilliseconds = 400; // a program that writes a file touches it several times
constexpr int warningSize = 20;
} // namespace

NoticeBar::NoticeBar(app::App& app, EventBoundary& events, QWidget* parent)
    : QFrame(parent), app_(app), events_(events), picture_(new QLabel), text_(new QLabel),
      buttons_(new QHBoxLayout) {
    setObjectName(QStringLiteral("noticeBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    picture_->setPixmap(
        familyIcon(QStringLiteral("warning")).pixmap(QSize(warningSize, warningSize), devicePixelRatioF()));
    text_->setObjectName(QStringLiteral("noticeText"));
    text_->setTextFormat(Qt::PlainText); // it has the name of a file
    text_->setWordWrap(true);
    auto* line = new QHBoxLayout;
    line->addWidget(picture_, 0, Qt::AlignTop);
    line->addWidget(text_, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(line);
    rows->addLayout(buttons_);
    takeColours();
    hide();
    quiet_.setSingleShot(true);
    quiet_.setInterval(quietMilliseconds);
    const auto wait = [this] { quiet_.start(); };
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, wait);
    connect(&quiet_, &QTimer::timeout, this, [this] {
        watch();
        look();
    });
}

QWidget* NoticeBar::firstButton() const {
    return buttons_->count() == 0 ? nullptr : buttons_->itemAt(0)->widget();
}

void NoticeBar::refresh() {
    const QString file = toQt(app_.document.currentFile);
    const bool isOther = file != file_;
    file_ = file;
    if (isOther) watch();
    if (isOther || isVisible() || shell::hasOwnNotice(app_)) look();
}

// Anew, since a file that took the place of another one is not the one that was watched.
void NoticeBar::watch() {
    const QStringList watched = watcher_.files() + watcher_.directories();
    const QStringList wanted = file_.isEmpty() || !app_.platform.guardsFiles()
                                   ? QStringList()
                                   : QStringList{file_, QFileInfo(file_).path()};
    if (!watched.isEmpty()) watcher_.removePaths(watched);
    for (const QString& path : wanted) watcher_.addPath(path);
}

void NoticeBar::look() {
    const std::optional<shell::FileNotice> notice = shell::fileNotice(app_);
    QStringList shown;
    if (notice) {
        shown << toQt(notice->text);
        for (const auto& answer : notice->answers) shown << toQt(answer.caption);
    }
    if (shown == shown_) return;
    shown_ = shown;
    const bool hadKeys = isAncestorOf(QApplication::focusWidget());
    while (QLayoutItem* item = buttons_->takeAt(0)) {
        if (item->widget() != nullptr)
            item->widget()->deleteLater(); // it may be the one that is being pressed
        delete item;
    }
    setVisible(notice.has_value());
    if (!notice) return;
    text_->setText(toQt(notice->text));
    setAccessibleName(text_->text());
    for (std::size_t i = 0; i < notice->answers.size(); ++i) {
        auto* button = new QPushButton(toQt(notice->answers[i].caption));
        button->setObjectName(QStringLiteral("notice_%1").arg(i));
        button->setAccessibleDescription(text_->text());
        connect(button, &QPushButton::clicked, this,
                [this, act = notice->answers[i].act] { events_.run([&] { act(app_); }); });
        buttons_->addWidget(button);
    }
    buttons_->addStretch();
    if (hadKeys) firstButton()->setFocus();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::takeColours() {
    const QScopedValueRollback guard(colouring_, true);
    const bool dark = isDark(QApplication::palette());
    QPalette colours = QApplication::palette();
    colours.setColor(QPalette::Window, dark ? QColor(0x4d, 0x42, 0x1c) : QColor(0xff, 0xf1, 0xc4));
    colours.setColor(QPalette::WindowText, dark ? QColor(0xf4, 0xee, 0xdc) : QColor(0x20, 0x1c, 0x10));
    setPalette(colours);
}

void NoticeBar::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange && !colouring_) takeColours();
}

} // namespace gui

#include "moc_noticeBar.cpp"
