#include "print/printerCheck.h"

#include "core/runTimeError.h"
#include "core/translate.h"

namespace print {

bool hasPrinter(app::App& app) {
    return underPrinterTrap(app, [&] { app.platform.printerDeviceName(); });
}

bool underPrinterTrap(app::App& app, const std::function<void()>& part) {
    try {
        part();
        return true;
    } catch (const core::RunTimeError& error) {
        if (error.number == core::errors::cancelled) return false; // by the user, who needs no word of it
        app.platform.msgBox(core::tr("You need to first install a printer on this system."),
                            platform::Icon::Information, core::tr("Printer Not Installed"));
        return false;
    }
}

} // namespace print
