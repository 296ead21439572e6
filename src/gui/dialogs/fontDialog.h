#pragma once

#include "platform/platform.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <optional>

namespace gui {

// The choice of font and colour. What is not changed in it comes back as it was, also a font that this system
// does not have.
class FontDialog : public QDialog {
    Q_OBJECT

public:
    FontDialog(const platform::FontChoice& present, QWidget* parent);

    platform::FontChoice choice() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeFamilies();
    void makeSizes();
    QLayout* makeStyles();
    void chooseColour();
    std::optional<float> size() const; // nothing for a text that is no size
    void showSize(float size);
    void refresh();

    const platform::FontChoice present_;
    platform::FontChoice chosen_; // but the size, which stands in its box
    QListWidget* families_;
    QLineEdit* sizeTxt_;
    QListWidget* sizes_;
    QCheckBox *bold_, *italic_, *underline_, *strikethrough_;
    QPushButton *colourBtn_, *okBtn_;
    QLabel* sample_;
    QLabel* reason_; // why OK is grey
};

} // namespace gui
