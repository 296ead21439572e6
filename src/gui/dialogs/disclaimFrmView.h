#pragma once

#include <QDialog>

namespace gui {

// What the program does not promise, shown at the first start and by the Help menu.
class disclaimFrmView : public QDialog {
    Q_OBJECT

public:
    explicit disclaimFrmView(QWidget* parent = nullptr);
};

} // namespace gui
