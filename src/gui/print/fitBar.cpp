#include "gui/print/fitBar.h"

#include "gui/widgets/qtText.h"
#include "print/previewPage.h"
#include "print/reportFit.h"

#include <QHBoxLayout>

namespace gui {

FitBar::FitBar(app::App& app, EventBoundary& events, QWidget* parent)
    : QFrame(parent), app_(app), text_(new QLabel), widen_(new QPushButton(tr("&Widen"))) {
    setObjectName(QStringLiteral("fitBar"));
    setFrameShape(QFrame::StyledPanel);
    text_->setObjectName(QStringLiteral("fitText"));
    text_->setTextFormat(Qt::PlainText); // it has names of columns
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    widen_->setObjectName(QStringLiteral("fitWiden"));
    widen_->setToolTip(tr("Makes the columns as wide as what they print"));
    connect(widen_, &QPushButton::clicked, this,
            [this, &events] { events.run([&] { print::Widen_Click(app_); }); });
    auto* row = new QHBoxLayout(this);
    row->addWidget(text_, 1);
    row->addWidget(widen_, 0, Qt::AlignTop);
    hide();
}

void FitBar::refresh() {
    const print::ReportFit& fit = print::previewFit(app_);
    const bool isReport = app_.mainFrm.iPrintMode == app::printReport && print::previewPage(app_).Visible;
    const QString text = isReport ? toQt(fit.text()) : QString();
    text_->setText(text);
    setAccessibleName(text);
    widen_->setAccessibleDescription(text);
    widen_->setVisible(fit.canWiden());
    setVisible(!text.isEmpty());
}

} // namespace gui

#include "moc_fitBar.cpp"
