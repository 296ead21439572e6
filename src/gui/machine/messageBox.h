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

    // With buttons of its own, and Cancel.
    MessageBox(QWidget* parent, const std::string& text, platform::Icon icon, const std::string& caption,
               const std::vector<std::string>& buttons);

    platform::Answer ask();
    // Of the button that was pressed; -1 for Cancel.
    int askPlace();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    MessageBox(QWidget* parent, const std::string& text, platform::Icon icon, const std::string& caption);
    void fit();

    QList<QAbstractButton*> own_;
    bool dismissed_ = false;
};

} // namespace gui
