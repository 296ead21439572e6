#include "gui/widgets/theme.h"

#include "gui/widgets/palette.h"
#include "gui/widgets/programStyle.h"

#include <QApplication>

namespace gui {

void showTheme(app::Theme theme) {
    static app::Theme shown = app::Theme::Desktop;
    if (theme == shown) return;
    shown = theme;
    switch (theme) {
    case app::Theme::Dark:
        useDarkColours();
        break;
    case app::Theme::Light:
        useLightColours();
        break;
    case app::Theme::Desktop:
        QApplication::setStyle(new ProgramStyle);
        QApplication::setPalette(QPalette());
        break;
    }
}

} // namespace gui
