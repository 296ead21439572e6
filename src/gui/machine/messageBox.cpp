#include "gui/machine/messageBox.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/widgets/qtText.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace gui {

namespace {

QMessageBox::Icon qtIcon(platform::Icon icon) {
    switch (icon) {
    case platform::Icon::Information:
        return QMessageBox::Information;
    case platform::Icon::Exclamation:
        return QMessageBox::Warning;
    case platform::Icon::Question:
        return QMessageBox::Question;
    case platform::Icon::Critical:
        return QMessageBox::Critical;
    case platform::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

MessageBox::MessageBox(QWidget* parent, const std::string& text, platform::Icon icon,
                       const std::string& caption)
    : QMessageBox(parent) {
    setObjectName(QStringLiteral("msgBox"));
    setWindowTitle(toQt(caption));
    setIcon(qtIcon(icon));
    // Texts hold file names and cells, which must not be taken for markup.
    setTextFormat(Qt::PlainText);
    setText(toQt(text));
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

MessageBox::MessageBox(QWidget* parent, const std::string& text, platform::Icon icon,
                       const std::string& caption, platform::Buttons buttons)
    : MessageBox(parent, text, icon, caption) {
    setStandardButtons(buttons == platform::Buttons::Ok ? Ok : Yes | No);
    if (buttons == platform::Buttons::YesNoDefaultNo) setDefaultButton(No);
    fit();
}

MessageBox::MessageBox(QWidget* parent, const std::string& text, platform::Icon icon,
                       const std::string& caption, const std::vector<std::string>& buttons)
    : MessageBox(parent, text, icon, caption) {
    // Of one role they stand in their own order, whatever order the desktop has for roles.
    for (const std::string& button : buttons) own_ << addButton(toQt(button), QMessageBox::ActionRole);
    QPushButton* cancel = addButton(QMessageBox::Cancel);
    setEscapeButton(cancel);
    // A single one does all the same what there are reasons against.
    setDefaultButton(own_.size() > 1 ? qobject_cast<QPushButton*>(own_.constFirst()) : cancel);
    fit();
}

void MessageBox::fit() {
    // The pictures that a theme puts on them are of another family than the icons of the program.
    for (QAbstractButton* button : QMessageBox::buttons()) button->setIcon({});
    // Its size is its own affair; it has a row more, of the title's width.
    if (auto* grid = qobject_cast<QGridLayout*>(layout()))
        grid->addItem(new QSpacerItem(titleWidth(*this), 0), grid->rowCount(), 0, 1, grid->columnCount());
}

int MessageBox::askPlace() {
    exec();
    return static_cast<int>(own_.indexOf(clickedButton()));
}

platform::Answer MessageBox::ask() {
    const int answer = exec();
    if (dismissed_ && standardButtons() != QMessageBox::Ok) return platform::Answer::Cancel;
    switch (answer) {
    case QMessageBox::Yes:
        return platform::Answer::Yes;
    case QMessageBox::No:
        return platform::Answer::No;
    default:
        return platform::Answer::Ok;
    }
}

// Qt takes a question that is waved away for a No, and a No may throw away what is not saved. So the
// handlers are told that there was no answer.
void MessageBox::closeEvent(QCloseEvent* event) {
    dismissed_ = true;
    QMessageBox::closeEvent(event);
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) dismissed_ = true;
    QMessageBox::keyPressEvent(event);
}

} // namespace gui

#include "moc_messageBox.cpp"
