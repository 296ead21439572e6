#pragma once

#include "platform/platform.h"

#include <QDialog>
#include <QFontDialog>

namespace gui {

// Qt's font choice with a colour beside it.
class FontDialog : public QDialog {
    Q_OBJECT

public:
    FontDialog(const platform::FontChoice& present, QWidget* parent);

    platform::FontChoice choice() const;

private:
    void chooseColour();
    void showColour();

    QFontDialog* fonts_;
    QPushButton* colourBtn_;
    QColor colour_;
};

} // namespace gui
