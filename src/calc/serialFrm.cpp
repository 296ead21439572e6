#include "calc/serialFrm.h"

#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"

namespace calc {

serialFrm::serialFrm(app::App& app) : app_(app) {
    app.document.SerialsLV.forEach([&](const core::Item& serial) { List1.push_back(serial.Text.str()); });
}

core::Item* serialFrm::selectedSerial() {
    if (selected < 0 || static_cast<std::size_t>(selected) >= List1.size()) return nullptr;
    return app_.document.SerialsLV.findText(List1[static_cast<std::size_t>(selected)]);
}

void serialFrm::List1_Click(int entry) {
    selected = entry;
    if (const core::Item* serial = selectedSerial()) Text1 = serial->subItem(1).str();
}

void serialFrm::setBtn_Click() {
    Text1 = std::string(core::trim(Text1));
    const std::optional<double> number = core::toDouble(Text1);
    if (!core::isNumeric(Text1)) {
        app::inform(app_, core::tr("You entered a non numeric value."));
        return;
    }
    core::Item* serial = selectedSerial();
    if (serial == nullptr) return;
    // A counter is read up to the first comma or sign of money, so it is stored without.
    if (number && *number != core::val(Text1)) Text1 = core::numberText(*number);
    serial->subItem(1) = Text1;
    app::setDocumentModified(app_, true);
    app_.platform.msgBox(core::fill(core::tr("%1's value has been set to %2"), {serial->Text.view(), Text1}),
                         platform::Icon::None, app::title);
    text1HasFocus = true;
}

} // namespace calc
