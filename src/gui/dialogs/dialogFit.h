#pragma once

#include <QDialog>

namespace gui {

// What the screen has room for, beside the frame that the desktop puts around a window.
QSize roomOnScreen(const QWidget& window);
// Of the title, with the buttons beside it.
int titleWidth(const QWidget& window);

// Gives a dialog at least the width of its title and at most the room on its screen. Where even its smallest
// size finds none, with the height of what it may unfold later, it scrolls above its lowest row, which has
// the buttons: of parts that stand side by side only those that are too high.
void fitDialog(QDialog& dialog, int unfolds = 0);
// Moves the dialog when it grows over the edge of its screen.
void keepOnScreen(QDialog& dialog);
// Scrolls to a part of such a dialog.
void showWhole(const QWidget& part);

} // namespace gui
