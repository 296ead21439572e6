#include "gui/dialogs/disclaimFrmView.h"

#include "core/translate.h"
#include "gui/dialogs/dialogFit.h"
#include "gui/widgets/qtText.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr auto disclaimer = core::marked(
    "<h3>Before you begin</h3>"
    "<p>Ferrowick is free software. It is provided <b>as it is, without a warranty of any kind</b>: nobody "
    "promises that it is free of errors or fit for what you want to do with it, and nobody answers for "
    "losses that come of its use.</p>"
    "<p>What that means for your work:</p>"
    "<ul>"
    "<li>Keep copies of your databases, on another disk if you can. A database is one file whose name ends "
    "in <i>.fwk</i>, so a copy is quickly made.</li>"
    "<li>Changes are on the disk only when you have saved them.</li>"
    "<li>Check sums and calculations that money or other people depend on.</li>"
    "<li>The design lock keeps a design from being changed by mistake. It does not encrypt anything: "
    "whoever has the file can read what is in it.</li>"
    "</ul>"
    "<p>The licence that comes with the program has the full terms.</p>");

} // namespace

disclaimFrmView::disclaimFrmView(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("disclaimFrm"));
    setWindowTitle(tr("Disclaimer"));
    auto* text = new QTextBrowser;
    text->setObjectName(QStringLiteral("RichTextBox1"));
    text->setAccessibleName(windowTitle());
    text->setHtml(toQt(core::tr(disclaimer)));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QPushButton* close = buttons->button(QDialogButtonBox::Ok);
    close->setObjectName(QStringLiteral("Command1"));
    close->setIcon({});
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(buttons);
    close->setFocus();
    const int em = fontMetrics().height();
    resize(em * 34, em * 24);
    fitDialog(*this);
}

} // namespace gui

#include "moc_disclaimFrmView.cpp"
