#include "gui/dialogs/fontDialog.h"

#include "core/layoutObjects.h"
#include "gui/dialogs/dialogFit.h"
#include "gui/dialogs/formView.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/textBox.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cstddef>

namespace gui {

namespace {

constexpr float smallest = 1, largest = 1600; // that can be drawn
constexpr std::array<int, 16> usualSizes = {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48, 72};

QString sizeText(float size) {
    return QString::number(static_cast<double>(size), 'g', 6);
}

} // namespace

FontDialog::FontDialog(const platform::FontChoice& present, QWidget* parent)
    : QDialog(parent), present_(present), chosen_(present), families_(named("familyList", new QListWidget)),
      sizeTxt_(named("sizeTxt", new QLineEdit)), sizes_(named("sizeList", new QListWidget)),
      bold_(named("boldChk", new QCheckBox(tr("&Bold")))),
      italic_(named("italicChk", new QCheckBox(tr("&Italic")))),
      underline_(named("underlineChk", new QCheckBox(tr("&Underline")))),
      strikethrough_(named("strikethroughChk", new QCheckBox(tr("Stri&kethrough")))),
      colourBtn_(named("colourBtn", new QPushButton(tr("&Colour...")))), sample_(new QLabel),
      reason_(named("reasonLbl", new QLabel)) {
    setObjectName(QStringLiteral("fontDialog"));
    setWindowTitle(tr("Font"));
    makeFamilies();
    makeSizes();
    auto* family = new QLabel(tr("&Font:"));
    family->setBuddy(families_);
    auto* size = new QLabel(tr("&Size:"));
    size->setBuddy(sizeTxt_);
    auto* paper = new QGroupBox(tr("Sample"));
    sample_->setText(tr("AaBbYyZz 123"));
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setAutoFillBackground(true);
    sample_->setMinimumSize(1, fontMetrics().height() * 4); // a large font is cut, and moves nothing
    sample_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    (new QVBoxLayout(paper))->addWidget(sample_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (QAbstractButton* button : buttons->buttons()) button->setIcon({}); // as in the other windows
    okBtn_ = buttons->button(QDialogButtonBox::Ok);
    okBtn_->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* grid = new QGridLayout;
    grid->addWidget(family, 0, 0);
    grid->addWidget(families_, 1, 0, 2, 1);
    grid->addWidget(size, 0, 1);
    grid->addWidget(sizeTxt_, 1, 1);
    grid->addWidget(sizes_, 2, 1);
    grid->addLayout(makeStyles(), 1, 2, 2, 1);
    grid->setColumnStretch(0, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(grid, 2);
    column->addWidget(paper, 1);
    auto* lowest = new QHBoxLayout;
    lowest->addWidget(reason_, 1);
    lowest->addWidget(buttons);
    column->addLayout(lowest);
    nameLists(*this);
    refresh();
    families_->setFocus();
    const int em = fontMetrics().height();
    resize(em * 30, em * 22);
    fitDialog(*this);
}

// A font that is not installed stands in the list as well, or opening the box would choose another one.
void FontDialog::makeFamilies() {
    QStringList names = QFontDatabase::families();
    names.removeIf([](const QString& name) { return QFontDatabase::isPrivateFamily(name); });
    const QString present = toQt(present_.FontName);
    if (!present.isEmpty() && !names.contains(present, Qt::CaseInsensitive)) names << present;
    names.sort(Qt::CaseInsensitive);
    families_->addItems(names);
    families_->setMinimumHeight(fontMetrics().height() * 5);
    for (int row = 0; row < families_->count(); ++row)
        if (families_->item(row)->text().compare(present, Qt::CaseInsensitive) == 0)
            families_->setCurrentRow(row);
    connect(families_, &QListWidget::itemSelectionChanged, this, [this] {
        const QList<QListWidgetItem*> selected = families_->selectedItems();
        if (selected.isEmpty()) return;
        const QString name = selected.constFirst()->text();
        const bool isPresent = name.compare(toQt(present_.FontName), Qt::CaseInsensitive) == 0;
        chosen_.FontName = isPresent ? present_.FontName : fromQt(name);
        refresh();
    });
}

void FontDialog::makeSizes() {
    for (const int size : usualSizes) sizes_->addItem(QString::number(size));
    const int width = fontMetrics().averageCharWidth() * 12;
    sizes_->setFixedWidth(width);
    sizes_->setMinimumHeight(fontMetrics().height() * 3);
    sizes_->setAccessibleName(tr("Sizes"));
    sizeTxt_->setFixedWidth(width);
    sizeTxt_->setText(sizeText(present_.FontSize));
    connect(sizeTxt_, &QLineEdit::textChanged, this, &FontDialog::refresh);
    connect(sizes_, &QListWidget::itemSelectionChanged, this, [this] {
        const QList<QListWidgetItem*> selected = sizes_->selectedItems();
        if (!selected.isEmpty()) sizeTxt_->setText(selected.constFirst()->text());
    });
}

// Before that the lists do not have their size.
void FontDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    layout()->activate();
    for (QListWidget* list : {families_, sizes_})
        if (list->currentItem() != nullptr)
            list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtCenter);
}

// A size that is not among the usual ones has its place ahead of the next larger one.
void FontDialog::showSize(float size) {
    const QSignalBlocker blocker(sizes_);
    const auto next = std::ranges::lower_bound(usualSizes, size, {}, [](int usual) { return float(usual); });
    const auto row = std::min<std::ptrdiff_t>(next - usualSizes.begin(), usualSizes.size() - 1);
    const bool isUsual = next != usualSizes.end() && float(*next) == size;
    sizes_->setCurrentRow(static_cast<int>(row),
                          isUsual ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Clear);
    // A list that has the keys moves by itself, and no further than it must.
    sizes_->scrollToItem(sizes_->currentItem(), sizes_->hasFocus() ? QAbstractItemView::EnsureVisible
                                                                   : QAbstractItemView::PositionAtCenter);
}

QLayout* FontDialog::makeStyles() {
    struct Style {
        QCheckBox* box;
        bool platform::FontChoice::*property;
    };
    using platform::FontChoice;
    auto* column = new QVBoxLayout;
    for (const auto& [box, property] :
         {Style{bold_, &FontChoice::FontBold}, Style{italic_, &FontChoice::FontItalic},
          Style{underline_, &FontChoice::FontUnderline},
          Style{strikethrough_, &FontChoice::FontStrikethru}}) {
        box->setChecked(present_.*property);
        connect(box, &QCheckBox::toggled, this, [this, property = property](bool checked) {
            chosen_.*property = checked;
            refresh();
        });
        column->addWidget(box);
    }
    colourBtn_->setAutoDefault(false);
    connect(colourBtn_, &QPushButton::clicked, this, &FontDialog::chooseColour);
    column->addWidget(colourBtn_);
    column->addStretch();
    return column;
}

void FontDialog::chooseColour() {
    const QColor present = toQtColor(chosen_.ForeColor);
    const QColor chosen =
        QColorDialog::getColor(present, this, tr("Colour"), QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid() || chosen.rgb() == present.rgb()) return;
    chosen_.ForeColor = chosen.blue() << 16 | chosen.green() << 8 | chosen.red();
    refresh();
}

std::optional<float> FontDialog::size() const {
    const QString text = sizeTxt_->text().trimmed();
    if (text == sizeText(present_.FontSize)) return present_.FontSize;
    bool isNumber = false;
    const float size = QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toFloat(&isNumber);
    return isNumber && size >= smallest && size <= largest ? std::optional(size) : std::nullopt;
}

void FontDialog::refresh() {
    const std::optional<float> chosenSize = size();
    okBtn_->setEnabled(chosenSize.has_value());
    reason_->setText(chosenSize ? QString() : tr("The size is a number from 1 to 1600."));
    okBtn_->setToolTip(reason_->text());
    if (chosenSize) showSize(*chosenSize);
    QPixmap patch(16, 16);
    patch.fill(toQtColor(chosen_.ForeColor));
    colourBtn_->setIcon(patch);
    core::ObjectFont font;
    const platform::FontChoice shown = choice();
    font.FontName = shown.FontName;
    font.FontSize = shown.FontSize;
    font.FontBold = shown.FontBold;
    font.FontItalic = shown.FontItalic;
    font.FontUnderline = shown.FontUnderline;
    font.FontStrikethru = shown.FontStrikethru;
    sample_->setFont(toQtFont(font));
    QPalette colours = sample_->palette();
    colours.setColor(QPalette::Window, Qt::white); // the sheet is white, whatever the desktop's colours are
    colours.setColor(QPalette::WindowText, toQtColor(shown.ForeColor));
    sample_->setPalette(colours);
}

platform::FontChoice FontDialog::choice() const {
    platform::FontChoice choice = chosen_;
    choice.FontSize = size().value_or(present_.FontSize);
    return choice;
}

} // namespace gui

#include "moc_fontDialog.cpp"
