#include "shell/printerCheck.h"

#include "core/runTimeError.h"

namespace shell {

bool hasPrinter(app::App& app) {
    try {
        app.platform.printerDeviceName();
        return true;
    } catch (const core::RunTimeError&) {
        app.platform.msgBox("You need to first install a printer on this system.",
                            platform::Icon::Information, "Printer Not Installed");
        return false;
    }
}

} // namespace shell
