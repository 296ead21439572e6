#include "gui/frame/startPage.h"

#include "gui/widgets/icon.h"
#include "gui/widgets/qtText.h"

#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QStandardPaths>
#include <QStyleOption>
#include <QStylePainter>
#include <QVBoxLayout>

#include <algorithm>
#include <set>
#include <utility>

namespace gui {

namespace {

constexpr int pictureSize = 72;
constexpr int mostInRow = 3;
constexpr int samplePictureSize = 32;

// Qt gives such a button no sign of having the keys.
class SampleButton final : public QCommandLinkButton {
public:
    using QCommandLinkButton::QCommandLinkButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        QCommandLinkButton::paintEvent(event);
        if (!hasFocus()) return;
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(1, 1, -1, -1);
        QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
};

QLabel* centred(const QString& text) {
    auto* label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

StartPage::StartPage(app::App& app, EventBoundary& events, CommandActions& actions, QWidget* parent)
    : QScrollArea(parent), app_(app), events_(events), actions_(actions) {
    setObjectName(QStringLiteral("startPage"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto* page = new QWidget;
    auto* picture = new QLabel;
    picture->setPixmap(programIcon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    auto* title = centred(tr("No database is open"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    title->setFont(font);
    auto* text = centred(tr("Open a database, or drop its file on this window.\n"
                            "A database is one file; its name ends in .fwk."));
    text->setForegroundRole(QPalette::PlaceholderText);

    new_ = addButton("mnuNew", tr("New"));
    open_ = addButton("mnuOpen", tr("Open..."));
    template_ = addTemplates();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(new_);
    buttons->addWidget(open_);
    buttons->addWidget(template_);
    buttons->addStretch();

    recentTitle_ = centred(tr("Recent files"));
    recentTitle_->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(page);
    column->addStretch(2);
    column->addWidget(picture);
    column->addSpacing(8);
    column->addWidget(title);
    column->addWidget(text);
    column->addSpacing(16);
    column->addLayout(buttons);
    column->addSpacing(20);
    column->addWidget(recentTitle_);
    for (std::size_t i = 0; i < recent_.size(); ++i) {
        recent_[i] = addButton(recentKeys[i], {});
        recent_[i]->setFlat(true);
        column->addWidget(recent_[i], 0, Qt::AlignHCenter);
    }
    if (QWidget* samples = makeSamples()) {
        column->addSpacing(20);
        column->addWidget(samples, 0, Qt::AlignHCenter);
    }
    column->addStretch(3);
    setWidget(page);
    page->setAutoFillBackground(false); // nor the viewport, so that it looks like any other page
    viewport()->setAutoFillBackground(false);
}

// Nothing where the program came without samples.
QWidget* StartPage::makeSamples() {
    const std::vector<shell::Sample> samples = shell::installedSamples();
    if (samples.empty()) return nullptr;
    auto* area = new QWidget;
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    auto* title = centred(tr("Or try a sample. You get a copy of your own, so change in it what you like."));
    title->setForegroundRole(QPalette::PlaceholderText);
    samples_ = new QGridLayout;
    column->addWidget(title);
    column->addLayout(samples_);
    for (const shell::Sample& sample : samples) sampleButtons_ << makeSampleButton(sample);
    placeSamples();
    return area;
}

// As many side by side as find room.
void StartPage::placeSamples() {
    if (samples_ == nullptr) return;
    int widest = 1;
    for (const QPushButton* button : sampleButtons_)
        widest = std::max(widest, button->minimumWidth() + samples_->horizontalSpacing());
    const int room = width() - verticalScrollBar()->sizeHint().width() - fontMetrics().height();
    const int fit = std::clamp(room / widest, 1, mostInRow);
    if (std::exchange(samplesInRow_, fit) == fit) return;
    for (int place = 0; place < sampleButtons_.size(); ++place)
        samples_->addWidget(sampleButtons_.at(place), place / fit, place % fit);
}

void StartPage::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    placeSamples();
}

QPushButton* StartPage::makeSampleButton(const shell::Sample& sample) {
    auto* button = new SampleButton(withoutMnemonics(toQt(sample.name)), toQt(sample.shows));
    button->setObjectName(QStringLiteral("sample_") + toQt(sample.file.stem().string()));
    const QString picture = toQt(sample.picture);
    button->setIcon(familyIcon(picture));
    button->setIconSize({samplePictureSize, samplePictureSize});
    // The button would break its text anywhere; one line looks best.
    const int text = button->fontMetrics().horizontalAdvance(toQt(sample.shows));
    button->setMinimumWidth(samplePictureSize + text + 2 * button->fontMetrics().height());
    button->setAccessibleDescription(toQt(sample.shows));
    connect(button, &QPushButton::clicked, this, [this, sample] {
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        events_.run([&] { shell::openSample(app_, sample, QFile::encodeName(documents).toStdString()); });
    });
    return button;
}

QPushButton* StartPage::addTemplates() {
    auto* button = new QPushButton(familyIcon(QStringLiteral("sampleLibrary")), tr("From A Template"));
    button->setObjectName(QStringLiteral("start_mnuTemplates"));
    auto* menu = new QMenu(button);
    menu->setObjectName(QStringLiteral("startTemplates"));
    actions_.fill(*menu, shell::findSubmenu("mnuTemplates")->items);
    button->setMenu(menu);
    return button;
}

QPushButton* StartPage::addButton(const char* key, const QString& text) {
    QAction* action = actions_.action(key);
    auto* button = new QPushButton(action->icon(), text);
    button->setObjectName(QStringLiteral("start_") + QLatin1String(key));
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    return button;
}

void StartPage::refresh() {
    new_->setEnabled(actions_.action("mnuNew")->isEnabled());
    template_->setEnabled(app_.mainFrm.control("mnuTemplates").Enabled);
    open_->setEnabled(actions_.action("mnuOpen")->isEnabled());
    std::set<QString> shown; // the list of recent files may name one twice
    for (std::size_t i = 0; i < recent_.size(); ++i) {
        const QString path = actions_.action(recentKeys[i])->data().toString();
        const bool first = !path.isEmpty() && shown.insert(path).second;
        recent_[i]->setVisible(first);
        if (!first) continue;
        const QFileInfo file(path);
        QString folder = file.path();
        if (folder.startsWith(QDir::homePath())) folder.replace(0, QDir::homePath().size(), QLatin1Char('~'));
        recent_[i]->setText(withoutMnemonics(
            QStringLiteral("%1  -  %2")
                .arg(file.fileName(), fontMetrics().elidedText(folder, Qt::ElideMiddle, width() / 2))));
        recent_[i]->setToolTip(path);
    }
    recentTitle_->setVisible(!shown.empty());
}

} // namespace gui

#include "moc_startPage.cpp"
