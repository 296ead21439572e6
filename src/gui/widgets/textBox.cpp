#include "gui/widgets/textBox.h"

#include "gui/widgets/qtText.h"
#include "layout/labels.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

namespace gui {

namespace {

constexpr qreal textMargin = 1;
constexpr int backspace = 8;

// What keys like Ctrl+C carry is no text.
bool isTyped(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        // AltGr types characters on many keyboards and comes as Ctrl+Alt on some.
        if (!(event.modifiers() & Qt::GroupSwitchModifier)) return false;
    }
    return !event.text().isEmpty() && event.text().at(0).isPrint();
}

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

QFont toQtFont(const core::ObjectFont& font) {
    constexpr qreal smallest = 1;
    constexpr qreal largest = 1600;
    // The screen font of old databases has no file any more; the substitute has nearly its widths.
    static const bool substituted = [] {
        QFont::insertSubstitution(QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans"));
        return true;
    }();
    Q_UNUSED(substituted)
    QFont shown(toQt(font.FontName));
    shown.setPointSizeF(std::clamp<qreal>(font.FontSize, smallest, largest));
    shown.setBold(font.FontBold);
    shown.setItalic(font.FontItalic);
    shown.setUnderline(font.FontUnderline);
    shown.setStrikeOut(font.FontStrikethru);
    return shown;
}

QColor toQtColor(std::int32_t colour) {
    // A number beyond the three bytes stands for a colour of the desktop; on paper that is black.
    if (colour < 0 || colour > 0xFFFFFF) return Qt::black;
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

TextBox::TextBox(QWidget* parent) : QTextEdit(parent) {
    setAcceptRichText(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDocumentMargin(textMargin);
    setLineWidth(1);
    setFrameShadow(QFrame::Plain);
    setAutoFillBackground(true);
    connect(this, &QTextEdit::textChanged, this, [this] {
        if (showing_) return;
        text_ = wholeText();
        if (changed) changed(text_);
    });
}

void TextBox::show(const Look& look) {
    const QScopedValueRollback guard(showing_, true);
    setFrameShape(look.frame ? QFrame::Box : QFrame::NoFrame);
    const QFont wanted = toQtFont(look.font);
    if (font() != wanted) setFont(wanted);
    const QColor frameColor(0x80, 0x86, 0x8b);
    QPalette colours = palette();
    const QColor paper =
        look.backColor == layout::selectedLabelColor ? QColor(0xcf, 0xe2, 0xff) : toQtColor(look.backColor);
    if (colours.color(QPalette::Base) != paper ||
        colours.color(QPalette::Text) != toQtColor(look.foreColor) ||
        colours.color(QPalette::WindowText) != frameColor) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            colours.setColor(group, QPalette::Base, paper);
            colours.setColor(group, QPalette::Text, toQtColor(look.foreColor));
            colours.setColor(group, QPalette::WindowText, frameColor);
        }
        setPalette(colours);
    }
    if (isReadOnly() != look.locked) setReadOnly(look.locked);
    const Qt::Alignment align = look.align == core::Alignment::Right    ? Qt::AlignRight
                                : look.align == core::Alignment::Centre ? Qt::AlignHCenter
                                                                        : Qt::AlignLeft;
    QTextOption option = document()->defaultTextOption();
    if (option.alignment() != align) {
        option.setAlignment(align);
        document()->setDefaultTextOption(option);
    }
    showText(look.text);
}

void TextBox::showText(const QString& text) {
    if (text_ == text) return;
    text_ = text;
    setPlainText(text);
}

// toPlainText() would turn non-breaking blanks into plain ones.
QString TextBox::wholeText() const {
    QString text = document()->toRawText();
    for (QChar& character : text)
        if (character == QChar::ParagraphSeparator || character == QChar::LineSeparator)
            character = QLatin1Char('\n');
    return text;
}

void TextBox::setCaret(int position) {
    QTextCursor cursor = textCursor();
    // Characters of the text are code points; the cursor counts in pairs for those beyond the first plane.
    const std::u32string characters =
        text_.toStdU32String().substr(0, static_cast<std::size_t>(std::max(position, 0)));
    const QString before = QString::fromStdU32String(characters);
    cursor.setPosition(int(before.size()));
    setTextCursor(cursor);
}

QString TextBox::allowed(const QString& typed) const {
    QString kept;
    for (const char32_t character : typed.toStdU32String())
        if (!keyPress || keyPress(character)) kept += QString::fromUcs4(&character, 1);
    return kept;
}

void TextBox::typeInstead(const QString& text) {
    if (isReadOnly()) return;
    selectAll();
    insertPlainText(text);
}

// Where there is nothing to take back in the box, the keys mean the last step.
bool TextBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isForWindow = (key->matches(QKeySequence::Undo) && !document()->isUndoAvailable()) ||
                                 (key->matches(QKeySequence::Redo) && !document()->isRedoAvailable());
        if (isForWindow) return false;
    }
    return QTextEdit::event(event);
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (isReadOnly()) {
        event->ignore();
        return;
    }
    if (takesKey && takesKey(*event)) {
        event->accept();
        return;
    }
    const bool isBackspace = event->key() == Qt::Key_Backspace;
    if (isBackspace && keyDown) keyDown(backspace);
    if (keyPress && (isBackspace || isEnter(*event) || isTyped(*event))) {
        const char32_t character = isBackspace       ? backspace
                                   : isEnter(*event) ? U'\r'
                                                     : event->text().toStdU32String().front();
        if (!keyPress(character) || isEnter(*event)) {
            event->accept();
            return;
        }
    }
    QTextEdit::keyPressEvent(event);
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    const QString kept = allowed(event->commitString());
    if (kept == event->commitString()) {
        QTextEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent rest(event->preeditString(), event->attributes());
    rest.setCommitString(kept, event->replacementStart(), event->replacementLength());
    QTextEdit::inputMethodEvent(&rest);
}

// A file that is dropped is for the window.
bool TextBox::canInsertFromMimeData(const QMimeData* source) const {
    const QList<QUrl> urls = source->urls();
    return source->hasText() && (urls.isEmpty() || !urls.constFirst().isLocalFile());
}

// A cell is one line; a line break that came along becomes a blank.
void TextBox::insertFromMimeData(const QMimeData* source) {
    if (!canInsertFromMimeData(source)) return;
    QString text = source->text();
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (const char lineEnd : {'\r', '\n'}) text.replace(QLatin1Char(lineEnd), QLatin1Char(' '));
    insertPlainText(text);
}

bool isPassing(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

// A text that is longer than its box prints from its beginning, wherever somebody has typed in it.
void TextBox::showBeginning() {
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QTextEdit::focusInEvent(event);
    if (!isPassing(event->reason()) && gotFocus) gotFocus();
    // Behind the handler, which may show another text.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) selectAll();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
    QTextEdit::focusOutEvent(event);
    if (isPassing(event->reason())) return;
    showBeginning();
    if (lostFocus) lostFocus();
}

} // namespace gui

#include "moc_textBox.cpp"
