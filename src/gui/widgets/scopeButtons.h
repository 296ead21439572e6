#pragma once

#include "search/manyRecords.h"

#include <QGroupBox>
#include <QRadioButton>

#include <array>
#include <functional>

namespace gui {

// "Records": which of them a command works on, each choice with its count. The buttons are named "Opt1_0" and
// so on, in the order of search::Scope.
class ScopeButtons : public QGroupBox {
    Q_OBJECT

public:
    // `selected` is the caption of the first button, whose mnemonic is the form's.
    ScopeButtons(const QString& selected, const std::array<search::ScopeButton, 3>& states,
                 const std::function<void(int scope)>& chosen);
    void choose(int scope);

private:
    std::array<QRadioButton*, 3> buttons_{};
};

} // namespace gui
