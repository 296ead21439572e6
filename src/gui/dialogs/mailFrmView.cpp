#include "gui/dialogs/mailFrmView.h"

#include "core/text.h"
#include "gui/widgets/qtText.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace gui {

mailFrmView::mailFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "mailFrm", tr("Email Currently Opened Database File"), parent), form_(app),
      Text1_(makeBox("Text1", form_.Text1)), Text2_(makeBox("Text2", form_.Text2)), Text3_(makeMessageBox()) {
    auto* lines = new QFormLayout;
    lines->addRow(tr("Email Address:"), Text1_);
    lines->addRow(tr("Subject:"), Text2_);
    auto* messageCaption = new QLabel(tr("Message To Sender(500 Characters Max):"));
    messageCaption->setBuddy(Text3_);

    auto* column = new QVBoxLayout(this);
    column->addLayout(lines);
    column->addWidget(messageCaption);
    column->addWidget(Text3_, 1);
    column->addSpacing(em() / 2);
    column->addLayout(
        makeBottomRow(makeButton("OKButton", tr("&Send"), [this] { form_.OKButton_Click(); }),
                      makeButton("CancelButton", tr("&Close"), [this] { form_.CancelButton_Click(); })));
    resize(em() * 27, em() * 22);
}

QLineEdit* mailFrmView::makeBox(const char* name, std::string& text) {
    auto* box = named(name, new QLineEdit);
    connect(box, &QLineEdit::textEdited, this,
            [this, &text](const QString& typed) { on([&] { text = fromQt(typed); }); });
    return box;
}

QPlainTextEdit* mailFrmView::makeMessageBox() {
    auto* box = named("Text3", new QPlainTextEdit);
    box->setTabChangesFocus(true);
    connect(box, &QPlainTextEdit::textChanged, this, [this, box] {
        on([&] {
            const QString text = box->toPlainText();
            const std::string ahead = fromQt(text.left(box->textCursor().position()));
            form_.Text3_Change(fromQt(text), core::length(ahead));
        });
    });
    return box;
}

void mailFrmView::showMembers() {
    showMessage();
    if (!form_.text1HasFocus) return;
    form_.text1HasFocus = false;
    Text1_->setFocus();
}

// As a part of what the user has just done, so that one step back undoes both.
void mailFrmView::showMessage() {
    const QString message = toQt(form_.Text3);
    if (Text3_->toPlainText() == message) return;
    QTextCursor cursor(Text3_->document());
    cursor.joinPreviousEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(message);
    cursor.endEditBlock();
    cursor.setPosition(static_cast<int>(toQt(std::string(core::left(form_.Text3, form_.Text3Caret))).size()));
    Text3_->setTextCursor(cursor);
}

} // namespace gui

#include "moc_mailFrmView.cpp"
