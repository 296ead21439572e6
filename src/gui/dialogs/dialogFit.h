#pragma once

#include <QDialog>

namespace gui {

// What the screen has room for, beside the frame that the desktop puts around a window.
QSize roomOnScreen(const QWidget& window);
// Of the title, with the buttons beside it.
int titleWidth(const QWidget& window);

// Gives a dialog at least the width of its title and at most the room on its screen. Where even its smallest
// size finds none, it scrolls above its lowest row, which has the buttons.
void fitDialog(QDialog& dialog);

} // namespace gui
