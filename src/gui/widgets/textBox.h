#pragma once

#include "core/layoutObjects.h"

#include <QTextEdit>

#include <functional>

namespace gui {

// A field or a label of the sheet: a block of wrapping text without line breaks.
class TextBox : public QTextEdit {
    Q_OBJECT

public:
    explicit TextBox(QWidget* parent);

    // Ahead of all else; true when the key has done its work.
    std::function<bool(const QKeyEvent& key)> takesKey;
    // What the keys go through ahead of the text. A typed character that is answered with false is dropped.
    std::function<void(int keyCode)> keyDown;
    std::function<bool(char32_t character)> keyPress;
    std::function<void(const QString& text)> changed; // by the user
    std::function<void()> gotFocus, lostFocus;

    struct Look {
        QString text;
        core::ObjectFont font;
        std::int32_t foreColor = 0, backColor = 0;
        core::Alignment align = core::Alignment::Left;
        bool frame = false;
        bool locked = true;
    };
    void show(const Look& look);
    // In place of what stands there, as if it were typed.
    void typeInstead(const QString& text);
    void setCaret(int position);                              // in characters
    void forgetTyped() { document()->clearUndoRedoStacks(); } // it is stored, or given up

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showText(const QString& text);
    QString wholeText() const;
    QString allowed(const QString& typed) const;
    void showBeginning();

    bool showing_ = false;
    QString text_;
};

// The focus comes back to the box from another window, a pop-up or the menu bar: it is still being typed in.
bool isPassing(Qt::FocusReason reason);

// A font of the document, or the nearest one there is.
QFont toQtFont(const core::ObjectFont& font);
QColor toQtColor(std::int32_t colour); // 0x00BBGGRR

} // namespace gui
