#include "gui/fontDialog.h"

#include "core/layoutObjects.h"
#include "gui/formView.h"
#include "gui/qtText.h"
#include "gui/textBox.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace gui {

FontDialog::FontDialog(const platform::FontChoice& present, QWidget* parent)
    : QDialog(parent), fonts_(new QFontDialog), colourBtn_(new QPushButton(tr("&Colour..."))),
      colour_(toQtColor(present.ForeColor)) {
    setObjectName(QStringLiteral("fontDialog"));
    setWindowTitle(tr("Font"));
    core::ObjectFont font;
    font.FontName = present.FontName;
    font.FontSize = present.FontSize;
    font.FontBold = present.FontBold;
    font.FontItalic = present.FontItalic;
    font.FontUnderline = present.FontUnderline;
    font.FontStrikethru = present.FontStrikethru;
    fonts_->setObjectName(QStringLiteral("CDialog"));
    fonts_->setWindowFlags(Qt::Widget);
    fonts_->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
    fonts_->setCurrentFont(toQtFont(font));
    colourBtn_->setObjectName(QStringLiteral("colourBtn"));
    connect(colourBtn_, &QPushButton::clicked, this, &FontDialog::chooseColour);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (QAbstractButton* button : buttons->buttons()) button->setIcon({}); // as in the other windows
    buttons->addButton(colourBtn_, QDialogButtonBox::ActionRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(fonts_, 1);
    column->addWidget(buttons);
    nameLists(*this);
    showColour();
}

void FontDialog::chooseColour() {
    const QColor chosen =
        QColorDialog::getColor(colour_, this, tr("Colour"), QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid()) return;
    colour_ = chosen;
    showColour();
}

void FontDialog::showColour() {
    QPixmap patch(16, 16);
    patch.fill(colour_);
    colourBtn_->setIcon(patch);
}

platform::FontChoice FontDialog::choice() const {
    const QFont font = fonts_->currentFont();
    platform::FontChoice choice;
    choice.FontName = fromQt(font.family());
    choice.FontSize = static_cast<float>(font.pointSizeF());
    choice.FontBold = font.bold();
    choice.FontItalic = font.italic();
    choice.FontUnderline = font.underline();
    choice.FontStrikethru = font.strikeOut();
    choice.ForeColor = colour_.blue() << 16 | colour_.green() << 8 | colour_.red();
    return choice;
}

} // namespace gui
