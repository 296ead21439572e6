#pragma once

#include "platform/platform.h"

#include <QMessageBox>

namespace gui {

// A message or a question of the handlers.
class MessageBox : public QMessageBox {
    Q_OBJECT

public:
    MessageBox(QWidget* parent, const std::string& text, platform::Icon icon, const std::string& caption,
               platform::Buttons buttons);

    platform::Answer ask();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool dismissed_ = false;
};

} // namespace gui
