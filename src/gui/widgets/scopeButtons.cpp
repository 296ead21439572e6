#include "gui/widgets/scopeButtons.h"

#include <QVBoxLayout>

namespace gui {

ScopeButtons::ScopeButtons(const QString& selected, const std::array<search::ScopeButton, 3>& states,
                           const std::function<void(int scope)>& chosen)
    : QGroupBox(tr("Records")) {
    const std::array<QString, 3> captions = {selected, tr("The search &results"), tr("&All records")};
    auto* column = new QVBoxLayout(this);
    for (std::size_t scope = 0; scope < captions.size(); ++scope) {
        const search::ScopeButton& state = states.at(scope);
        const QString caption =
            state.Records == 0
                ? captions.at(scope)
                : tr("%1 (%2)").arg(captions.at(scope)).arg(static_cast<qulonglong>(state.Records));
        auto* button = new QRadioButton(caption);
        button->setObjectName(QStringLiteral("Opt1_%1").arg(scope));
        button->setEnabled(state.Enabled);
        connect(button, &QRadioButton::clicked, this, [chosen, scope] { chosen(static_cast<int>(scope)); });
        column->addWidget(button);
        buttons_.at(scope) = button;
    }
}

void ScopeButtons::choose(int scope) {
    buttons_.at(static_cast<std::size_t>(scope))->setChecked(true);
}

} // namespace gui

#include "moc_scopeButtons.cpp"
